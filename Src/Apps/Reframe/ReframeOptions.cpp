#include <Apps/Reframe/ReframeOptions.h>

#include <Apps/Reframe/OptionConflict.h>
#include <Apps/Reframe/ReframeExit.h>

#include <KxCore/KxLanguage.h>
#include <KxCore/KxPlatform.h>
#include <KxCore/KxSpeedName.h>
#include <KxCore/KxWildcards.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeOptions)
};

struct Definitions {
    QCommandLineOption aspect{QStringLiteral("aspect"),
                              Texts::tr("Aspect ratio of the result (9:16); several with commas between them: "
                                        "the video is looked at once."),
                              QStringLiteral("W:H,..."), QStringLiteral("9:16")};
    QCommandLineOption speed{QStringLiteral("speed"),
                             Texts::tr("How readily the crop follows: auto, fast or slow (auto)."),
                             QStringLiteral("SPEED"), QStringLiteral("auto")};
    QCommandLineOption speaker{QStringLiteral("speaker"),
                               Texts::tr("Where several people talk, follow who speaks: auto or off (auto)."),
                               QStringLiteral("MODE"), QStringLiteral("auto")};
    QCommandLineOption output{QStringLiteral("output"),
                              Texts::tr("Where to write the video; beside the input when not given."),
                              QStringLiteral("FILE|FOLDER")};
    QCommandLineOption keyframes{QStringLiteral("keyframes"),
                                 Texts::tr("Write the crop of every frame, as .json or .csv."), QStringLiteral("FILE")};
    QCommandLineOption editList{QStringLiteral("edit-list"),
                                Texts::tr("Write the crop as a project or as keyframes for another program: "
                                          ".mlt, .kdenlive, .fcpxml, .txt (After Effects) or .ffscript "
                                          "(ffmpeg). A suffix alone, such as mlt, names the file after the "
                                          "video. May be given several times."),
                                QStringLiteral("FILE|SUFFIX")};
    QCommandLineOption apply{QStringLiteral("apply"), Texts::tr("Take the crops from FILE instead of analysing."),
                             QStringLiteral("FILE")};
    QCommandLineOption choices{QStringLiteral("choices"),
                               Texts::tr("Decide as FILE says (.json): what to follow, to avoid, where to hold "
                                         "the crop or to show the whole picture."),
                               QStringLiteral("FILE")};
    QCommandLineOption saveChoices{QStringLiteral("save-choices"),
                                   Texts::tr("Write what --choices and --follow decided to FILE (.json), with what "
                                             "its pictures look like, for this or another cut of the video."),
                                   QStringLiteral("FILE")};
    QCommandLineOption follow{QStringLiteral("follow"),
                              Texts::tr("Follow what is at the point X,Y, or in the box from X,Y of the size W,H, "
                                        "through its shot. TIME in seconds, or a frame (75f); the place in "
                                        "pixels, or in fractions of the picture. May be given several times."),
                              QStringLiteral("TIME@X,Y[,W,H]")};
    QCommandLineOption preview{QStringLiteral("preview"),
                               Texts::tr("Write the source with the crop drawn: a contact sheet as .png, or all "
                                         "of it, with sound and with what the analysis found, as .mp4."),
                               QStringLiteral("FILE")};
    QCommandLineOption report{QStringLiteral("report"),
                              Texts::tr("Write a page (.html) that shows what the analysis found."),
                              QStringLiteral("FILE")};
    QCommandLineOption cache{QStringLiteral("cache"),
                             Texts::tr("Keep what an analysis saw in FOLDER, or nowhere, instead of the usual "
                                       "folder."),
                             QStringLiteral("FOLDER|none")};
    QCommandLineOption models{QStringLiteral("models"),
                              Texts::tr("Use the optional detectors in FOLDER, or none, instead of those that are "
                                        "installed."),
                              QStringLiteral("FOLDER|none")};
    OutputOptions::Definitions video;
    QCommandLineOption noVideo{QStringLiteral("no-video"), Texts::tr("Analyse only; write no video.")};
    QCommandLineOption overwrite{QStringLiteral("overwrite"),
                                 Texts::tr("Replace existing files instead of adding a number to the name.")};
    QCommandLineOption json{QStringLiteral("json"), Texts::tr("Print progress and results as JSON lines.")};
    QCommandLineOption quiet{QStringLiteral("quiet"), Texts::tr("Print errors only.")};
    QCommandLineOption language{QStringLiteral("language"), KxLanguage::OptionText(), QStringLiteral("CODE")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, Texts::tr("Show this text.")};
    QCommandLineOption version{QStringLiteral("version"), Texts::tr("Show the version.")};

    FarmOptions::Definitions farm;

    QList<QCommandLineOption> All() const
    {
        return QList<QCommandLineOption>{aspect, speed, speaker, follow, choices, saveChoices, cache, output} +
               video.All() + QList<QCommandLineOption>{keyframes, editList,  apply, preview, report,  models,
                                                       noVideo,   overwrite, json,  quiet,   language} +
               farm.All() + QList<QCommandLineOption>{help, version};
    }
};

ReframeOptions::Parsed WrongUse(const QString& message)
{
    ReframeOptions::Parsed parsed;
    parsed.text = Texts::tr("%1\nTry reframe --help.").arg(message);
    parsed.exitStatus = ReframeExit::WrongUse;
    return parsed;
}

ReframeOptions::Parsed Shown(const QString& text)
{
    ReframeOptions::Parsed parsed;
    parsed.text = text;
    return parsed;
}

/// The name of an option whose value is empty, as an unset variable of a shell makes it; empty if there is none.
QString OptionWithoutValue(const QCommandLineParser& parser, const QList<QCommandLineOption>& options)
{
    for (const QCommandLineOption& option : options) {
        if (!option.valueName().isEmpty() && parser.isSet(option) && parser.values(option).contains(QString())) {
            return option.names().first();
        }
    }
    return {};
}

std::optional<QSize> ParseAspect(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(':'));
    if (parts.size() != 2) {
        return std::nullopt;
    }
    bool widthOk = false;
    bool heightOk = false;
    const QSize aspect(parts.at(0).toInt(&widthOk), parts.at(1).toInt(&heightOk));
    constexpr int largest = 10000;
    constexpr int steepest = 20;
    const bool sane = widthOk && heightOk && !aspect.isEmpty() && aspect.width() <= largest &&
                      aspect.height() <= largest && aspect.width() <= steepest * aspect.height() &&
                      aspect.height() <= steepest * aspect.width();
    return sane ? std::optional<QSize>(aspect) : std::nullopt;
}

/// The message about an argument that was not understood.
QString Misunderstanding(const QCommandLineParser& parser, const QStringList& arguments)
{
    for (const QString& argument : arguments) {
        if (argument.startsWith(QLatin1Char('-')) && QFileInfo::exists(argument)) {
            return Texts::tr("%1 begins like an option; as a file it is written ./%1.").arg(argument);
        }
    }
    const QString text = parser.errorText();
    return text.endsWith(QLatin1Char('.')) ? text : text + QLatin1Char('.');
}

/// Takes the values of the options from a command line that was parsed.
class Reader
{
public:
    Reader(const QCommandLineParser& parser, const Definitions& definitions)
        : m_parser(parser)
        , m_definitions(definitions)
    {
    }

    /// On failure, the message about the first option that is wrong.
    KxResult<ReframeOptions> Read();

private:
    QString Value(const QCommandLineOption& option) const { return m_parser.value(option); }
    KxError ReadAspects();
    KxError ReadSpeed();
    KxError ReadSpeaker();
    KxError ReadFollow();
    KxError ReadInputs();
    KxError ReadFrames();
    KxError ReadVideo();
    void ReadTheRest();

    const QCommandLineParser& m_parser;
    const Definitions& m_definitions;
    ReframeOptions m_options;
};

KxResult<ReframeOptions> Reader::Read()
{
    for (const auto read : {&Reader::ReadAspects, &Reader::ReadSpeed, &Reader::ReadSpeaker, &Reader::ReadFollow,
                            &Reader::ReadInputs, &Reader::ReadFrames, &Reader::ReadVideo}) {
        if (const KxError message = (this->*read)()) {
            return KxResult<ReframeOptions>::Failure(*message);
        }
    }
    ReadTheRest();
    return m_options;
}

KxError Reader::ReadAspects()
{
    m_options.aspects.clear();
    const QStringList aspects = Value(m_definitions.aspect).split(QLatin1Char(','));
    for (const QString& text : aspects) {
        const std::optional<QSize> aspect = ParseAspect(text);
        if (!aspect) {
            return Texts::tr("\"%1\" is no aspect ratio; write two whole numbers such as 9:16, neither "
                             "more than 20 times the other.")
                .arg(text);
        }
        if (!m_options.aspects.contains(*aspect)) {
            m_options.aspects += *aspect;
        }
    }
    return std::nullopt;
}

KxError Reader::ReadSpeed()
{
    m_options.speedName = Value(m_definitions.speed);
    const std::optional<int> mode = KxSpeedName::Find(m_options.speedName);
    if (!mode) {
        return Texts::tr("\"%1\" is no speed; it is auto, fast or slow.").arg(m_options.speedName);
    }
    m_options.speedMode = *mode;
    return std::nullopt;
}

KxError Reader::ReadSpeaker()
{
    const QString speaker = Value(m_definitions.speaker);
    if (speaker != QLatin1String("auto") && speaker != QLatin1String("off")) {
        return Texts::tr("--speaker takes auto or off; \"%1\" is neither.").arg(speaker);
    }
    m_options.followsSpeaker = speaker == QLatin1String("auto");
    return std::nullopt;
}

KxError Reader::ReadFollow()
{
    const QStringList follow = m_parser.values(m_definitions.follow);
    for (const QString& text : follow) {
        const std::optional<FollowOption> parsed = FollowOption::Parse(text);
        if (!parsed) {
            return Texts::tr("\"%1\" is nothing to follow; write a time and a place such as "
                             "3.5@640,360, or a time and a box such as 3.5@0.4,0.2,0.1,0.5.")
                .arg(text);
        }
        m_options.follow += *parsed;
    }
    return std::nullopt;
}

KxError Reader::ReadInputs()
{
    const QStringList given = m_parser.positionalArguments();
    const QStringList named = KxPlatform::ShellExpandsWildcards() ? given : KxWildcards::Expand(given);
    const KxResult<QStringList> inputs = FarmOptions::Inputs(named, m_parser, m_definitions.farm);
    if (!inputs) {
        return inputs.Message();
    }
    m_options.inputs = *inputs;
    if (m_parser.isSet(m_definitions.farm.join)) {
        if (inputs->size() < 2) {
            return Texts::tr("--join takes a video and then its parts.");
        }
        m_options.inputs = inputs->mid(0, 1);
        m_options.parts = inputs->mid(1);
    }
    return std::nullopt;
}

KxError Reader::ReadFrames()
{
    if (!m_parser.isSet(m_definitions.farm.frames)) {
        return std::nullopt;
    }
    const QString text = Value(m_definitions.farm.frames);
    m_options.frames = FramesOption::Parse(text);
    if (!m_options.frames) {
        return Texts::tr("--frames takes frames such as 0-2999, or a part such as 3/8; \"%1\" is neither.").arg(text);
    }
    return std::nullopt;
}

KxError Reader::ReadVideo()
{
    KxResult<OutputOptions> video = OutputOptions::Parse(m_parser, m_definitions.video);
    if (!video) {
        return video.Message();
    }
    m_options.video = *video;
    return std::nullopt;
}

void Reader::ReadTheRest()
{
    m_options.choices = Value(m_definitions.choices);
    m_options.saveChoices = Value(m_definitions.saveChoices);
    m_options.output = Value(m_definitions.output);
    m_options.keyframes = Value(m_definitions.keyframes);
    m_options.editLists = m_parser.values(m_definitions.editList);
    m_options.apply = Value(m_definitions.apply);
    m_options.preview = Value(m_definitions.preview);
    m_options.report = Value(m_definitions.report);
    m_options.models = Value(m_definitions.models);
    m_options.cache = Value(m_definitions.cache);
    m_options.writesVideo = !m_parser.isSet(m_definitions.noVideo);
    m_options.overwrites = m_parser.isSet(m_definitions.overwrite);
    m_options.json = m_parser.isSet(m_definitions.json);
    m_options.quiet = m_parser.isSet(m_definitions.quiet);
    m_options.farm = FarmOptions::Parse(m_parser, m_definitions.farm);
}

} // namespace

bool ReframeOptions::PreviewIsVideo() const
{
    const QFileInfo file(preview);
    return file.suffix().compare(QLatin1String("mp4"), Qt::CaseInsensitive) == 0 && !file.isDir();
}

ReframeOptions::Parsed ReframeOptions::Parse(const QStringList& arguments)
{
    const Definitions definitions;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Texts::tr("Turns a video into another aspect ratio and keeps its subject in the picture."));
    parser.addOptions(definitions.All());
    parser.addPositionalArgument(QStringLiteral("INPUT"),
                                 Texts::tr("The video files to reframe; a folder is all videos in it."),
                                 QStringLiteral("INPUT..."));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    if (!parser.parse(arguments)) {
        return WrongUse(Misunderstanding(parser, arguments));
    }
    if (parser.isSet(definitions.help)) {
        return Shown(parser.helpText().trimmed());
    }
    if (parser.isSet(definitions.version)) {
        return Shown(QStringLiteral("reframe %1").arg(QStringLiteral(KR_VERSION)));
    }

    const QString withoutValue = OptionWithoutValue(parser, definitions.All());
    if (!withoutValue.isEmpty()) {
        return WrongUse(Texts::tr("--%1 needs a value, and an empty one was given.").arg(withoutValue));
    }
    const QString language = parser.value(definitions.language);
    if (parser.isSet(definitions.language) && !KxLanguage::Find(language)) {
        return WrongUse(KxLanguage::UnknownText(language));
    }
    KxResult<ReframeOptions> read = Reader(parser, definitions).Read();
    if (!read) {
        return WrongUse(read.Message());
    }
    if (const QString conflict = OptionConflict(*read); !conflict.isEmpty()) {
        return WrongUse(conflict);
    }
    Parsed parsed;
    parsed.options = std::move(*read);
    return parsed;
}
