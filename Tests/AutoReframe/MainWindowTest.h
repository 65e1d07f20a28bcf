#pragma once

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>
#include <Apps/AutoReframe/MainWindow.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>
#include <Tests/AutoReframe/Backend/FakeMediaBackend.h>

#include <KxWidgets/Windows/KxFileResponder.h>
#include <KxWidgets/Windows/KxMessageResponder.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

/// Stands in for the system's file manager.
class FileManager : public QObject
{
    Q_OBJECT
public:
    QStringList shown;

public Q_SLOTS:
    void Show(const QUrl& folder) { shown += folder.toLocalFile(); }
};

/// A main window over a backend that opens nothing and exports nothing by itself.
class TestMainWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("config.ini")).toLocal8Bit());
        KrMessageDialog::SetResponder([this](const KrMessageDialog::Shown& shown) {
            m_boxes += shown.text;
            return m_answer;
        });
        m_window = std::make_unique<MainWindow>(m_loader, m_store);
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_fileManager, "Show");
        m_window->show();
    }
    void TearDown() override
    {
        m_window.reset();
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        KrMessageDialog::SetResponder({});
        KxFileDialog::SetResponder({});
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("none.ini")).toLocal8Bit());
    }

    bool WaitForFinding() const
    {
        return QTest::qWaitFor([&] { return m_backend->finding != nullptr; }, 10000);
    }
    /// The crops of one video are found, and one video is written.
    void FinishOne(const QList<uint>& doubtfulShots = {}, int missingEdits = 0)
    {
        ASSERT_TRUE(WaitForFinding());
        m_backend->finding->EndWell(doubtfulShots, missingEdits);
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_backend->task != nullptr; }, 10000));
        m_backend->task->EndWell();
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_backend->task == nullptr; }, 10000));
    }

    template<typename T>
    T* Child(const char* name) const
    {
        return m_window->findChild<T*>(QLatin1String(name));
    }
    QString Text(const char* name) const { return Child<QLabel>(name)->text(); }
    QAbstractButton* Button(const char* name) const { return Child<QAbstractButton>(name); }
    MediaLibraryView* View() const { return Child<MediaLibraryView>("MediaLibrary"); }

    void Open(const QStringList& names)
    {
        QStringList paths;
        for (const QString& name : names) {
            paths += m_folder.filePath(name);
        }
        m_window->Open(paths);
    }
    bool WaitForStatus(const QString& text) const
    {
        return QTest::qWaitFor([&] { return Text("StatusBar_text") == text; }, 10000);
    }
    /// All widgets that the Tab key leads to, from the first button on.
    QSet<QWidget*> ReachedWithTab() const
    {
        QApplication::setActiveWindow(m_window.get());
        QSet<QWidget*> reached;
        Button("TopBar_import")->setFocus();
        while (!reached.contains(QApplication::focusWidget())) {
            reached.insert(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        return reached;
    }
    bool WaitUntilUsable() const
    {
        return QTest::qWaitFor([&] { return Button("TopBar_reframe")->isEnabled(); }, 10000);
    }
    bool WaitUntilAllAreOpen() const
    {
        return QTest::qWaitFor(
            [&] {
                const QAbstractItemModel& model = *View()->model();
                for (int row = 0; row + 1 < model.rowCount(); ++row) {
                    const QString details = model.index(row, 0).data(Qt::AccessibleDescriptionRole).toString();
                    if (!details.endsWith(QLatin1String("fps"))) {
                        return false;
                    }
                }
                return true;
            },
            10000);
    }
    ExportRequest Request(const QString& name) const
    {
        ExportRequest request;
        request.settings.outputPath = m_folder.filePath(name);
        request.settings.resolution = QSize(608, 1080);
        return request;
    }
    void ExportInDialog(const QString& name)
    {
        m_backend->inDialog = [this, name](const DialogCallbacks& callbacks) {
            callbacks.exportRequested(Request(name));
        };
        Button("TopBar_reframe")->click();
    }
    bool WaitForCard(const QString& status) const
    {
        return QTest::qWaitFor([&] { return Text("ExportCard_status") == status; }, 10000);
    }

    QTemporaryDir m_folder;
    std::shared_ptr<FakeMediaBackend> m_backend = std::make_shared<FakeMediaBackend>();
    MediaBackendLoader m_loader{[this] { return KxResult<std::shared_ptr<MediaBackend>>(m_backend); }, nullptr};
    /// Saves nothing.
    LibraryStore m_store{QString(), nullptr};
    QStringList m_boxes;
    bool m_answer = false;
    FileManager m_fileManager;
    std::unique_ptr<MainWindow> m_window;
};
