#include <Apps/AutoReframe/AutoReframeOptions.h>

namespace
{

constexpr int WrongUse = 2;

QString HelpText()
{
    return QStringLiteral("Usage: auto-reframe [FILE...]\n"
                          "Turns videos into another aspect ratio and keeps their subject in the picture.\n"
                          "\n"
                          "  FILE           Videos to open the library with.\n"
                          "  -h, --help     Show this text.\n"
                          "  --version      Show the version.\n"
                          "\n"
                          "The command line program for many files at once is reframe.\n");
}

} // namespace

AutoReframeOptions::Parsed AutoReframeOptions::Parse(const QStringList& arguments)
{
    Parsed parsed;
    bool onlyFiles = false;
    for (const QString& argument : arguments) {
        if (onlyFiles || !argument.startsWith(QLatin1Char('-')) || argument.size() == 1) {
            parsed.options.files += argument;
        } else if (argument == QLatin1String("--")) {
            onlyFiles = true;
        } else if (argument == QLatin1String("-h") || argument == QLatin1String("--help")) {
            parsed.text = HelpText();
            return parsed;
        } else if (argument == QLatin1String("--version")) {
            parsed.text = QStringLiteral("auto-reframe %1\n").arg(QStringLiteral(KR_VERSION));
            return parsed;
        } else if (parsed.text.isEmpty()) {
            parsed.text = QStringLiteral("Unknown option %1.\nTry auto-reframe --help.\n").arg(argument);
            parsed.exitStatus = WrongUse;
        }
    }
    return parsed;
}
