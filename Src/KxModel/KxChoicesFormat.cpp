#include <KxModel/KxChoicesFormat.h>

#include <KxCore/KxSystemError.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxChoicesFormat)
};

struct KindName {
    KxChoiceKind kind;
    const char* name;
};
constexpr std::array<KindName, 5> KindNames{{{KxChoiceKind::Follow, "follow"},
                                             {KxChoiceKind::Avoid, "avoid"},
                                             {KxChoiceKind::Hold, "hold"},
                                             {KxChoiceKind::Fit, "fit"},
                                             {KxChoiceKind::Automatic, "automatic"}}};

/// Ten thousand hours.
constexpr double LongestSeconds = 3.6e7;
/// Of a picture's print, hexadecimal.
constexpr int PrintDigits = 16;
/// How far a box may reach out of the picture, in pictures: something that is half outside has its whole box.
constexpr double FarthestOutside = 1.0;

QJsonArray JsonOf(const KxSubjectBox& box)
{
    return {box.x, box.y, box.width, box.height};
}

QJsonObject JsonOf(const KxSubjectSeed& seed)
{
    QJsonObject json{{QStringLiteral("time"), seed.seconds}, {QStringLiteral("box"), JsonOf(seed.box)}};
    if (seed.extent == KxSubjectSeed::Extent::Guessed) {
        json.insert(QStringLiteral("guessed"), true);
    }
    return json;
}

QJsonObject JsonOf(const KxSubjectChoice& choice)
{
    QJsonObject json{{QStringLiteral("from"), choice.fromSeconds}};
    for (const KindName& candidate : KindNames) {
        if (candidate.kind == choice.kind) {
            json.insert(QStringLiteral("kind"), QLatin1String(candidate.name));
        }
    }
    if (std::isfinite(choice.toSeconds)) {
        json.insert(QStringLiteral("to"), choice.toSeconds);
    }
    if (choice.kind == KxChoiceKind::Hold) {
        json.insert(QStringLiteral("centre"), QJsonArray{choice.centreX, choice.centreY});
    }
    QJsonArray seeds;
    for (const KxSubjectSeed& seed : choice.seeds) {
        seeds.append(JsonOf(seed));
    }
    if (!seeds.isEmpty()) {
        json.insert(QStringLiteral("seeds"), seeds);
    }
    QJsonArray boxes;
    for (const KxSubjectBox& box : choice.boxes) {
        boxes.append(JsonOf(box));
    }
    if (!boxes.isEmpty()) {
        json.insert(QStringLiteral("boxes"), boxes);
    }
    QJsonObject pictures;
    for (const KxChoicePicture& picture : choice.pictures) {
        pictures.insert(QString::number(picture.seconds, 'g', QLocale::FloatingPointShortest),
                        QStringLiteral("%1").arg(picture.print, PrintDigits, 16, QLatin1Char('0')));
    }
    if (!pictures.isEmpty()) {
        json.insert(QStringLiteral("pictures"), pictures);
    }
    return json;
}

/// Reads one text; remembers the first problem.
class Reader
{
public:
    explicit Reader(const QString& name)
        : m_name(name)
    {
    }

    KxResult<KxSubjectChoices> Read(const QByteArray& text);

private:
    KxSubjectChoice ReadChoice(const QJsonValue& value);
    void ReadSeeds(const QJsonObject& json, KxSubjectChoice& choice);
    void ReadBoxes(const QJsonObject& json, KxSubjectChoice& choice);
    void ReadPictures(const QJsonValue& value, KxSubjectChoice& choice);
    std::optional<KxSubjectBox> BoxOf(const QJsonValue& value);
    std::optional<double> TimeOf(const QJsonValue& value, const QString& what);
    /// Of a member that must be a list, if it is there.
    QJsonArray ListOf(const QJsonObject& json, const QString& member);
    void Refuse(const QString& reason);
    /// `reason` has a place marker for the number of the choice, and another one if `what` is given.
    void RefuseChoice(const QString& reason, const QString& what = QString())
    {
        const QString number = QString::number(m_choice);
        Refuse(what.isEmpty() ? reason.arg(number) : reason.arg(number, what));
    }

    QString m_name;
    int m_choice = 0; ///< counted from 1
    double m_earliestSeconds = 0.0;
    int m_seedsAndBoxes = 0;
    KxError m_problem;
};

void Reader::Refuse(const QString& reason)
{
    if (!m_problem) {
        m_problem = Texts::tr("Cannot use %1: %2.").arg(m_name, reason);
    }
}

std::optional<double> Reader::TimeOf(const QJsonValue& value, const QString& what)
{
    const double seconds = value.toDouble();
    if (value.isDouble() && seconds >= m_earliestSeconds && seconds <= LongestSeconds) {
        return seconds;
    }
    RefuseChoice(Texts::tr("choice %1 has no valid time (\"%2\"), in seconds"), what);
    return std::nullopt;
}

QJsonArray Reader::ListOf(const QJsonObject& json, const QString& member)
{
    const QJsonValue value = json.value(member);
    if (!value.isArray() && !value.isUndefined()) {
        RefuseChoice(Texts::tr("choice %1 has \"%2\" that are no list"), member);
    }
    const QJsonArray list = value.toArray();
    m_seedsAndBoxes += list.size();
    if (m_seedsAndBoxes > KxChoicesFormat::MostSeeds) {
        Refuse(Texts::tr("it has more than %1 seeds and boxes").arg(QString::number(KxChoicesFormat::MostSeeds)));
        return {};
    }
    return list;
}

std::optional<KxSubjectBox> Reader::BoxOf(const QJsonValue& value)
{
    const QJsonArray numbers = value.toArray();
    std::array<double, 4> sides{};
    bool isBox = numbers.size() == static_cast<int>(sides.size());
    for (std::size_t i = 0; isBox && i < sides.size(); ++i) {
        isBox = numbers.at(static_cast<int>(i)).isDouble();
        sides[i] = numbers.at(static_cast<int>(i)).toDouble();
    }
    const auto touches = [](double from, double length) {
        return from < 1.0 && from + length >= 0.0 && from >= -FarthestOutside && length >= 0.0 &&
               from + length <= 1.0 + FarthestOutside;
    };
    if (isBox && touches(sides[0], sides[2]) && touches(sides[1], sides[3])) {
        return KxSubjectBox{sides[0], sides[1], sides[2], sides[3]};
    }
    RefuseChoice(Texts::tr("choice %1 has a box that is not left, top, width and height in fractions of the picture"));
    return std::nullopt;
}

void Reader::ReadSeeds(const QJsonObject& json, KxSubjectChoice& choice)
{
    const QJsonArray seeds = ListOf(json, QStringLiteral("seeds"));
    for (const QJsonValue& value : seeds) {
        const std::optional<double> seconds = TimeOf(value[QLatin1String("time")], QStringLiteral("time"));
        const std::optional<KxSubjectBox> box = BoxOf(value[QLatin1String("box")]);
        if (!seconds || !box) {
            return;
        }
        const bool isGuessed = value[QLatin1String("guessed")].toBool();
        choice.seeds.push_back(
            {*seconds, *box, isGuessed ? KxSubjectSeed::Extent::Guessed : KxSubjectSeed::Extent::Drawn});
    }
    if (seeds.isEmpty()) {
        RefuseChoice(Texts::tr("choice %1 has no \"seeds\" that show what it means"));
    }
}

void Reader::ReadBoxes(const QJsonObject& json, KxSubjectChoice& choice)
{
    const QJsonArray boxes = ListOf(json, QStringLiteral("boxes"));
    for (const QJsonValue& value : boxes) {
        if (const std::optional<KxSubjectBox> box = BoxOf(value)) {
            choice.boxes.push_back(*box);
        }
    }
}

void Reader::ReadPictures(const QJsonValue& value, KxSubjectChoice& choice)
{
    const QJsonObject pictures = value.toObject();
    if (pictures.size() > KxChoicesFormat::MostPictures) {
        RefuseChoice(Texts::tr("choice %1 has more than %2 \"pictures\""),
                     QString::number(KxChoicesFormat::MostPictures));
        return;
    }
    bool isOk = value.isObject() || value.isUndefined();
    for (auto picture = pictures.begin(); isOk && picture != pictures.end(); ++picture) {
        bool isTime = false;
        bool isPrint = false;
        const double seconds = picture.key().toDouble(&isTime);
        const QString print = picture.value().toString();
        choice.pictures.push_back({seconds, print.toULongLong(&isPrint, 16)});
        isOk = isTime && isPrint && print.size() == PrintDigits && std::abs(seconds) <= LongestSeconds;
    }
    if (!isOk) {
        RefuseChoice(Texts::tr("choice %1 has \"pictures\" that are not times with 16 hexadecimal digits"));
    }
    // The members of an object are in the order of their letters.
    std::sort(choice.pictures.begin(), choice.pictures.end(),
              [](const KxChoicePicture& a, const KxChoicePicture& b) { return a.seconds < b.seconds; });
}

KxSubjectChoice Reader::ReadChoice(const QJsonValue& value)
{
    KxSubjectChoice choice;
    const QJsonObject json = value.toObject();
    const QString kind = json.value(QLatin1String("kind")).toString();
    bool isKnown = false;
    for (const KindName& candidate : KindNames) {
        if (kind == QLatin1String(candidate.name)) {
            choice.kind = candidate.kind;
            isKnown = true;
        }
    }
    if (!isKnown) {
        RefuseChoice(Texts::tr("choice %1 has no known \"kind\"; it is follow, avoid, hold, fit or automatic"));
        return choice;
    }
    ReadPictures(json.value(QLatin1String("pictures")), choice);
    // A part of it may have been cut away since; its pictures say that this is no mistake.
    m_earliestSeconds = choice.pictures.empty() ? 0.0 : -LongestSeconds;
    if (json.contains(QLatin1String("from"))) {
        choice.fromSeconds = TimeOf(json.value(QLatin1String("from")), QStringLiteral("from")).value_or(0.0);
    }
    if (json.contains(QLatin1String("to"))) {
        choice.toSeconds = TimeOf(json.value(QLatin1String("to")), QStringLiteral("to")).value_or(0.0);
        if (choice.toSeconds <= choice.fromSeconds) {
            RefuseChoice(Texts::tr("choice %1 ends before it begins"));
        }
    }
    if (choice.kind == KxChoiceKind::Follow || choice.kind == KxChoiceKind::Avoid) {
        ReadSeeds(json, choice);
    } else if (choice.kind == KxChoiceKind::Fit) {
        ReadBoxes(json, choice);
    } else if (choice.kind == KxChoiceKind::Hold) {
        const QJsonArray centre = json.value(QLatin1String("centre")).toArray();
        choice.centreX = centre.at(0).toDouble(-1.0);
        choice.centreY = centre.at(1).toDouble(-1.0);
        if (centre.size() != 2 || choice.centreX < 0.0 || choice.centreX > 1.0 || choice.centreY < 0.0 ||
            choice.centreY > 1.0) {
            RefuseChoice(Texts::tr("choice %1 has no \"centre\" in fractions of the picture"));
        }
    }
    return choice;
}

KxResult<KxSubjectChoices> Reader::Read(const QByteArray& text)
{
    if (text.size() > KxChoicesFormat::MostBytes) {
        Refuse(Texts::tr("it is longer than %1 bytes").arg(QString::number(KxChoicesFormat::MostBytes)));
        return KxResult<KxSubjectChoices>::Failure(*m_problem);
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (!document.isObject()) {
        Refuse(Texts::tr("it is no list of choices (JSON, byte %1)").arg(QString::number(error.offset)));
        return KxResult<KxSubjectChoices>::Failure(*m_problem);
    }
    const QJsonValue version = document[QLatin1String("version")];
    const QJsonArray list = document[QLatin1String("choices")].toArray();
    if (version.toDouble() != KxChoicesFormat::Version) {
        Refuse(version.isDouble()
                   ? Texts::tr("it is of version %1, and this program reads version %2")
                         .arg(QString::number(version.toDouble()), QString::number(KxChoicesFormat::Version))
                   : Texts::tr("it has no \"version\""));
    } else if (!document[QLatin1String("choices")].isArray()) {
        Refuse(Texts::tr("it has no list of \"choices\""));
    } else if (list.size() > KxChoicesFormat::MostChoices) {
        Refuse(Texts::tr("it has more than %1 choices").arg(QString::number(KxChoicesFormat::MostChoices)));
    }
    KxSubjectChoices choices;
    for (int i = 0; i < list.size() && !m_problem; ++i) {
        m_choice = i + 1;
        choices.push_back(ReadChoice(list.at(i)));
    }
    return m_problem ? KxResult<KxSubjectChoices>::Failure(*m_problem) : KxResult<KxSubjectChoices>(choices);
}

} // namespace

QByteArray KxChoicesFormat::Write(const KxSubjectChoices& choices)
{
    QJsonArray list;
    for (const KxSubjectChoice& choice : choices) {
        list.append(JsonOf(choice));
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("version"), Version}, {QStringLiteral("choices"), list}})
        .toJson(QJsonDocument::Indented);
}

KxResult<KxSubjectChoices> KxChoicesFormat::Read(const QByteArray& text, const QString& name)
{
    return Reader(name).Read(text);
}

KxResult<KxSubjectChoices> KxChoicesFormat::ReadFile(const QString& path)
{
    using Result = KxResult<KxSubjectChoices>;
    const QFileInfo info(path);
    QFile file(path);
    // Opening a pipe would wait for its writer.
    if (info.exists() && !info.isFile()) {
        return Result::Failure(Texts::tr("Cannot open %1: it is not a regular file.").arg(path));
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return Result::Failure(Texts::tr("Cannot open %1: %2.").arg(path, KxFileErrorText(file)));
    }
    const QByteArray text = file.read(MostBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        return Result::Failure(Texts::tr("Cannot read %1: %2.").arg(path, KxFileErrorText(file)));
    }
    return Read(text, info.fileName());
}
