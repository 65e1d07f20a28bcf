// Conditions that the check has to see, and one that it has to permit.

#if defined(_WIN32)
#elif defined(__linux__)
#endif
#ifdef Q_OS_WIN
#endif
#ifdef __cpp_lib_optional
#endif
