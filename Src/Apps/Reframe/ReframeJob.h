#pragma once

#include <Apps/CropTracks/CropTrackFile.h>
#include <Apps/Reframe/ReframeOptions.h>
#include <Apps/Reframe/ReframeParts.h>
#include <Apps/Reframe/ReframeReporter.h>
#include <Apps/Reframe/ReframeTargets.h>
#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>
#include <KxEditList/KxCroppedClip.h>
#include <KxMedia/Read/KxVideoScanner.h>
#include <KxModel/KxMediaItem.h>
#include <KxRender/KxRenderer.h>

#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>

#include <QJsonObject>

/// A file of the command line. Opened by its first job, for all of them.
struct ReframeInput {
    QString path;
    std::shared_ptr<KxMediaItem> media; ///< null before
};

/// Processes one input at one aspect ratio: opens it, analyses it or reads a crop track, and writes the requested
/// files. Main thread; runs the event loop while it waits.
class ReframeJob
{
public:
    /// `written` are the files of the earlier jobs, to which this job adds its own: a run never replaces its own
    /// output.
    ReframeJob(ReframeInput& input, const QSize& aspect, const ReframeOptions& options, ReframeReporter& reporter,
               QStringList& written);
    ~ReframeJob();
    Q_DISABLE_COPY_MOVE(ReframeJob)

    /// Reports progress and the end. Cancelled when the person interrupted it: then the video was not written. An
    /// interrupt that comes later is left to the caller, and the outcome is Done.
    KxOutcome Run();

private:
    /// Nothing when the step is done, otherwise how the job ended. A failure is reported already.
    using Ended = std::optional<KxOutcome>;

    KxOutcome RunSteps();
    Ended Open();
    /// Notes the part of the video that --frames asks for.
    Ended FindFrames();
    Ended ReadTrack();
    /// Passes the person's choices to the analysis.
    Ended ReadChoices();
    /// Names the files, now that it is known what the job makes.
    Ended ChooseTargets();
    /// Ends the job if --if-needed was given and its results are there already.
    Ended SkipIfDone();
    /// Checks the parts of --join, and passes those of the analysis to it.
    Ended ReadParts();
    /// Reports before the work what cannot be written and what must not be replaced.
    Ended CheckTargets();
    /// The same of a size that the results cannot have.
    Ended CheckSize();
    /// Ends the job if --frames asks for the pictures of a part.
    Ended WritePictures();
    Ended FindCrops();
    Ended StartAnalysis();
    Ended StartApplying();
    Ended WaitForCrops();
    /// Notes the shots with their confidence as a fact.
    void NoteShots();
    Ended WriteChoices();
    Ended WriteKeyframes();
    Ended WriteEditLists();
    Ended WriteReport();
    Ended WritePreview();
    Ended WritePreviewVideo();
    Ended WriteVideo();
    /// Reports progress (as that of `stage`) and warnings, and notes the file as `fact`.
    Ended Render(const KxRenderSource& source, const KxRenderSettings& settings, ReframeReporter::Stage stage,
                 const QString& fact);

    /// Whether the job is to write the pictures of a part.
    bool WritesPictures() const { return m_frames && !m_track; }

    /// Not after ForgetCrops().
    KrAutoReframeHelper& Helper() const;
    /// Frees 300 bytes a frame, most of them for editing.
    void ForgetCrops();
    CropTrack Track() const;
    /// A crop with the shape of the video that is written.
    QRectF ShapeOfResult() const;
    /// Warns where a picture becomes larger than its crop.
    void WarnOfEnlargement(const QSize& size) const;
    /// The crops as other programs need them, for an output of this size.
    KxCroppedClip CroppedClip(const QSize& outputSize) const;
    /// The content of a contact sheet file; `format` is one of QImageWriter.
    KxResult<QByteArray> ContactSheetFile(const char* format) const;
    KxOutcome Fail(const QString& message);
    /// `reason` is a clause.
    KxOutcome FailBecause(const QString& reason);
    KxOutcome FailUnlessInterrupted(const QString& message);
    Ended WriteFile(const QString& path, const QByteArray& content, const QString& fact);
    void NoteWritten(const QString& path, const QString& fact);
    QString FramesText() const;
    QString FinishedMessage() const;

    const QString m_input;
    const ReframeOptions& m_options;
    ReframeReporter& m_reporter;
    QSize m_aspect;
    std::shared_ptr<KxMediaItem>& m_media;           ///< of the input
    std::unique_ptr<KxVideoScanner> m_opened;        ///< for the analysis; may be null
    std::unique_ptr<KrAutoReframeProcess> m_process; ///< null once the crops are forgotten
    /// Applied in place of an analysis.
    std::optional<CropTrack> m_track;
    /// Fitted if a choice or the track asks for the whole picture.
    KxRenderSource::OtherShapes m_otherShapes = KxRenderSource::OtherShapes::Stretched;
    KxUsedEncoder m_encoder;              ///< of the last video that was written
    std::optional<KxFrameRange> m_frames; ///< the part of --frames
    QStringList m_videoParts;             ///< of --join, in order
    std::optional<ReframeTargets> m_targets;
    QJsonObject m_facts;
    QStringList& m_allWritten;
    QStringList m_written;
};
