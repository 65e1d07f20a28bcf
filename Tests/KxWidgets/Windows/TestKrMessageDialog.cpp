#include <Tests/KxWidgets/Hand.h>

#include <KxWidgets/Windows/KxMessageResponder.h>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

class KrMessageDialogTest : public testing::Test
{
protected:
    KrMessageDialogTest()
    {
        qputenv("KX_CONFIG_FILE", folder.filePath(QStringLiteral("config.ini")).toUtf8());
        parent.resize(600, 400);
        parent.show();
    }
    ~KrMessageDialogTest() override { KrMessageDialog::SetResponder({}); }

    // Calls `act` with the box that the next call shows.
    template<typename Act>
    void WithTheBox(Act act)
    {
        QTimer::singleShot(0, &parent, [this, act] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (box != nullptr) {
                ++boxes;
                act(*box);
            }
        });
    }

    static QPushButton& Button(QDialog& box, const char* name)
    {
        return *box.findChild<QPushButton*>(QLatin1String(name));
    }

    bool Ask(KrStandardButton defaultButton)
    {
        return KrMessageDialog::Question_CustomYesNo(
            QStringLiteral("Are you sure you want to exit?"), QStringLiteral("No"), QStringLiteral("Exit"), &parent,
            defaultButton, QString(), QStringLiteral("Auto Reframe"), KrMessageType::Question);
    }

    void Inform(bool withCheckBox)
    {
        KrMessageDialog::Infomation(QStringLiteral("This video is too short."), &parent, KrStandardButton::Ok,
                                    QString(), QStringLiteral("Title"), QString(), withCheckBox);
    }

    QTemporaryDir folder;
    QWidget parent;
    int boxes = 0;
};

TEST_F(KrMessageDialogTest, ResponderSeesTheQuestionAndAnswersIt)
{
    KrMessageDialog::Shown seen;
    bool answer = true;
    KrMessageDialog::SetResponder([&](const KrMessageDialog::Shown& shown) {
        seen = shown;
        return answer;
    });
    EXPECT_TRUE(Ask(KrStandardButton::No));
    answer = false;
    EXPECT_FALSE(Ask(KrStandardButton::No));
    EXPECT_EQ(seen.type, KrMessageType::Question);
    EXPECT_EQ(seen.text, QStringLiteral("Are you sure you want to exit?"));
    EXPECT_EQ(seen.refuseText, QStringLiteral("No"));
    EXPECT_EQ(seen.confirmText, QStringLiteral("Exit"));
    EXPECT_EQ(seen.defaultButton, KrStandardButton::No);
    EXPECT_EQ(seen.title, QStringLiteral("Auto Reframe"));
    EXPECT_EQ(seen.parent, &parent);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(KrMessageDialogTest, ResponderSeesTheInformation)
{
    int calls = 0;
    KrMessageDialog::SetResponder([&](const KrMessageDialog::Shown& shown) {
        ++calls;
        EXPECT_EQ(shown.type, KrMessageType::Information);
        EXPECT_EQ(shown.text, QStringLiteral("This video is too short."));
        EXPECT_EQ(shown.title, QStringLiteral("Title"));
        return true;
    });
    Inform(false);
    EXPECT_EQ(calls, 1);
}

TEST_F(KrMessageDialogTest, EmptyTitleBecomesTheProductsName)
{
    QApplication::setApplicationName(QStringLiteral("Product"));
    QString title;
    KrMessageDialog::SetResponder([&](const KrMessageDialog::Shown& shown) {
        title = shown.title;
        return true;
    });
    KrMessageDialog::Infomation(QStringLiteral("Text"), nullptr, KrStandardButton::Ok, {}, {}, {}, false);
    EXPECT_EQ(title, QStringLiteral("Product"));
}

TEST_F(KrMessageDialogTest, ConfirmingButtonIsTrue)
{
    WithTheBox([](QDialog& box) { Button(box, "KxMessageBox_confirm").click(); });
    EXPECT_TRUE(Ask(KrStandardButton::No));
    EXPECT_EQ(boxes, 1);
}

TEST_F(KrMessageDialogTest, RefusingButtonCloseAndEscapeAreFalse)
{
    WithTheBox([](QDialog& box) { Button(box, "KxMessageBox_refuse").click(); });
    EXPECT_FALSE(Ask(KrStandardButton::Yes));
    WithTheBox([](QDialog& box) { box.close(); });
    EXPECT_FALSE(Ask(KrStandardButton::Yes));
    WithTheBox([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_FALSE(Ask(KrStandardButton::Yes));
    EXPECT_EQ(boxes, 3);
}

TEST_F(KrMessageDialogTest, ReturnPressesTheDefaultButton)
{
    WithTheBox([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_FALSE(Ask(KrStandardButton::No));
    WithTheBox([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_TRUE(Ask(KrStandardButton::Yes));
    EXPECT_EQ(boxes, 2);
}

TEST_F(KrMessageDialogTest, BoxIsModalOverItsParentWithItsTextsOnIt)
{
    WithTheBox([this](QDialog& box) {
        EXPECT_TRUE(box.isModal());
        EXPECT_EQ(box.parentWidget(), &parent);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Auto Reframe"));
        EXPECT_EQ(Button(box, "KxMessageBox_refuse").text(), QStringLiteral("No"));
        EXPECT_EQ(Button(box, "KxMessageBox_confirm").text(), QStringLiteral("Exit"));
        EXPECT_NEAR(box.frameGeometry().center().x(), parent.frameGeometry().center().x(), 1);
        box.reject();
    });
    Ask(KrStandardButton::No);
    EXPECT_EQ(boxes, 1);
}

TEST_F(KrMessageDialogTest, LongTextWrapsAndIsShownWhole)
{
    const QString text =
        QStringLiteral("Cannot open /home/me/") +
        QString(300, QLatin1Char('x')).replace(QStringLiteral("xxxxxxxxxx"), QStringLiteral("xxxxxxxxx/"));
    WithTheBox([](QDialog& box) {
        auto* label = box.findChild<QLabel*>(QStringLiteral("KxMessageBox_text"));
        EXPECT_LE(label->width(), 420);
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
        EXPECT_GT(label->height(), 3 * label->fontMetrics().height());
        EXPECT_LE(box.width(), 560);
        box.accept();
    });
    KrMessageDialog::Infomation(text, &parent, KrStandardButton::Ok, {}, {}, {}, false);
    EXPECT_EQ(boxes, 1);
}

TEST_F(KrMessageDialogTest, BoxIsNotShownAgainIfThePersonAskedForThat)
{
    WithTheBox([](QDialog& box) { box.accept(); });
    Inform(true);
    EXPECT_EQ(boxes, 1);
    WithTheBox([](QDialog& box) {
        box.findChild<QCheckBox*>(QStringLiteral("KxMessageBox_again"))->setChecked(true);
        box.accept();
    });
    Inform(true);
    EXPECT_EQ(boxes, 2);
    Inform(true);
    WithTheBox([](QDialog& box) { box.accept(); });
    Inform(false);
    EXPECT_EQ(boxes, 3);
}

} // namespace
