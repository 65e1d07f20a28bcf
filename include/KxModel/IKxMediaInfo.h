#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxRational.h>

#include <QSize>

/// Properties of a media file's streams. Owned by the media item or clip that returns it, and valid as long; never
/// changes. Cast to IKxVideoMediaInfo or IKxAudioMediaInfo for the facts of the kind that it reports.
class KXMODEL_API IKxMediaInfo
{
public:
    virtual ~IKxMediaInfo();

    /// A moving picture with at least one frame; a cover picture in a sound file and a still image do not count.
    virtual bool hasVideoStream() const = 0;
    virtual bool hasAudioStream() const = 0;
};

/// The facts of a video stream. Frames are counted on one constant grid at `frameRate`: frame n is the picture shown n
/// / rate after the first one.
class KXMODEL_API IKxVideoMediaInfo : public virtual IKxMediaInfo
{
public:
    ~IKxVideoMediaInfo() override;

    /// Frames on the grid.
    virtual qint64 frameCount() const = 0;
    virtual KxRational frameRate() const = 0;
    /// As displayed: upright and with square pixels.
    virtual QSize resolution() const = 0;
    /// Bits a second; estimated from the file's size if the file does not specify it.
    virtual int bitRate() const = 0;
};

/// The facts of the audio streams.
class KXMODEL_API IKxAudioMediaInfo : public virtual IKxMediaInfo
{
public:
    ~IKxAudioMediaInfo() override;

    /// Bits a second of the stream with this number (0 is the first audio stream); 0 when unknown or out of range.
    virtual int bitRate(int stream) const = 0;
};
