#pragma once

#include <KxCore/KxExport.h>

#include <QString>

class IKxClip;
class IKxMediaInfo;

/// Anything that a media library holds (a file, a folder, a title). The library owns it.
class KXMODEL_API IKxAbstractMedia
{
public:
    virtual ~IKxAbstractMedia();

    virtual QString name() const = 0;
};

/// A media file. It may be opened and released on any thread. Only one thread at a time uses it: the user-interface
/// thread, once it is shown or put on a timeline.
///
/// Life cycle: created with `createMediaItem`, released with `releaseMediaItem` by the same caller. Its clip and
/// information live as long as the item; a timeline built from the clip shares its data and remains valid.
class KXMODEL_API IKxAbstractMediaItem : public IKxAbstractMedia
{
public:
    ~IKxAbstractMediaItem() override;

    virtual QString filePath() const = 0;
    /// Never null.
    virtual const IKxMediaInfo* mediaInfo() const = 0;
    /// A clip of the whole file; null if the file has nothing to play.
    virtual IKxClip* clip() = 0;
    /// In frames of the grid; 0 without video.
    virtual int duration() const = 0;
    /// The index of the audio stream that is played; -1 without sound.
    virtual int audioStreamIndex() const = 0;
};

/// Opens the file `path` and reads its facts; null if it is not a readable media file. Blocks while the file's
/// header is read; any thread. The caller releases the item with `releaseMediaItem`.
KXMODEL_API IKxAbstractMediaItem* createMediaItem(const QString& path);

/// Frees an item made by `createMediaItem`; null is allowed.
KXMODEL_API void releaseMediaItem(IKxAbstractMediaItem* item);
