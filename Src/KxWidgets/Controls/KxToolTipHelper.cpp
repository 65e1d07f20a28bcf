#include <KxWidgets/KxToolTipHelper.h>

#include <QChildEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace
{

constexpr int GapPx = 6;
// QToolTip moves the tooltip away from the given position by this offset.
const QPoint PointerOffset(2, 16);
constexpr int LongTextCharacters = 60;

} // namespace

QString KxToolTipHelper::AsPlainText(const QString& text)
{
    // QToolTip breaks lines only in rich text, and takes for rich text what looks like it.
    if (text.size() <= LongTextCharacters && !Qt::mightBeRichText(text)) {
        return text;
    }
    return QStringLiteral("<div>") + text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>")) +
           QStringLiteral("</div>");
}

KxToolTipHelper::KxToolTipHelper() = default;

KxToolTipHelper* KxToolTipHelper::GetInstance()
{
    static KxToolTipHelper instance;
    return &instance;
}

KxToolTipHelper::~KxToolTipHelper() = default;

bool KxToolTipHelper::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ChildAdded:
        Watch(static_cast<QChildEvent*>(event)->child());
        break;
    case QEvent::ChildRemoved:
        static_cast<QChildEvent*>(event)->child()->removeEventFilter(this);
        break;
    case QEvent::Polish:
        WatchChildren(watched);
        break;
    case QEvent::ToolTip: {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && !widget->toolTip().isEmpty()) {
            const QPoint below = widget->mapToGlobal(QPoint(0, widget->height() + GapPx));
            QToolTip::showText(below - PointerOffset, AsPlainText(widget->toolTip()), widget, {},
                               widget->toolTipDuration());
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KxToolTipHelper::Watch(QObject* child)
{
    if (child->isWidgetType() && !static_cast<QWidget*>(child)->isWindow()) {
        child->installEventFilter(this);
        WatchChildren(child);
    }
}

void KxToolTipHelper::WatchChildren(QObject* watched)
{
    const QObjectList children = watched->children();
    for (QObject* child : children) {
        Watch(child);
    }
}
