#include "uxUIStyle.h"

#include <QMetaObject>
#include <QStyle>
#include <QWidget>

void uxUIStyle::applyFont(QWidget* source, QWidget* target)
{
    if (!target || !source)
        return;
    QFont font = target->font();
    const QFont& from = source->font();
    if (font.family() == from.family() && font.pointSize() == from.pointSize() && font.pointSizeF() == from.pointSizeF()
        && font.pixelSize() == from.pixelSize())
        return;
    font.setFamily(from.family());
    if (from.pointSizeF() > 0)
        font.setPointSizeF(from.pointSizeF());
    else if (from.pointSize() > 0)
        font.setPointSize(from.pointSize());
    else if (from.pixelSize() > 0)
        font.setPixelSize(from.pixelSize());
    target->setFont(font);
}

void uxUIStyle::setControlProperty(QWidget* w, const char* name, const QVariant& v)
{
    if (!w || !name)
        return;
    const QVariant current = w->property(name);
    if ((current.isValid() && current == v) || (!current.isValid() && !v.isValid()))
        return;
    w->setProperty(name, v);
    QStyle* style = w->style();
    style->unpolish(w);
    style->polish(w);
    w->update();
}

namespace {

// Composite controls hand the property on to their inner widgets through an
// invokable propagateMultiselectProperty(): looked up by name, so that these
// utilities need no widget class of the library.
void propagateToInnerWidgets(QWidget* w)
{
    if (w && w->metaObject()->indexOfMethod("propagateMultiselectProperty()") >= 0)
        QMetaObject::invokeMethod(w, "propagateMultiselectProperty", Qt::DirectConnection);
}

} // namespace

void uxUIStyle::setMultiSelectHighlight(QWidget* w, bool on)
{
    setControlProperty(w, "multiselect", on ? QVariant(true) : QVariant());
    propagateToInnerWidgets(w);
}
