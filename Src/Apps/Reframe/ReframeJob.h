#pragma once

#include <Apps/CropTracks/CropTrackFile.h>
#include <Apps/Reframe/ReframeOptions.h>
#include <Apps/Reframe/ReframeParts.h>
#include <Apps/Reframe/ReframeReporter.h>
#include <KxCore/KxCancelToken.h>
#include <KxCore/KxOutputFile.h>
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
    /// Notes what the results depend on. Ends the job if they are there already and --if-needed was given.
    Ended SkipIfDone();
    /// Checks the parts of --join, and passes those of the analysis to it.
    Ended ReadParts();
    /// Reports before the work what cannot be written and what must not be replaced.
    Ended CheckTargets();
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

    /// What the results depend on, as it is stored in them.
    QString RunText() const;
    /// The same of a result of the whole video.
    QString RunTextOfResult() const;
    /// The same of the pictures for the analysis, which depend on no setting.
    QString RunTextOfPictures() const;
    /// Whether the job is to write the pictures of a part.
    bool WritesPictures() const { return m_frames && !m_track; }
    /// The text that is stored in a result of an earlier run; empty if there is none.
    QString RunTextOf(const QString& path) const;
    /// Whether a result that stores its run is one of this input, whatever the settings were.
    bool IsOfThisInput(const QString& path) const;
    /// Whether --if-needed may replace it: it is a result of this input, or stores no run and one of the other targets
    /// is such a result and not older.
    bool IsOfAnEarlierRun(const QString& path) const;
    /// With --if-needed: sets m_number to that of this input's results where others have the same names.
    void FindNumber();

    /// Not after ForgetCrops().
    KrAutoReframeHelper& Helper() const;
    /// Frees 300 bytes a frame, most of them for editing.
    void ForgetCrops();
    CropTrack Track() const;
    /// A crop with the shape of the video that is written.
    QRectF ShapeOfResult() const;
    /// The size of the video that is written, as --size says. Empty if the picture is too small.
    KxResult<QSize> OutputSize() const;
    /// Warns where a picture becomes larger than its crop.
    void WarnOfEnlargement(const QSize& size) const;
    /// The crops as other programs need them, for an output of this size.
    KxCroppedClip CroppedClip(const QSize& outputSize) const;
    /// The file that a value of --edit-list means.
    QString EditListPath(const QString& named) const;
    /// The content of a contact sheet file; `format` is one of QImageWriter.
    KxResult<QByteArray> ContactSheetFile(const char* format) const;
    KxOutcome Fail(const QString& message);
    KxOutcome FailUnlessInterrupted(const QString& message);
    KxOutcome FailTooSmall();
    /// The file `named` itself; if that is a folder, a file in it that is named after the input; if it is empty, such a
    /// file beside the input.
    QString TargetPath(const QString& named, const QString& suffix) const;
    /// Of all files that are asked for.
    QStringList Targets() const;
    KxOutputFile::Existing WhenItExists(const QString& path) const;
    bool WouldReplaceInput(const QString& path) const;
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
    QByteArray m_contentHash;             ///< of the input
    int m_number = 1;                     ///< of the targets' names, as KxOutputFile counts
    QString m_decisions;                  ///< those of --apply and --choices, as a part of RunText()
    QJsonObject m_facts;
    QStringList& m_allWritten;
    QStringList m_written;
};
