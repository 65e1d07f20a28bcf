#pragma once

/// Access to the only object of type T in the process. T declares its own specialisation of `instance()`, so that every
/// library of the process uses the same object.
template<class T>
class KxSingleton
{
public:
    /// Never null; lives as long as the process.
    static T* instance();
};
