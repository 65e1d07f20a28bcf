#pragma once

#include <KxMedia/Read/KxMediaFacts.h>
#include <KxSubject/KxSubjectSampling.h>

#include <QSize>

/// Which pictures of a file the analysis takes, in which sizes (KxSubjectSampling).
namespace KxVideoSampling
{
KxSubjectSource SourceOf(const KxVideoFacts& video);
KxSubjectSampling Of(const KxVideoFacts& video);
QSize ShotSize();
QSize WholeSize(const KxVideoFacts& video);
} // namespace KxVideoSampling
