#include <KxWidgets/Style/KxAccessible.h>

#include <KxWidgets/KxToggleSwitch.h>
#include <KxWidgets/KxToolSlider.h>

#include <QAccessible>
#include <QAccessibleWidget>

namespace
{

class SliderInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SliderInterface(KxToolSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface) {
            return static_cast<QAccessibleValueInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return Slider().value(); }
    void setCurrentValue(const QVariant& value) override { Slider().setValue(value.toDouble(), true); }
    QVariant maximumValue() const override { return Slider().duration(); }
    QVariant minimumValue() const override { return 0.0; }
    QVariant minimumStepSize() const override { return 1.0; }

private:
    KxToolSlider& Slider() const { return *static_cast<KxToolSlider*>(widget()); }
};

class SwitchInterface : public QAccessibleWidget
{
public:
    explicit SwitchInterface(KxToggleSwitch* toggle)
        : QAccessibleWidget(toggle, QAccessible::CheckBox)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        const QString set = QAccessibleWidget::text(type);
        return type == QAccessible::Name && set.isEmpty() ? Switch().text() : set;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = Switch().isChecked();
        return state;
    }

    QStringList actionNames() const override { return QAccessibleWidget::actionNames() << toggleAction(); }

    void doAction(const QString& name) override
    {
        if (name == toggleAction()) {
            Switch().click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    KxToggleSwitch& Switch() const { return *static_cast<KxToggleSwitch*>(widget()); }
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object)
{
    if (auto* slider = qobject_cast<KxToolSlider*>(object)) {
        return new SliderInterface(slider);
    }
    if (auto* toggle = qobject_cast<KxToggleSwitch*>(object)) {
        return new SwitchInterface(toggle);
    }
    return nullptr;
}

} // namespace

void KxAccessible::Install()
{
    static const bool once = [] {
        QAccessible::installFactory(&Make);
        return true;
    }();
    Q_UNUSED(once)
}
