// Uses the desktop program's window, dialog and queue as a person does, repeatedly. Needs a display, such as Xvfb.
//   BenchDesktop cancel CLIP [--times N]      time from pressing Cancel to the end of an analysis and of an export
//   BenchDesktop memory CLIP... [--times N]   memory after each round of import, analysis, export and removal
// Prints one line of JSON.

#include <Apps/AutoReframe/Backend/HostMediaBackend.h>
#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/MainWindow.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>
#include <KxCore/KxMemory.h>

#include <KxWidgets/KxUIStyle.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <thread>
#include <vector>

#include <malloc.h>
#include <unistd.h>

namespace
{

using Clock = std::chrono::steady_clock;

double MsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t half = values.size() / 2;
    return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

qint64 ResidentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read the memory of this process");
    }
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

// The memory that was allocated and not freed, without the allocator's own reserves, which vary.
double UsedBytes()
{
    char* text = nullptr;
    size_t length = 0;
    FILE* const file = open_memstream(&text, &length);
    malloc_info(0, file);
    std::fclose(file);
    const QByteArray report(text, static_cast<int>(length));
    std::free(text);
    // The totals of all arenas are at the end.
    const QByteArray total = report.mid(report.lastIndexOf("</heap>"));
    const auto size = [&total](const QByteArray& element) {
        const int from = total.indexOf("size=\"", total.indexOf(element)) + 6;
        return total.mid(from, total.indexOf('"', from) - from).toDouble();
    };
    return size("<system type=\"current\"") + size("<total type=\"mmap\"") - size("<total type=\"fast\"") -
           size("<total type=\"rest\"");
}

// Runs on a thread of its own and acts on the user-interface thread, where dialogs run event loops of their own. Clicks
// are posted because a click may open a dialog.
class Person
{
public:
    Person(MainWindow& window, QString outputFolder)
        : m_window(window)
        , m_outputFolder(std::move(outputFolder))
    {
    }

    QJsonObject Cancel(const QString& clip, int times);
    QJsonObject Memory(const QStringList& clips, int rounds);

private:
    template<typename Function>
    auto OnUi(Function function) -> decltype(function())
    {
        decltype(function()) result{};
        QMetaObject::invokeMethod(
            qApp, [&] { result = function(); }, Qt::BlockingQueuedConnection);
        return result;
    }

    template<typename Function>
    void WaitFor(const char* what, Function isTrue)
    {
        const auto start = Clock::now();
        while (!OnUi(isTrue)) {
            if (MsSince(start) > 300'000) {
                throw std::runtime_error(std::string("waited too long for ") + what);
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    // Called on the user-interface thread.
    template<typename Widget = QWidget>
    static Widget* Shown(const char* name)
    {
        for (QWidget* const widget : QApplication::allWidgets()) {
            if (widget->isVisible() && widget->objectName() == QLatin1String(name)) {
                return qobject_cast<Widget*>(widget);
            }
        }
        return nullptr;
    }

    void WaitForProgress(const char* bar, int value)
    {
        WaitFor(bar, [&] {
            const auto* const shown = Shown<QProgressBar>(bar);
            return shown != nullptr && shown->value() >= value;
        });
    }

    void WaitUntilGone(const char* name)
    {
        WaitFor(name, [&] { return Shown(name) == nullptr; });
    }

    void Press(const char* name)
    {
        WaitFor(name, [&] {
            auto* const button = Shown<QAbstractButton>(name);
            if (button == nullptr || !button->isEnabled()) {
                return false;
            }
            QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
            return true;
        });
    }

    void Import(const QString& clip);
    void Analyse();
    void OrderExport();
    void CloseDialog();
    void WaitForExport(ExportItem::State state);
    void RemoveFromLibrary();
    double CancelAnalysisMs(int progress);
    double CancelExportMs(int progress);

    MainWindow& m_window;
    const QString m_outputFolder;
};

void Person::Import(const QString& clip)
{
    OnUi([&] {
        m_window.Open({clip});
        return true;
    });
    Press("TopBar_reframe");
}

void Person::Analyse()
{
    Press("KrAutoReframePropertyPanel_analyze");
    WaitFor("the end of the analysis", [] { return Shown("KrAutoReframePropertyPanel_restart") != nullptr; });
}

void Person::OrderExport()
{
    Press("KrAutoReframePropertyPanel_export");
    Press("KrAutoReframeExport_export");
    WaitUntilGone("KrAutoReframeExport_export");
}

void Person::CloseDialog()
{
    OnUi([] {
        QMetaObject::invokeMethod(QApplication::activeModalWidget(), &QWidget::close, Qt::QueuedConnection);
        return true;
    });
    Press("KxMessageBox_confirm");
    WaitUntilGone("KrAutoReframePropertyPanel_restart");
}

void Person::WaitForExport(ExportItem::State state)
{
    WaitFor("an export's end", [&] {
        const ExportQueue& exports = m_window.Exports();
        for (int id = 1;; ++id) {
            if (const ExportItem* const item = exports.Find(id)) {
                if (item->IsFinished() && item->state != state) {
                    throw std::runtime_error("an export had another outcome: " + item->message.toStdString());
                }
                return item->state == state;
            }
        }
    });
}

void Person::RemoveFromLibrary()
{
    OnUi([] {
        QWidget* const library = Shown("MediaLibrary");
        QApplication::postEvent(library, new QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier));
        return true;
    });
    WaitFor("the library to be empty", [] { return !Shown<QAbstractButton>("TopBar_reframe")->isEnabled(); });
}

double Person::CancelAnalysisMs(int progress)
{
    Press("KrAutoReframePropertyPanel_analyze");
    WaitForProgress("KxProgressDialog_bar", progress);
    const auto start = Clock::now();
    Press("KxProgressDialog_cancel");
    // The task is joined before the user-interface thread looks here again.
    WaitUntilGone("KxProgressDialog_bar");
    return MsSince(start);
}

double Person::CancelExportMs(int progress)
{
    WaitForProgress("ExportCard_progress", progress);
    const auto start = Clock::now();
    Press("ExportCard_cancel");
    WaitForExport(ExportItem::State::Cancelled);
    const double took = MsSince(start);
    if (!QDir(m_outputFolder).isEmpty(QDir::Files)) {
        throw std::runtime_error("a cancelled export left a file");
    }
    return took;
}

QJsonObject Person::Cancel(const QString& clip, int times)
{
    constexpr int first = 200;
    constexpr int last = 6000;
    std::vector<double> analysisMs;
    std::vector<double> exportMs;
    Import(clip);
    for (int time = 0; time < times; ++time) {
        analysisMs.push_back(CancelAnalysisMs(first + time * (last - first) / times));
    }
    Analyse();
    OrderExport();
    CloseDialog();
    for (int time = 0; time < times; ++time) {
        exportMs.push_back(CancelExportMs(first + time * (last - first) / times));
        Press("ExportCard_retry");
    }
    return {{QStringLiteral("analysisMedianMs"), Median(analysisMs)},
            {QStringLiteral("analysisMaxMs"), *std::max_element(analysisMs.begin(), analysisMs.end())},
            {QStringLiteral("exportMedianMs"), Median(exportMs)},
            {QStringLiteral("exportMaxMs"), *std::max_element(exportMs.begin(), exportMs.end())},
            {QStringLiteral("times"), times}};
}

QJsonObject Person::Memory(const QStringList& clips, int rounds)
{
    QJsonArray residentBytes;
    QJsonArray usedBytes;
    for (int round = 0; round < rounds; ++round) {
        Import(clips[round % clips.size()]);
        Analyse();
        OrderExport();
        CloseDialog();
        WaitForExport(ExportItem::State::Done);
        Press("ExportPanel_clear");
        WaitUntilGone("ExportCard");
        RemoveFromLibrary();
        for (const QString& name : QDir(m_outputFolder).entryList(QDir::Files)) {
            QFile::remove(m_outputFolder + QLatin1Char('/') + name);
        }
        residentBytes.append(ResidentBytes());
        usedBytes.append(UsedBytes());
        std::fprintf(stderr, "round %d: %.0f kB, used %.0f kB\n", round + 1, residentBytes.last().toDouble() / 1024,
                     usedBytes.last().toDouble() / 1024);
    }
    return {{QStringLiteral("residentBytes"), residentBytes}, {QStringLiteral("usedBytes"), usedBytes}};
}

struct Arguments {
    QString mode;
    QStringList clips;
    int times = 0;
};

Arguments Read(const QApplication& application)
{
    QCommandLineParser parser;
    const QCommandLineOption times(QStringLiteral("times"), QString(), QStringLiteral("number"), QStringLiteral("10"));
    parser.addOption(times);
    parser.process(application);
    QStringList given = parser.positionalArguments();
    if (given.size() < 2) {
        std::fputs("usage: BenchDesktop cancel|memory CLIP... [--times N]\n", stderr);
        std::exit(2);
    }
    const QString mode = given.takeFirst();
    return {mode, given, parser.value(times).toInt()};
}

} // namespace

int main(int argc, char** argv)
{
    KxMemory::KeepNoPictures();
    QTemporaryDir folder;
    const QString outputFolder = folder.filePath(QStringLiteral("exports"));
    QDir().mkpath(outputFolder);
    const QString config = folder.filePath(QStringLiteral("config.ini"));
    qputenv("KX_CONFIG_FILE", config.toLocal8Bit());
    QSettings(config, QSettings::IniFormat).setValue(QStringLiteral("Auto Reframe/OutputPath"), outputFolder);

    QApplication application(argc, argv);
    const Arguments given = Read(application);
    KxUIStyle::Apply(application);
    MediaBackendLoader backend([] { return std::shared_ptr<MediaBackend>(std::make_shared<HostMediaBackend>()); },
                               nullptr);
    LibraryStore store(QString(), nullptr);
    MainWindow window(backend, store);
    window.show();
    std::thread thread([&] {
        int status = 0;
        try {
            Person person(window, outputFolder);
            const QJsonObject found = given.mode == QLatin1String("cancel")
                                          ? person.Cancel(given.clips.first(), given.times)
                                          : person.Memory(given.clips, given.times);
            std::printf("%s\n", QJsonDocument(found).toJson(QJsonDocument::Compact).constData());
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
            status = 1;
        }
        // A dialog may still be open.
        std::fflush(stdout);
        folder.remove();
        std::_Exit(status);
    });
    thread.detach();
    return QApplication::exec();
}
