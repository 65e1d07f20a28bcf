#include <Apps/Reframe/ReframeJob.h>

#include <KxCore/KxInterrupt.h>
#include <KxCore/KxThread.h>
#include <KxMedia/Write/KxMp4Writer.h>
#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxPicturesFile.h>

#include <QCoreApplication>
#include <QEventLoop>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeJobParts)
};

} // namespace

ReframeJob::Ended ReframeJob::FindFrames()
{
    if (!m_options.frames) {
        return std::nullopt;
    }
    const KxRational rate = m_media->StreamInfo().frameRate();
    const KxResult<KxFrameRange> frames = m_options.frames->Of(m_media->duration(), KxMp4Writer::SegmentFrames(rate));
    if (!frames) {
        return Fail(Texts::tr("Cannot take that part of %1: %2.").arg(m_input, frames.Message()));
    }
    m_frames = *frames;
    m_facts.insert(QStringLiteral("first"), m_frames->first);
    m_facts.insert(QStringLiteral("last"), m_frames->end - 1);
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::ReadParts()
{
    KxAutoReframeService::Instance().SetParts({});
    if (m_options.parts.isEmpty()) {
        return std::nullopt;
    }
    KxResult<ReframeParts> parts = ReframeParts::Check(
        m_options.parts, {m_input, m_media->duration(), m_targets->Run().OfPictures(), m_targets->Run().OfResults()});
    if (!parts) {
        return Fail(parts.Message());
    }
    if (parts->arePictures && m_track) {
        return Fail(Texts::tr("Cannot join %1: pictures are for an analysis, and with --apply there is none.")
                        .arg(parts->paths.first()));
    }
    if (!parts->arePictures && !m_track) {
        return Fail(Texts::tr("Cannot join %1: parts of the video need the crop track that they were made with "
                              "(--apply).")
                        .arg(parts->paths.first()));
    }
    if (parts->arePictures) {
        KxAutoReframeService::Instance().SetParts(parts->paths);
    } else {
        m_videoParts = parts->paths;
    }
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::WritePictures()
{
    if (!WritesPictures()) {
        return std::nullopt;
    }
    m_reporter.BeginStage(m_input, ReframeReporter::Stage::Analyze);
    const QString path = m_targets->Pictures();
    QEventLoop loop;
    // Called on the other thread; the reporter belongs to this one.
    const auto progress = [this, &loop](int percent) {
        QMetaObject::invokeMethod(&loop, [this, percent] { m_reporter.Progress(percent * 100); });
    };
    KxPicturesFile::Written written;
    KxThread thread([&] {
        const KxError failure = KxCallGuarded([&] {
            written = KxPicturesFile::Write(m_input, *m_frames,
                                            {path, m_targets->WhenItExists(path), m_targets->Run().OfTask()}, progress,
                                            KxInterrupt::Token());
        });
        if (failure) {
            written.message = Texts::tr("Cannot analyse %1: %2.").arg(m_input, *failure);
        }
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    thread.Join();
    if (written.outcome != KxOutcome::Done) {
        return written.outcome == KxOutcome::Cancelled ? KxOutcome::Cancelled : Fail(written.message);
    }
    if (!written.warning.isEmpty()) {
        m_reporter.Warn(m_input, written.warning);
    }
    NoteWritten(written.path, QStringLiteral("pictures"));
    m_reporter.Succeed(m_input, FinishedMessage(), m_facts);
    return KxOutcome::Done;
}
