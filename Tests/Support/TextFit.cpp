#include <Tests/Support/TextFit.h>

#include <KxCore/KxLanguage.h>

#include <KxWidgets/KxUIStyle.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QToolButton>

#include <algorithm>

namespace
{

/// By so much a layout gives too little where a label wraps its lines; no letter reaches that far.
constexpr int RoundingPx = 2;

struct Need {
    QString text;
    int neededPx = 0;
    int givenPx = 0;
};

int WidthOf(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

/// Chinese and Japanese break nearly everywhere, other languages between words.
int LongestWordPx(const QWidget& widget, const QString& text)
{
    static const QRegularExpression breaks(QStringLiteral("[\\s\\p{Han}\\p{Hiragana}\\p{Katakana}/-]+"));
    int longest = 0;
    for (const QString& word : text.split(breaks)) {
        longest = std::max(longest, WidthOf(widget, word));
    }
    return longest;
}

QList<Need> NeedsOf(const QLabel& label)
{
    const int givenPx = label.contentsRect().width() - 2 * label.margin();
    if (!label.wordWrap()) {
        return {{label.text(), WidthOf(label, label.text()), givenPx}};
    }
    return {
        {label.text(), LongestWordPx(label, label.text()), givenPx},
        {label.text() + QStringLiteral(" (height)"), label.heightForWidth(label.width()), label.height() + RoundingPx}};
}

QList<Need> NeedsOf(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const int givenPx =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box).width();
    QList<Need> needs;
    for (int i = 0; i < box.count(); ++i) {
        needs.append({box.itemText(i), WidthOf(box, box.itemText(i)), givenPx});
    }
    return needs;
}

QList<Need> NeedsOf(const QAbstractButton& button)
{
    const auto* const tool = qobject_cast<const QToolButton*>(&button);
    if (button.text().isEmpty() || (tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)) {
        return {};
    }
    if (const auto* const push = qobject_cast<const QPushButton*>(&button)) {
        // What KxPushButton leaves at each side.
        constexpr int marginPx = 8;
        const int iconPx = push->icon().isNull() ? 0 : push->iconSize().width() + marginPx;
        return {{push->text(), WidthOf(*push, push->text()) + 2 * marginPx + iconPx, push->width()}};
    }
    return {{button.text(), button.sizeHint().width(), button.width()}};
}

QList<Need> NeedsOf(const QWidget& widget)
{
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        return NeedsOf(*label);
    }
    if (const auto* const box = qobject_cast<const QComboBox*>(&widget)) {
        return NeedsOf(*box);
    }
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
        return NeedsOf(*button);
    }
    return {};
}

} // namespace

QStringList TextFit::Misfits(const QWidget& window, const QStringList& named)
{
    QStringList misfits;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        if (!widget->isVisibleTo(&window) || named.contains(widget->objectName()) ||
            widget->window() != window.window()) {
            continue;
        }
        const QList<Need> needs = NeedsOf(*widget);
        for (const Need& need : needs) {
            if (need.neededPx > need.givenPx) {
                misfits += QStringLiteral("%1 %2 \"%3\": needs %4, has %5")
                               .arg(KxLanguage::Current(), widget->objectName(), need.text,
                                    QString::number(need.neededPx), QString::number(need.givenPx));
            }
        }
        const QWidget* const parent = widget->parentWidget();
        if (!needs.isEmpty() && !needs.first().text.isEmpty() &&
            !parent->rect().adjusted(-RoundingPx, -RoundingPx, RoundingPx, RoundingPx).contains(widget->geometry())) {
            misfits += QStringLiteral("%1 %2 \"%3\": ends at %4,%5, beyond %6")
                           .arg(KxLanguage::Current(), widget->objectName(), needs.first().text,
                                QString::number(widget->geometry().right()),
                                QString::number(widget->geometry().bottom()), parent->objectName());
        }
    }
    return misfits;
}

void TextFit::Show(const QString& language)
{
    static const bool isApplied = [] {
        KxUIStyle::Apply(*qApp);
        return true;
    }();
    Q_UNUSED(isApplied)
    KxUIStyle::InstallTranslation(*qApp, language);
}

void TextFit::Keep(QWidget& window, const QString& name)
{
    const QString folder = qEnvironmentVariable("KR_TEXT_PICTURES");
    if (!folder.isEmpty()) {
        window.grab().save(QDir(folder).filePath(QStringLiteral("%1-%2.png").arg(KxLanguage::Current(), name)));
    }
}
