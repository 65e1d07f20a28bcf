#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>

#include <KxSubject/KxSubjectChoices.h>

#include <QByteArray>
#include <QString>

/// The text format of a person's choices for one video (JSON, described in Docs/FILES.md). Times and places are those
/// of the source, so they hold for every aspect, speed and version of the analysis.
namespace KxChoicesFormat
{
constexpr int Version = 1;
constexpr int MostBytes = 4 * 1024 * 1024;
constexpr int MostChoices = 1000;
constexpr int MostSeeds = 1000;   ///< and boxes, in all choices of a text
constexpr int MostPictures = 100; ///< in each choice

KXMODEL_API QByteArray Write(const KxSubjectChoices& choices);

/// `name` stands for the text in error messages. Members that this version does not know are ignored.
KXMODEL_API KxResult<KxSubjectChoices> Read(const QByteArray& text, const QString& name);

/// Reads a file of at most MostBytes.
KXMODEL_API KxResult<KxSubjectChoices> ReadFile(const QString& path);
} // namespace KxChoicesFormat
