#include <KxCore/KxLanguage.h>

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace
{

QString Name(const char* text)
{
    return QString::fromUtf8(text);
}

QString OfCommandLine(const QStringList& arguments)
{
    return KxLanguage::OfCommandLine(QStringList(QStringLiteral("program")) + arguments);
}

class TestKxLanguage : public testing::Test
{
protected:
    void TearDown() override { KxLanguage::Install(QStringLiteral("en")); }
};

} // namespace

TEST_F(TestKxLanguage, EnglishIsFirstAndEachLanguageHasAName)
{
    EXPECT_EQ(KxLanguage::Codes().first(), QStringLiteral("en"));
    EXPECT_EQ(KxLanguage::Codes().size(), 7);
    for (const QString& code : KxLanguage::Codes()) {
        EXPECT_FALSE(KxLanguage::NameOf(code).isEmpty()) << code.toStdString();
        EXPECT_EQ(KxLanguage::Find(code), code);
    }
    EXPECT_EQ(KxLanguage::NameOf(QStringLiteral("ja")), Name("日本語"));
}

TEST_F(TestKxLanguage, ALocaleIsFoundAsPeopleAndSystemsWriteIt)
{
    const struct {
        const char* name;
        const char* code;
    } cases[] = {{"de", "de"},         {"DE", "de"},    {"de_AT.UTF-8", "de"}, {"de_DE@euro", "de"}, {"fr-CA", "fr"},
                 {"ja-JP", "ja"},      {"pt", "pt_BR"}, {"pt-br", "pt_BR"},    {"pt_PT", "pt_BR"},   {"zh", "zh_CN"},
                 {"zh_SG", "zh_CN"},   {"C", "en"},     {"zh_HK", nullptr},    {"POSIX", "en"},      {"en_GB", "en"},
                 {"zh_TW", nullptr},   {"it", nullptr}, {"zh-Hant", nullptr},  {"", nullptr},        {"d", nullptr},
                 {"deutsch", nullptr}, {"_", nullptr}};
    for (const auto& [name, code] : cases) {
        EXPECT_EQ(KxLanguage::Find(Name(name)), code != nullptr ? std::optional(Name(code)) : std::nullopt) << name;
    }
}

TEST_F(TestKxLanguage, TheLastOptionOfACommandLineDecides)
{
    EXPECT_EQ(OfCommandLine({Name("--language"), Name("de"), Name("a.mp4"), Name("--language=ja")}), Name("ja"));
    EXPECT_EQ(OfCommandLine({Name("-language"), Name("pt-BR")}), Name("pt_BR"));
    const QString other = KxLanguage::OfSystem();
    EXPECT_EQ(OfCommandLine({Name("--language")}), other);
    EXPECT_EQ(OfCommandLine({Name("--language"), Name("xx")}), other);
    EXPECT_EQ(OfCommandLine({Name("--languages"), Name("de"), Name("--"), Name("--language"), Name("fr")}), other);
}

TEST_F(TestKxLanguage, TextsAndNumbersFollowTheInstalledLanguage)
{
    KxLanguage::Install(QStringLiteral("de"));
    EXPECT_EQ(KxLanguage::Current(), QStringLiteral("de"));
    EXPECT_EQ(QCoreApplication::translate("KrAutoReframeDialog", "AutoReframe_Exit"), Name("Beenden"));
    EXPECT_EQ(KxLanguage::Locale().toString(1920.5), Name("1920,5"));
    KxLanguage::Install(QStringLiteral("en"));
    EXPECT_EQ(QCoreApplication::translate("KrAutoReframeDialog", "AutoReframe_Exit"), Name("Exit"));
    EXPECT_EQ(KxLanguage::Locale().toString(1920.5), Name("1920.5"));
    EXPECT_EQ(QString::number(1.5), Name("1.5"));
}

TEST_F(TestKxLanguage, AnEarlierLanguageLeavesNothingBehind)
{
    KxLanguage::Install(QStringLiteral("en"));
    const int withEnglish = QCoreApplication::instance()->children().size();
    KxLanguage::Install(QStringLiteral("ja"));
    KxLanguage::Install(QStringLiteral("en"));
    EXPECT_EQ(QCoreApplication::instance()->children().size(), withEnglish);
}
