#include <windows.h>
#include <unistd.h>
