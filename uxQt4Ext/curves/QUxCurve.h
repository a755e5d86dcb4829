#pragma once

#include "uxQt4ExtGlobal.h"

#include <QColor>
#include <QGraphicsPathItem>
#include <QList>
#include <QObject>
#include <QVector2D>

#include <memory>

class QUxCurvePoint;
class QUxCurvePrivate;
class QUxGraphEditor;

/**
 * One tone curve of a QUxGraphEditor: a smooth curve through its control
 * points, flat left of the first and right of the last, sampled at 1024 x
 * values over 0..1 with y held in 0..1. Clicking the curve adds a point there
 * and drags it while the button is held.
 * @code
 * auto* curve = new QUxCurve(editor);
 * editor->scene()->addItem(curve);
 * curve->setLineColor(Qt::white);
 * curve->setPositions({{0.0f, 0.0f}, {0.5f, 0.7f}, {1.0f, 1.0f}});
 * connect(curve, &QUxCurve::curveChanged, editor, &MyEditor::applyCurve);
 * @endcode
 * The point list keeps the order it was given in until a point moves; the
 * path is always drawn in x order.
 */
class UXQT4EXT_EXPORT QUxCurve : public QObject, public QGraphicsPathItem
{
    Q_OBJECT
public:
    /// Coordinates are capped to this magnitude, so that no later arithmetic overflows.
    static constexpr double s_coordinateLimit = 1e6;
    /// @p value capped to +-s_coordinateLimit; NaN becomes 0.
    static double boundCoordinate(double value);
    /**
     * The curve lives in the unit square. A pen a tenth of it wide is already
     * bold, and stroking 1024 samples with a much wider one takes seconds.
     */
    static constexpr double s_maxLineWidth = 0.1;
    /// A point this large covers the whole graph.
    static constexpr double s_maxPointSize = 1.0;

    explicit QUxCurve(QUxGraphEditor* editor, QGraphicsItem* parent = nullptr);
    ~QUxCurve() override;

    QUxGraphEditor* editor() const;

    QColor lineColor() const;
    void setLineColor(const QColor& color);
    QColor pointColor() const;
    /// Fills and outlines every point in @p color.
    void setPointColor(const QColor& color);
    double pointSize() const;
    /// Half the side of every point's square, in scene units, 0 to s_maxPointSize; not finite is ignored.
    void setPointSize(double size);
    double lineWidth() const;
    /// Pen width in scene units, 0 to s_maxLineWidth; not finite is ignored. Rebuilds the path.
    void setLineWidth(double width);

    QList<QUxCurvePoint*> points() const;
    /// The points' positions in list order.
    QList<QVector2D> positions() const;
    /**
     * With as many usable entries as points, moves each point to its entry
     * (each move reported as the user's would be); otherwise replaces all points
     * by new ones in the given order and rebuilds the path silently. Entries with
     * a NaN coordinate are left out.
     */
    void setPositions(const QList<QVector2D>& positions);

    /// Appends a new point at @p position; the caller sorts and rebuilds.
    QUxCurvePoint* createPoint(const QPointF& position);
    /// Orders the point list by x, keeping the order of points with equal x.
    void sortPoints();
    void rebuildPath();

    QPainterPath shape() const override;

signals:
    void curveChanged();

public slots:
    void pointMoved(QUxCurvePoint* point);
    void pointDeleted(QUxCurvePoint* point);

protected:
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    std::unique_ptr<QUxCurvePrivate> const d;
};
