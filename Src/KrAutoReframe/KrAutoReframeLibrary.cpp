// The shared library consists of the module's whole static library; CMake requires one source of its own.
