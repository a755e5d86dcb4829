#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>

class QUxSliderSwitchPrivate;

/**
 * An on/off switch drawn as a rounded track with a round knob that slides
 * to the side of the current state. A left click toggles it.
 * @code
 * auto* lights = new QUxSliderSwitch(parent);
 * lights->setOn(true);
 * connect(lights, &QUxSliderSwitch::toggled, this, &Viewer::setLightsVisible);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxSliderSwitch : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool on READ isOn WRITE setOn NOTIFY toggled USER true)

public:
    explicit QUxSliderSwitch(QWidget* parent = nullptr);
    ~QUxSliderSwitch() override;

    /// Sets the state and slides the knob there; emits toggled() on every call.
    void setOn(bool on);
    bool isOn() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    /// Moves the knob one pixel toward the side of the current state.
    void animateSlider();

signals:
    void toggled(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    std::unique_ptr<QUxSliderSwitchPrivate> const d;
};
