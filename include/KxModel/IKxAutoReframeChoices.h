#pragma once

#include <QByteArray>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

/// What a person decided for a range of time. Times are seconds since the first picture, places fractions of the
/// upright picture, so a choice holds for every aspect ratio and speed.
struct KxAutoReframeChoice {
    enum class Kind {
        Follow,   ///< the crop follows what the seeds show
        Avoid,    ///< what the seeds show does not attract the crop
        Hold,     ///< the crop stays still around `centre`
        Fit,      ///< the whole picture is shown
        Automatic ///< the analysis decides; takes back earlier choices
    };
    /// Where the person pointed.
    struct Seed {
        double seconds = 0.0;
        QRectF box;
        bool isGuessed = false; ///< from a click; otherwise the person drew or confirmed the box

        bool operator==(const Seed& other) const
        {
            return seconds == other.seconds && box == other.box && isGuessed == other.isGuessed;
        }
    };

    /// What the video looks like at one time, in the terms of the service.
    struct Picture {
        double seconds = 0.0;
        quint64 print = 0;

        bool operator==(const Picture& other) const { return seconds == other.seconds && print == other.print; }
    };

    Kind kind = Kind::Automatic;
    double fromSeconds = 0.0;
    double toSeconds = 0.0;
    QList<Seed> seeds;        ///< Follow and Avoid
    QPointF centre{0.5, 0.5}; ///< Hold
    /// By which the service finds the choice again in a file that was cut differently; empty in a new choice.
    QList<Picture> pictures;
    /// False: these pictures are not in the video, so the choice is not applied. The service sets it.
    bool isFound = true;

    bool operator==(const KxAutoReframeChoice& other) const
    {
        return kind == other.kind && fromSeconds == other.fromSeconds && toSeconds == other.toSeconds &&
               seeds == other.seeds && centre == other.centre && pictures == other.pictures && isFound == other.isFound;
    }
};

/// What is at a place in a picture.
struct KxAutoReframeGuess {
    QRectF box;                ///< empty if the picture cannot be read
    bool isBackground = false; ///< a wall, the sky or another surface, which looks like what is around it
};

/// Frames, both included, through which the analysis lost what a choice follows, or may have lost it: a person should
/// look, and point at it again.
struct KxAutoReframeLoss {
    enum class Kind {
        Lost,
        Doubted ///< it is followed, but this may be something else
    };

    qint64 first = 0;
    qint64 last = 0;
    Kind kind = Kind::Lost;
};

/// What a host's auto-reframe service may offer beside IKxAutoReframeService: it takes a person's choices. A service
/// that does so derives from both classes: clients find this one by dynamic_cast. Defined in this header alone, so that
/// a host without it has nothing to add. Any thread.
class IKxAutoReframeChoices
{
public:
    /// The choices for the tasks that start from now on; initially none. Where two overlap, the later one of the list
    /// applies. A task for a video that the service has looked at before looks again only at what the choices need.
    virtual void SetChoices(const QList<KxAutoReframeChoice>& choices) = 0;

    /// Choices for the file `path` as text, to be stored, and read again by this or a later version, together with
    /// what the pictures around them look like if the last task was for that file. Text that cannot be read gives none.
    virtual QByteArray WriteChoices(const QString& path, const QList<KxAutoReframeChoice>& choices) const = 0;
    virtual QList<KxAutoReframeChoice> ReadChoices(const QByteArray& text) const = 0;

    /// What is at `point` in frame `frame` of the file `path`. Blocks for some tenths of a second.
    virtual KxAutoReframeGuess GuessBox(const QString& path, qint64 frame, const QPointF& point) const = 0;
    /// What was lost or is doubted in the task whose results IKxAutoReframeService::GetResults returns for `path`, in
    /// order of the choices; for each of them first what is doubted. Empty if there is no such task.
    virtual QList<KxAutoReframeLoss> GetLosses(const QString& path) const = 0;

    /// The choices as the task applied them whose results IKxAutoReframeService::GetResults returns for `path`: if the
    /// file was cut differently when they were made, they are where their pictures are now. In the same order; empty if
    /// there is no such task.
    virtual QList<KxAutoReframeChoice> GetPlacedChoices(const QString& path) const = 0;

protected:
    virtual ~IKxAutoReframeChoices() = default;
};
