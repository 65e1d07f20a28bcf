#include "KxVideoReader.h"
