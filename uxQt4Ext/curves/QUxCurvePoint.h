#pragma once

#include "uxQt4ExtGlobal.h"

#include <QGraphicsRectItem>
#include <QObject>

#include <memory>

class QUxCurve;
class QUxCurvePointPrivate;

/**
 * One control point of a QUxCurve: a small filled square, a child item of its
 * curve, that the user selects, drags and removes with the Delete key. Every
 * move is held inside the editor's range (and on a pinned coordinate's value)
 * before it is reported through graphPointMoved().
 * @code
 * QUxCurvePoint* black = curve->createPoint(0.0, 0.0);
 * black->setPinnedX(true, 0.0); // the black point slides along the left edge only
 * @endcode
 */
class UXQT4EXT_EXPORT QUxCurvePoint : public QObject, public QGraphicsRectItem
{
    Q_OBJECT
public:
    /// A point at @p position (taken as given) on @p curve, as a child item of it.
    explicit QUxCurvePoint(const QPointF& position, QUxCurve* curve);
    ~QUxCurvePoint() override;

    QUxCurve* curve() const;

    /// Tangents towards the previous and the next point; zero at either end of the curve.
    QPointF inTangent() const;
    QPointF outTangent() const;
    void setTangents(const QPointF& in, const QPointF& out);

    bool isXPinned() const;
    double pinnedX() const;
    /// While pinned, every move puts x at @p x (clamped to the range).
    void setPinnedX(bool pinned, double x = 0.0);
    bool isYPinned() const;
    double pinnedY() const;
    void setPinnedY(bool pinned, double y = 0.0);

    /// Half the side of the square, in scene units.
    double halfSize() const;
    void setHalfSize(double halfSize);

signals:
    void graphPointMoved(QUxCurvePoint* point);
    void graphPointDeleted(QUxCurvePoint* point);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;

private:
    std::unique_ptr<QUxCurvePointPrivate> const d;
};
