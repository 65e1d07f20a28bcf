#include <Apps/AutoReframe/AutoReframeOptions.h>

#include <QCommandLineParser>

namespace
{

constexpr int WrongUse = 2;

} // namespace

AutoReframeOptions::Parsed AutoReframeOptions::Parse(const QStringList& arguments)
{
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this text."));
    const QCommandLineOption version(QStringLiteral("version"), QStringLiteral("Show the version."));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Turns videos into another aspect ratio and keeps their subject in the picture.\n"
                       "The command line program for many files at once is reframe."));
    parser.addOptions({help, version});
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Videos to open the library with."),
                                 QStringLiteral("[FILE...]"));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const bool isUnderstood = parser.parse(arguments);

    Parsed parsed;
    // Before unknown options: before the display is opened, Qt's own options are still among the arguments.
    if (parser.isSet(help)) {
        parsed.text = parser.helpText();
    } else if (parser.isSet(version)) {
        parsed.text = QStringLiteral("auto-reframe %1\n").arg(QStringLiteral(KR_VERSION));
    } else if (!isUnderstood) {
        parsed.text = QStringLiteral("%1\nTry auto-reframe --help.\n").arg(parser.errorText());
        parsed.exitStatus = WrongUse;
    } else {
        parsed.options.files = parser.positionalArguments();
    }
    return parsed;
}
