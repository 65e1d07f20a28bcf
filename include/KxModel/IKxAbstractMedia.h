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

/// A media file. It may be opened, and dropped again, on any thread; one thread at a time uses it, and from when it is
/// shown or put on a timeline that is the user-interface thread.
///
/// Life cycle: made with `createMediaItem`, given back with `releaseMediaItem` by whoever made it. Its clip and
/// information live as long as the item; a timeline that was built around the clip shares what it needs and lives on.
class KXMODEL_API IKxAbstractMediaItem : public IKxAbstractMedia
{
public:
    ~IKxAbstractMediaItem() override;

    virtual QString filePath() const = 0;
    /// Never null.
    virtual const IKxMediaInfo* mediaInfo() const = 0;
    /// A clip over the whole file; null when the file has nothing to play.
    virtual IKxClip* clip() = 0;
    /// In frames of the grid; 0 without video.
    virtual int duration() const = 0;
    /// The audio stream that plays; -1 without sound.
    virtual int audioStreamIndex() const = 0;
};

/// Opens the file `path` and reads its facts; null when it is no media file that can be read. Blocks while the file's
/// header is read; any thread. The caller gives the item back with `releaseMediaItem`.
KXMODEL_API IKxAbstractMediaItem* createMediaItem(const QString& path);

/// Frees an item made by `createMediaItem`; null is allowed.
KXMODEL_API void releaseMediaItem(IKxAbstractMediaItem* item);
