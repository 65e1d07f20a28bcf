#include "KxVideoReader.h"
#include <KxMedia/KxVideoReader.h>
