#pragma once

#include <QList>
#include <QString>

/// Why the result of a shot is doubtful.
enum class KxAutoReframeDoubt {
    None,
    NothingStandsOut, ///< the analysis found no subject
    SeveralPlaces,    ///< what stands out is in several places, farther apart than the crop is wide
    SeveralPeople,    ///< the same, and people or faces are what stands out
};

/// One shot of a video, as the analysis divides it.
struct KxAutoReframeShot {
    qint64 first = 0;        ///< frame
    qint64 end = 0;          ///< the frame after the last one
    double confidence = 0.0; ///< 0 to 1: how clearly the evidence is inside the crop
    KxAutoReframeDoubt doubt = KxAutoReframeDoubt::None;
};

/// What a host's auto-reframe service may offer beside IKxAutoReframeService. A service that does so derives from both
/// classes: clients find this one by dynamic_cast. Defined in this header alone, so that a host without it has nothing
/// to add. Any thread.
class IKxAutoReframeShots
{
public:
    /// Whether the tasks that start from now on determine their shots; initially they do not. Costs little time.
    virtual void CollectShots(bool isWanted) = 0;
    /// The shots of the task whose results IKxAutoReframeService::GetResults returns for `path`, in order and without
    /// gaps. Empty if there is no such task or it did not collect them.
    virtual QList<KxAutoReframeShot> GetShots(const QString& path) const = 0;
    /// Whether a task for the file `path` would end soon, in whatever aspect ratio and speed, because the service has
    /// looked at the file before. Blocks while parts of the file are read.
    virtual bool IsKnown(const QString& path) const = 0;

protected:
    virtual ~IKxAutoReframeShots() = default;
};
