#include <KxSubject/KxSubjectDecision.h>
