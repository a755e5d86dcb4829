#include "QUxDragModuleLabel.h"

#include <QUxDockWidget.h>

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>

class QUxDragModuleLabelPrivate
{
public:
    QPoint pressPosition;
    // Guarded: the label may outlive the dock it names.
    QPointer<QUxDockWidget> module;
};

QUxDragModuleLabel::QUxDragModuleLabel(QWidget* parent) : QLabel(parent), d(new QUxDragModuleLabelPrivate) {}

QUxDragModuleLabel::QUxDragModuleLabel(const QPixmap& pixmap, QWidget* parent) : QUxDragModuleLabel(parent)
{
    setPixmap(pixmap);
}

QUxDragModuleLabel::~QUxDragModuleLabel() = default;

void QUxDragModuleLabel::setModule(QUxDockWidget* module) { d->module = module; }

QUxDockWidget* QUxDragModuleLabel::module() const { return d->module.data(); }

QString QUxDragModuleLabel::mimeType() { return QStringLiteral("application/corva-module-icon"); }

void QUxDragModuleLabel::mousePressEvent(QMouseEvent* event)
{
    // Accepted either way, so that the moves reach this label rather than the window under it.
    if (event->button() == Qt::LeftButton)
        d->pressPosition = event->pos();
}

void QUxDragModuleLabel::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    if ((event->pos() - d->pressPosition).manhattanLength() < QApplication::startDragDistance())
        return;
    auto* mime = new QMimeData;
    mime->setData(mimeType(), QUxDockWidget::payload(d->module.data()));
    auto* drag = new QDrag(this);
    drag->setMimeData(mime);
    drag->setPixmap(pixmap(Qt::ReturnByValue));
    drag->exec(Qt::MoveAction);
}

void QUxDragModuleLabel::mouseReleaseEvent(QMouseEvent* /*event*/) {}
