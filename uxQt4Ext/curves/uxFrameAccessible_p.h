#pragma once

// The timeline and the time range as screen readers see them: sliders whose
// value is a frame.

#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QAccessibleWidget>

class uxFrameAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit uxFrameAccessible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Value ? valueText() : QAccessibleWidget::text(type);
    }

    QVariant minimumStepSize() const override { return 1; }

protected:
    virtual QString valueText() const { return currentValue().toString(); }
};

/// Makes @p A the accessible of every @p W; installed once per widget class.
template<typename W, typename A>
void uxInstallFrameAccessible()
{
    static const bool installed =
        (QAccessible::installFactory([](const QString& key, QObject* object) -> QAccessibleInterface* {
             auto* widget = qobject_cast<W*>(object);
             return widget && key == QLatin1String(W::staticMetaObject.className()) ? new A(widget) : nullptr;
         }),
         true);
    Q_UNUSED(installed)
}
