#include <KxWidgets/Windows/KxFileFilter.h>
#include <KxWidgets/Windows/KxNearestFolder.h>
#include <Tests/KxWidgets/Hand.h>

#include <KxWidgets/KxOpenFileLineEdit.h>
#include <KxWidgets/Windows/KxFileResponder.h>
#include <KxWidgets/Windows/KxMessageResponder.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

namespace
{

class KxFileDialogTest : public testing::Test
{
protected:
    ~KxFileDialogTest() override
    {
        KxFileDialog::SetResponder({});
        KxFileDialog::SetFileCheck({});
        KrMessageDialog::SetResponder({});
    }
};

TEST(KxFileFilterTest, GroupIsConvertedToQtsForm)
{
    EXPECT_EQ(KxFileFilter::ToQt(QStringLiteral("All supported files(*.mp4;*.mov;);")),
              QStringLiteral("All supported files (*.mp4 *.mov)"));
    EXPECT_EQ(KxFileFilter::ToQt(QStringLiteral("Videos (*.mp4 *.mov)")), QStringLiteral("Videos (*.mp4 *.mov)"));
    EXPECT_EQ(KxFileFilter::ToQt(QStringLiteral("Anything")), QStringLiteral("Anything (*)"));
    EXPECT_EQ(KxFileFilter::ToQt(QStringLiteral("Nothing(;)")), QStringLiteral("Nothing (*)"));
}

TEST_F(KxFileDialogTest, ResponderChoosesFiles)
{
    KxFileDialog::Shown seen;
    KxFileDialog::SetResponder([&](const KxFileDialog::Shown& shown) {
        seen = shown;
        return QStringList{QStringLiteral("/v/a.mp4"), QStringLiteral("/v/b.mp4")};
    });
    const QStringList chosen = KxFileDialog::getOpenFileNames(nullptr, QStringLiteral("Open"), QStringLiteral("/v"),
                                                              QStringLiteral("All(*.mp4;)"));
    EXPECT_EQ(chosen.size(), 2);
    EXPECT_FALSE(seen.picksFolder);
    EXPECT_EQ(seen.caption, QStringLiteral("Open"));
    EXPECT_EQ(seen.folder, QStringLiteral("/v"));
    EXPECT_EQ(seen.filter, QStringLiteral("All(*.mp4;)"));
}

TEST_F(KxFileDialogTest, FolderFieldTakesThePickedFolder)
{
    const auto edit = std::unique_ptr<KxOpenFileLineEdit>(KxOpenFileLineEdit::CreateOpenFileLineEdit(nullptr));
    edit->SetText(QStringLiteral("/before"));
    QSignalSpy changed(edit.get(), &KxOpenFileLineEdit::sigTextChanged);
    QStringList answer;
    KxFileDialog::Shown seen;
    KxFileDialog::SetResponder([&](const KxFileDialog::Shown& shown) {
        seen = shown;
        return answer;
    });
    auto* button = edit->findChild<QAbstractButton*>(QStringLiteral("KxOpenFileLineEdit_button"));
    button->click();
    EXPECT_TRUE(seen.picksFolder);
    EXPECT_EQ(seen.folder, QStringLiteral("/before"));
    EXPECT_EQ(edit->Text(), QStringLiteral("/before"));
    EXPECT_EQ(changed.count(), 0);
    answer = QStringList{QStringLiteral("/after")};
    button->click();
    EXPECT_EQ(edit->Text(), QDir::toNativeSeparators(QStringLiteral("/after")));
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(KxFileDialogTest, FolderFieldReportsTyping)
{
    const auto edit = std::unique_ptr<KxOpenFileLineEdit>(KxOpenFileLineEdit::CreateOpenFileLineEdit(nullptr));
    QSignalSpy changed(edit.get(), &KxOpenFileLineEdit::sigTextChanged);
    QTest::keyClicks(edit->focusProxy(), QStringLiteral("/ab"));
    EXPECT_EQ(edit->Text(), QStringLiteral("/ab"));
    EXPECT_EQ(changed.count(), 3);
}

TEST_F(KxFileDialogTest, ShownChooserGivesTheFileOrNothing)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("clip.mp4")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    QWidget parent;
    parent.show();
    int shown = 0;
    const auto choose = [&](bool accept) {
        QTimer::singleShot(0, &parent, [&, accept] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            auto* chooser = box->findChild<QFileDialog*>();
            ASSERT_NE(chooser, nullptr);
            ++shown;
            EXPECT_EQ(chooser->nameFilters().value(0), QStringLiteral("All (*.mp4)"));
            chooser->selectFile(file.fileName());
            accept ? QMetaObject::invokeMethod(chooser, "accept") : QMetaObject::invokeMethod(chooser, "reject");
        });
        return KxFileDialog::getOpenFileNames(&parent, QStringLiteral("Open"), folder.path(),
                                              QStringLiteral("All(*.mp4;)"));
    };
    EXPECT_EQ(choose(true), QStringList{file.fileName()});
    EXPECT_TRUE(choose(false).isEmpty());
    EXPECT_EQ(shown, 2);
}

TEST_F(KxFileDialogTest, AFileThatTheHostRefusesIsReportedAndTheChooserStaysOpen)
{
    QTemporaryDir folder;
    for (const QString& name : {QStringLiteral("sound.mp4"), QStringLiteral("video.mp4")}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    const QString reason = QStringLiteral("Cannot open sound.mp4: it has no moving picture.");
    KxFileDialog::SetFileCheck([&](const QString& path) -> std::optional<QString> {
        return path.endsWith(QStringLiteral("sound.mp4")) ? std::optional<QString>(reason) : std::nullopt;
    });
    QStringList reported;
    KrMessageDialog::SetResponder([&](const KrMessageDialog::Shown& shown) {
        reported += shown.text;
        EXPECT_NE(shown.parent, nullptr);
        return true;
    });
    bool stayedOpen = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        auto* chooser = box->findChild<QFileDialog*>();
        const auto accept = [&](const QString& name) {
            chooser->selectFile(folder.filePath(name));
            QMetaObject::invokeMethod(chooser, "accept");
        };
        accept(QStringLiteral("sound.mp4"));
        stayedOpen = box->isVisible() && chooser->isVisible();
        if (stayedOpen) {
            accept(QStringLiteral("video.mp4"));
        }
        if (box->isVisible()) {
            box->reject();
        }
    });
    const QStringList chosen =
        KxFileDialog::getOpenFileNames(nullptr, QStringLiteral("Open"), folder.path(), QStringLiteral("All(*.mp4;)"));
    EXPECT_TRUE(stayedOpen);
    EXPECT_EQ(reported, QStringList{reason});
    EXPECT_EQ(chosen, QStringList{folder.filePath(QStringLiteral("video.mp4"))});
}

TEST_F(KxFileDialogTest, ARefusedFileCanBeCancelledAndAnUncheckedChoiceIsNotRefused)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("sound.mp4")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    KxFileDialog::SetFileCheck([](const QString&) { return std::optional<QString>(QStringLiteral("No.")); });
    int reported = 0;
    KrMessageDialog::SetResponder([&](const KrMessageDialog::Shown&) { return ++reported > 0; });
    const auto acceptThenReject = [&] {
        QTimer::singleShot(0, qApp, [&] {
            auto* chooser = QApplication::activeModalWidget()->findChild<QFileDialog*>();
            chooser->selectFile(file.fileName());
            QMetaObject::invokeMethod(chooser, "accept");
            if (chooser->isVisible()) {
                QMetaObject::invokeMethod(chooser, "reject");
            }
        });
    };
    const QString filter = QStringLiteral("All(*.mp4;)");
    acceptThenReject();
    EXPECT_EQ(KxFileDialog::getOpenFileNames(nullptr, QStringLiteral("Open"), folder.path(), filter), QStringList());
    EXPECT_EQ(reported, 1);
    acceptThenReject();
    EXPECT_EQ(KxFileDialog::GetOpenFileNamesUnchecked(nullptr, QStringLiteral("Import"), folder.path(), filter),
              QStringList{file.fileName()});
    EXPECT_EQ(reported, 1);
}

TEST(KxNearestFolderTest, ADriveThatIsGoneGivesTheHomeFolder)
{
    const auto isNoFolder = [](const QString&) { return false; };
    EXPECT_EQ(KxNearestFolder::To(QStringLiteral("/gone/videos"), isNoFolder), QDir::homePath());
    EXPECT_EQ(KxNearestFolder::To(QStringLiteral("/"), isNoFolder), QDir::homePath());
}

TEST_F(KxFileDialogTest, ShownFolderChooserGivesTheFolder)
{
    QTemporaryDir folder;
    QWidget parent;
    parent.show();
    QTimer::singleShot(0, &parent, [&] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        QMetaObject::invokeMethod(box->findChild<QFileDialog*>(), "accept");
    });
    EXPECT_EQ(KxFileDialog::getExistingDirectory(&parent, QStringLiteral("Choose"), folder.path()), folder.path());
}

TEST_F(KxFileDialogTest, SizesAndDatesAreNotCut)
{
    QTemporaryDir folder;
    QList<QHeaderView::ResizeMode> modes;
    QTimer::singleShot(0, qApp, [&] {
        auto* chooser = QApplication::activeModalWidget()->findChild<QFileDialog*>();
        const QHeaderView* const header = chooser->findChild<QTreeView*>(QStringLiteral("treeView"))->header();
        for (int column = 0; column < header->count(); ++column) {
            modes += header->sectionResizeMode(column);
        }
        QMetaObject::invokeMethod(chooser, "reject");
    });
    KxFileDialog::getExistingDirectory(nullptr, QStringLiteral("Choose"), folder.path());
    EXPECT_EQ(modes, (QList<QHeaderView::ResizeMode>{QHeaderView::Stretch, QHeaderView::ResizeToContents,
                                                     QHeaderView::ResizeToContents, QHeaderView::ResizeToContents}));
}

TEST_F(KxFileDialogTest, TheTypeOfTheFilesIsNotCut)
{
    const QString patterns =
        QStringLiteral("*.mp4 *.mov *.mkv *.webm *.avi *.mpg *.mpeg *.m4v *.ts *.mts *.m2ts *.flv *.3gp");
    QString text;
    QString toolTip;
    QStringList names;
    QTimer::singleShot(0, qApp, [&] {
        auto* const chooser = QApplication::activeModalWidget()->findChild<QFileDialog*>();
        ASSERT_NE(chooser, nullptr);
        const auto* const types = chooser->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        text = types->currentText();
        toolTip = types->toolTip();
        names = chooser->findChild<QFileSystemModel*>()->nameFilters();
        chooser->reject();
    });
    KxFileDialog::getOpenFileNames(
        nullptr, QStringLiteral("Open"), QString(),
        QStringLiteral("All supported files(%1;)").arg(QString(patterns).replace(QLatin1Char(' '), QLatin1Char(';'))));
    EXPECT_EQ(text, QStringLiteral("All supported files"));
    EXPECT_EQ(toolTip, QStringLiteral("All supported files (%1)").arg(patterns));
    EXPECT_EQ(names, patterns.split(QLatin1Char(' ')));
}

TEST_F(KxFileDialogTest, SuggestedNamesHaveIconsOfTheSizeOfTheList)
{
    QTimer::singleShot(0, qApp, [] {
        auto* const chooser = QApplication::activeModalWidget()->findChild<QFileDialog*>();
        ASSERT_NE(chooser, nullptr);
        const QCompleter* const completer = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->completer();
        EXPECT_EQ(completer->popup()->iconSize(),
                  chooser->findChild<QTreeView*>(QStringLiteral("treeView"))->iconSize());
        chooser->reject();
    });
    KxFileDialog::getOpenFileNames(nullptr, QStringLiteral("Open"), QString(), QStringLiteral("All(*.mp4;)"));
}

TEST_F(KxFileDialogTest, AMissingFolderGivesTheNearestOneAbove)
{
    QTemporaryDir folder;
    const auto openedIn = [](const QString& asked) {
        QString opened;
        QString named;
        QTimer::singleShot(0, qApp, [&] {
            auto* chooser = QApplication::activeModalWidget()->findChild<QFileDialog*>();
            opened = chooser->directory().path();
            named = chooser->findChild<QLineEdit*>()->text();
            QMetaObject::invokeMethod(chooser, "reject");
        });
        KxFileDialog::getOpenFileNames(nullptr, QStringLiteral("Open"), asked, QStringLiteral("All(*.mp4;)"));
        EXPECT_EQ(named, QString());
        return opened;
    };
    EXPECT_EQ(openedIn(folder.path()), folder.path());
    EXPECT_EQ(openedIn(folder.filePath(QStringLiteral("Videos"))), folder.path());
    EXPECT_EQ(openedIn(folder.filePath(QStringLiteral("Videos/2024"))), folder.path());
    EXPECT_EQ(openedIn(QStringLiteral("/")), QDir(QStringLiteral("/")).canonicalPath());
    EXPECT_EQ(openedIn(QString()), QDir::homePath());
}

} // namespace
