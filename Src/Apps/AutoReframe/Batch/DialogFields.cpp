#include <Apps/AutoReframe/Batch/DialogFields.h>

#include <KxWidgets/KxLabel.h>

#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

KxLabel* DialogFields::MakeCaption(QWidget* parent)
{
    KxLabel* const caption = KxLabel::CreateLabel(parent, QString());
    caption->setProperty("textRole", QStringLiteral("muted"));
    return caption;
}

QWidget* DialogFields::WithCaption(KxLabel* caption, QWidget* field, QWidget* parent)
{
    constexpr int gapPx = 6;
    caption->setBuddy(field);
    auto* const both = new QWidget(parent);
    auto* const column = new QVBoxLayout(both);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(gapPx);
    column->addWidget(caption);
    column->addWidget(field);
    return both;
}

void DialogFields::ShowText(KxLabel& label, const QString& text, bool isError)
{
    label.setText(text);
    label.setProperty("textRole", isError ? QStringLiteral("error") : QStringLiteral("muted"));
    // The style sheet reads properties only while a widget is polished.
    label.style()->unpolish(&label);
    label.style()->polish(&label);
}
