#include <Tests/Reframe/ReframeRun.h>

#include <Apps/CropTracks/CropTrackFile.h>
#include <Tests/Support/MadeVideo.h>
#include <Tests/Support/TestSystem.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr int Frames = 100;
constexpr int Cut = 60;
const QSize SourceSize(320, 180);

double SquareCentre(int frame)
{
    return frame < Cut ? 0.1 + 0.8 * frame / Cut : 0.25;
}

/// A square that moves across a textured background; from `cut` on, it jumps up and down at the left of another one.
QImage DrawScene(int frame)
{
    QImage image(SourceSize, QImage::Format_RGB32);
    QPainter painter(&image);
    const bool isFirst = frame < Cut;
    painter.fillRect(image.rect(), isFirst ? QColor(40, 60, 90) : QColor(170, 120, 60));
    for (int i = 0; i < 60; ++i) {
        const int x = (i * 83 + (isFirst ? 0 : 41)) % SourceSize.width();
        const int y = (i * 47 + (isFirst ? 0 : 29)) % SourceSize.height();
        painter.fillRect(x, y, 12, 6, isFirst ? QColor(60, 80, 110) : QColor(140, 90, 50));
    }
    const int hop = isFirst ? 0 : 10 * ((frame / 4) % 3);
    painter.fillRect(qRound(SquareCentre(frame) * SourceSize.width()) - 16, 70 + hop, 32, 40, Qt::white);
    painter.end();
    return image;
}

class ReframeReportTest : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    QString MakeClip(const QString& name) const
    {
        MadeVideo::Recipe recipe;
        recipe.size = SourceSize;
        recipe.frames = Frames;
        recipe.draw = DrawScene;
        recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
                                    QStringLiteral("yuv420p")};
        EXPECT_TRUE(MadeVideo::Make(Path(name), recipe));
        return Path(name);
    }

    QString Read(const QString& name) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return QString::fromUtf8(file.readAll());
    }

    QTemporaryDir m_folder;
};

/// The cells of each shot's row, without tags.
QList<QStringList> ShotRows(const QString& page)
{
    QList<QStringList> rows;
    const QString table =
        page.mid(page.indexOf(QStringLiteral("<table id=\"shots\">"))).section(QStringLiteral("<tbody>"), 1);
    QRegularExpressionMatchIterator lines = QRegularExpression(QStringLiteral("<tr>(.*)</tr>")).globalMatch(table);
    while (lines.hasNext()) {
        QString line = lines.next().captured(1);
        line.replace(QStringLiteral("</td><td>"), QStringLiteral("|"))
            .remove(QRegularExpression(QStringLiteral("<[^>]*>")));
        rows += line.split(QLatin1Char('|'));
    }
    return rows;
}

QImage HeatOf(const QString& page)
{
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral("href=\"data:image/png;base64,([^\"]+)\"")).match(page);
    return QImage::fromData(QByteArray::fromBase64(match.captured(1).toLatin1()));
}

/// The position of the lightest row in a column of the heat map, as a fraction of the source's width.
double LightestPlace(const QImage& heat, int column)
{
    int lightest = 0;
    for (int row = 0; row < heat.height(); ++row) {
        lightest = qGray(heat.pixel(column, row)) > qGray(heat.pixel(column, lightest)) ? row : lightest;
    }
    return 1.0 - (lightest + 0.5) / heat.height();
}

} // namespace

TEST_F(ReframeReportTest, IsOneSelfContainedPage)
{
    const QString name = TestSystem::HostileName() + QStringLiteral(".mp4");
    const QString clip = MakeClip(name);
    const ReframeRun run(
        {QStringLiteral("--no-video"), QStringLiteral("--report"), Path(QStringLiteral("why.html")), clip});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    EXPECT_EQ(run.standardError, QString());
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
              (QStringList{name, QStringLiteral("why.html")}));

    const QString page = Read(QStringLiteral("why.html"));
    EXPECT_TRUE(page.contains(QStringLiteral("<h1>") + name.toHtmlEscaped() + QStringLiteral(" at 9:16</h1>")));
    EXPECT_FALSE(page.contains(QStringLiteral("a<b>")));
    EXPECT_FALSE(page.contains(QStringLiteral("http")));
    EXPECT_FALSE(page.contains(QStringLiteral("<script")));
    EXPECT_FALSE(page.contains(QStringLiteral("url(")));
    const QRegularExpression links(QStringLiteral("\\b(src|href)=\"(?!data:)"));
    EXPECT_FALSE(links.match(page).hasMatch());
    EXPECT_EQ(page.count(QStringLiteral("=\"data:image/")), 2);
}

TEST_F(ReframeReportTest, NumbersAreThoseOfTheTrack)
{
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    const ReframeRun run({QStringLiteral("--no-video"), QStringLiteral("--report"), Path(QStringLiteral("why.html")),
                          QStringLiteral("--keyframes"), Path(QStringLiteral("track.csv")), QStringLiteral("--speed"),
                          QStringLiteral("fast"), clip});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const KxResult<CropTrack> track = CropTrackFile::Read(Path(QStringLiteral("track.csv")), Frames);
    ASSERT_TRUE(track) << track.Message().toStdString();
    const QString page = Read(QStringLiteral("why.html"));
    for (const char* fact :
         {"320 × 180", "00:00:04.000 (100 frames)", "101 × 180, 9:16", "<dd>fast</dd>", "<dd>25</dd>"}) {
        EXPECT_TRUE(page.contains(QString::fromUtf8(fact))) << fact;
    }

    const QList<QStringList> rows = ShotRows(page);
    ASSERT_EQ(rows.size(), 2) << page.right(2000).toStdString();
    const QList<int> starts{0, Cut, Frames};
    for (int shot = 0; shot < 2; ++shot) {
        const QStringList& row = rows.at(shot);
        ASSERT_EQ(row.size(), 8);
        double travel = 0.0;
        for (int frame = starts.at(shot) + 1; frame < starts.at(shot + 1); ++frame) {
            travel += std::abs(track->crops.at(frame).cropRect().x() - track->crops.at(frame - 1).cropRect().x());
        }
        EXPECT_EQ(row.at(0), QString::number(shot + 1));
        EXPECT_EQ(row.at(1), QString::number(starts.at(shot)));
        EXPECT_EQ(row.at(3), QStringLiteral("%1 frames").arg(starts.at(shot + 1) - starts.at(shot)));
        EXPECT_EQ(row.at(6), QStringLiteral("%1 %").arg(travel * 100.0, 0, 'f', 1));
    }
    EXPECT_EQ(rows.at(1).at(2), QStringLiteral("00:00:02.400"));
    EXPECT_NE(rows.at(0).at(6), QStringLiteral("0.0 %"));
}

TEST_F(ReframeReportTest, TheHeatMapIsLightestAtTheSubject)
{
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    const ReframeRun run(
        {QStringLiteral("--no-video"), QStringLiteral("--report"), Path(QStringLiteral("why.html")), clip});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const QImage heat = HeatOf(Read(QStringLiteral("why.html")));
    ASSERT_EQ(heat.width(), Frames);
    for (const int frame : {15, 30, 50, Cut, 80}) {
        EXPECT_NEAR(LightestPlace(heat, frame), SquareCentre(frame), 0.12) << frame;
    }
}

TEST_F(ReframeReportTest, SeveralInputsGetAPageEachAndNoneIsReplaced)
{
    const QStringList clips{MakeClip(QStringLiteral("a.mp4")), MakeClip(QStringLiteral("b.mp4"))};
    const QString folder = Path(QStringLiteral("out"));
    QDir(m_folder.path()).mkdir(QStringLiteral("out"));
    const QStringList line = QStringList{QStringLiteral("--no-video"), QStringLiteral("--report"), folder} + clips;
    EXPECT_EQ(ReframeRun(line).exitStatus, 0);
    EXPECT_EQ(ReframeRun(line).exitStatus, 0);
    EXPECT_EQ(ReframeRun(QStringList(QStringLiteral("--overwrite")) + line).exitStatus, 0);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files, QDir::Name),
              (QStringList{QStringLiteral("a-AutoReframe-9 16 (2).html"), QStringLiteral("a-AutoReframe-9 16.html"),
                           QStringLiteral("b-AutoReframe-9 16 (2).html"), QStringLiteral("b-AutoReframe-9 16.html")}));
}
