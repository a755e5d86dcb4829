#include "uxUIStyle.h"

#include "QUxSlider.h"

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

/// Composite controls whose inner widgets must show the highlight too.
void propagateToInnerWidgets(QWidget* w)
{
    if (auto* slider = qobject_cast<QUxSlider*>(w))
        slider->propagateMultiselectProperty();
}

} // namespace

void uxUIStyle::setMultiSelectHighlight(QWidget* w, bool on)
{
    setControlProperty(w, "multiselect", on ? QVariant(true) : QVariant());
    propagateToInnerWidgets(w);
}
