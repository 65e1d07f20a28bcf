#include <KxCore/KxLanguage.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <atomic>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxLanguage)
};

struct Language {
    const char* code;
    const char16_t* name;
};

constexpr std::array Languages{Language{"en", u"English"},    Language{"de", u"Deutsch"},
                               Language{"es", u"Español"},    Language{"fr", u"Français"},
                               Language{"ja", u"日本語"},     Language{"pt_BR", u"Português (Brasil)"},
                               Language{"zh_CN", u"简体中文"}};

const QString English = QStringLiteral("en");

std::atomic<std::size_t> g_current = 0; ///< an index of Languages

/// A translation that Install() replaces.
class Translation : public QTranslator
{
public:
    using QTranslator::QTranslator;
};

/// Installs `file` if it exists. The application's list of translations does not own them, hence the parent.
bool Add(const QString& file, const QString& folder)
{
    auto translation = std::make_unique<Translation>(QCoreApplication::instance());
    if (!translation->load(file, folder)) {
        return false;
    }
    return QCoreApplication::installTranslator(translation.release());
}

void RemoveAll()
{
    const QObjectList children = QCoreApplication::instance()->children();
    for (QObject* const child : children) {
        // Translations have no meta-object of their own, which dynamic_cast does not need.
        if (auto* const translation = dynamic_cast<Translation*>(child)) {
            QCoreApplication::removeTranslator(translation);
            delete translation;
        }
    }
}

} // namespace

QStringList KxLanguage::Codes()
{
    QStringList codes;
    for (const Language& language : Languages) {
        codes += QLatin1String(language.code);
    }
    return codes;
}

QString KxLanguage::NameOf(const QString& code)
{
    const auto found = std::find_if(Languages.begin(), Languages.end(),
                                    [&](const Language& language) { return code == QLatin1String(language.code); });
    return found == Languages.end() ? QString() : QString::fromUtf16(found->name);
}

std::optional<QString> KxLanguage::Find(const QString& name)
{
    const QString locale = name.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    QStringList parts = locale.toLower().replace(QLatin1Char('-'), QLatin1Char('_')).split(QLatin1Char('_'));
    const QString language = parts.takeFirst();
    if (language == QLatin1String("c") || language == QLatin1String("posix")) {
        return English;
    }
    // These write Chinese in traditional characters.
    for (const char* const part : {"hant", "tw", "hk", "mo"}) {
        if (language == QLatin1String("zh") && parts.contains(QLatin1String(part))) {
            return std::nullopt;
        }
    }
    for (const QString& code : Codes()) {
        if (code.section(QLatin1Char('_'), 0, 0) == language) {
            return code;
        }
    }
    return std::nullopt;
}

QString KxLanguage::OfSystem()
{
    const QStringList wanted = QLocale::system().uiLanguages();
    for (const QString& name : wanted) {
        if (const std::optional<QString> code = Find(name)) {
            return *code;
        }
    }
    return English;
}

QString KxLanguage::OfCommandLine(const QStringList& arguments)
{
    QString value;
    for (int i = 1; i < arguments.size() && arguments.at(i) != QLatin1String("--"); ++i) {
        const QString& argument = arguments.at(i);
        const QString option = argument.section(QLatin1Char('='), 0, 0);
        if (option != QLatin1String("--language") && option != QLatin1String("-language")) {
            continue;
        }
        if (argument != option) {
            value = argument.mid(option.size() + 1);
        } else if (i + 1 < arguments.size()) {
            value = arguments.at(++i);
        }
    }
    const std::optional<QString> code = Find(value);
    return code ? *code : OfSystem();
}

QString KxLanguage::OptionText()
{
    return Texts::tr("Language of the texts: %1. Otherwise that of the system.")
        .arg(Codes().join(QStringLiteral(", ")));
}

QString KxLanguage::UnknownText(const QString& name)
{
    return Texts::tr("\"%1\" is not an available language; choose one of %2.")
        .arg(name, Codes().join(QStringLiteral(", ")));
}

void KxLanguage::Install(const QString& code)
{
    Q_ASSERT(QCoreApplication::instance() != nullptr && Codes().contains(code));
    g_current = static_cast<std::size_t>(Codes().indexOf(code));
    RemoveAll();
    // Qt's own texts are there if its package is; those of Qt in English are in its sources.
    Add(QStringLiteral("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    const bool isLoaded = Add(QStringLiteral("auto-reframe_") + code, QStringLiteral(":/KxCore/Translations"));
    Q_ASSERT_X(isLoaded, "KxLanguage", "the translation is not among the resources");
    Q_UNUSED(isLoaded)
}

QString KxLanguage::Current()
{
    return QLatin1String(Languages[g_current].code);
}

QLocale KxLanguage::Locale()
{
    QLocale locale(Current());
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale;
}
