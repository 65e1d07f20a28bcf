#include <commdlg.h>
