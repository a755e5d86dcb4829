#pragma once

#include "uxQt4ExtGlobal.h"

#include <QColor>
#include <QGraphicsView>
#include <QList>
#include <QVector2D>

#include <memory>

class QUxGraphEditorPrivate;

/**
 * Edits four tone curves over the unit square: luminance, red, green and
 * blue. Each curve runs through control points that the user adds by clicking
 * on the curve, drags, and removes with the Delete key; the curve stays a
 * function of x. The mode chooses which curves show.
 * @code
 * auto* editor = new QUxGraphEditor(panel);
 * editor->setMode(QUxGraphEditor::Luminance);
 * editor->setLuminanceCurve({{0.0f, 0.0f}, {0.5f, 0.6f}, {1.0f, 1.0f}});
 * connect(editor, &QUxGraphEditor::luminanceCurveChanged, panel,
 *         [panel, editor] { panel->applyToneCurve(editor->luminanceCurve()); });
 * @endcode
 * A new editor shows only the luminance curve although its mode reads RGB,
 * until the first setMode(). Scene y grows downwards; a host that wants y up
 * flips the view once with scale(1, -1), which the fitting keeps.
 */
class UXQT4EXT_EXPORT QUxGraphEditor : public QGraphicsView
{
    Q_OBJECT
    Q_PROPERTY(QUxGraphEditor::Mode mode READ getMode WRITE setMode)
    Q_PROPERTY(QColor pointColor READ pointColor WRITE setPointColor)
    Q_PROPERTY(double pointSize READ pointSize WRITE setPointSize)
    Q_PROPERTY(double lineWidth READ lineWidth WRITE setLineWidth)
    Q_PROPERTY(double minX READ minX WRITE setMinX)
    Q_PROPERTY(double maxX READ maxX WRITE setMaxX)
    Q_PROPERTY(double minY READ minY WRITE setMinY)
    Q_PROPERTY(double maxY READ maxY WRITE setMaxY)

public:
    /// Which curves show. int-based, so that any integer a host passes is a value of the type.
    enum Mode : int { Luminance = 0, Red = 1, Green = 2, Blue = 3, RGB = 4 };
    Q_ENUM(Mode)

    explicit QUxGraphEditor(QWidget* parent = nullptr);
    ~QUxGraphEditor() override;

    Mode getMode() const;
    QColor pointColor() const;
    double pointSize() const;
    double lineWidth() const;
    double minX() const;
    double maxX() const;
    double minY() const;
    double maxY() const;

    /// Control point positions in list order: as set, and in x order once a point has moved.
    QList<QVector2D> luminanceCurve() const;
    QList<QVector2D> redCurve() const;
    QList<QVector2D> greenCurve() const;
    QList<QVector2D> blueCurve() const;

    /**
     * With as many points as the curve has, moves each point to its entry (held
     * in the range) and emits the change signal for each point that moves;
     * otherwise replaces the points silently, in the given order.
     */
    void setLuminanceCurve(const QList<QVector2D>& points);
    void setRedCurve(const QList<QVector2D>& points);
    void setGreenCurve(const QList<QVector2D>& points);
    void setBlueCurve(const QList<QVector2D>& points);

signals:
    void luminanceCurveChanged();
    void redCurveChanged();
    void greenCurveChanged();
    void blueCurveChanged();

public slots:
    /// Stores @p mode; a value outside Luminance..RGB leaves the visible curves as they are.
    void setMode(QUxGraphEditor::Mode mode);
    void setPointColor(const QColor& color);
    /// Half the side of every point's square, in scene units (0 to 1; not finite is ignored).
    void setPointSize(double size);
    /// Curve pen width in scene units (0 to 0.1, a tenth of the graph; not finite is ignored).
    void setLineWidth(double width);
    /**
     * Range setters: points are held between the minimum and the maximum (an
     * inverted pair still holds them between the two). The scene rectangle
     * becomes (minX, minY, maxX, maxY), the maxima taken as width and height.
     * Values beyond +-1e6 are capped; values that are not finite are ignored.
     */
    void setMinX(double value);
    void setMaxX(double value);
    void setMinY(double value);
    void setMaxY(double value);
    void luminanceCurveChange();
    void redCurveChange();
    void greenCurveChange();
    void blueCurveChange();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::unique_ptr<QUxGraphEditorPrivate> const d;
};
