#include <Tests/Reframe/ReframeRun.h>

#include <Tests/Support/MadeVideo.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

/// The result of opening a page in a browser.
struct Shown {
    bool isEnded = false;
    QString messages; ///< lines of the page's console
    QImage screenshot;
};

/// Opens `page` in a browser without a screen, a network or a profile.
Shown Show(const QString& page, const QString& screenshot, const QSize& window)
{
    const QTemporaryDir profile;
    QProcess browser;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), profile.path());
    browser.setProcessEnvironment(environment);
    QStringList arguments;
    for (const char* const option :
         {"--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--disable-quic", "--no-first-run",
          "--disable-background-networking", "--disable-component-update", "--disable-sync", "--hide-scrollbars",
          "--host-resolver-rules=MAP * ~NOTFOUND", "--force-device-scale-factor=1", "--enable-logging=stderr"}) {
        arguments += QLatin1String(option);
    }
    arguments += QStringLiteral("--user-data-dir=%1").arg(profile.path());
    arguments +=
        QStringLiteral("--window-size=%1,%2").arg(QString::number(window.width()), QString::number(window.height()));
    arguments += QStringLiteral("--screenshot=%1").arg(screenshot);
    arguments += QUrl::fromLocalFile(page).toString(QUrl::FullyEncoded);
    QFile::remove(screenshot);
    browser.start(QStringLiteral("chromium"), arguments);
    constexpr int longestMs = 240000;
    Shown shown;
    shown.isEnded = browser.waitForFinished(longestMs) && browser.exitStatus() == QProcess::NormalExit;
    const QStringList lines = QString::fromUtf8(browser.readAllStandardError()).split(QLatin1Char('\n'));
    shown.messages = lines.filter(QStringLiteral("CONSOLE")).join(QLatin1Char('\n'));
    shown.screenshot = QImage(screenshot);
    return shown;
}

/// The number of pixels that have nearly `colour`.
int CountOf(const QImage& picture, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            const int difference = std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                                   std::abs(pixel.blue() - colour.blue());
            count += difference < 12 ? 1 : 0;
        }
    }
    return count;
}

class ReportInBrowser : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReportInBrowser, ShowsThePageWithoutAMessage)
{
    const QString clip = Path(QStringLiteral("clip.mp4"));
    MadeVideo::Recipe recipe;
    recipe.size = QSize(320, 180);
    recipe.frames = 100;
    recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
                                QStringLiteral("yuv420p")};
    ASSERT_TRUE(MadeVideo::Make(clip, recipe));
    const ReframeRun run(
        {QStringLiteral("--no-video"), QStringLiteral("--report"), Path(QStringLiteral("why.html")), clip});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const Shown shown = Show(Path(QStringLiteral("why.html")), QStringLiteral(REPORT_SCREENSHOT), QSize(1280, 2000));
    ASSERT_TRUE(shown.isEnded);
    EXPECT_EQ(shown.messages, QString());
    ASSERT_EQ(shown.screenshot.size(), QSize(1280, 2000));
    const int pixels = 1280 * 2000;
    EXPECT_GT(CountOf(shown.screenshot, QColor(0x1B, 0x1D, 0x21)), pixels / 4) << "the background of the style sheet";
    EXPECT_GT(CountOf(shown.screenshot, QColor(0x55, 0xE5, 0xC5)), 1500)
        << "lines of the crop, in sheet, plot and legend";
    EXPECT_GT(CountOf(shown.screenshot, QColor(0xE8, 0xEA, 0xEE)), 1000) << "text";
}

TEST_F(ReportInBrowser, AMessageOfAPageIsDetected)
{
    QFile page(Path(QStringLiteral("page.html")));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write("<!DOCTYPE html><title>a</title><p>a</p><script>console.log('a message')</script>");
    page.close();
    const Shown shown = Show(page.fileName(), Path(QStringLiteral("page.png")), QSize(200, 100));
    ASSERT_TRUE(shown.isEnded);
    EXPECT_TRUE(shown.messages.contains(QStringLiteral("a message"))) << shown.messages.toStdString();
}
