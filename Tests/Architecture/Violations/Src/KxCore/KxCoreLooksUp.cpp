#include <KxModel/IKxTimeline.h>
#include <KxModel/KxModelKnowsWidgets.h>
