#pragma once

#include "uxQt4ExtGlobal.h"

#include <QSlider>
#include <QWidget>

#include <memory>

class QHBoxLayout;
class QLabel;
class QSpinBox;
class QUxWhiteBalancePrivate;

/**
 * Colour-temperature editor in Kelvin: a slider between the labels "Cold" and
 * "Warm" and a spin box with the suffix "K", kept in step with each other.
 * The slider always spans 1000 K to 15000 K; setMinimum() and setMaximum()
 * move only the spin box's limits, so typed values may go beyond the slider.
 *
 * A new control reads 1000 until the host sets its value. A programmatic
 * setValue() emits valueChanged() twice (once relayed from the spin box, once
 * from the control itself); hosts connected to it rely on that.
 * @code
 * auto* balance = new QUxWhiteBalance(panel, "WhiteBalance");
 * balance->setValue(6500);
 * connect(balance, &QUxWhiteBalance::valueChanged, renderer, &Renderer::setWhitePoint);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxWhiteBalance : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int step READ step WRITE setStep)
    Q_PROPERTY(SliderTicks ticks READ ticks WRITE setTicks)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString trailer READ trailer WRITE setTrailer)
    Q_PROPERTY(QString epilog READ epilog WRITE setEpilog)
public:
    /// Tick positions of the slider, the values of QSlider::TickPosition.
    // int-based, so that any integer a host passes (through a property, say) is a value of the type
    enum SliderTicks : int {
        NoTicks = QSlider::NoTicks,
        TicksAbove = QSlider::TicksAbove,
        TicksBelow = QSlider::TicksBelow,
        TicksBothSides = QSlider::TicksBothSides,
        TicksLeft = QSlider::TicksLeft,
        TicksRight = QSlider::TicksRight
    };
    Q_ENUM(SliderTicks)

    explicit QUxWhiteBalance(QWidget* parent = nullptr, const char* name = nullptr);
    ~QUxWhiteBalance() override;

    int value() const;
    int minimum() const;
    int maximum() const;
    /**
     * Sets the spin box's value, which clamps it to its range; unless the spin
     * box already shows @p value, then emits valueChanged(@p value) itself,
     * after the spin box's own report of a change.
     */
    void setValue(int value);
    /// Lower limit of the spin box only.
    void setMinimum(int minimum);
    /// Upper limit of the spin box only.
    void setMaximum(int maximum);

    /// Single step of the spin box.
    int step() const;
    /// Single step of both spin box and slider.
    void setStep(int step);

    SliderTicks ticks() const;
    void setTicks(SliderTicks ticks);

    QString suffix() const;
    void setSuffix(const QString& suffix);
    /// Text of the label left of the slider ("Cold").
    QString trailer() const;
    void setTrailer(const QString& text);
    /// Text of the label right of the slider ("Warm").
    QString epilog() const;
    void setEpilog(const QString& text);

signals:
    void valueChanged(int value);

protected:
    QSlider* createSlider();
    QSpinBox* createSpinner();
    QLabel* createLabel(const QString& text);
    QHBoxLayout* createLayout();
    /// Places the labels, slider and spin box into the layout, left to right.
    void propagateLayout();
    /// Builds and wires the child controls.
    void init();
    void setName(const char* name);

private:
    void stayInSync(QSlider* slider, QSpinBox* spinBox);

    std::unique_ptr<QUxWhiteBalancePrivate> const d;
};
