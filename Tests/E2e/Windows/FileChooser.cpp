// Opens the system's file chooser through the module's dialog and writes what it returned, one path a line.
// FileChooser FOLDER ANSWER-FILE one|several

#include <KrAutoReframe/KrAutoReframeDialog.h>

#include <QApplication>
#include <QFile>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        return 2;
    }
    KrAutoReframeDialog dialog(nullptr);
    const wchar_t filter[] = L"MP4 videos\0*.mp4\0";
    const QStringList chosen = dialog.GetOpenFileNames(QStringLiteral("A caption of its own"), arguments.at(1), filter,
                                                       &dialog, arguments.at(3) == QLatin1String("several"));
    QFile answer(arguments.at(2));
    if (!answer.open(QIODevice::WriteOnly)) {
        return 1;
    }
    for (const QString& path : chosen) {
        answer.write(path.toUtf8() + '\n');
    }
    return 0;
}
