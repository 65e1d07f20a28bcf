#pragma once

#include <KxModel/IKxAutoReframeChoices.h>
#include <KxModel/IKxAutoReframeParam.h>
#include <KxModel/IKxAutoReframeResult.h>
#include <KxModel/IKxAutoReframeShots.h>

#include <KxModel/KxDetectorFiles.h>
#include <KxModel/KxPartialResults.h>

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>
#include <KxSubject/Choice/KxChoicePlacement.h>
#include <KxSubject/KxSubjectChoices.h>
#include <KxSubject/KxUsedModel.h>

#include <QList>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class KxFollowTracks;
class KxRecordStore;
class KxVideoScanner;
struct KxSubjectFindings;
struct KxSubjectModels;
struct KxSubjectRecord;
struct KxSubjectRequest;

/// One analysis of one file, as the service runs it.
class KXMODEL_API KxAnalysis
{
public:
    struct Result {
        KxOutcome outcome = KxOutcome::Failed;
        QList<IKxAutoReframeResult> crops;                 ///< one a frame; empty unless Done
        QString message;                                   ///< the error message of a failure
        QStringList warnings;                              ///< a warning for the person, although it is Done
        std::vector<KxUsedModel> models;                   ///< the networks that the crops depend on
        std::shared_ptr<const KxSubjectFindings> findings; ///< null unless Done and wanted
        QList<KxAutoReframeShot> shots;                    ///< empty unless Done and wanted
        QList<KxAutoReframeLoss> losses;                   ///< where the choices of the person were lost
        std::vector<KxPlacedChoice> choices;               ///< of the person, where their pictures are
        std::shared_ptr<const KxSubjectRecord> record;     ///< null unless Done
    };

    virtual ~KxAnalysis();

    /// Blocks until the end. `onProgress` is called on this thread with 0 to 99, each number at most once. Call once.
    virtual Result Run(const std::function<void(int percent)>& onProgress) = 0;

protected:
    KxAnalysis() = default;
    KxAnalysis(const KxAnalysis&) = delete;
    KxAnalysis& operator=(const KxAnalysis&) = delete;
};

/// What the service passes on to an analysis besides the file and the client's parameters.
struct KxAnalysisSettings {
    QString networkFolder; ///< of the optional detectors (KxDetectorFiles); empty: none
    bool wantsFindings = false;
    bool wantsShots = false;
    bool followsSpeaker = true;             ///< where several people talk
    std::shared_ptr<KxRecordStore> records; ///< null: every analysis looks at the video
    KxSubjectChoices choices;               ///< of the person, for this video
    std::shared_ptr<KxFollowTracks> tracks; ///< null: what is followed is looked for anew each time
    KxPartialTaker partial;                 ///< of what is followed
    /// The files with the pictures of the video's parts (KxPicturesFile), in order; empty: the video is decoded.
    QStringList parts;
};

/// The analysis of a video file. If the file was looked at before, its record decides; otherwise its pictures are
/// decoded and looked at (KxVideoObservation). Shots in which a choice points at something are looked at again, once
/// for each set of its seeds (KxFollowPass).
class KXMODEL_API KxVideoAnalysis final : public KxAnalysis
{
public:
    /// Beyond this number of frames (a day at 30 frames a second) a file is refused: one whose time stamps have a gap
    /// of months would need more memory for its crops than any computer has. At this number a whole run of `reframe`
    /// takes 1 GB.
    static constexpr qint64 MostFrames = 2600000;

    /// Reads the file's header, unless there is a confirmed record of the file. `opened` is the file's video, of which
    /// nothing was read yet; null, and one of another or a changed file: the file is opened. The error message of a
    /// failure names the file and the reason.
    static KxResult<std::unique_ptr<KxAnalysis>> Open(const QString& path, const IKxAutoReframeParam& param,
                                                      const KxAnalysisSettings& settings, const KxCancelToken& cancel,
                                                      std::shared_ptr<KxVideoScanner> opened = nullptr);
    ~KxVideoAnalysis() override;

    /// Whether an analysis of the file `path` would find a record of it. Blocks while parts of the file and the record
    /// are read.
    static bool HasRecord(const QString& path, const KxAnalysisSettings& settings);

    Result Run(const std::function<void(int percent)>& onProgress) override;

private:
    KxVideoAnalysis(const QString& path, const IKxAutoReframeParam& param, const KxAnalysisSettings& settings,
                    const KxCancelToken& cancel);

    /// Reads the files of the models, and of the video what identifies its record. Once.
    void LookUp();
    /// The record of the file as an earlier analysis left it; null without one.
    std::shared_ptr<const KxSubjectRecord> FindRecord() const;
    /// Looks at the whole video. Null if that fails or is cancelled: then `result` says why.
    std::shared_ptr<const KxSubjectRecord> Observe(const std::function<void(int percent)>& onProgress, Result& result);
    /// Looks for what the choices of `request` point at. False if that fails or is cancelled: then `result` says why.
    bool Follow(const KxSubjectRecord& record, KxSubjectRequest& request,
                const std::function<void(int percent)>& onProgress, Result& result);

    /// What is known before the analysis.
    struct Known {
        KxDetectorFiles::Contents detectors;
        QByteArray key;                                ///< of the record; empty without a store of records
        std::shared_ptr<const KxSubjectRecord> record; ///< null without a confirmed one
    };

    const QString m_path;
    std::optional<Known> m_known;              ///< since LookUp
    std::shared_ptr<KxVideoScanner> m_scanner; ///< null with a confirmed record, and once it was read to its end
    IKxAutoReframeParam m_param;
    KxAnalysisSettings m_settings;
    KxCancelToken m_cancel;
};
