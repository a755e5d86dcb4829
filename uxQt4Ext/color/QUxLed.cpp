#include "QUxLed.h"

#include <uxPlatform.h>

#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>

class QUxLedPrivate
{
public:
    bool value = false;
    QUxLed::ledColor onColor = QUxLed::RED;
    QUxLed::ledColor offColor = QUxLed::GREY;
    QUxLed::ledShape onShape = QUxLed::CIRCLE;
    QUxLed::ledShape offShape = QUxLed::CIRCLE;
    QSvgRenderer renderer;
    QString loadedPath;

    bool load(const QString& path)
    {
        if (path != loadedPath && renderer.load(path))
            loadedPath = path;
        return !loadedPath.isEmpty() && loadedPath == path;
    }

    static const QStringList& shapePrefixes()
    {
        static const QStringList prefixes{QStringLiteral(":/resources/circle_"), QStringLiteral(":/resources/square_"),
                                          QStringLiteral(":/resources/triang_"), QStringLiteral(":/resources/round_"),
                                          QStringLiteral(":/resources/triangR_")};
        return prefixes;
    }

    static const QStringList& colorFileNames()
    {
        static const QStringList names{
            QStringLiteral("red.svg"),  QStringLiteral("green.svg"),  QStringLiteral("yellow.svg"),
            QStringLiteral("grey.svg"), QStringLiteral("orange.svg"), QStringLiteral("purple.svg"),
            QStringLiteral("blue.svg"), QStringLiteral("black.svg"),  QStringLiteral("white.svg")};
        return names;
    }
};

QUxLed::QUxLed(QWidget* parent) : QWidget(parent), d(new QUxLedPrivate) {}

QUxLed::~QUxLed() = default;

bool QUxLed::value() const { return d->value; }
QUxLed::ledColor QUxLed::onColor() const { return d->onColor; }
QUxLed::ledColor QUxLed::offColor() const { return d->offColor; }
QUxLed::ledShape QUxLed::onShape() const { return d->onShape; }
QUxLed::ledShape QUxLed::offShape() const { return d->offShape; }

QString QUxLed::iconPath(ledShape shape, ledColor color)
{
    const QStringList& prefixes = QUxLedPrivate::shapePrefixes();
    const QStringList& names = QUxLedPrivate::colorFileNames();
    if (shape < 0 || shape >= prefixes.size() || color < 0 || color >= names.size())
        return QString();
    return prefixes.at(shape) + names.at(color);
}

QSize QUxLed::sizeHint() const
{
    return QSize(qRound(16 * uxPlatform::getDpiScaleX()), qRound(16 * uxPlatform::getDpiScaleY()));
}

void QUxLed::setValue(bool value)
{
    d->value = value;
    update();
}

void QUxLed::setOnColor(ledColor color)
{
    d->onColor = color;
    update();
}

void QUxLed::setOffColor(ledColor color)
{
    d->offColor = color;
    update();
}

void QUxLed::setOnShape(ledShape shape)
{
    d->onShape = shape;
    update();
}

void QUxLed::setOffShape(ledShape shape)
{
    d->offShape = shape;
    update();
}

void QUxLed::toggleValue() { setValue(!d->value); }

void QUxLed::paintEvent(QPaintEvent*)
{
    const QString path = d->value ? iconPath(d->onShape, d->onColor) : iconPath(d->offShape, d->offColor);
    if (path.isEmpty() || !d->load(path))
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    d->renderer.render(&painter);
}
