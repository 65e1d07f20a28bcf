#include <KxSubject/KxSubjectAnalyzer.h>
