#pragma once

#include <KxWidgets/KxUIStyle.h>

#include <memory>

/// The colour scheme of a system that belongs to the test alone.
class OfferedScheme
{
public:
    OfferedScheme();
    ~OfferedScheme();
    OfferedScheme(const OfferedScheme&) = delete;
    OfferedScheme& operator=(const OfferedScheme&) = delete;

    /// For programs that start afterwards.
    void Offer(KxUIStyle::Scheme scheme);
    /// For programs that run, after Offer().
    void Change(KxUIStyle::Scheme scheme);

private:
    class Impl;
    const std::unique_ptr<Impl> m_impl;
};
