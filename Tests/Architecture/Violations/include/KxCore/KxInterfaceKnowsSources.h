#include <KxMedia/Read/KxVideoReader.h>
