#pragma once

#include "uxQt4ExtGlobal.h"

#include <QAbstractSlider>

#include <memory>

class QUxWheelPrivate;

/**
 * A thumb wheel: a narrow ribbed strip that the user drags sideways (or up
 * and down when vertical) to change a floating-point value, one singleStep
 * per pixel, with no visible range.
 *
 * The wheel keeps its own double value and range; the integer value of the
 * QAbstractSlider base only mirrors it (truncated), so listen to
 * valueChanged(double). In relative mode a drag leaves the value alone and
 * reports each increment through valueAdded(), for hosts that apply the
 * change to many objects at once.
 * @code
 * auto* angle = new QUxWheel(parent);
 * angle->setRange(0.0, 360.0);
 * angle->setWrapsAround(true);
 * angle->setSingleStep(0.5);
 * connect(angle, &QUxWheel::valueChanged, this, &Camera::setYaw);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxWheel : public QAbstractSlider
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep NOTIFY singleStepChanged)
    Q_PROPERTY(bool wrapsAround READ wrapsAround WRITE setWrapsAround)
    Q_PROPERTY(bool ignoreRange READ ignoreRange WRITE setIgnoreRange)
    Q_PROPERTY(bool limitedDrag READ limitedDrag WRITE setLimitedDrag)
    Q_PROPERTY(bool emitRelativeValue READ emitsRelativeValue WRITE setEmitRelativeValue)
    Q_PROPERTY(int cogCount READ cogCount WRITE setCogCount)
    Q_PROPERTY(double transmissionRatio READ transmissionRatio WRITE setTransmissionRatio)

public:
    /// A horizontal wheel over the full integer range.
    explicit QUxWheel(QWidget* parent = nullptr);
    /**
     * The first two arguments are not used. The range starts out inverted
     * (minimum -2147483647 above maximum -2147483648), so dragged values clamp
     * to -2147483647 until setRange() or setIgnoreRange(true) is called.
     */
    QUxWheel(int, int, int pageStep, int value, Qt::Orientation orientation, QWidget* parent = nullptr);
    ~QUxWheel() override;

    double value() const;
    /// Sets the value without any range rule and without emitting.
    void updateValue(double value);

    /// The bounds are stored as given; the current value is left as it is.
    void setRange(double minimum, double maximum);
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    double minimum() const;
    double maximum() const;

    double singleStep() const;

    /// Values leaving the range re-enter at the other end instead of clamping.
    void setWrapsAround(bool wraps);
    bool wrapsAround() const;
    /// Switches clamping and wrapping off altogether.
    void setIgnoreRange(bool ignore);
    bool ignoreRange() const;
    void setLimitedDrag(bool limited);
    bool limitedDrag() const;
    /// In relative mode a drag emits valueAdded() instead of changing the value.
    void setEmitRelativeValue(bool relative);
    bool emitsRelativeValue() const;

    /// Number of ribs across the visible face; counts below 1 are ignored.
    void setCogCount(int count);
    int cogCount() const;
    /// How far the ribs travel per pixel of drag.
    virtual void setTransmissionRatio(double ratio);
    double transmissionRatio() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    /// Stores @p value unclamped and emits valueChanged() on every call.
    void setValue(double value);
    /// The value change per pixel of drag and per arrow key.
    void setSingleStep(double step);

signals:
    void valueChanged(double value);
    /// A drag step in relative mode; @p value is the increment.
    void valueAdded(double value);
    void singleStepChanged(double value);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void sliderChange(SliderChange change) override;

private:
    int positionAlong(const QMouseEvent* event) const;
    void applyDragStep(int position);
    void applyRangeRule(double value);
    void stepBy(SliderAction action, double step);
    void storeValue(double value);
    void syncBaseValue();

    std::unique_ptr<QUxWheelPrivate> const d;
};
