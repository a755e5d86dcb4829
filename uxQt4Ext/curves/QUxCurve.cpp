#include "QUxCurve.h"

#include "QUxCurvePoint.h"

#include <QCursor>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QPainterPathStroker>
#include <QPen>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace {

constexpr int kSamples = 1024;
constexpr double kTolerance = 1e-6;
// Safeguarded Newton halves the bracket whenever it strays, so 64 steps reach any tolerance.
constexpr int kMaxIterations = 64;
// A zero-width stroker falls back to a width of one scene unit; keep hits on the line.
constexpr double kMinHitWidth = 1e-3;

/**
 * One span of the curve, from A to B, as a cubic Bezier with control points
 * A, A + A's out tangent, B - B's in tangent, B. Its polynomial coefficients
 * are worked out once per span and serve every sample inside it.
 */
class Span
{
public:
    Span(const QPointF& a, const QPointF& aOut, const QPointF& bIn, const QPointF& b)
        : m_left(a.x()), m_width(b.x() - a.x())
    {
        // x normalised by the width: control values 0, a1, a2, 1.
        const double a1 = m_width > 0.0 ? aOut.x() / m_width : 0.0;
        const double a2 = m_width > 0.0 ? (m_width - bIn.x()) / m_width : 1.0;
        m_x = {3.0 * a1, 3.0 * a2 - 6.0 * a1, 1.0 + 3.0 * a1 - 3.0 * a2};
        const double y0 = a.y(), y1 = a.y() + aOut.y(), y2 = b.y() - bIn.y(), y3 = b.y();
        m_y = {y0, 3.0 * (y1 - y0), 3.0 * (y0 - 2.0 * y1 + y2), y3 - y0 + 3.0 * (y1 - y2)};
    }

    /**
     * The parameter u in [0, 1] at which the span reaches @p x (within its
     * width), starting from @p guess. Newton steps inside a shrinking bracket,
     * bisection when a step leaves it: the bracket always holds a root, even
     * where the span is not monotone in x, and the loop is bounded.
     */
    double parameterAt(double x, double guess) const
    {
        if (!(m_width > 0.0) || x <= m_left)
            return 0.0;
        const double t = (x - m_left) / m_width;
        if (t >= 1.0)
            return 1.0;
        double lo = 0.0, hi = 1.0, u = (guess > 0.0 && guess < 1.0) ? guess : t;
        for (int i = 0; i < kMaxIterations; ++i) {
            const double f = ((m_x[2] * u + m_x[1]) * u + m_x[0]) * u - t;
            if (std::abs(f) < kTolerance)
                break;
            (f < 0.0 ? lo : hi) = u;
            const double slope = (3.0 * m_x[2] * u + 2.0 * m_x[1]) * u + m_x[0];
            const double next = u - f / slope;
            u = (next > lo && next < hi) ? next : 0.5 * (lo + hi);
        }
        return u;
    }

    double yAt(double u) const { return ((m_y[3] * u + m_y[2]) * u + m_y[1]) * u + m_y[0]; }

private:
    double m_left;
    double m_width;
    std::array<double, 3> m_x;
    std::array<double, 4> m_y;
};

/// The tangent factor: a third, shortened on curves of four or more points where a neighbour is close.
float tangentFactor(std::size_t count, double part, double chordX)
{
    if (count > 3 && part < chordX && chordX > 0.0)
        return float(part / chordX) / 3.0f;
    return 1.0f / 3.0f;
}

bool lessX(const QUxCurvePoint* a, const QUxCurvePoint* b) { return a->pos().x() < b->pos().x(); }

} // namespace

class QUxCurvePrivate
{
public:
    struct Node
    {
        QPointF pos;
        QUxCurvePoint* point;
        QPointF in;
        QPointF out;
    };

    QUxGraphEditor* editor = nullptr;
    QColor lineColor = Qt::black;
    QColor pointColor = Qt::black;
    double pointSize = 0.01;
    double lineWidth = 0.01;
    QList<QUxCurvePoint*> points;
    // Buffers reused by every rebuild: a drag rebuilds on each mouse move.
    std::vector<Node> nodes;
    QPolygonF polyline;
    mutable QPainterPath shape;
    mutable bool shapeValid = false;

    void collectNodes();
    void computeTangents();
    QPainterPath trace();
    void lineTo(const QPointF& point);
    void sample();
};

void QUxCurvePrivate::collectNodes()
{
    nodes.clear();
    for (QUxCurvePoint* point : qAsConst(points))
        nodes.push_back({point->pos(), point, QPointF(), QPointF()});
    // A list set in any order still draws as a function of x.
    const auto byX = [](const Node& a, const Node& b) { return a.pos.x() < b.pos.x(); };
    if (!std::is_sorted(nodes.begin(), nodes.end(), byX))
        std::stable_sort(nodes.begin(), nodes.end(), byX);
}

void QUxCurvePrivate::computeTangents()
{
    const std::size_t count = nodes.size();
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const QPointF& previous = nodes[i - 1].pos;
        const QPointF& current = nodes[i].pos;
        const QPointF& next = nodes[i + 1].pos;
        const QPointF chord = next - previous;
        nodes[i].out = chord * qreal(tangentFactor(count, next.x() - current.x(), chord.x()));
        nodes[i].in = chord * qreal(tangentFactor(count, current.x() - previous.x(), chord.x()));
    }
    for (const Node& node : nodes)
        node.point->setTangents(node.in, node.out);
}

QPainterPath QUxCurvePrivate::trace()
{
    QPainterPath path;
    if (nodes.empty())
        return path;
    // Collected first and added in one go: QPainterPath::lineTo costs several times a sample's evaluation.
    polyline.clear();
    const QPointF first = nodes.front().pos;
    const QPointF last = nodes.back().pos;
    if (first.x() > 0.0)
        polyline.append(QPointF(0.0, first.y()));
    lineTo(first);
    if (nodes.size() == 2)
        lineTo(last);
    else if (nodes.size() > 2)
        sample();
    if (last.x() < 1.0)
        lineTo(QPointF(1.0, last.y()));
    path.addPolygon(polyline);
    return path;
}

void QUxCurvePrivate::lineTo(const QPointF& point)
{
    // A line to where the path already is adds nothing.
    if (polyline.isEmpty() || polyline.constLast().x() != point.x() || polyline.constLast().y() != point.y())
        polyline.append(point);
}

void QUxCurvePrivate::sample()
{
    const QPointF first = nodes.front().pos;
    const QPointF last = nodes.back().pos;
    const auto sampleX = [](int i) { return double(i) / (kSamples - 1); };
    int i = 0;
    for (; i < kSamples && sampleX(i) <= first.x(); ++i)
        lineTo(first);
    // Samples rise, so each span takes the samples from its left end up to its right end.
    for (std::size_t s = 0; s + 1 < nodes.size(); ++s) {
        const Node& a = nodes[s];
        const Node& b = nodes[s + 1];
        const Span span(a.pos, a.out, b.in, b.pos);
        double u = 0.0;
        for (; i < kSamples && sampleX(i) < b.pos.x() && sampleX(i) < last.x(); ++i) {
            u = span.parameterAt(sampleX(i), u);
            lineTo(QPointF(sampleX(i), std::clamp(span.yAt(u), 0.0, 1.0)));
        }
    }
    for (; i < kSamples; ++i)
        lineTo(last);
}

double QUxCurve::boundCoordinate(double value)
{
    if (std::isnan(value))
        return 0.0;
    return std::clamp(value, -s_coordinateLimit, s_coordinateLimit);
}

QUxCurve::QUxCurve(QUxGraphEditor* editor, QGraphicsItem* parent) : QGraphicsPathItem(parent), d(new QUxCurvePrivate)
{
    d->editor = editor;
    setAcceptHoverEvents(true);
    setPen(QPen(d->lineColor, d->lineWidth));
}

QUxCurve::~QUxCurve()
{
    // Points go while the curve is still whole.
    qDeleteAll(std::exchange(d->points, {}));
}

QUxGraphEditor* QUxCurve::editor() const { return d->editor; }
QColor QUxCurve::lineColor() const { return d->lineColor; }
QColor QUxCurve::pointColor() const { return d->pointColor; }
double QUxCurve::pointSize() const { return d->pointSize; }
double QUxCurve::lineWidth() const { return d->lineWidth; }
QList<QUxCurvePoint*> QUxCurve::points() const { return d->points; }

void QUxCurve::setLineColor(const QColor& color)
{
    d->lineColor = color;
    setPen(QPen(d->lineColor, d->lineWidth));
}

void QUxCurve::setPointColor(const QColor& color)
{
    d->pointColor = color;
    for (QUxCurvePoint* point : qAsConst(d->points)) {
        point->setBrush(color);
        point->setPen(QPen(color, 0));
    }
}

void QUxCurve::setPointSize(double size)
{
    if (!std::isfinite(size))
        return;
    d->pointSize = std::clamp(size, 0.0, s_maxPointSize);
    for (QUxCurvePoint* point : qAsConst(d->points))
        point->setHalfSize(d->pointSize);
}

void QUxCurve::setLineWidth(double width)
{
    if (!std::isfinite(width))
        return;
    d->lineWidth = std::clamp(width, 0.0, s_maxLineWidth);
    rebuildPath();
}

QList<QVector2D> QUxCurve::positions() const
{
    QList<QVector2D> result;
    result.reserve(d->points.size());
    for (const QUxCurvePoint* point : qAsConst(d->points))
        result.append(QVector2D(point->pos()));
    return result;
}

void QUxCurve::setPositions(const QList<QVector2D>& positions)
{
    QList<QPointF> usable;
    for (const QVector2D& position : positions) {
        if (!std::isnan(position.x()) && !std::isnan(position.y()))
            usable.append(QPointF(boundCoordinate(position.x()), boundCoordinate(position.y())));
    }
    if (usable.size() == d->points.size()) {
        // Each move re-sorts the list, so walk the order the caller saw.
        const QList<QUxCurvePoint*> points = d->points;
        for (int i = 0; i < points.size(); ++i)
            points.at(i)->setPos(usable.at(i));
        return;
    }
    qDeleteAll(std::exchange(d->points, {}));
    qDeleteAll(childItems());
    for (const QPointF& position : qAsConst(usable))
        createPoint(position);
    rebuildPath();
}

QUxCurvePoint* QUxCurve::createPoint(const QPointF& position)
{
    auto* point = new QUxCurvePoint(position, this);
    connect(point, &QUxCurvePoint::graphPointMoved, this, &QUxCurve::pointMoved);
    connect(point, &QUxCurvePoint::graphPointDeleted, this, &QUxCurve::pointDeleted);
    d->points.append(point);
    return point;
}

void QUxCurve::sortPoints() { std::stable_sort(d->points.begin(), d->points.end(), lessX); }

void QUxCurve::rebuildPath()
{
    d->collectNodes();
    d->computeTangents();
    d->shapeValid = false;
    setPen(QPen(d->lineColor, d->lineWidth));
    setPath(d->trace());
}

QPainterPath QUxCurve::shape() const
{
    if (!d->shapeValid) {
        QPainterPathStroker stroker;
        stroker.setWidth(std::max(d->lineWidth, kMinHitWidth));
        d->shape = stroker.createStroke(path());
        d->shapeValid = true;
    }
    return d->shape;
}

void QUxCurve::pointMoved(QUxCurvePoint* point)
{
    Q_UNUSED(point)
    sortPoints();
    rebuildPath();
    emit curveChanged();
}

void QUxCurve::pointDeleted(QUxCurvePoint* point)
{
    if (!d->points.removeOne(point))
        return;
    delete point;
    sortPoints();
    rebuildPath();
    emit curveChanged();
}

void QUxCurve::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    Q_UNUSED(event)
    setCursor(Qt::CrossCursor);
}

void QUxCurve::hoverLeaveEvent(QGraphicsSceneHoverEvent* event)
{
    Q_UNUSED(event)
    unsetCursor();
}

void QUxCurve::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    if (scene())
        scene()->clearSelection();
    const QPointF at = mapFromScene(event->scenePos());
    QUxCurvePoint* point = createPoint(at);
    sortPoints();
    rebuildPath();
    point->setSelected(true);
    point->setFocus(); // so that Delete takes back a point added by mistake
    point->setPos(at);
    emit curveChanged();
}

void QUxCurve::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    for (QUxCurvePoint* point : qAsConst(d->points)) {
        if (point->isSelected()) {
            point->setPos(mapFromScene(event->scenePos()));
            return;
        }
    }
}

void QUxCurve::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) { Q_UNUSED(event) }
