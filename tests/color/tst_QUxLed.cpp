#include <QUxLed.h>

#include <QCheckBox>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>

namespace {

const QStringList shapeNames{"circle", "square", "triang", "round", "triangR"};
const QStringList colorNames{"red", "green", "yellow", "grey", "orange", "purple", "blue", "black", "white"};

QString resourcePath(int shape, int color)
{
    return QStringLiteral(":/resources/%1_%2.svg").arg(shapeNames.at(shape), colorNames.at(color));
}

QImage renderResource(const QString& path, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(path);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

QImage paintLed(QUxLed& led)
{
    QImage image(led.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    led.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// Whether a marker's body has the colour its name promises (in ledColor order):
// which channel dominates, or how light a neutral is.
using Tone = bool (*)(int r, int g, int b);
const Tone tones[] = {
    [](int r, int g, int b) { return r > 150 && g < 100 && b < 100; },                              // red
    [](int r, int g, int b) { return g > 120 && r < 100 && b < 120; },                              // green
    [](int r, int g, int b) { return r > 180 && g > 150 && b < 100; },                              // yellow
    [](int r, int g, int b) { return qAbs(r - g) < 20 && qAbs(g - b) < 20 && r > 100 && r < 200; }, // grey
    [](int r, int g, int b) { return r > 180 && g > 70 && g < 170 && b < 80; },                     // orange
    [](int r, int g, int b) { return r > 90 && b > 120 && g < 100; },                               // purple
    [](int r, int, int b) { return b > 150 && r < 100; },                                           // blue
    [](int r, int g, int b) { return r < 70 && g < 70 && b < 70; },                                 // black
    [](int r, int g, int b) { return r > 215 && g > 215 && b > 215; },                              // white
};

} // namespace

class tst_QUxLed : public QObject
{
    Q_OBJECT

private slots:
    void shouldStartOffAsGreyCircleNumberEnumsAsPublishedAndTakeSettingsByText()
    {
        QUxLed led;
        QCOMPARE(led.value(), false);
        QCOMPARE((QList<int>{led.onColor(), led.offColor(), led.onShape(), led.offShape()}),
                 (QList<int>{QUxLed::RED, QUxLed::GREY, QUxLed::CIRCLE, QUxLed::CIRCLE}));
        led.resize(20, 20);
        QCOMPARE(paintLed(led), renderResource(QStringLiteral(":/resources/circle_grey.svg"), led.size()));
        QCOMPARE((QList<int>{QUxLed::RED, QUxLed::GREEN, QUxLed::YELLOW, QUxLed::GREY, QUxLed::ORANGE, QUxLed::PURPLE,
                             QUxLed::BLUE, QUxLed::BLACK, QUxLed::WHITE, QUxLed::CIRCLE, QUxLed::SQUARE,
                             QUxLed::TRIANGLE, QUxLed::ROUNDED, QUxLed::TRIANGLE_R}),
                 (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 0, 1, 2, 3, 4}));

        QCheckBox box; // hosts connect and set it by text
        QVERIFY(QObject::connect(&box, SIGNAL(toggled(bool)), &led, SLOT(setValue(bool))));
        box.setChecked(true);
        QCOMPARE(led.value(), true);
        for (const char* slot : {"setValue(bool)", "setOnColor(ledColor)", "setOffColor(ledColor)",
                                 "setOnShape(ledShape)", "setOffShape(ledShape)", "toggleValue()"})
            QVERIFY2(led.metaObject()->indexOfSlot(slot) >= 0, slot);
        QVERIFY(led.setProperty("onColor", QVariant::fromValue(QUxLed::BLUE)));
        QVERIFY(led.setProperty("offShape", QVariant::fromValue(QUxLed::TRIANGLE_R)));
        QCOMPARE((QList<int>{led.onColor(), led.offShape()}), (QList<int>{QUxLed::BLUE, QUxLed::TRIANGLE_R}));
    }

    void shouldShipAndPaintEveryMarker_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<int>("color");
        for (int shape = 0; shape < shapeNames.size(); ++shape) {
            for (int color = 0; color < colorNames.size(); ++color)
                QTest::newRow(qPrintable(resourcePath(shape, color))) << shape << color;
        }
    }

    void shouldShipAndPaintEveryMarker()
    {
        QFETCH(int, shape);
        QFETCH(int, color);
        const QString path = resourcePath(shape, color);
        QCOMPARE(QUxLed::iconPath(QUxLed::ledShape(shape), QUxLed::ledColor(color)), path);
        const QImage image = renderResource(path, QSize(32, 32));
        const QColor body = image.pixelColor(16, 20); // below the highlight
        QCOMPARE(body.alpha(), 255);
        QVERIFY2(tones[color](body.red(), body.green(), body.blue()), qPrintable(body.name()));
        QCOMPARE(image.pixelColor(0, 31).alpha(), 0); // corners stay clear

        // Lit, this row's marker; unlit, the next shape in the next colour.
        QUxLed led;
        led.resize(24, 24);
        led.setOnShape(QUxLed::ledShape(shape));
        led.setOnColor(QUxLed::ledColor(color));
        led.setOffShape(QUxLed::ledShape((shape + 1) % 5));
        led.setOffColor(QUxLed::ledColor((color + 1) % 9));
        const QImage on = renderResource(path, led.size());
        const QImage off = renderResource(resourcePath((shape + 1) % 5, (color + 1) % 9), led.size());
        QCOMPARE(paintLed(led), off);
        led.toggleValue();
        QCOMPARE(led.value(), true);
        QCOMPARE(paintLed(led), on);
    }
};

QTEST_MAIN(tst_QUxLed)
#include "tst_QUxLed.moc"
