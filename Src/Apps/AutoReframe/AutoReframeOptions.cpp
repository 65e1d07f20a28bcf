#include <Apps/AutoReframe/AutoReframeOptions.h>

#include <KxCore/KxLanguage.h>

#include <QCommandLineParser>
#include <QCoreApplication>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(AutoReframeOptions)
};

constexpr int WrongUse = 2;

QString Hinted(const QString& message)
{
    return Texts::tr("%1\nTry auto-reframe --help.").arg(message) + QLatin1Char('\n');
}

/// The options that Qt takes from the command line when it opens the display, on X11 included.
QList<QCommandLineOption> OptionsOfQt()
{
    const QStringList flags{QStringLiteral("reverse"), QStringLiteral("widgetcount"), QStringLiteral("testability"),
                            QStringLiteral("nograb"), QStringLiteral("dograb")};
    const QStringList withValue{QStringLiteral("platform"),      QStringLiteral("platformpluginpath"),
                                QStringLiteral("platformtheme"), QStringLiteral("plugin"),
                                QStringLiteral("session"),       QStringLiteral("style"),
                                QStringLiteral("stylesheet"),    QStringLiteral("qwindowgeometry"),
                                QStringLiteral("qwindowicon"),   QStringLiteral("qwindowtitle"),
                                QStringLiteral("geometry"),      QStringLiteral("icon"),
                                QStringLiteral("title"),         QStringLiteral("display"),
                                QStringLiteral("name"),          QStringLiteral("visual")};
    QList<QCommandLineOption> options;
    for (const QString& name : flags + withValue) {
        QCommandLineOption option(name);
        option.setValueName(withValue.contains(name) ? QStringLiteral("value") : QString());
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        options += option;
    }
    return options;
}

} // namespace

AutoReframeOptions::Parsed AutoReframeOptions::Parse(const QStringList& arguments)
{
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, Texts::tr("Show this text."));
    const QCommandLineOption version(QStringLiteral("version"), Texts::tr("Show the version."));
    const QCommandLineOption language(
        QStringLiteral("language"),
        Texts::tr("Language of the texts: %1. Otherwise the one chosen in the menu, or that of the system.")
            .arg(KxLanguage::Codes().join(QStringLiteral(", "))),
        QStringLiteral("CODE"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Texts::tr("Turns videos into another aspect ratio and keeps their subject in the picture.\n"
                  "The command line program for many files at once is reframe."));
    parser.addOptions(OptionsOfQt() << language << help << version);
    parser.addPositionalArgument(QStringLiteral("FILE"), Texts::tr("Videos to open the library with."),
                                 QStringLiteral("[FILE...]"));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const bool isUnderstood = parser.parse(arguments);

    Parsed parsed;
    if (parser.isSet(help)) {
        parsed.text = parser.helpText();
    } else if (parser.isSet(version)) {
        parsed.text = QStringLiteral("auto-reframe %1\n").arg(QStringLiteral(KR_VERSION));
    } else if (!isUnderstood) {
        parsed.text = Hinted(parser.errorText());
        parsed.exitStatus = WrongUse;
    } else if (const QString name = parser.value(language); parser.isSet(language) && !KxLanguage::Find(name)) {
        parsed.text = Hinted(KxLanguage::UnknownText(name));
        parsed.exitStatus = WrongUse;
    } else {
        parsed.options.files = parser.positionalArguments();
        parsed.options.language = KxLanguage::Find(name).value_or(QString());
    }
    return parsed;
}
