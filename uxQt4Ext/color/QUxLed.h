#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>

class QUxLedPrivate;

/**
 * A status lamp drawing one of the library's marker icons: the on colour and
 * shape while its value is true, the off colour and shape otherwise. The icon
 * is scaled to the whole widget.
 * @code
 * auto* lamp = new QUxLed(statusBar);
 * lamp->setOnColor(QUxLed::GREEN);
 * lamp->setOffShape(QUxLed::SQUARE);
 * connect(connection, &Connection::stateChanged, lamp, &QUxLed::setValue);
 * @endcode
 * The lamp emits no signals; every setter repaints, changed or not.
 */
class UXQT4EXT_EXPORT QUxLed : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool value READ value WRITE setValue)
    Q_PROPERTY(ledColor onColor READ onColor WRITE setOnColor)
    Q_PROPERTY(ledColor offColor READ offColor WRITE setOffColor)
    Q_PROPERTY(ledShape onShape READ onShape WRITE setOnShape)
    Q_PROPERTY(ledShape offShape READ offShape WRITE setOffShape)
public:
    // int-based, so that any integer a host passes (through a property, say) is a value of the type
    enum ledColor : int { RED = 0, GREEN, YELLOW, GREY, ORANGE, PURPLE, BLUE, BLACK, WHITE };
    Q_ENUM(ledColor)
    enum ledShape : int { CIRCLE = 0, SQUARE, TRIANGLE, ROUNDED, TRIANGLE_R };
    Q_ENUM(ledShape)

    explicit QUxLed(QWidget* parent = nullptr);
    ~QUxLed() override;

    bool value() const;
    ledColor onColor() const;
    ledColor offColor() const;
    ledShape onShape() const;
    ledShape offShape() const;

    /// Resource path of the icon for @p shape in @p color (":/resources/circle_red.svg").
    static QString iconPath(ledShape shape, ledColor color);

    QSize sizeHint() const override;

public slots:
    void setValue(bool value);
    void setOnColor(ledColor color);
    void setOffColor(ledColor color);
    void setOnShape(ledShape shape);
    void setOffShape(ledShape shape);
    void toggleValue();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<QUxLedPrivate> const d;
};
