#pragma once

#include <KxCore/KxRational.h>

#include <QSize>
#include <QString>

/// Facts of videos and files as texts. Pure.
namespace MediaText
{
/// "1920 × 1080".
QString Resolution(const QSize& resolution);
/// "9:16".
QString Aspect(const QSize& aspect);
/// "30 fps", "59.94 fps"; empty when unknown.
QString FrameRate(const KxRational& rate);
/// "1920 × 1080 · 30 fps".
QString Details(const QSize& resolution, const KxRational& rate);
/// "34 MB": whole megabytes from ten on, one decimal below, kilobytes below a tenth.
QString FileSize(qint64 bytes);
/// "8 s left", "2 min 5 s left", "1 h 5 min left".
QString TimeLeft(qint64 seconds);
/// Says that this many of the person's edits are not in the video; empty for 0.
QString MissingEdits(int count);
} // namespace MediaText
