#include "KxModelKnowsWidgets.h"
#include <KxModel/IKxTimeline.h>
