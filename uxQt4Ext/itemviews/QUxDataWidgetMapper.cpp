#include "QUxDataWidgetMapper.h"

#include "QUxDataWidgetMapperItemDelegate.h"

#include <QAbstractButton>
#include <QComboBox>

QUxDataWidgetMapper::QUxDataWidgetMapper(QWidget* parent) : QDataWidgetMapper(parent)
{
    // Without a parent widget the mapper owns its delegate, so that it is not leaked.
    QObject* owner = parent ? static_cast<QObject*>(parent) : this;
    setItemDelegate(new QUxDataWidgetMapperItemDelegate(owner));
}

QUxDataWidgetMapper::~QUxDataWidgetMapper() = default;

void QUxDataWidgetMapper::addMapping(QWidget* widget, int section)
{
    if (!widget)
        return;
    changeEndEditPolicy(widget);
    QDataWidgetMapper::addMapping(widget, section);
}

void QUxDataWidgetMapper::addMapping(QWidget* widget, int section, const QByteArray& property)
{
    if (!widget)
        return;
    changeEndEditPolicy(widget);
    QDataWidgetMapper::addMapping(widget, section, property);
}

void QUxDataWidgetMapper::changeEndEditPolicy(QWidget* widget)
{
    // Mapping a widget again must not commit it twice per change.
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        disconnect(combo, &QComboBox::currentTextChanged, this, nullptr);
        connect(combo, &QComboBox::currentTextChanged, this, [this, combo] { setChanged(combo); });
    } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        disconnect(button, &QAbstractButton::toggled, this, nullptr);
        connect(button, &QAbstractButton::toggled, this, [this, button] { setChanged(button); });
    }
}

void QUxDataWidgetMapper::setChanged(QWidget* widget)
{
    if (!widget)
        return;
    widget->clearFocus();
    widget->setFocus(Qt::OtherFocusReason);
}
