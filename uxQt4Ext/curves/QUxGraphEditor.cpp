#include "QUxGraphEditor.h"

#include "QUxCurve.h"
#include "QUxGraphEditorScene.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// @p value within 0..@p limit, or false when it is not finite.
bool boundSize(double& value, double limit)
{
    if (!std::isfinite(value))
        return false;
    value = std::clamp(value, 0.0, limit);
    return true;
}

} // namespace

class QUxGraphEditorPrivate
{
public:
    std::unique_ptr<QUxGraphEditorScene> scene;
    double pointSize = 0.05;
    QColor pointColor;
    double lineWidth = 0.01;
    double minX = 0.0;
    double maxX = 1.0;
    double minY = 0.0;
    double maxY = 1.0;
    QUxGraphEditor::Mode mode = QUxGraphEditor::RGB;
    QUxCurve* luminance = nullptr;
    QUxCurve* red = nullptr;
    QUxCurve* green = nullptr;
    QUxCurve* blue = nullptr;

    std::array<QUxCurve*, 4> curves() const { return {luminance, red, green, blue}; }
    // The maxima are the rectangle's width and height, whatever the minima are.
    void updateSceneRect() { scene->setSceneRect(QRectF(minX, minY, maxX, maxY)); }

    void setRangeValue(double& member, double value)
    {
        if (!std::isfinite(value))
            return;
        member = QUxCurve::boundCoordinate(value);
        updateSceneRect();
    }
};

QUxGraphEditor::QUxGraphEditor(QWidget* parent) : QGraphicsView(parent), d(new QUxGraphEditorPrivate)
{
    // Hosts that read the hints back still expect the high-quality flag, though Qt 5.15 ignores it.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing | QPainter::TextAntialiasing
                   | QPainter::HighQualityAntialiasing);
    QT_WARNING_POP
    d->scene = std::make_unique<QUxGraphEditorScene>();
    d->updateSceneRect();
    setScene(d->scene.get());
    // The scene is fitted into the view, so scroll bars would only flicker in and out while resizing.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Tone curves"));

    const auto makeCurve = [this](qreal z, void (QUxGraphEditor::*relay)(), const QColor& color, bool visible) {
        auto* curve = new QUxCurve(this);
        curve->setZValue(z);
        connect(curve, &QUxCurve::curveChanged, this, relay);
        curve->setLineColor(color);
        curve->setVisible(visible);
        d->scene->addItem(curve);
        return curve;
    };
    d->red = makeCurve(5, &QUxGraphEditor::redCurveChange, QColor(255, 0, 0), false);
    d->green = makeCurve(4, &QUxGraphEditor::greenCurveChange, QColor(0, 255, 0), false);
    d->blue = makeCurve(3, &QUxGraphEditor::blueCurveChange, QColor(0, 0, 255), false);
    d->luminance = makeCurve(2, &QUxGraphEditor::luminanceCurveChange, QColor(127, 127, 127), true);
}

QUxGraphEditor::~QUxGraphEditor()
{
    // Curves and points go while the editor they ask for the range is still whole.
    d->scene.reset();
}

QUxGraphEditor::Mode QUxGraphEditor::getMode() const { return d->mode; }
QColor QUxGraphEditor::pointColor() const { return d->pointColor; }
double QUxGraphEditor::pointSize() const { return d->pointSize; }
double QUxGraphEditor::lineWidth() const { return d->lineWidth; }
double QUxGraphEditor::minX() const { return d->minX; }
double QUxGraphEditor::maxX() const { return d->maxX; }
double QUxGraphEditor::minY() const { return d->minY; }
double QUxGraphEditor::maxY() const { return d->maxY; }

QList<QVector2D> QUxGraphEditor::luminanceCurve() const { return d->luminance->positions(); }
QList<QVector2D> QUxGraphEditor::redCurve() const { return d->red->positions(); }
QList<QVector2D> QUxGraphEditor::greenCurve() const { return d->green->positions(); }
QList<QVector2D> QUxGraphEditor::blueCurve() const { return d->blue->positions(); }

void QUxGraphEditor::setLuminanceCurve(const QList<QVector2D>& points) { d->luminance->setPositions(points); }
void QUxGraphEditor::setRedCurve(const QList<QVector2D>& points) { d->red->setPositions(points); }
void QUxGraphEditor::setGreenCurve(const QList<QVector2D>& points) { d->green->setPositions(points); }
void QUxGraphEditor::setBlueCurve(const QList<QVector2D>& points) { d->blue->setPositions(points); }

void QUxGraphEditor::setMode(QUxGraphEditor::Mode mode)
{
    d->mode = mode;
    if (mode < Luminance || mode > RGB)
        return;
    d->luminance->setVisible(mode == Luminance);
    d->red->setVisible(mode == Red || mode == RGB);
    d->green->setVisible(mode == Green || mode == RGB);
    d->blue->setVisible(mode == Blue || mode == RGB);
}

void QUxGraphEditor::setPointColor(const QColor& color)
{
    d->pointColor = color;
    for (QUxCurve* curve : d->curves())
        curve->setPointColor(color);
}

void QUxGraphEditor::setPointSize(double size)
{
    if (!boundSize(size, QUxCurve::s_maxPointSize))
        return;
    d->pointSize = size;
    for (QUxCurve* curve : d->curves())
        curve->setPointSize(size);
    fitInView(sceneRect(), Qt::KeepAspectRatio);
}

void QUxGraphEditor::setLineWidth(double width)
{
    if (!boundSize(width, QUxCurve::s_maxLineWidth))
        return;
    d->lineWidth = width;
    for (QUxCurve* curve : d->curves())
        curve->setLineWidth(width);
    fitInView(sceneRect(), Qt::KeepAspectRatio);
}

void QUxGraphEditor::setMinX(double value) { d->setRangeValue(d->minX, value); }
void QUxGraphEditor::setMaxX(double value) { d->setRangeValue(d->maxX, value); }
void QUxGraphEditor::setMinY(double value) { d->setRangeValue(d->minY, value); }
void QUxGraphEditor::setMaxY(double value) { d->setRangeValue(d->maxY, value); }

void QUxGraphEditor::luminanceCurveChange() { emit luminanceCurveChanged(); }
void QUxGraphEditor::redCurveChange() { emit redCurveChanged(); }
void QUxGraphEditor::greenCurveChange() { emit greenCurveChanged(); }
void QUxGraphEditor::blueCurveChange() { emit blueCurveChanged(); }

void QUxGraphEditor::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    fitInView(sceneRect(), Qt::KeepAspectRatio);
}
