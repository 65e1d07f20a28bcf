#include <KxMedia/Read/KxVideoReader.h>
#include <libavcodec/avcodec.h>
