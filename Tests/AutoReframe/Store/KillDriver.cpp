// Changes a library without a pause until it is killed.
//   KillDriver FILE
// Change n sets the edits of video n % 3, so the edits of the three videos are always those of three changes in a row.
// Every change also moves an export to its next state. Prints "change N MS" for each one, with the time of a steady
// clock, and "written N" when the file holds all changes up to the Nth.

#include <Apps/AutoReframe/Store/LibraryStore.h>

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <cstdio>

namespace
{

constexpr int Videos = 3;
constexpr int States = 3;

QString PathOf(qint64 change)
{
    return QStringLiteral("/clips/%1.mp4").arg(change % Videos);
}

void Print(const char* what, qint64 change)
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::printf("%s %lld %lld\n", what, static_cast<long long>(change),
                static_cast<long long>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count()));
    std::fflush(stdout);
}

StoredExport ExportOf(qint64 change)
{
    StoredExport item;
    item.key = change / States;
    item.request.source.path = PathOf(change);
    item.request.source.crops = std::make_shared<std::vector<QRectF>>(300, QRectF(0.25, 0.0, 0.31640625, 1.0));
    item.request.settings.resolution = QSize(608, 1080);
    return item;
}

void SaveExport(LibraryStore& store, qint64 change)
{
    StoredExport item = ExportOf(change);
    switch (change % States) {
    case 0:
        store.SaveExport(item);
        break;
    case 1:
        item.state = StoredExport::State::Running;
        store.SaveExportState(item);
        break;
    default:
        item.state = StoredExport::State::Done;
        store.SaveExportState(item);
        store.RemoveExport(item.key - 50);
    }
}

void Change(LibraryStore& store, qint64 change)
{
    VideoEdits edits;
    edits.isAnalyzed = true;
    for (uint frame = 0; frame < 20; ++frame) {
        edits.editPoints.insert(frame, QRectF(0.001 * static_cast<double>(change % 1000), 0.0, 0.25, 1.0));
    }
    edits.choices = QByteArray::number(change);
    Print("change", change);
    store.SaveEdits(PathOf(change), edits);
    SaveExport(store, change);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    LibraryStore store(QString::fromLocal8Bit(argv[1]), nullptr);
    qint64 change = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &store, [&] { Change(store, ++change); });
    QObject::connect(&store, &LibraryStore::sigWritten, &store, [&] { Print("written", change); });
    QObject::connect(&store, &LibraryStore::sigNotice, &store, [](const QString& text) {
        std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
        std::_Exit(1);
    });
    QObject::connect(&store, &LibraryStore::sigOpened, &store, [&](const StoredContents& contents) {
        for (const VideoEdits& edits : contents.edits) {
            change = std::max<qint64>(change, edits.choices.toLongLong());
        }
        timer.start(1);
    });
    store.Open();
    return QCoreApplication::exec();
}
