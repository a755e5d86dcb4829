#pragma once

#include "uxQt4ExtGlobal.h"

#include "QUxDoubleSpiner.h"

#include <QWidget>

#include <memory>

class QUxSliderPrivate;

/**
 * A floating-point slider: a QSlider and a QUxDoubleSpiner side by side.
 *
 * The soft range (minValue .. maxValue) is the slider's travel, cut into
 * ticks of lineStep. The hard range (hardMinValue .. hardMaxValue) bounds
 * every value, so a value typed into the spin box may lie beyond the travel;
 * the handle then rests at the end.
 * @code
 * auto* opacity = new QUxSlider(0.0, 1.0, 0.05, 1.0, Qt::Horizontal, parent, "opacity");
 * opacity->setHardRange(0.0, 1.0);
 * connect(opacity, &QUxSlider::valueChanged, material, &Material::setOpacity);
 * @endcode
 *
 * setValue() emits valueChanged() even when the value stays. When it moves
 * the handle, the sequence is valueChanged(), sliderReleased(), valueChanged().
 */
class UXQT4EXT_EXPORT QUxSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(double minValue READ minValue WRITE setMinimum)
    Q_PROPERTY(double maxValue READ maxValue WRITE setMaximum)
    Q_PROPERTY(double hardMinValue READ hardMinValue WRITE setHardMinimum)
    Q_PROPERTY(double hardMaxValue READ hardMaxValue WRITE setHardMaximum)
    Q_PROPERTY(double lineStep READ lineStep WRITE setLineStep)
    Q_PROPERTY(double pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(SliderPosition sliderPos READ sliderPos WRITE setSliderPos)
    Q_PROPERTY(bool tracking READ hasTracking WRITE setTracking)

public:
    using RelativeOperator = QUxDoubleSpiner::RelativeOperator;
    using RelativeOperatorHandlingMode = QUxDoubleSpiner::RelativeOperatorHandlingMode;

    /// Side of the slider relative to the spin box.
    // int-based, so that any integer a host passes (through a property, say) is a value of the type
    enum SliderPosition : int { Left = 0, Right = 1 };
    Q_ENUM(SliderPosition)

    /// Horizontal, soft range 0 .. 1; a non-null @p name becomes the object name.
    explicit QUxSlider(QWidget* parent = nullptr, const char* name = nullptr);
    /// The page step of the slider becomes @p lineStep truncated to whole ticks.
    QUxSlider(double minimum, double maximum, double lineStep, double value, Qt::Orientation orientation,
              QWidget* parent = nullptr, const char* name = nullptr);
    ~QUxSlider() override;

    double value() const;

    /// Soft range, the slider's travel.
    void setRange(double minimum, double maximum);
    double minValue() const;
    double maxValue() const;
    /// Hard range, the clamp of every value; the current value is clamped into it.
    void setHardRange(double minimum, double maximum);
    double hardMinValue() const;
    double hardMaxValue() const;

    /// setLineStep(lineStep) and setPageStep(pageStep).
    void setSteps(double lineStep, double pageStep);
    /// Value of one slider tick.
    double lineStep() const;
    /// The slider's page step in ticks times lineStep.
    double pageStep() const;

    void setTracking(bool enable);
    bool hasTracking() const;

    /// Shows or hides the spin box.
    void showValue(bool show);
    void setDecimals(int decimals);
    void setDisplayDecimals(int decimals);
    void setUseExactDisplayDecimals(bool enabled);
    void setSuffix(const QString& suffix);
    void setRelativeOperatorHandlingMode(RelativeOperatorHandlingMode mode);

    void setSliderPos(SliderPosition position);
    SliderPosition sliderPos() const;

    /// Gives slider and spin box this widget's "multiselect" style property.
    Q_INVOKABLE void propagateMultiselectProperty();

    QSize sizeHint() const override;

public slots:
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setHardMinimum(double minimum);
    void setHardMaximum(double maximum);
    /// Value of one slider tick; the spin box steps by it too.
    void setLineStep(double lineStep);
    /// Stores (int) @p pageStep as the slider's page step in ticks.
    void setPageStep(double pageStep);
    /// Clamps to the hard range; emits valueChanged() on every call.
    void setValue(double value);
    /// Enables the widget, the slider and the spin box.
    virtual void setEnabled(bool enable);

    void onValueChanged(int position);
    void onSliderPressed();
    void onSliderMoved(int position);
    void onSliderReleased();

signals:
    void valueChanged(double value);
    void sliderPressed();
    void sliderMoved(double value);
    void sliderReleased();
    /// Return or Enter committed the spin box.
    void changedReturn();
    void relativeOperatorApplied(RelativeOperator op, double value);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void appliedRelativeOperator(RelativeOperator op, double value);

private:
    void init(Qt::Orientation orientation, const char* name);
    void adjustSlider();
    void showInSpinner(double value);
    void onSpinnerEditingFinished();

    std::unique_ptr<QUxSliderPrivate> const d;
};
