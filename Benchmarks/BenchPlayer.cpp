// Measures dropped frames, seek time and processor time of the player. Needs a display, such as Xvfb:
//   BenchPlayer play CLIP [SECONDS]       frames shown and dropped, processor time
//   BenchPlayer seek CLIP [TIMES]         from seek() to the end of the paint, compared with only reading the same
//   frames BenchPlayer ffplay CLIP [SECONDS]     processor time of ffplay for the same clip in the same size
// Prints one line of JSON.

#include <KxMedia/Read/KxVideoReader.h>
#include <KxModel/KxMediaItem.h>

#include <KxModel/IKxTimeline.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPaintEvent>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

#include <sys/resource.h>

namespace
{

constexpr QSize WindowSize{960, 540};

double ProcessorSeconds(int whose)
{
    rusage usage{};
    getrusage(whose, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void Print(const QJsonObject& result)
{
    std::printf("%s\n", QJsonDocument(result).toJson(QJsonDocument::Compact).constData());
}

double Quantile(std::vector<double> values, double part)
{
    std::sort(values.begin(), values.end());
    return values[static_cast<size_t>(part * static_cast<double>(values.size() - 1))];
}

// Reports when a widget has been painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QEventLoop& loop)
        : m_loop(loop)
    {
    }
    void Arm() { m_isArmed = true; }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isPaint = m_isArmed && event->type() == QEvent::Paint;
        if (isPaint) {
            m_isArmed = false;
            QMetaObject::invokeMethod(&m_loop, &QEventLoop::quit, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoop& m_loop;
    bool m_isArmed = false;
};

class Bench
{
public:
    explicit Bench(const QString& path)
        : m_path(path)
    {
    }

    bool Open()
    {
        auto item = KxMediaItem::Open(m_path, {});
        if (!item) {
            std::fprintf(stderr, "%s\n", qUtf8Printable(item.Message()));
            return false;
        }
        m_timeline.reset(IKxTimeline::createSimpleTimeline((*item)->clip()));
        m_widget->resize(WindowSize);
        m_widget->show();
        QEventLoop loop;
        QObject::connect(m_player, &KxMediaPlayerPresenter::sigFrameChanged, &loop, &QEventLoop::quit);
        m_player->openTimeline(m_timeline.get(), true, false);
        loop.exec();
        return true;
    }

    void Play(int seconds)
    {
        QEventLoop loop;
        int shown = 0;
        QObject::connect(m_player, &KxMediaPlayerPresenter::sigFrameChanged, &loop, [&shown] { ++shown; });
        QObject::connect(m_player, &KxMediaPlayerPresenter::sigReachedEnd, &loop, &QEventLoop::quit);
        QTimer::singleShot(seconds * 1000, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        QElapsedTimer wall;
        wall.start();
        const double before = ProcessorSeconds(RUSAGE_SELF);
        m_player->play();
        loop.exec();
        const double used = ProcessorSeconds(RUSAGE_SELF) - before;
        const double took = static_cast<double>(wall.elapsed()) / 1000;
        Print({{QStringLiteral("what"), QStringLiteral("play")},
               {QStringLiteral("seconds"), took},
               {QStringLiteral("shown"), shown},
               {QStringLiteral("dropped"), m_player->DroppedFrames()},
               {QStringLiteral("processorSeconds"), used}});
    }

    void Seek(int times)
    {
        std::mt19937 random(1);
        std::vector<int> frames(static_cast<size_t>(times));
        std::generate(frames.begin(), frames.end(),
                      [&] { return static_cast<int>(random() % static_cast<unsigned>(m_player->frameCount())); });
        const std::vector<double> player = SeekPlayer(frames);
        const std::vector<double> reader = SeekReader(frames);
        Print({{QStringLiteral("what"), QStringLiteral("seek")},
               {QStringLiteral("times"), times},
               {QStringLiteral("playerMedianMs"), Quantile(player, 0.5)},
               {QStringLiteral("player95Ms"), Quantile(player, 0.95)},
               {QStringLiteral("readerMedianMs"), Quantile(reader, 0.5)},
               {QStringLiteral("reader95Ms"), Quantile(reader, 0.95)}});
    }

private:
    struct Release {
        void operator()(IKxTimeline* timeline) const { IKxTimeline::releaseInstance(timeline); }
    };

    std::vector<double> SeekPlayer(const std::vector<int>& frames)
    {
        QEventLoop loop;
        PaintWatch watch(loop);
        m_widget->installEventFilter(&watch);
        QObject::connect(m_player, &KxMediaPlayerPresenter::sigFrameChanged, &watch, [&watch] { watch.Arm(); });
        std::vector<double> took;
        for (const int frame : frames) {
            QElapsedTimer timer;
            timer.start();
            m_player->seek(frame, 0, 0);
            loop.exec();
            took.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
        return took;
    }

    std::vector<double> SeekReader(const std::vector<int>& frames)
    {
        auto reader = KxVideoReader::Open(m_path, {});
        std::vector<double> took;
        for (const int frame : frames) {
            QElapsedTimer timer;
            timer.start();
            KxVideoFrame picture;
            (*reader)->Read(frame, picture);
            took.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
        return took;
    }

    const QString m_path;
    std::unique_ptr<IKxTimeline, Release> m_timeline;
    std::unique_ptr<KxMediaPlayerWidget> m_widget{mediaPlayerFactory()->createPlayerWidget(nullptr)};
    KxMediaPlayerPresenter* const m_player = m_widget->getOrCreatePresenter();
};

void RunFfplay(const QString& path, int seconds)
{
    QElapsedTimer wall;
    wall.start();
    QProcess::execute(QStringLiteral("ffplay"),
                      {QStringLiteral("-loglevel"), QStringLiteral("quiet"), QStringLiteral("-autoexit"),
                       QStringLiteral("-an"), QStringLiteral("-x"), QString::number(WindowSize.width()),
                       QStringLiteral("-y"), QString::number(WindowSize.height()), QStringLiteral("-t"),
                       QString::number(seconds), path});
    Print({{QStringLiteral("what"), QStringLiteral("ffplay")},
           {QStringLiteral("seconds"), static_cast<double>(wall.elapsed()) / 1000},
           {QStringLiteral("processorSeconds"), ProcessorSeconds(RUSAGE_CHILDREN)}});
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString what = arguments.value(1);
    const QString path = arguments.value(2);
    const int number = arguments.value(3).toInt();
    if (what == QLatin1String("ffplay") && !path.isEmpty()) {
        RunFfplay(path, number > 0 ? number : 60);
        return 0;
    }
    if ((what != QLatin1String("play") && what != QLatin1String("seek")) || path.isEmpty()) {
        std::fprintf(stderr, "usage: BenchPlayer play|seek|ffplay CLIP [SECONDS|TIMES]\n");
        return 2;
    }
    Bench bench(path);
    if (!bench.Open()) {
        return 1;
    }
    if (what == QLatin1String("play")) {
        bench.Play(number > 0 ? number : 60);
    } else {
        bench.Seek(number > 0 ? number : 100);
    }
    return 0;
}
