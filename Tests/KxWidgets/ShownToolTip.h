#pragma once

#include <QApplication>
#include <QLabel>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QToolTip>

/// The text that a person reads in the visible tooltip, without applied markup. Empty without a tooltip.
inline QString ShownToolTip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        const auto* label = qobject_cast<const QLabel*>(window);
        if (label != nullptr && window->isVisible() && window->inherits("QTipLabel")) {
            return Qt::mightBeRichText(label->text()) ? QTextDocumentFragment::fromHtml(label->text()).toPlainText()
                                                      : label->text();
        }
    }
    return {};
}
