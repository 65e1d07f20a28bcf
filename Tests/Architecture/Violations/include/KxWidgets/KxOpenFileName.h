#include <unistd.h>
#include <windows.h>
