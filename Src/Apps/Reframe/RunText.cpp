#include <Apps/Reframe/RunText.h>

#include <Apps/CropTracks/CropTrackFile.h>
#include <Apps/Reframe/ReframeOptions.h>
#include <Apps/Reframe/ReframeParts.h>
#include <KxCore/KxInterrupt.h>
#include <KxMedia/Read/KxFileComment.h>
#include <KxModel/KxPicturesFile.h>
#include <KxModel/KxRecordStore.h>

#include <QFileInfo>

namespace
{

/// Empty without such a file.
QString Decision(const QString& name, const QString& path)
{
    return path.isEmpty() ? QString()
                          : QStringLiteral(" %1=%2").arg(name, QString::fromLatin1(FarmOptions::ContentHash(path)));
}

} // namespace

RunText::RunText(const ReframeTask& task, const ReframeOptions& options)
    : m_contentHash(QString::fromLatin1(KxRecordStore::ContentHash(task.input)))
    , m_ofResults(QStringLiteral("%1%2%3 aspect=%4:%5 input=%6")
                      .arg(QString::fromUtf8(options.farm.settings), Decision(QStringLiteral("apply"), options.apply),
                           Decision(QStringLiteral("choices"), options.choices), QString::number(task.aspect.width()),
                           QString::number(task.aspect.height()), m_contentHash))
    , m_ofPictures(QStringLiteral("reframe %1 pictures input=%2").arg(QStringLiteral(KR_VERSION), m_contentHash))
    , m_ofTask(task.makesPictures ? m_ofPictures : m_ofResults)
{
    if (task.frames) {
        m_ofTask = ReframeParts::MadeBy(m_ofTask, *task.frames);
    }
}

QString RunText::StoredIn(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("json")) {
        return CropTrackFile::MadeBy(path);
    }
    if (suffix == QLatin1String("pictures")) {
        const std::optional<KxPicturesFile::Facts> facts = KxPicturesFile::Read(path);
        return facts ? facts->madeBy : QString();
    }
    const bool isVideo = suffix == QLatin1String("mp4") || suffix == QLatin1String("m4v");
    return isVideo && QFileInfo(path).isFile() ? KxFileComment(path, KxInterrupt::Token()) : QString();
}

bool RunText::IsOfThisInput(const QString& path) const
{
    return !m_contentHash.isEmpty() && StoredIn(path).endsWith(m_contentHash);
}
