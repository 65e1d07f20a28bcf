// The desktop program's library with many videos. Needs a display, such as Xvfb.
//   BenchLibrary [--videos N]
// Prints one line of JSON: the time from opening the file until the first cards are painted with their pictures, the
// longest and the median frame while all of it is scrolled through, the processor time of the user-interface thread in
// them (on a busy machine the better figure), and memory.

#include <Apps/AutoReframe/Backend/HostMediaBackend.h>
#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Library/MediaLibraryModel.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>
#include <Apps/AutoReframe/MainWindow.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>

#include <KxWidgets/KxUIStyle.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include <time.h>
#include <unistd.h>

namespace
{

using Clock = std::chrono::steady_clock;

double MsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Of this thread.
double ProcessorMs()
{
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

double ResidentMb()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    file.open(QIODevice::ReadOnly);
    return static_cast<double>(file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE)) / 1024 / 1024;
}

/// As much detail as a picture of a video has.
QImage Picture(int number)
{
    QImage picture(188, 106, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, y, qRgb((x * 7 + number) % 256, (x * y / 9) % 256, (y * 5 + number * 3) % 256));
        }
    }
    return picture;
}

void Fill(const QString& file, const QString& folder, int videos)
{
    LibraryStore store(file, nullptr);
    for (int i = 0; i < videos; ++i) {
        StoredVideo video;
        video.path = QStringLiteral("%1/holiday in the mountains, day %2.mp4").arg(folder, QString::number(i));
        video.fileBytes = 1024;
        video.contentHash = "0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef";
        video.resolution = QSize(1920, 1080);
        video.frameRate = {30000, 1001};
        video.frameCount = 1000 + i;
        QFile content(video.path);
        content.open(QIODevice::WriteOnly);
        content.resize(video.fileBytes);
        store.SaveVideo(video);
        store.SaveThumbnail(video.path, Picture(i));
        VideoEdits edits;
        edits.aspect = QSize(9, 16);
        for (uint frame = 0; frame < 10; ++frame) {
            edits.editPoints.insert(frame * 30, QRectF(0.25, 0.0, 0.31640625, 1.0));
        }
        store.SaveEdits(video.path, edits);
    }
}

bool ShowsPictures(const MediaLibraryView& view)
{
    const QModelIndex first = view.indexAt(QPoint(30, 30));
    const QModelIndex last = view.indexAt(view.viewport()->rect().bottomLeft() + QPoint(30, -30));
    for (const QModelIndex& card : {first, last}) {
        if (!card.isValid() || card.data(MediaLibraryModel::ThumbnailRole).value<QPixmap>().isNull()) {
            return false;
        }
    }
    return true;
}

struct Frames {
    std::vector<double> wallMs;
    std::vector<double> processorMs;
};

Frames Scroll(MediaLibraryView& view)
{
    Frames frames;
    QScrollBar& bar = *view.verticalScrollBar();
    // A turn of the wheel.
    const int step = 3 * bar.singleStep();
    for (int value = 0; value <= bar.maximum(); value += step) {
        const auto start = Clock::now();
        const double processorStart = ProcessorMs();
        bar.setValue(value);
        QApplication::processEvents();
        view.viewport()->repaint();
        frames.wallMs.push_back(MsSince(start));
        frames.processorMs.push_back(ProcessorMs() - processorStart);
    }
    std::sort(frames.wallMs.begin(), frames.wallMs.end());
    std::sort(frames.processorMs.begin(), frames.processorMs.end());
    return frames;
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir folder;
    qputenv("KX_CONFIG_FILE", folder.filePath(QStringLiteral("config.ini")).toLocal8Bit());
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("videos"), QString(), QStringLiteral("number"), QStringLiteral("2000")});
    parser.addOption({QStringLiteral("fill"), QString(), QStringLiteral("folder")});
    parser.process(application);
    const int videos = parser.value(QStringLiteral("videos")).toInt();
    if (parser.isSet(QStringLiteral("fill"))) {
        const QString target = parser.value(QStringLiteral("fill"));
        Fill(target + QStringLiteral("/library.db"), target, videos);
        return 0;
    }
    const QString file = folder.filePath(QStringLiteral("library.db"));
    // In a process of its own, so that its memory is not measured.
    QProcess::execute(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--fill"), folder.path(), QStringLiteral("--videos"), QString::number(videos)});

    KxUIStyle::Apply(application);
    LibraryStore store(file, nullptr);
    MediaBackendLoader backend([] { return std::shared_ptr<MediaBackend>(std::make_shared<HostMediaBackend>()); },
                               nullptr);
    MainWindow window(backend, store);
    window.resize(1180, 740);
    window.show();
    QApplication::processEvents();
    const double emptyMb = ResidentMb();
    const auto start = Clock::now();
    const double processorStart = ProcessorMs();
    store.Open();
    auto* const view = window.findChild<MediaLibraryView*>();
    while (!ShowsPictures(*view)) {
        QApplication::processEvents();
        view->viewport()->repaint();
    }
    const double openedMs = MsSince(start);
    const double openedProcessorMs = ProcessorMs() - processorStart;
    const double openedMb = ResidentMb();
    backend.Get();
    const Frames frames = Scroll(*view);
    const size_t middle = frames.wallMs.size() / 2;
    const QJsonObject found{{QStringLiteral("videos"), view->model()->rowCount() - 1},
                            {QStringLiteral("openedMs"), openedMs},
                            {QStringLiteral("openedProcessorMs"), openedProcessorMs},
                            {QStringLiteral("frames"), static_cast<int>(frames.wallMs.size())},
                            {QStringLiteral("longestFrameMs"), frames.wallMs.back()},
                            {QStringLiteral("medianFrameMs"), frames.wallMs[middle]},
                            {QStringLiteral("longestFrameProcessorMs"), frames.processorMs.back()},
                            {QStringLiteral("medianFrameProcessorMs"), frames.processorMs[middle]},
                            {QStringLiteral("emptyMb"), emptyMb},
                            {QStringLiteral("openedMb"), openedMb},
                            {QStringLiteral("scrolledMb"), ResidentMb()}};
    std::printf("%s\n", QJsonDocument(found).toJson(QJsonDocument::Compact).constData());
    return 0;
}
