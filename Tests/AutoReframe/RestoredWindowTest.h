#pragma once

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Library/MediaLibraryModel.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>
#include <Apps/AutoReframe/MainWindow.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>
#include <Tests/AutoReframe/Backend/FakeMediaBackend.h>

#include <KxWidgets/Windows/KxFileResponder.h>
#include <KxWidgets/Windows/KxMessageResponder.h>

#include <QAbstractButton>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

/// One run of the program after the other over the same data.
class RestoredWindowTest : public testing::Test
{
protected:
    using State = MediaLibraryModel::State;

    struct Run {
        explicit Run(const QString& file)
            : store(file, nullptr)
        {
            window.show();
            store.Open();
            EXPECT_TRUE(QTest::qWaitFor([this] { return store.IsOpen(); }, 30000));
        }
        MediaLibraryView& View() const { return *window.findChild<MediaLibraryView*>(); }
        const MediaLibraryModel& Model() const { return static_cast<const MediaLibraryModel&>(*View().model()); }
        QAbstractButton* Button(const char* name) const
        {
            return window.findChild<QAbstractButton*>(QLatin1String(name));
        }
        QStringList Cards() const
        {
            QStringList names;
            for (int row = 0; row < Model().Count(); ++row) {
                names += Model().index(row).data().toString();
            }
            return names;
        }
        QStringList Selected() const
        {
            QStringList names;
            for (const QModelIndex& video : View().SelectedVideos()) {
                names += video.data().toString();
            }
            return names;
        }
        bool WaitForState(int row, State state) const
        {
            return QTest::qWaitFor([&] { return Model().StateAt(Model().index(row)) == state; }, 30000);
        }
        void LoadBackend() { loader.Get(); }

        std::shared_ptr<FakeMediaBackend> backend = std::make_shared<FakeMediaBackend>();
        MediaBackendLoader loader{[this] { return KxResult<std::shared_ptr<MediaBackend>>(backend); }, nullptr};
        LibraryStore store;
        MainWindow window{loader, store};
    };

    void SetUp() override
    {
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("config.ini")).toLocal8Bit());
        KrMessageDialog::SetResponder([this](const KrMessageDialog::Shown& shown) {
            m_boxes += shown.text;
            return m_answer;
        });
    }
    void TearDown() override
    {
        KrMessageDialog::SetResponder({});
        KxFileDialog::SetResponder({});
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("none.ini")).toLocal8Bit());
    }

    QString Data() const { return m_folder.filePath(QStringLiteral("data/library.db")); }
    QString Clip(const QString& name, const QByteArray& content = "a video") const
    {
        QDir(m_folder.path()).mkpath(QFileInfo(name).path());
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    /// A run that imports the files and is closed.
    void ImportAndQuit(const QStringList& paths)
    {
        Run run(Data());
        run.window.Open(paths);
        for (int row = 0; row < paths.size(); ++row) {
            ASSERT_TRUE(run.WaitForState(row, State::Open));
        }
        EXPECT_TRUE(run.window.close());
    }
    QTemporaryDir m_folder;
    QStringList m_boxes;
    bool m_answer = true;
};
