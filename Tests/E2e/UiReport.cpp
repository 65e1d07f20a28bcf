#include <Tests/E2e/UiReport.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QTimer>

#include <filesystem>

namespace
{

QString NameOf(const QWidget& widget)
{
    return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : widget.objectName();
}

QJsonArray OnScreen(const QWidget& widget, const QRect& part)
{
    const qreal ratio = widget.devicePixelRatioF();
    const QPoint corner = widget.mapToGlobal(part.topLeft());
    return {qRound(corner.x() * ratio), qRound(corner.y() * ratio), qRound(part.width() * ratio),
            qRound(part.height() * ratio)};
}

/// The window that the system shows in the middle of `window`: itself, unless another one covers it.
QString TopmostOver(const QWidget& window)
{
    const QWidget* const top = QApplication::topLevelAt(window.mapToGlobal(window.rect().center()));
    return top != nullptr ? NameOf(*top) : QString();
}

QJsonArray ItemsOf(const QAbstractItemView& view)
{
    QJsonArray items;
    const QAbstractItemModel* const model = view.model();
    for (int row = 0; model != nullptr && row < model->rowCount(view.rootIndex()); ++row) {
        const QModelIndex index = model->index(row, 0, view.rootIndex());
        items.append(QJsonObject{{QStringLiteral("text"), index.data().toString()},
                                 {QStringLiteral("rect"), OnScreen(*view.viewport(), view.visualRect(index))},
                                 {QStringLiteral("selected"), view.selectionModel()->isSelected(index)},
                                 {QStringLiteral("enabled"), index.flags().testFlag(Qt::ItemIsEnabled)}});
    }
    return items;
}

QJsonArray ItemsOf(const QMenu& menu)
{
    QJsonArray items;
    for (const QAction* const action : menu.actions()) {
        items.append(
            QJsonObject{{QStringLiteral("text"), action->text()},
                        {QStringLiteral("rect"), OnScreen(menu, menu.actionGeometry(const_cast<QAction*>(action)))},
                        {QStringLiteral("enabled"), action->isEnabled()}});
    }
    return items;
}

void AddContent(const QWidget& widget, QJsonObject& object)
{
    const QString text = QStringLiteral("text");
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
        object.insert(text, button->text());
        object.insert(QStringLiteral("checked"), button->isChecked());
        if (const QVariant face = button->property("face"); face.isValid()) {
            object.insert(QStringLiteral("face"), face.toInt());
        }
    } else if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        object.insert(text, label->text());
    } else if (const auto* const line = qobject_cast<const QLineEdit*>(&widget)) {
        object.insert(text, line->text());
    } else if (const auto* const box = qobject_cast<const QComboBox*>(&widget)) {
        object.insert(text, box->currentText());
    } else if (const auto* const bar = qobject_cast<const QProgressBar*>(&widget)) {
        object.insert(QStringLiteral("value"), bar->value());
    } else if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget)) {
        object.insert(QStringLiteral("items"), ItemsOf(*view));
    } else if (const auto* const menu = qobject_cast<const QMenu*>(&widget)) {
        object.insert(QStringLiteral("items"), ItemsOf(*menu));
    }
}

void ReportFromTheStart()
{
    const QString filePath = qEnvironmentVariable("KR_UI_REPORT");
    if (!filePath.isEmpty() && qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        new UiReport(filePath, qApp);
    }
}
Q_COREAPP_STARTUP_FUNCTION(ReportFromTheStart)

} // namespace

UiReport::UiReport(const QString& filePath, QObject* parent)
    : QObject(parent)
    , m_filePath(filePath)
{
    constexpr int everyMs = 100;
    auto* const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &UiReport::Write);
    timer->start(everyMs);
}

UiReport::~UiReport() = default;

QJsonObject UiReport::Describe() const
{
    QJsonArray widgets;
    for (const QWidget* const widget : QApplication::allWidgets()) {
        if (!widget->isVisible()) {
            continue;
        }
        QJsonObject object{{QStringLiteral("name"), NameOf(*widget)},
                           {QStringLiteral("class"), QString::fromLatin1(widget->metaObject()->className())},
                           {QStringLiteral("window"), NameOf(*widget->window())},
                           {QStringLiteral("rect"), OnScreen(*widget, widget->rect())},
                           {QStringLiteral("enabled"), widget->isEnabled()}};
        if (widget->isWindow()) {
            object.insert(QStringLiteral("top"), TopmostOver(*widget));
        }
        AddContent(*widget, object);
        widgets.append(object);
    }
    const QWidget* const window = QApplication::activeWindow();
    const QWidget* const focus = QApplication::focusWidget();
    return {{QStringLiteral("serial"), m_serial},
            {QStringLiteral("platform"), QGuiApplication::platformName()},
            {QStringLiteral("window"), window != nullptr ? NameOf(*window) : QString()},
            {QStringLiteral("focus"), focus != nullptr ? NameOf(*focus) : QString()},
            {QStringLiteral("widgets"), widgets}};
}

void UiReport::Write()
{
    ++m_serial;
    const QString partPath = m_filePath + QStringLiteral(".part");
    QFile part(partPath);
    if (part.open(QIODevice::WriteOnly) && part.write(QJsonDocument(Describe()).toJson(QJsonDocument::Compact)) > 0) {
        part.close();
        // A reader never finds half a report.
        std::error_code ignored;
        std::filesystem::rename(partPath.toStdWString(), m_filePath.toStdWString(), ignored);
    }
}
