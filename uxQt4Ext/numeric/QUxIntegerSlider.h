#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>

class QUxIntegerSliderPrivate;

/**
 * An integer slider with a spin box beside it and optional labels: a prefix
 * before the slider and a special suffix between slider and spin box.
 *
 * The soft range (setMinimum/setMaximum) is the slider's travel; the hard
 * range (setHardMinimum/setHardMaximum) bounds what may be typed, so a typed
 * value may lie beyond the slider's ends.
 * @code
 * auto* samples = new QUxIntegerSlider(parent, "samples");
 * samples->setMinimum(1);
 * samples->setMaximum(64);
 * samples->setHardMaximum(4096);
 * samples->setPrefix(tr("Samples"));
 * samples->setSuffix(tr(" px"));
 * connect(samples, &QUxIntegerSlider::valueChanged, renderer, &Renderer::setSamples);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxIntegerSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int hardMinimum READ hardMinimum WRITE setHardMinimum)
    Q_PROPERTY(int hardMaximum READ hardMaximum WRITE setHardMaximum)
    Q_PROPERTY(int step READ step WRITE setStep)
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString specialSuffix READ specialSuffix WRITE setSpecialSuffix)
    Q_PROPERTY(SliderTicks ticks READ ticks WRITE setTicks)
    Q_PROPERTY(bool tracking READ hasTracking WRITE setTracking)

public:
    /// Tick marks of the slider, the values of QSlider::TickPosition.
    // int-based, so that any integer a host passes (through a property, say) is a value of the type
    enum SliderTicks : int {
        NoTicks = 0,
        TicksAbove = 1,
        TicksLeft = TicksAbove,
        TicksBelow = 2,
        TicksRight = TicksBelow,
        TicksBothSides = 3
    };
    Q_ENUM(SliderTicks)

    /// A non-null @p name becomes the object name.
    explicit QUxIntegerSlider(QWidget* parent = nullptr, const char* name = nullptr);
    ~QUxIntegerSlider() override;

    /// Emits valueChanged() when @p value differs from the current one.
    void setValue(int value);
    int value() const;

    /// Lower end of the slider's travel and of the spin box.
    void setMinimum(int minimum);
    int minimum() const;
    /// Upper end of the slider's travel and of the spin box.
    void setMaximum(int maximum);
    int maximum() const;
    void setStep(int step);
    int step() const;
    void setPageStep(int pageStep);
    int pageStep() const;

    /// Lower bound of typed values only; the slider keeps its travel.
    void setHardMinimum(int minimum);
    int hardMinimum() const;
    /// Upper bound of typed values only; the slider keeps its travel.
    void setHardMaximum(int maximum);
    int hardMaximum() const;

    /// Text of the label before the slider; hidden while empty.
    void setPrefix(const QString& text);
    QString prefix() const;
    /// The spin box's suffix.
    void setSuffix(const QString& text);
    QString suffix() const;
    /// Text of the label between slider and spin box; hidden while empty.
    void setSpecialSuffix(const QString& text);
    QString specialSuffix() const;

    void setTicks(SliderTicks ticks);
    SliderTicks ticks() const;
    void setTracking(bool enable);
    bool hasTracking() const;

signals:
    void valueChanged(int value);

protected:
    /// Builds the children; called once by the constructor.
    void init();
    void createLayout();
    void createSlider();
    void createSpinner();
    /// Places prefix label, slider, special-suffix label and spin box in the layout.
    void propagateLayout();
    void setName(const char* name);

private:
    void onSliderValueChanged(int value);
    void onSpinnerValueChanged(int value);

    std::unique_ptr<QUxIntegerSliderPrivate> const d;
};
