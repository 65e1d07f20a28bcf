#include <KrAutoReframe/Dialog/KrAutoReframeExportDlg.h>

#include <KxCore/KxConfig.h>
#include <KxCore/KxCustomProductInfo.h>
#include <KxCore/KxDir.h>
#include <KxWidgets/KrMessageDialog.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxOpenFileLineEdit.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{

constexpr int LongestPath = 260;

/// The path whose free space is checked: a drive is enough for its file system; any other path is used whole, because
/// another file system may be mounted below its root.
QString WhereSpaceIsNeeded(const QString& path)
{
    return path.size() >= 2 && path.at(1) == QLatin1Char(':') ? path.left(2) : path;
}

} // namespace

QString KrAutoReframeExportDlg::GetOutputName() const
{
    static const QRegularExpression forbidden(QStringLiteral("[\\*\\|\\<\\>\\\\?\\/\\:\\\"]+"));
    QString name = m_nameEdit->text();
    name.remove(QLatin1Char('\n'));
    name.remove(forbidden);
    return name;
}

QString KrAutoReframeExportDlg::GetOutputPath() const
{
    QString path = QDir::toNativeSeparators(m_pathEdit->Text());
    const bool endsInSeparator = path.endsWith(QLatin1Char('\\')) || path.endsWith(QDir::separator());
    if (path.size() > 1 && endsInSeparator) {
        path.chop(1);
    }
    return path;
}

QVariant KrAutoReframeExportDlg::GetExportInfo() const
{
    QVariantMap info;
    info.insert(QStringLiteral("export_module"), QStringLiteral("AutoReframe"));
    info.insert(QStringLiteral("name"), QStringLiteral("%1-%2-%3 %4")
                                            .arg(GetOutputName(), QStringLiteral("AutoReframe"),
                                                 QString::number(m_ratioWidth), QString::number(m_ratioHeight)));
    info.insert(QStringLiteral("org_file_name"), GetOutputName());
    info.insert(QStringLiteral("path"), GetOutputPath());
    info.insert(QStringLiteral("resolution"), m_resolution);
    info.insert(QStringLiteral("frame_rate"), m_frameRate);
    info.insert(QStringLiteral("video_bit_rate"), m_videoBitRate);
    info.insert(QStringLiteral("audio_bit_rate"), m_audioBitRate);
    // Readers of the record expect this spelling of the two keys.
    info.insert(QStringLiteral("radio_w"), m_ratioWidth);
    info.insert(QStringLiteral("radio_h"), m_ratioHeight);
    info.insert(QStringLiteral("speed"), m_speed);
    info.insert(QStringLiteral("duration"), m_duration);
    info.insert(QStringLiteral("file_format"), m_fileFormat);
    info.insert(QStringLiteral("adjust_frames"), m_adjustFrames);
    info.insert(QStringLiteral("src_resolution"), m_srcResolution);
    info.insert(QStringLiteral("src_duration"), m_srcDuration);
    info.insert(QStringLiteral("motion_speed"), m_motionSpeed);
    info.insert(QStringLiteral("track_ratio"), m_trackRatio);
    return info;
}

void KrAutoReframeExportDlg::slotExportButtonClicked()
{
    RestoreDefaultName();
    const QString path = GetOutputPath();
    const QString name = GetOutputName();
    if (path.isEmpty() || (!QFileInfo(path).isDir() && !QDir().mkpath(path))) {
        ShowInformation(tr("Please make sure you have selected a valid folder."));
        return;
    }
    if (!KxDir::IsPathWriteAndReadable(path)) {
        ShowInformation(tr("Please check write permission, or choose another path to continue."));
        return;
    }
    if (path.length() + 1 + name.length() >= LongestPath) {
        ShowInformation(tr("The outputted file path is too long, please choose another path to continue."));
        return;
    }
    constexpr qint64 megabyte = 1048576;
    constexpr qint64 reserveMb = 10;
    const qint64 freeMb = KxConfig::GetDiskFreeSpaceSize(nullptr, WhereSpaceIsNeeded(path));
    const qint64 neededMb = m_estimatedSize / megabyte + reserveMb;
    if (freeMb < neededMb) {
        ShowInformation(tr("There is not enough space in the specified output directory, please choose another one.\n"
                           "Dise Space needed :%1 MB, remaining:%2 MB.")
                            .arg(QString::number(neededMb), QString::number(freeMb)));
        return;
    }
    done(QDialog::Accepted);
}

void KrAutoReframeExportDlg::ShowInformation(const QString& text)
{
    KrMessageDialog::Infomation(text, this, KrStandardButton::Ok, QString(),
                                KxCustomProductInfo::GetInstance()->KrGetProductName(), QString(), false);
}
