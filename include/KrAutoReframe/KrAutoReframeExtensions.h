#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <functional>

class QWidget;

/// An edit point whose pictures were not in the video when it was analyzed last, because it was cut differently: it is
/// kept, and set again if they return. A plain value.
struct KrUnplacedEdit {
    qint64 frame = 0; ///< where it was when it was set last
    QRectF crop;      ///< as in KrAutoReframeState::editPoints
    QByteArray pictures;

    bool operator==(const KrUnplacedEdit& other) const
    {
        return frame == other.frame && crop == other.crop && pictures == other.pictures;
    }
};

/// What a person has decided about one video in the dialog. A plain value.
struct KrAutoReframeState {
    /// The settings of the panel; 0 if none were chosen yet.
    int aspectWidth = 0;
    int aspectHeight = 0;
    /// In the values of IKxAutoReframeParam: 8 fast, 16 auto, 24 slow.
    int motionSpeed = 0;
    /// The video was analyzed. A dialog that opens it again shows the result at once if the service still knows the
    /// video (IKxAutoReframeShots::IsKnown); otherwise the person analyzes it again, and the rest of the state applies
    /// then.
    bool isAnalyzed = false;
    /// The crops that the person placed, by frame: x and width as fractions of the picture's width, y and height as
    /// fractions of its height. Each has the aspect ratio in which it was placed; in another one it keeps its centre.
    QMap<uint, QRectF> editPoints;
    /// What the pictures around the edit points look like, by frame: text as the service writes it, to be stored
    /// unread. By it they are found again in a file that was cut differently. Empty without IKxAutoReframePictures.
    QMap<uint, QByteArray> editPictures;
    QList<KrUnplacedEdit> unplacedEdits;
    /// Whom to follow, and where: JSON text as the service writes it, to be stored unread. Empty: the analysis decides.
    QByteArray choices;
    /// The first frames of the doubtful shots that the person has looked at, ascending.
    QList<uint> seenShots;
    /// A wish of the host, read when the video is opened: its first result is shown at the first doubtful shot that was
    /// not seen, and not from the beginning.
    bool startsAtDoubtfulShot = false;
    /// A wish of the host, read when the video is opened: crops of all its frames, which the dialog shows in place of
    /// an analysis, as if one had found them. In fractions of the picture, as edit points are; usually empty.
    QList<QRectF> crops;

    bool operator==(const KrAutoReframeState& other) const
    {
        return aspectWidth == other.aspectWidth && aspectHeight == other.aspectHeight &&
               motionSpeed == other.motionSpeed && isAnalyzed == other.isAnalyzed && editPoints == other.editPoints &&
               editPictures == other.editPictures && unplacedEdits == other.unplacedEdits && choices == other.choices &&
               seenShots == other.seenShots;
    }
    bool operator!=(const KrAutoReframeState& other) const { return !(*this == other); }
};

/// How an export that was asked for in the dialog is getting on. A plain value.
struct KrAutoReframeExport {
    enum class State { Queued, Running, Done, Failed, Cancelled };

    State state = State::Queued;
    int progress = 0; ///< ten-thousandths
    QString filePath; ///< that will be written, or was
    QString message;  ///< why it failed, or a warning about the file that was written
};

/// What a host may offer beside KrAutoReframeExtensions, by deriving from both: reports on the exports that it was
/// asked for by KrAutoReframeDialog::sigExportToLocal. The dialog then shows how the last one is getting on, and offers
/// to show its file. Defined in this header alone; user-interface thread.
class KrAutoReframeExports
{
public:
    using Listener = std::function<void(const KrAutoReframeExport& state)>;

    /// From now on `listener` is called at each change of the last export that this dialog asked for, also at once
    /// when it is queued. An empty one ends that.
    virtual void ListenToExports(const Listener& listener) = 0;
    /// The person wants to see the file in its folder.
    virtual void ShowInFolder(const QString& filePath) = 0;

protected:
    virtual ~KrAutoReframeExports() = default;
};

/// A size in which a host can write the result. A plain value.
struct KrAutoReframeOutput {
    QString name; ///< as the person reads it
    QSize size;   ///< of the written video, in pixels
};

/// What a host may offer beside KrAutoReframeExtensions, by deriving from both: other sizes for the exported video than
/// the crop's. The dialog then shows them as a choice with the size that comes out, and says where it enlarges the
/// picture. The record of an export keeps the crop's size: the host knows what was chosen. Defined in this header
/// alone; user-interface thread.
class KrAutoReframeOutputs
{
public:
    /// The choices for a crop of `crop` pixels, which is written as `cropSize` without a choice; the first one is that.
    /// Called for each new result.
    virtual QList<KrAutoReframeOutput> OutputsFor(const QSizeF& crop, const QSize& cropSize) = 0;
    /// Index of the one that holds.
    virtual int ChosenOutput() const = 0;
    /// The person chose another one.
    virtual void ChooseOutput(int index) = 0;

protected:
    virtual ~KrAutoReframeOutputs() = default;
};

/// What a host may offer beside KrAutoReframeExtensions, by deriving from both: help. Defined in this header alone;
/// user-interface thread.
class KrAutoReframeHelp
{
public:
    /// The person pressed F1 in `dialog`.
    virtual void ShowHelp(QWidget& dialog) = 0;

protected:
    virtual ~KrAutoReframeHelp() = default;
};

/// Opt-in extensions of the dialog. A host that implements this and hands it over (KrAutoReframeDialog::SetExtensions)
/// turns them on; without it the dialog shows and does nothing of the following:
/// - edit points, choices and the undo history survive another analysis, in another speed or aspect ratio too, and a
///   hint says when the settings differ from what is shown;
/// - an analysis that ends at once shows no progress dialog, and the player stays at its frame;
/// - guides over the result (safe zones of vertical players, thirds, headroom), never exported, and its size;
/// - the arrow keys move the crop while the picture has the focus: by a pixel of the video, with Shift by 10;
/// - where the service offers IKxAutoReframeShots: shots on the slider, and a way through those that are doubtful;
/// - where the service offers IKxAutoReframeChoices: pointing at what the crop follows or avoids in a shot;
/// - where the service offers IKxAutoReframePartialResults: the crop of a choice grows while the service follows it;
/// - where the service offers IKxAutoReframePictures: edit points move with their pictures in a file that was cut
///   differently;
/// - where the service offers IKxAutoReframeDecisions: several aspect ratios side by side;
/// - where the host also implements KrAutoReframeExports: how an export is getting on;
/// - where the host also implements KrAutoReframeOutputs: the size in which it is written;
/// - where the host also implements KrAutoReframeHelp: F1.
///
/// The host implements it; the dialog calls it on the user-interface thread. No function of the module's library is
/// needed to implement it.
class KrAutoReframeExtensions
{
public:
    /// The state of the video `path` that OnStateChanged reported last, also to an earlier dialog; a
    /// default-constructed one for a video that is new. Called when the dialog opens the video; should not block.
    virtual KrAutoReframeState LoadState(const QString& path) = 0;
    /// The person changed something: an edit, an undo, a setting, an analysis, a look at a doubtful shot. Each call
    /// has the whole state. Called often; should not block.
    virtual void OnStateChanged(const QString& path, const KrAutoReframeState& state) = 0;

protected:
    virtual ~KrAutoReframeExtensions() = default;
};
