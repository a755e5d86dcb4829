#include <QUxLed.h>

#include <QCheckBox>
#include <QFile>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>
#include <QTest>

namespace {

const QStringList shapeNames{"circle", "square", "triang", "round", "triangR"};
const QStringList colorNames{"red", "green", "yellow", "grey", "orange", "purple", "blue", "black", "white"};

// Representative body colour of each marker, to check that a file holds the
// colour its name promises: which channel dominates, or how light a neutral is.
enum class Tone { Red, Green, Yellow, Grey, Orange, Purple, Blue, Black, White };

QString resourcePath(int shape, int color)
{
    return QStringLiteral(":/resources/%1_%2.svg").arg(shapeNames.at(shape), colorNames.at(color));
}

QImage transparentImage(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage renderResource(const QString& path, const QSize& size)
{
    QImage image = transparentImage(size);
    QSvgRenderer renderer(path);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

QImage paintLed(QUxLed& led)
{
    QImage image = transparentImage(led.size());
    led.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

bool hasTone(const QColor& c, Tone tone)
{
    const int r = c.red();
    const int g = c.green();
    const int b = c.blue();
    switch (tone) {
    case Tone::Red:
        return r > 150 && g < 100 && b < 100;
    case Tone::Green:
        return g > 120 && r < 100 && b < 120;
    case Tone::Yellow:
        return r > 180 && g > 150 && b < 100;
    case Tone::Orange:
        return r > 180 && g > 70 && g < 170 && b < 80;
    case Tone::Purple:
        return r > 90 && b > 120 && g < 100;
    case Tone::Blue:
        return b > 150 && r < 100;
    case Tone::Grey:
        return qAbs(r - g) < 20 && qAbs(g - b) < 20 && r > 100 && r < 200;
    case Tone::Black:
        return r < 70 && g < 70 && b < 70;
    case Tone::White:
        return r > 215 && g > 215 && b > 215;
    }
    return false;
}

} // namespace

class tst_QUxLed : public QObject
{
    Q_OBJECT

private slots:
    void shouldStartOffWithRedOnAndGreyOffCircles();
    void shouldNumberColorsAndShapesAsPublished();
    void shouldShipEveryMarkerResource_data();
    void shouldShipEveryMarkerResource();
    void shouldShipDistinctMarkers();
    void shouldPaintTheOnIconOfItsShapeAndColor_data();
    void shouldPaintTheOnIconOfItsShapeAndColor();
    void shouldPaintTheOffIconWhileOff();
    void shouldSwitchIconsOnToggle();
    void shouldConnectSlotsByText();
};

void tst_QUxLed::shouldStartOffWithRedOnAndGreyOffCircles()
{
    QUxLed led;
    QCOMPARE(led.value(), false);
    QCOMPARE(led.onColor(), QUxLed::RED);
    QCOMPARE(led.offColor(), QUxLed::GREY);
    QCOMPARE(led.onShape(), QUxLed::CIRCLE);
    QCOMPARE(led.offShape(), QUxLed::CIRCLE);
}

void tst_QUxLed::shouldNumberColorsAndShapesAsPublished()
{
    const QList<QUxLed::ledColor> colors{QUxLed::RED,    QUxLed::GREEN, QUxLed::YELLOW, QUxLed::GREY, QUxLed::ORANGE,
                                         QUxLed::PURPLE, QUxLed::BLUE,  QUxLed::BLACK,  QUxLed::WHITE};
    for (int i = 0; i < colors.size(); ++i)
        QCOMPARE(int(colors.at(i)), i);
    const QList<QUxLed::ledShape> shapes{QUxLed::CIRCLE, QUxLed::SQUARE, QUxLed::TRIANGLE, QUxLed::ROUNDED,
                                         QUxLed::TRIANGLE_R};
    for (int i = 0; i < shapes.size(); ++i)
        QCOMPARE(int(shapes.at(i)), i);
    QCOMPARE(QUxLed::iconPath(QUxLed::TRIANGLE_R, QUxLed::PURPLE), QStringLiteral(":/resources/triangR_purple.svg"));
    QCOMPARE(QUxLed::iconPath(QUxLed::ROUNDED, QUxLed::WHITE), QStringLiteral(":/resources/round_white.svg"));
}

void tst_QUxLed::shouldShipEveryMarkerResource_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("tone");
    for (int shape = 0; shape < shapeNames.size(); ++shape) {
        for (int color = 0; color < colorNames.size(); ++color)
            QTest::newRow(qPrintable(resourcePath(shape, color))) << resourcePath(shape, color) << color;
    }
}

void tst_QUxLed::shouldShipEveryMarkerResource()
{
    QFETCH(QString, path);
    QFETCH(int, tone);
    QVERIFY(QFile::exists(path));
    QSvgRenderer renderer(path);
    QVERIFY(renderer.isValid());
    const QImage image = renderResource(path, QSize(32, 32));
    const QColor body = image.pixelColor(16, 20); // below the highlight
    QCOMPARE(body.alpha(), 255);
    QVERIFY2(hasTone(body, Tone(tone)), qPrintable(body.name()));
    QCOMPARE(image.pixelColor(0, 31).alpha(), 0); // corners stay clear
}

void tst_QUxLed::shouldShipDistinctMarkers()
{
    QSet<QByteArray> seen;
    for (int shape = 0; shape < shapeNames.size(); ++shape) {
        for (int color = 0; color < colorNames.size(); ++color) {
            const QImage image = renderResource(resourcePath(shape, color), QSize(24, 24));
            const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()), int(image.sizeInBytes()));
            QVERIFY2(!seen.contains(bytes), qPrintable(resourcePath(shape, color)));
            seen.insert(bytes);
        }
    }
    QCOMPARE(seen.size(), 45);
}

void tst_QUxLed::shouldPaintTheOnIconOfItsShapeAndColor_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<int>("color");
    for (int shape = 0; shape < shapeNames.size(); ++shape) {
        for (int color = 0; color < colorNames.size(); ++color)
            QTest::newRow(qPrintable(resourcePath(shape, color))) << shape << color;
    }
}

void tst_QUxLed::shouldPaintTheOnIconOfItsShapeAndColor()
{
    QFETCH(int, shape);
    QFETCH(int, color);
    QUxLed led;
    led.resize(24, 24);
    led.setOffColor(QUxLed::ledColor((color + 1) % 9));
    led.setOffShape(QUxLed::ledShape((shape + 1) % 5));
    led.setOnShape(QUxLed::ledShape(shape));
    led.setOnColor(QUxLed::ledColor(color));
    led.setValue(true);
    QCOMPARE(paintLed(led), renderResource(resourcePath(shape, color), led.size()));
}

void tst_QUxLed::shouldPaintTheOffIconWhileOff()
{
    QUxLed led;
    led.resize(20, 20);
    QCOMPARE(paintLed(led), renderResource(QStringLiteral(":/resources/circle_grey.svg"), led.size()));
    led.setOffShape(QUxLed::ROUNDED);
    led.setOffColor(QUxLed::BLUE);
    led.setOnShape(QUxLed::TRIANGLE);
    QCOMPARE(paintLed(led), renderResource(QStringLiteral(":/resources/round_blue.svg"), led.size()));
}

void tst_QUxLed::shouldSwitchIconsOnToggle()
{
    QUxLed led;
    led.resize(20, 20);
    led.setOnColor(QUxLed::GREEN);
    const QImage off = renderResource(QStringLiteral(":/resources/circle_grey.svg"), led.size());
    const QImage on = renderResource(QStringLiteral(":/resources/circle_green.svg"), led.size());
    led.toggleValue();
    QCOMPARE(led.value(), true);
    QCOMPARE(paintLed(led), on);
    led.toggleValue();
    QCOMPARE(led.value(), false);
    QCOMPARE(paintLed(led), off);
}

void tst_QUxLed::shouldConnectSlotsByText()
{
    QCheckBox box;
    QUxLed led;
    QVERIFY(QObject::connect(&box, SIGNAL(toggled(bool)), &led, SLOT(setValue(bool))));
    box.setChecked(true);
    QCOMPARE(led.value(), true);
    const QMetaObject* meta = led.metaObject();
    for (const char* slot : {"setValue(bool)", "setOnColor(ledColor)", "setOffColor(ledColor)", "setOnShape(ledShape)",
                             "setOffShape(ledShape)", "toggleValue()"})
        QVERIFY2(meta->indexOfSlot(slot) >= 0, slot);
    QVERIFY(led.setProperty("onColor", QVariant::fromValue(QUxLed::BLUE)));
    QVERIFY(led.setProperty("offShape", QVariant::fromValue(QUxLed::TRIANGLE_R)));
    QCOMPARE(led.onColor(), QUxLed::BLUE);
    QCOMPARE(led.offShape(), QUxLed::TRIANGLE_R);
}

QTEST_MAIN(tst_QUxLed)
#include "tst_QUxLed.moc"
