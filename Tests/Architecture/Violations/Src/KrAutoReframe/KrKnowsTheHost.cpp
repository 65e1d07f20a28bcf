#include "KxVideoReader.h"
#include <libavcodec/avcodec.h>
