#pragma once

/// Gives the one object of type T that the process has. A T that is one declares its own `instance()` beside it, so
/// that every library of the process sees the same object.
template<class T>
class KxSingleton
{
public:
    /// Never null; lives as long as the process.
    static T* instance();
};
