#include <Tests/KxWidgets/Hand.h>
#include <Tests/KxWidgets/ShownToolTip.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxOpenFileLineEdit.h>
#include <KxWidgets/StringOperation.h>

#include <QClipboard>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QValidator>

#include <gtest/gtest.h>

#include <memory>

namespace
{

std::unique_ptr<KxLineEdit> MakeLineEdit()
{
    return std::unique_ptr<KxLineEdit>(KxLineEdit::creartNormalLineEdit(nullptr, 24));
}

TEST(KxLineEditTest, HasTheGivenHeight)
{
    EXPECT_EQ(MakeLineEdit()->height(), 24);
}

TEST(KxLineEditTest, WithoutTheValidatorEveryCharacterIsAccepted)
{
    const auto edit = MakeLineEdit();
    QTest::keyClicks(edit.get(), QStringLiteral("a:b*c?"));
    EXPECT_EQ(edit->text(), QStringLiteral("a:b*c?"));
}

TEST(KxLineEditTest, ValidatorDropsForbiddenCharacters)
{
    const auto edit = MakeLineEdit();
    edit->SetFileNameValidator(true);
    QTest::keyClicks(edit.get(), QStringLiteral("a*b|c<d>e\\f?g/h:i\"j.k"));
    EXPECT_EQ(edit->text(), QStringLiteral("abcdefghij.k"));
    edit->setText(QStringLiteral("x:y"));
    EXPECT_EQ(edit->text(), QStringLiteral("xy"));
}

TEST(KxLineEditTest, PasteKeepsAllowedCharactersAndTheCursor)
{
    const auto edit = MakeLineEdit();
    edit->SetFileNameValidator(true);
    edit->setText(QStringLiteral("AD"));
    edit->setCursorPosition(1);
    edit->insert(QStringLiteral("b?/c"));
    EXPECT_EQ(edit->text(), QStringLiteral("AbcD"));
    EXPECT_EQ(edit->cursorPosition(), 3);
}

TEST(KxLineEditTest, CursorMovesBackOnlyForCharactersDroppedBeforeIt)
{
    const auto edit = MakeLineEdit();
    edit->SetFileNameValidator(true);
    // The cursor positions in "a:b" before and after the removal.
    for (const auto& [before, after] : {std::pair(0, 0), std::pair(1, 1), std::pair(2, 1), std::pair(3, 2)}) {
        QString text = QStringLiteral("a:b");
        int cursor = before;
        EXPECT_EQ(edit->validator()->validate(text, cursor), QValidator::Acceptable);
        EXPECT_EQ(text, QStringLiteral("ab"));
        EXPECT_EQ(cursor, after) << "from " << before;
    }
}

TEST(KxLineEditTest, LengthLimitCutsThroughNoVisibleCharacter)
{
    const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");
    const QString family =
        QString::fromUtf8("\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7");
    const QString accented = QString::fromUtf8("e\xCC\x81");
    const auto edit = MakeLineEdit();
    edit->SetFileNameValidator(true);
    edit->setMaxLength(42);
    for (const QString& character : {emoji, family, accented}) {
        const QString before(43 - character.size(), QLatin1Char('a'));
        edit->setText(before + character + QStringLiteral(" and more"));
        EXPECT_EQ(edit->text(), before);
        edit->setText(before.mid(1) + character + QStringLiteral(" and more"));
        EXPECT_EQ(edit->text(), before.mid(1) + character);
    }
}

TEST(KxLineEditTest, HalfACharacterThatIsPastedAtTheLimitIsDropped)
{
    const auto edit = MakeLineEdit();
    edit->SetFileNameValidator(true);
    edit->setMaxLength(3);
    edit->setText(QStringLiteral("ab"));
    edit->insert(QString::fromUtf8("\xF0\x9F\x98\x80"));
    EXPECT_EQ(edit->text(), QStringLiteral("ab"));
    edit->setMaxLength(4);
    edit->insert(QString::fromUtf8("\xF0\x9F\x98\x80"));
    EXPECT_EQ(edit->text(), QString::fromUtf8("ab\xF0\x9F\x98\x80"));
}

TEST(KxLineEditTest, ValidatorCanBeTakenOffAgain)
{
    const auto edit = MakeLineEdit();
    edit->SetFileNameValidator(true);
    edit->SetFileNameValidator(false);
    QTest::keyClicks(edit.get(), QStringLiteral("a:b"));
    EXPECT_EQ(edit->text(), QStringLiteral("a:b"));
}

TEST(KxComboBoxTest, WheelChangesItOnlyWithTheFocus)
{
    QWidget window;
    KxComboBox* box = KxComboBox::CreateComboBox(&window);
    box->addItems({QStringLiteral("9:16"), QStringLiteral("1:1"), QStringLiteral("16:9")});
    ASSERT_TRUE(Hand::ShowActive(window));
    box->clearFocus();
    Hand::Wheel(*box, -120);
    EXPECT_EQ(box->currentIndex(), 0);
    box->setFocus();
    Hand::Wheel(*box, -120);
    EXPECT_EQ(box->currentIndex(), 1);
}

TEST(StringOperationTest, TextThatFitsIsNotChanged)
{
    const QString text = QStringLiteral("clip");
    EXPECT_EQ(StringOperation::GetElidedString(text, QApplication::font(), 268, Qt::ElideRight), text);
}

TEST(StringOperationTest, LongTextIsShortenedToTheWidth)
{
    const QString text = QStringLiteral("a-recording-of-the-whole-afternoon-at-the-lake-with-everyone-there");
    const QFontMetrics metrics(QApplication::font());
    ASSERT_GT(metrics.horizontalAdvance(text), 268);
    const QString right = StringOperation::GetElidedString(text, QApplication::font(), 268, Qt::ElideRight);
    EXPECT_TRUE(right.endsWith(QChar(0x2026)));
    EXPECT_TRUE(text.startsWith(right.chopped(1)));
    EXPECT_LE(metrics.horizontalAdvance(right), 268);
    const QString middle = StringOperation::GetElidedString(text, QApplication::font(), 268, Qt::ElideMiddle);
    EXPECT_TRUE(middle.startsWith(text.left(5)) && middle.endsWith(text.right(5)));
}

TEST(KxComboBoxTest, LooksLeftByTheMouseWhenItsListClosesElsewhere)
{
    QWidget window;
    window.resize(400, 300);
    KxComboBox* box = KxComboBox::CreateComboBox(&window);
    box->setGeometry(10, 10, 100, 30);
    box->addItems({QStringLiteral("9:16"), QStringLiteral("1:1")});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const bool ends : {true, false}) {
        QCursor::setPos(box->mapToGlobal(box->rect().center()));
        ASSERT_TRUE(QTest::qWaitFor([box] { return box->underMouse(); }));
        box->showPopup();
        if (ends) {
            QCursor::setPos(window.mapToGlobal(QPoint(300, 250)));
        }
        box->hidePopup();
        EXPECT_EQ(box->underMouse(), !ends);
    }
}

TEST(KxOpenFileLineEditTest, ItsTextIsInsetAsInOtherFieldsOfItsHeight)
{
    const std::unique_ptr<KxOpenFileLineEdit> folder(KxOpenFileLineEdit::CreateOpenFileLineEdit(nullptr));
    folder->setStyleSheet(
        QStringLiteral("QLineEdit { padding: 0px 10px; } QLineEdit[compact=\"true\"] { padding: 0px 6px; }"));
    folder->SetText(QStringLiteral("/"));
    folder->show();
    const auto* const edit = folder->findChild<KxLineEdit*>();
    for (const int heightPx : {24, 32, 24}) {
        folder->setFixedSize(300, heightPx);
        const auto other = std::unique_ptr<KxLineEdit>(KxLineEdit::creartNormalLineEdit(nullptr, heightPx));
        other->setStyleSheet(folder->styleSheet());
        other->setText(folder->Text());
        other->show();
        EXPECT_EQ(edit->inputMethodQuery(Qt::ImCursorRectangle).toRect().x(),
                  other->inputMethodQuery(Qt::ImCursorRectangle).toRect().x())
            << heightPx;
    }
}

TEST(KxLabelTest, OnlyAnElidedLabelMayBeNarrowerThanItsText)
{
    const auto label = std::unique_ptr<KxLabel>(
        KxLabel::CreateLabel(nullptr, QStringLiteral("a-recording-of-the-whole-afternoon.mp4")));
    EXPECT_EQ(label->text(), QStringLiteral("a-recording-of-the-whole-afternoon.mp4"));
    EXPECT_GT(label->minimumSizeHint().width(), 100);
    label->SetElideMode(Qt::ElideMiddle);
    EXPECT_EQ(label->minimumSizeHint().width(), 0);
}

TEST(KxLabelTest, ElidedLabelPaintsTheShortenedText)
{
    const QString text = QStringLiteral("a-recording-of-the-whole-afternoon.mp4");
    const auto elided = std::unique_ptr<KxLabel>(KxLabel::CreateLabel(nullptr, text));
    elided->SetElideMode(Qt::ElideRight);
    elided->resize(120, 20);
    const auto plain = std::unique_ptr<KxLabel>(
        KxLabel::CreateLabel(nullptr, StringOperation::GetElidedString(text, elided->font(), 120, Qt::ElideRight)));
    plain->resize(120, 20);
    EXPECT_EQ(elided->grab().toImage(), plain->grab().toImage());
}

TEST(KxLabelTest, MarkupInATextIsShownAsItIs)
{
    const QString name = QStringLiteral("<b>holiday</b><br>.mp4");
    const auto label = std::unique_ptr<KxLabel>(KxLabel::CreateLabel(nullptr, name));
    EXPECT_GE(label->sizeHint().width(), label->fontMetrics().horizontalAdvance(name));
    label->SetElideMode(Qt::ElideRight);
    label->resize(20, 20);
    label->show();
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), label->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(label.get(), &event);
    EXPECT_EQ(ShownToolTip(), name);
    QToolTip::hideText();
}

} // namespace
