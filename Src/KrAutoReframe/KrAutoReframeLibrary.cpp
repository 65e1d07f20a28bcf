// The shared library is made of the module's static library as a whole; CMake wants one source of its own.
