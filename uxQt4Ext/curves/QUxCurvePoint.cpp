#include "QUxCurvePoint.h"

#include "QUxCurve.h"
#include "QUxGraphEditor.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace {

/// @p value inside [a, b] or [b, a], whichever is ordered; an inverted range still holds the point.
double clampBetween(double value, double a, double b) { return std::clamp(value, std::min(a, b), std::max(a, b)); }

} // namespace

class QUxCurvePointPrivate
{
public:
    QUxCurve* curve = nullptr;
    QPointF inTangent;
    QPointF outTangent;
    bool xPinned = false;
    bool yPinned = false;
    double pinnedX = 0.0;
    double pinnedY = 0.0;
    double halfSize = 0.01;
    bool adjusting = false;
};

QUxCurvePoint::QUxCurvePoint(const QPointF& position, QUxCurve* curve)
    : QGraphicsRectItem(curve), d(new QUxCurvePointPrivate)
{
    d->curve = curve;
    // Positioned before the flags are on: a new point is not yet a move to report.
    setPos(QUxCurve::boundCoordinate(position.x()), QUxCurve::boundCoordinate(position.y()));
    setRect(-d->halfSize, -d->halfSize, 2 * d->halfSize, 2 * d->halfSize);
    const QColor color = curve ? curve->pointColor() : QColor(Qt::black);
    setBrush(color);
    setPen(QPen(color, 0));
    setAcceptHoverEvents(true);
    setZValue(100);
    setFlags(ItemIsMovable | ItemIsSelectable | ItemIsFocusable | ItemSendsScenePositionChanges);
}

QUxCurvePoint::~QUxCurvePoint() = default;

QUxCurve* QUxCurvePoint::curve() const { return d->curve; }
QPointF QUxCurvePoint::inTangent() const { return d->inTangent; }
QPointF QUxCurvePoint::outTangent() const { return d->outTangent; }

void QUxCurvePoint::setTangents(const QPointF& in, const QPointF& out)
{
    d->inTangent = in;
    d->outTangent = out;
}

bool QUxCurvePoint::isXPinned() const { return d->xPinned; }
double QUxCurvePoint::pinnedX() const { return d->pinnedX; }
bool QUxCurvePoint::isYPinned() const { return d->yPinned; }
double QUxCurvePoint::pinnedY() const { return d->pinnedY; }

void QUxCurvePoint::setPinnedX(bool pinned, double x)
{
    d->xPinned = pinned && std::isfinite(x);
    d->pinnedX = d->xPinned ? x : 0.0;
}

void QUxCurvePoint::setPinnedY(bool pinned, double y)
{
    d->yPinned = pinned && std::isfinite(y);
    d->pinnedY = d->yPinned ? y : 0.0;
}

double QUxCurvePoint::halfSize() const { return d->halfSize; }

void QUxCurvePoint::setHalfSize(double halfSize)
{
    if (!std::isfinite(halfSize))
        return;
    d->halfSize = halfSize;
    setRect(-halfSize, -halfSize, 2 * halfSize, 2 * halfSize);
}

void QUxCurvePoint::mousePressEvent(QGraphicsSceneMouseEvent* event) { QGraphicsRectItem::mousePressEvent(event); }

void QUxCurvePoint::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) { QGraphicsRectItem::mouseReleaseEvent(event); }

void QUxCurvePoint::mouseMoveEvent(QGraphicsSceneMouseEvent* event) { QGraphicsRectItem::mouseMoveEvent(event); }

void QUxCurvePoint::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Delete) {
        QGraphicsRectItem::keyPressEvent(event);
        return;
    }
    // The curve deletes this point in its slot: nothing may touch the point afterwards.
    emit graphPointDeleted(this);
}

QVariant QUxCurvePoint::itemChange(GraphicsItemChange change, const QVariant& value)
{
    if (change != ItemScenePositionHasChanged || d->adjusting)
        return QGraphicsRectItem::itemChange(change, value);
    const QPointF moved = pos();
    double x = d->xPinned ? d->pinnedX : moved.x();
    double y = d->yPinned ? d->pinnedY : moved.y();
    if (const QUxGraphEditor* editor = d->curve ? d->curve->editor() : nullptr) {
        x = clampBetween(x, editor->minX(), editor->maxX());
        y = clampBetween(y, editor->minY(), editor->maxY());
    }
    x = QUxCurve::boundCoordinate(x);
    y = QUxCurve::boundCoordinate(y);
    if (x != moved.x() || y != moved.y()) {
        // One report per move: the corrective move is part of this one.
        d->adjusting = true;
        setPos(x, y);
        d->adjusting = false;
    }
    emit graphPointMoved(this);
    return QGraphicsRectItem::itemChange(change, value);
}
