#include "QUxQuickAccessButton.h"

#include "../docking/uxLiveObjects_p.h"

#include <QUxDockWidget.h>
#include <QUxQuickAccessBar.h>

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPropertyAnimation>
#include <QTimer>

#include <set>

namespace {

const char* const s_buttonFormat = "application/corva-quickAccess-button";

std::set<QUxQuickAccessButton*>& liveButtons()
{
    static std::set<QUxQuickAccessButton*> buttons;
    return buttons;
}

bool _editMode = false;
QUxQuickAccessButton* _the = nullptr;
int s_longPressInterval = 1500;

} // namespace

class QUxQuickAccessButtonPrivate
{
public:
    // Guarded: a dock may be destroyed while its button is still shown.
    QPointer<QUxDockWidget> dockWidget;
    QPropertyAnimation* animation = nullptr;
    QTimer* longPressTimer = nullptr;
    QPoint dragStartPoint;
    bool pressedOnBadge = false;
};

QUxQuickAccessButton::QUxQuickAccessButton(QWidget* parent) : QUxToolButton(parent), d(new QUxQuickAccessButtonPrivate)
{
    _the = this;
    liveButtons().insert(this);
    uxLiveObjects<QUxQuickAccessButton>::add(this);
    d->animation = new QPropertyAnimation(this, "geometry");
    d->animation->setDuration(1000);
    d->animation->setLoopCount(-1);
    d->animation->setEasingCurve(QEasingCurve::OutInBounce);
    d->longPressTimer = new QTimer(this);
    d->longPressTimer->setSingleShot(true);
    connect(d->longPressTimer, &QTimer::timeout, this, &QUxQuickAccessButton::activateEditMode);
    connect(this, &QAbstractButton::toggled, this, &QUxQuickAccessButton::toggleWidgetVisibility);
}

QUxQuickAccessButton::~QUxQuickAccessButton()
{
    // Deleted by hand while on a bar: the bar takes its action back while this is still a whole widget.
    // (A bar being destroyed is no longer a QUxQuickAccessBar here and needs nothing.)
    if (auto* bar = qobject_cast<QUxQuickAccessBar*>(parent()))
        bar->buttonDestroyed(this);
    delete d->animation;
    delete d->longPressTimer;
    liveButtons().erase(this);
    uxLiveObjects<QUxQuickAccessButton>::remove(this);
    if (_the == this)
        _the = nullptr;
}

void QUxQuickAccessButton::setDockWidget(QUxDockWidget* widget) { d->dockWidget = widget; }

QUxDockWidget* QUxQuickAccessButton::dockWidget() const { return d->dockWidget.data(); }

void QUxQuickAccessButton::finishEditing() { _editMode = false; }

bool QUxQuickAccessButton::editMode() { return _editMode; }

QUxQuickAccessButton* QUxQuickAccessButton::lastCreated() { return _the; }

void QUxQuickAccessButton::setLongPressInterval(int milliseconds) { s_longPressInterval = qMax(0, milliseconds); }

int QUxQuickAccessButton::longPressInterval() { return s_longPressInterval; }

QByteArray QUxQuickAccessButton::payload(const QUxQuickAccessButton* button)
{
    return uxLiveObjects<QUxQuickAccessButton>::payload(button);
}

QUxQuickAccessButton* QUxQuickAccessButton::fromPayload(const QByteArray& data)
{
    return uxLiveObjects<QUxQuickAccessButton>::fromPayload(data);
}

void QUxQuickAccessButton::changedWidgetVisibility(bool value)
{
    if (!d->dockWidget)
        return;
    const bool wasBlocked = blockSignals(true);
    setChecked(value);
    blockSignals(wasBlocked);
}

void QUxQuickAccessButton::activateEditMode()
{
    d->longPressTimer->stop();
    _editMode = true;
    emit startedEditing();
}

void QUxQuickAccessButton::toggleWidgetVisibility(bool value)
{
    if (!d->dockWidget)
        return;
    d->dockWidget->setVisible(value);
    d->dockWidget->raise();
}

void QUxQuickAccessButton::mousePressEvent(QMouseEvent* event)
{
    d->pressedOnBadge = false;
    if (!_editMode) {
        QToolButton::mousePressEvent(event);
        if (!_editMode && (event->buttons() & Qt::LeftButton))
            d->longPressTimer->start(s_longPressInterval);
    } else if (event->buttons() & Qt::LeftButton) {
        d->pressedOnBadge = mouseInRemoveRange(event->pos());
    }
    if (event->button() == Qt::LeftButton)
        d->dragStartPoint = event->pos();
}

void QUxQuickAccessButton::mouseMoveEvent(QMouseEvent* event)
{
    QAbstractButton::mouseMoveEvent(event);
    if (!_editMode || !(event->buttons() & Qt::LeftButton))
        return;
    if ((event->pos() - d->dragStartPoint).manhattanLength() < QApplication::startDragDistance())
        return;
    auto* drag = new QDrag(this);
    auto* mime = new QMimeData;
    mime->setData(s_buttonFormat, payload(this));
    drag->setMimeData(mime);
    drag->setPixmap(icon().pixmap(32, 32, QIcon::Normal, QIcon::Off));
    // The bar may delete this button while the drag runs: nothing of it is touched afterwards.
    drag->exec(Qt::MoveAction);
}

void QUxQuickAccessButton::mouseReleaseEvent(QMouseEvent* event)
{
    d->longPressTimer->stop();
    if (d->pressedOnBadge) {
        if (!_editMode) {
            QToolButton::mouseReleaseEvent(event);
        } else if (mouseInRemoveRange(event->pos())) {
            d->pressedOnBadge = false;
            emit removeButton(this);
        }
        return;
    }
    if (!_editMode)
        QToolButton::mouseReleaseEvent(event);
}

void QUxQuickAccessButton::paintEvent(QPaintEvent* event)
{
    QUxToolButton::paintEvent(event);
    if (!_editMode)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPen pen(QColor(227, 227, 227), 1.5, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::black);
    const int w = width();
    painter.drawEllipse(QRect(QPoint(w - 19, 3), QPoint(w - 2, 20)));
    painter.drawLine(w - 6, 16, w - 14, 8);
    painter.drawLine(w - 6, 8, w - 14, 16);
}

void QUxQuickAccessButton::startAnimations()
{
    for (QUxQuickAccessButton* button : liveButtons()) {
        const QRect rect = button->geometry();
        button->d->animation->setStartValue(rect);
        button->d->animation->setEndValue(rect.adjusted(-2, -2, 2, 2));
        button->d->animation->start();
    }
}

void QUxQuickAccessButton::stopAnimations()
{
    for (QUxQuickAccessButton* button : liveButtons())
        button->d->animation->stop();
}

bool QUxQuickAccessButton::mouseInRemoveRange(const QPoint& pos) const
{
    return pos.x() >= width() - 19 && pos.x() <= width() - 1 && pos.y() >= 3 && pos.y() <= 20;
}
