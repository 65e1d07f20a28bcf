#include <Apps/Reframe/StatusFile.h>

#include <KxCore/KxSystemError.h>

#include <QCoreApplication>
#include <QJsonDocument>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(StatusFile)
};

} // namespace

StatusFile::StatusFile(const QString& path)
    : m_file(path)
{
    if (IsWanted() && !m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        m_problem = Texts::tr("Cannot write %1: %2.").arg(path, KxFileErrorText(m_file));
    }
}

void StatusFile::Write(const QJsonObject& event)
{
    if (!IsWanted() || m_problem) {
        return;
    }
    const QByteArray line = QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n';
    if (m_file.write(line) != line.size()) {
        m_problem = Texts::tr("Cannot write %1: %2.").arg(m_file.fileName(), KxFileErrorText(m_file));
    }
}
