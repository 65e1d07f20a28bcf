#pragma once

#include <KxCore/KxMachineFacts.h>
#include <KxCore/KxUsageTracker.h>
#include <KxWidgets/Windows/KxFileResponder.h>
#include <KxWidgets/Windows/KxMessageResponder.h>

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <optional>
#include <vector>

/// Stands in for the person, the usage tracker and the machine while it lives, and records what was reported to them.
/// The host's configuration is an empty one of its own.
class Recorders
{
public:
    Recorders()
        : m_configBefore(qgetenv("KX_CONFIG_FILE"))
    {
        qputenv("KX_CONFIG_FILE", QFile::encodeName(ConfigFile()));
        KrMessageDialog::SetResponder([this](const KrMessageDialog::Shown& shown) {
            boxes.push_back(shown);
            return confirms;
        });
        KxFileDialog::SetResponder([this](const KxFileDialog::Shown& shown) {
            choosers.push_back(shown);
            return chosen;
        });
        KxUsageTracker::SetRecorder([this](const QString& name) { events.append(name); });
        KxMachineFacts::Replaced().freeSpaceMb = [this](const QString& path) {
            spaceAskedFor.append(path);
            return freeSpaceMb;
        };
    }

    ~Recorders()
    {
        KrMessageDialog::SetResponder({});
        KxFileDialog::SetResponder({});
        KxUsageTracker::SetRecorder({});
        KxMachineFacts::Replaced() = {};
        qputenv("KX_CONFIG_FILE", m_configBefore);
    }

    QString ConfigFile() const { return folder.filePath(QStringLiteral("config.ini")); }

    QStringList BoxTexts() const
    {
        QStringList texts;
        for (const KrMessageDialog::Shown& box : boxes) {
            texts.append(box.text);
        }
        return texts;
    }

    QTemporaryDir folder;
    /// The user's answer to a question.
    bool confirms = true;
    std::vector<KrMessageDialog::Shown> boxes;
    /// The files or the folder that the person picks.
    QStringList chosen;
    std::vector<KxFileDialog::Shown> choosers;
    QStringList events;
    qint64 freeSpaceMb = 100000;
    QStringList spaceAskedFor;

private:
    QByteArray m_configBefore;
};
