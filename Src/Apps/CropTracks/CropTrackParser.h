#pragma once

#include <Apps/CropTracks/CropTrackFile.h>

class JsonReader;
class QIODevice;

/// Reads one crop track in either format. The members return an error message, or nothing on success.
class CropTrackParser
{
public:
    /// `name` is how messages call the file.
    CropTrackParser(QString name, qint64 frameCount);

    KxError ReadCsv(QIODevice& file);
    KxError ReadJson(QIODevice& file);

    /// Valid after a success.
    const CropTrack& Track() const { return m_track; }

private:
    KxError ReadMember(JsonReader& reader, const QString& key);
    KxError ReadVersion(JsonReader& reader) const;
    KxError ReadAspect(JsonReader& reader);
    KxError ReadFrames(JsonReader& reader);
    KxError ReadFrame(JsonReader& reader);
    KxError SkipValue(JsonReader& reader) const;
    KxError Append(const QRectF& crop);

    KxError NotATrack(const JsonReader& reader) const;
    KxError BadFrame() const;

    const QString m_name;
    const qint64 m_frameCount;
    CropTrack m_track;
};
