#pragma once

#include "uxQt4ExtGlobal.h"

#include <QUxColor.h>

#include <QImage>
#include <QWidget>

#include <memory>

class QUxColorFieldPrivate;

/**
 * A two-dimensional colour picking plane. One channel of hue, saturation,
 * value, red, green, blue, L*, a* or b* is held constant (chosen by the mode);
 * the other two channels of its colour model run along x (left to right) and
 * y (bottom to top). Every pixel shows the colour a click there picks; a small
 * ring marks the current colour. Pressing or dragging with the left button
 * picks.
 * @code
 * auto* field = new QUxColorField(parent);
 * field->setMode(QUxColorField::Value); // value held; hue across, saturation up
 * field->setHSV(200.0f, 0.6f, 0.9f);
 * connect(field, &QUxColorField::colorChanged, swatch, &MySwatch::showColor);
 * @endcode
 * Pixels show the linear RGB of the picked colour in 8 bits, as
 * QUxColor::getQColor() gives it, whatever QUxColor::s_useGamma says.
 * The plane is computed once at the screen's device pixel ratio and reused
 * until size, mode, constant channel, pixel ratio or the reference white
 * change; moving the marker costs a blit.
 */
class UXQT4EXT_EXPORT QUxColorField : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QUxColorField::Mode mode READ getMode WRITE setMode)
    Q_PROPERTY(float hue READ getHue WRITE setHue NOTIFY hueChanged)
    Q_PROPERTY(float saturation READ getSaturation WRITE setSaturation NOTIFY saturationChanged)
    Q_PROPERTY(float value READ getValue WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(float constantChannel READ getConstantChannel WRITE setConstantChannel)

public:
    /// The channel held constant; the other two of its model span the plane.
    // int-based, so that any integer a host passes (through a property, say) is a value of the type
    enum Mode : int { Hue = 0, Saturation, Value, Red, Green, Blue, Lstar, Astar, Bstar };
    Q_ENUM(Mode)

    /// Mid grey (hue 0, saturation 0, value 0.5) in Hue mode.
    explicit QUxColorField(QWidget* parent = nullptr, const char* name = nullptr);
    /// Starts from linear RGB components (0 to 1), in Hue mode.
    QUxColorField(float red, float green, float blue, QWidget* parent = nullptr, const char* name = nullptr);
    ~QUxColorField() override;

    void getHSV(float& hue, float& saturation, float& value) const;
    float getHue() const;
    float getSaturation() const;
    float getValue() const;
    /// Linear RGB of the current colour, unclamped.
    void getRGB(float& red, float& green, float& blue) const;
    float getRed() const;
    float getGreen() const;
    float getBlue() const;
    void getLab(float& lstar, float& astar, float& bstar) const;
    float getLstar() const;
    float getAstar() const;
    float getBstar() const;
    /// The held channel, in its own unit (degrees, 0 to 1, or L*a*b* units).
    float getConstantChannel() const;
    QUxColor getColor() const;
    Mode getMode() const;

    QSize sizeHint() const override;

    /**
     * The plane as painted (without the marker) at the widget's size and
     * device pixel ratio. Shares the cached image, so repeated calls are cheap.
     */
    QImage fieldImage() const;

    /**
     * Computes a plane for @p mode with the held channel at @p constantChannel:
     * an image of @p size logical pixels times @p devicePixelRatio, carrying
     * that ratio, in QImage::Format_RGB32. A null image for an empty size or an
     * unknown mode.
     */
    static QImage renderField(Mode mode, float constantChannel, const QSize& size, qreal devicePixelRatio = 1.0);

signals:
    void hueChanged(float hue);
    void saturationChanged(float saturation);
    void valueChanged(float value);
    void redChanged(float red);
    void blueChanged(float blue);
    void greenChanged(float green);
    void lstarChanged(float lstar);
    void astarChanged(float astar);
    void bstarChanged(float bstar);
    void colorChanged(const QUxColor& color);
    /// Emitted when the mode changes, with the new mode's held value.
    void constantChannelChanged(float value);

public slots:
    /// Emits colorChanged and all nine channel signals, unless nothing changes.
    void setHSV(float hue, float saturation, float value);
    void setHue(float hue);
    void setSaturation(float saturation);
    void setValue(float value);
    void setRGB(float red, float green, float blue);
    void setRed(float red);
    void setGreen(float green);
    void setBlue(float blue);
    void setLab(float lstar, float astar, float bstar);
    void setLstar(float lstar);
    void setAstar(float astar);
    void setBstar(float bstar);
    void setColor(const QUxColor& color);
    void setHueMode(bool on);
    void setSaturationMode(bool on);
    void setValueMode(bool on);
    void setRedMode(bool on);
    void setGreenMode(bool on);
    void setBlueMode(bool on);
    void setLstarMode(bool on);
    void setAstarMode(bool on);
    void setBstarMode(bool on);
    /// Holds @p mode's channel at its current value; emits constantChannelChanged on a change.
    void setMode(QUxColorField::Mode mode);
    /// Moves the held channel (and with it the colour); changes within 0.001 are ignored.
    void setConstantChannel(float value);
    /// Takes the held channel from @p color.
    void updateConstantChannel(const QUxColor& color);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// Remembers the colour under a hovering pointer and refreshes its tool tip.
    void emitMouseOverColor(const QPoint& pos);

    std::unique_ptr<QUxColorFieldPrivate> const d;
};
