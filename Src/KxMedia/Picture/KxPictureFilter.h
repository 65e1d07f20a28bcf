#pragma once

#include <KxMedia/Picture/KxFilterChain.h>

#include <QByteArray>

#include <optional>

/// Filters that make one picture of each. Caches its setup for the last steps and format. One thread at a time.
class KxPictureFilter
{
public:
    /// `steps` in libavfilter's syntax. An error is a clause to append to a message.
    KxResult<KxAvFrame> Run(const QByteArray& steps, KxAvFrame picture);

private:
    QByteArray m_steps;
    std::optional<KxFilterChain> m_chain;
};
