#include <Apps/AutoReframe/Batch/BatchDialog.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

class TestBatchDialog : public testing::Test
{
protected:
    void Show(const BatchSettings& initial)
    {
        m_dialog = std::make_unique<BatchDialog>(
            m_videos, initial, [](const QString&) { return false; }, nullptr);
        m_dialog->show();
    }
    BatchSettings InFolder() const
    {
        BatchSettings settings;
        settings.folder = m_folder.path();
        return settings;
    }
    QAbstractButton* Button(const char* name) const
    {
        return m_dialog->findChild<QAbstractButton*>(QLatin1String(name));
    }
    QString Example() const { return m_dialog->findChild<QLabel*>(QStringLiteral("BatchDialog_message"))->text(); }
    QLineEdit* Field(const char* name) const { return m_dialog->findChild<QLineEdit*>(QLatin1String(name)); }

    QTemporaryDir m_folder;
    QList<BatchVideo> m_videos{{QStringLiteral("/clips/walk.mp4"), QSize(1920, 1080), 250},
                               {QStringLiteral("/clips/street.mp4"), QSize(1920, 1080), 250}};
    std::unique_ptr<BatchDialog> m_dialog;
};

} // namespace

TEST_F(TestBatchDialog, ShowsWhatItWasGivenAndGivesWhatItShows)
{
    BatchSettings initial = InFolder();
    initial.aspects = {QSize(4, 5), QSize(21, 9)};
    initial.speed = 24;
    initial.shortSidePx = 1080;
    initial.pattern = QStringLiteral("{name} {date}");
    Show(initial);
    EXPECT_FALSE(Button("BatchDialog_9x16")->isChecked());
    EXPECT_TRUE(Button("BatchDialog_21x9")->isChecked());
    const BatchSettings shown = m_dialog->Settings();
    EXPECT_EQ(shown.aspects, initial.aspects);
    EXPECT_EQ(shown.speed, 24);
    EXPECT_EQ(shown.shortSidePx, 1080);
    EXPECT_EQ(shown.pattern, initial.pattern);
    EXPECT_EQ(shown.folder, m_folder.path());
}

TEST_F(TestBatchDialog, TheExampleFollowsEveryChange)
{
    Show(InFolder());
    EXPECT_EQ(Example(), QStringLiteral("2 files: walk-9x16.mp4, street-9x16.mp4"));
    Button("BatchDialog_1x1")->click();
    EXPECT_EQ(Example(), QStringLiteral("4 files: walk-9x16.mp4, walk-1x1.mp4, street-9x16.mp4, …"));
    Field("BatchDialog_name")->setText(QStringLiteral("{ratio}"));
    EXPECT_EQ(Example(), QStringLiteral("4 files: 9x16.mp4, 1x1.mp4, 9x16 (2).mp4, …"));
}

TEST_F(TestBatchDialog, OfLongNamesTheExampleShowsWhatFits)
{
    const QString name(QStringLiteral("a trip to the coast in late summer, second day, walk with the dog "));
    for (int i = 0; i < m_videos.size(); ++i) {
        m_videos[i].path = QStringLiteral("/clips/%1 %2.mp4").arg(name, QString::number(i));
    }
    Show(InFolder());
    EXPECT_TRUE(Example().startsWith(QStringLiteral("2 files: a trip"))) << Example().toStdString();
    EXPECT_TRUE(Example().endsWith(QStringLiteral("…"))) << Example().toStdString();
    const auto* const label = m_dialog->findChild<QLabel*>(QStringLiteral("BatchDialog_message"));
    EXPECT_LE(label->heightForWidth(label->width()), label->height());
}

TEST_F(TestBatchDialog, PicturesThatBecomeLargerThanTheirCropsAreMentioned)
{
    Show(InFolder());
    auto* const size = m_dialog->findChild<QComboBox*>(QStringLiteral("BatchDialog_size"));
    ASSERT_NE(size, nullptr);
    size->setCurrentText(QStringLiteral("Shorter side 720 pixels")); // the crop has 607.5
    EXPECT_EQ(Example(), QStringLiteral("2 files, enlarged beyond their crops: walk-9x16.mp4, street-9x16.mp4"));
    Button("BatchDialog_9x16")->click();
    Button("BatchDialog_1x1")->click();
    EXPECT_EQ(Example(), QStringLiteral("2 files: walk-1x1.mp4, street-1x1.mp4"));
    size->setCurrentText(QStringLiteral("2160 pixels high"));
    EXPECT_EQ(Example(), QStringLiteral("2 files, enlarged beyond their crops: walk-1x1.mp4, street-1x1.mp4"));
    EXPECT_EQ(m_dialog->Settings().heightPx, 2160);
    EXPECT_EQ(m_dialog->Settings().shortSidePx, 0);
}

TEST_F(TestBatchDialog, WhatCannotBeStartedIsExplained)
{
    Show(InFolder());
    Button("BatchDialog_9x16")->click();
    EXPECT_EQ(Example(), QStringLiteral("Choose an aspect ratio."));
    EXPECT_FALSE(Button("BatchDialog_accept")->isEnabled());
    Button("BatchDialog_16x9")->click();
    EXPECT_EQ(Example(), QStringLiteral("The selected videos have this aspect ratio already."));
    EXPECT_FALSE(Button("BatchDialog_accept")->isEnabled());
    Button("BatchDialog_1x1")->click();
    EXPECT_TRUE(Button("BatchDialog_accept")->isEnabled());
    Field("BatchDialog_name")->setText(QStringLiteral("{size}"));
    EXPECT_TRUE(Example().startsWith(QLatin1String("There is no {size}.")));
    Field("BatchDialog_name")->setText(QStringLiteral("{name}"));
    Field("KxOpenFileLineEdit_edit")->setText(QStringLiteral("relative"));
    EXPECT_EQ(Example(), QStringLiteral("Choose a folder."));
}

TEST_F(TestBatchDialog, ForbiddenCharactersCannotBeTyped)
{
    Show(InFolder());
    Field("BatchDialog_name")->clear();
    QTest::keyClicks(Field("BatchDialog_name"), QStringLiteral("a/b:{name}?"));
    EXPECT_EQ(Field("BatchDialog_name")->text(), QStringLiteral("ab{name}"));
}

TEST_F(TestBatchDialog, AFolderThatIsNotThereIsMade)
{
    BatchSettings settings = InFolder();
    settings.folder = m_folder.filePath(QStringLiteral("new/folder"));
    Show(settings);
    Button("BatchDialog_accept")->click();
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_TRUE(QDir(settings.folder).exists());
}

TEST_F(TestBatchDialog, AFolderThatCannotBeMadeIsReported)
{
    QFile file(m_folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    BatchSettings settings = InFolder();
    settings.folder = m_folder.filePath(QStringLiteral("file/below"));
    Show(settings);
    Button("BatchDialog_accept")->click();
    EXPECT_TRUE(m_dialog->isVisible());
    EXPECT_TRUE(Example().startsWith(QLatin1String("Cannot write to the folder ")));
}

TEST_F(TestBatchDialog, EveryControlHasANameAndIsReachedByTab)
{
    Show(InFolder());
    m_dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog.get()));
    QSet<QWidget*> reached;
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
        reached += m_dialog->focusWidget();
    }
    for (QWidget* const control : m_dialog->findChildren<QWidget*>()) {
        const bool isControl =
            qobject_cast<QAbstractButton*>(control) != nullptr || qobject_cast<QComboBox*>(control) != nullptr;
        if (isControl && control->objectName().startsWith(QLatin1String("BatchDialog_"))) {
            EXPECT_TRUE(reached.contains(control)) << control->objectName().toStdString();
        }
    }
    EXPECT_TRUE(reached.contains(Field("BatchDialog_name")));
    EXPECT_TRUE(reached.contains(Field("KxOpenFileLineEdit_edit")));
}
