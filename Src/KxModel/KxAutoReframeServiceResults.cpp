#include <KxModel/KxAutoReframeService.h>

#include <KxModel/KxChoiceRecords.h>
#include <KxModel/KxChoicesFormat.h>
#include <KxModel/KxFramePictures.h>
#include <KxModel/KxPointedPicture.h>

#include <KxCore/KxLog.h>

#include <QCoreApplication>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxAutoReframeService)
};

} // namespace

bool KxAutoReframeService::HasResultsOf(const QString& path) const
{
    return m_result.outcome == KxOutcome::Done && path == m_resultPath;
}

int KxAutoReframeService::GetResults(const QString& path, QList<IKxAutoReframeResult>* out)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    out->clear();
    if (!HasResultsOf(path) || m_result.crops.isEmpty()) {
        return -1;
    }
    *out = m_result.crops;
    return 0;
}

QList<KxAutoReframeShot> KxAutoReframeService::GetShots(const QString& path) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return HasResultsOf(path) ? m_result.shots : QList<KxAutoReframeShot>();
}

QList<KxAutoReframeLoss> KxAutoReframeService::GetLosses(const QString& path) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return HasResultsOf(path) ? m_result.losses : QList<KxAutoReframeLoss>();
}

QList<KxAutoReframeChoice> KxAutoReframeService::GetPlacedChoices(const QString& path) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return HasResultsOf(path) ? KxChoiceRecords::FromPlaced(m_result.choices) : QList<KxAutoReframeChoice>();
}

QList<IKxAutoReframeResult> KxAutoReframeService::GetPartialResults(const QString& path) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return path == m_partialPath ? m_partial : QList<IKxAutoReframeResult>();
}

std::shared_ptr<const KxSubjectRecord> KxAutoReframeService::RecordOf(const QString& path) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return path == m_resultPath ? m_result.record : nullptr;
}

QByteArray KxAutoReframeService::WriteChoices(const QString& path, const QList<KxAutoReframeChoice>& choices) const
{
    KxSubjectChoices written = KxChoiceRecords::ToSubject(choices);
    if (const std::shared_ptr<const KxSubjectRecord> record = RecordOf(path)) {
        written = KxDescribeChoices(*record, std::move(written));
    }
    return KxChoicesFormat::Write(written);
}

QList<KxAutoReframeChoice> KxAutoReframeService::ReadChoices(const QByteArray& text) const
{
    if (text.isEmpty()) {
        return {};
    }
    const KxResult<KxSubjectChoices> read = KxChoicesFormat::Read(text, Texts::tr("the stored choices"));
    if (!read) {
        KX_LOG_WARNING(read.Message());
        return {};
    }
    return KxChoiceRecords::FromSubject(*read);
}

KxAutoReframeGuess KxAutoReframeService::GuessBox(const QString& path, qint64 frame, const QPointF& point) const
{
    KxAutoReframeGuess guess;
    // Without a guess the person draws the box.
    KxCallGuarded([&] { guess = KxPointedPicture::GuessAt(path, frame, point, RecordOf(path).get()); });
    return guess;
}

QList<QByteArray> KxAutoReframeService::DescribeFrames(const QString& path, const QList<qint64>& frames) const
{
    if (const std::shared_ptr<const KxSubjectRecord> record = RecordOf(path)) {
        return KxFramePictures::Describe(*record, frames);
    }
    return QVector<QByteArray>(frames.size()).toList();
}

QList<std::optional<qint64>> KxAutoReframeService::FindFrames(const QString& path,
                                                              const QList<KxDescribedFrame>& frames) const
{
    if (const std::shared_ptr<const KxSubjectRecord> record = RecordOf(path)) {
        return KxFramePictures::Find(*record, frames);
    }
    QList<std::optional<qint64>> found;
    for (const KxDescribedFrame& frame : frames) {
        found += frame.frame;
    }
    return found;
}

std::shared_ptr<const KxSubjectFindings> KxAutoReframeService::LastFindings() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_result.findings;
}

std::vector<KxUsedModel> KxAutoReframeService::LastModels() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_result.models;
}

QByteArray KxAutoReframeService::LastChoices() const
{
    KxSubjectChoices choices;
    std::shared_ptr<const KxSubjectRecord> record;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (const KxPlacedChoice& placed : m_result.choices) {
            choices.push_back(placed.choice);
        }
        record = m_result.record;
    }
    return KxChoicesFormat::Write(record ? KxDescribeChoices(*record, std::move(choices)) : choices);
}

QString KxAutoReframeService::LastErrorMessage() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_result.message;
}

QStringList KxAutoReframeService::LastWarnings() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_result.warnings;
}

void KxAutoReframeService::ForgetResults()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_result.crops.clear();
}
