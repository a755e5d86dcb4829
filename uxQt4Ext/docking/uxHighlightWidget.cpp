#include "uxHighlightWidget.h"

#include "QUxQuadSplitter.h"

#include <QPainter>
#include <QPointer>

class uxHighlightWidgetPrivate
{
public:
    QPointer<QUxQuadSplitter> splitter;
    QPointer<QWidget> widget;
};

uxHighlightWidget::uxHighlightWidget(QUxQuadSplitter* splitter, QWidget* parent)
    : QWidget(parent), d(new uxHighlightWidgetPrivate)
{
    d->splitter = splitter;
}

uxHighlightWidget::~uxHighlightWidget() = default;

QUxQuadSplitter* uxHighlightWidget::splitter() const { return d->splitter; }
QWidget* uxHighlightWidget::widget() const { return d->widget; }

void uxHighlightWidget::setWidget(QWidget* widget)
{
    if (widget && widget != this && !widget->isAncestorOf(this))
        widget->setParent(this);
    else
        widget = nullptr;
    d->widget = widget;
}

void uxHighlightWidget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    const QWidget* current = d->splitter ? d->splitter->currentWidget() : nullptr;
    bool active = false;
    const auto views = findChildren<QWidget*>(QStringLiteral("Render"), Qt::FindDirectChildrenOnly);
    for (const QWidget* view : views)
        active = active || view->hasFocus() || view == current;
    QPainter painter(this);
    painter.setPen(palette().color(active ? QPalette::Highlight : QPalette::Window));
    painter.drawRect(0, 0, width() - 1, height() - 1);
}
