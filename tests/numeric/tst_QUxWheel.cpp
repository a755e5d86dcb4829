#include <QUxWheel.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QApplication>
#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr double IntRange = 2147483647.0;

using uxTest::drag;
using uxTest::moveMouse;
using uxTest::turnWheel;

double columnLightness(const QImage& image, int x)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        sum += QColor(image.pixel(x, y)).lightnessF();
    return sum / image.height();
}

/// One drag across a wheel with range 0 to 360; a vertical wheel is dragged along y and sideways by 8 pixels.
struct DragCase
{
    bool vertical, wraps, ignore;
    double start, step;
    int from, to;
    double expected;
};

} // namespace

Q_DECLARE_METATYPE(DragCase)

class tst_QUxWheel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init() { uxPlatform::reset(); }

    void shouldStartAsHorizontalFullRangeWheelOrSixArgumentWheelWithInvertedRange()
    {
        QUxWheel wheel;
        QCOMPARE(wheel.value(), 0.0);
        QCOMPARE(wheel.minimum(), -IntRange);
        QCOMPARE(wheel.maximum(), IntRange);
        QCOMPARE(wheel.singleStep(), 1.0);
        QCOMPARE(wheel.cogCount(), 17);
        QCOMPARE(wheel.transmissionRatio(), 1.0);
        QVERIFY(!wheel.limitedDrag());
        QVERIFY(!wheel.wrapsAround());
        QVERIFY(!wheel.ignoreRange());
        QVERIFY(!wheel.emitsRelativeValue());
        QCOMPARE(wheel.orientation(), Qt::Horizontal);
        const QMetaProperty user = wheel.metaObject()->userProperty();
        QCOMPARE(user.name(), "value");
        QCOMPARE(user.notifySignal().methodSignature(), QByteArray("valueChanged(double)"));

        QUxWheel six(5, 500, 25, 42, Qt::Vertical);
        QCOMPARE(six.minimum(), -2147483647.0);
        QCOMPARE(six.maximum(), -2147483648.0);
        QCOMPARE(six.value(), 42.0);
        QCOMPARE(six.pageStep(), 25);
        QCOMPARE(six.singleStep(), 1.0);
        QCOMPARE(six.QAbstractSlider::singleStep(), 1);
        QVERIFY(six.limitedDrag());
        QCOMPARE(six.orientation(), Qt::Vertical);

        QUxWheel sixHorizontal(0, 0, 10, 0, Qt::Horizontal);
        for (const QUxWheel* w : {&wheel, &six, &sixHorizontal}) {
            const bool horizontal = w != &six;
            QCOMPARE(w->sizePolicy().horizontalPolicy(), horizontal ? QSizePolicy::Expanding : QSizePolicy::Fixed);
            QCOMPARE(w->sizePolicy().verticalPolicy(), horizontal ? QSizePolicy::Fixed : QSizePolicy::Expanding);
            QCOMPARE(w->focusPolicy(), Qt::WheelFocus);
            QVERIFY(w->testAttribute(Qt::WA_OpaquePaintEvent));
        }
    }

    void shouldClampDragToMinimumWhileRangeIsInverted()
    {
        QUxWheel wheel(0, 0, 10, 50, Qt::Horizontal);
        wheel.resize(130, 20);
        drag(&wheel, QPoint(10, 10), QPoint(60, 10));
        QCOMPARE(wheel.value(), -2147483647.0);

        wheel.setRange(0.0, 100.0);
        drag(&wheel, QPoint(10, 10), QPoint(30, 10));
        QCOMPARE(wheel.value(), 0.0);
    }

    void shouldStoreSetValueUnclampedAndEmitEveryTime()
    {
        QUxWheel wheel;
        wheel.setRange(0.0, 10.0);
        QSignalSpy spy(&wheel, &QUxWheel::valueChanged);
        wheel.setValue(25.5);
        wheel.setValue(25.5);
        QCOMPARE(wheel.value(), 25.5);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0).at(0).toDouble(), 25.5);

        wheel.setRange(30.0, 40.0);
        wheel.updateValue(-3.25);
        QCOMPARE(wheel.value(), -3.25);
        QCOMPARE(wheel.minimum(), 30.0);
        QCOMPARE(spy.count(), 2);
    }

    void shouldMirrorTruncatedValueInBaseWithoutBaseSignal_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("base");
        QTest::newRow("positive fraction") << 2.9 << 2;
        QTest::newRow("negative fraction") << -2.9 << -2;
        QTest::newRow("above int range") << 1e12 << INT_MAX;
        QTest::newRow("below int range") << -1e12 << INT_MIN;
    }

    void shouldMirrorTruncatedValueInBaseWithoutBaseSignal()
    {
        QFETCH(double, value);
        QFETCH(int, base);
        QUxWheel wheel;
        QSignalSpy baseSpy(&wheel, &QAbstractSlider::valueChanged);
        wheel.setValue(value);
        QCOMPARE(wheel.QAbstractSlider::value(), base);
        QCOMPARE(baseSpy.count(), 0);
    }

    void shouldFollowIntegerBaseAndKeepItsStepInStep()
    {
        QUxWheel wheel;
        QSignalSpy values(&wheel, &QUxWheel::valueChanged);
        QSignalSpy steps(&wheel, &QUxWheel::singleStepChanged);
        static_cast<QAbstractSlider&>(wheel).setValue(42); // a host driving the base
        QCOMPARE(wheel.value(), 42.0);
        QCOMPARE(values, QList<QVariantList>{{42.0}});
        wheel.setSingleStep(2.75);
        QCOMPARE(wheel.singleStep(), 2.75);
        QCOMPARE(wheel.QAbstractSlider::singleStep(), 2);
        QCOMPARE(steps, QList<QVariantList>{{2.75}});
    }

    void shouldApplyRangeRuleToDrag_data()
    {
        QTest::addColumn<DragCase>("drag");
        // vertical, wraps, ignore range, start, step, from, to, expected
        QTest::newRow("inside range") << DragCase{false, false, false, 10.0, 0.5, 20, 30, 15.0};
        QTest::newRow("leftwards") << DragCase{false, false, false, 10.0, 0.5, 30, 20, 5.0};
        QTest::newRow("clamped at maximum") << DragCase{false, false, false, 350.0, 1.0, 10, 40, 360.0};
        QTest::newRow("clamped at minimum") << DragCase{false, false, false, 5.0, 1.0, 40, 10, 0.0};
        QTest::newRow("wraps 370 to 10") << DragCase{false, true, false, 350.0, 1.0, 0, 20, 10.0};
        QTest::newRow("wraps -30 to 330") << DragCase{false, true, false, 10.0, 1.0, 50, 10, 330.0};
        QTest::newRow("wraps twice round") << DragCase{false, true, false, 0.0, 10.0, 0, 80, 80.0};
        QTest::newRow("wrap stops at maximum") << DragCase{false, true, false, 360.0, 10.0, 0, 36, 360.0};
        QTest::newRow("ignored range") << DragCase{false, false, true, 350.0, 1.0, 10, 40, 380.0};
        QTest::newRow("ignored range wins over wrap") << DragCase{false, true, true, 10.0, 1.0, 50, 10, -30.0};
        QTest::newRow("vertical along y only") << DragCase{true, false, false, 0.0, 1.0, 40, 65, 25.0};
    }

    void shouldApplyRangeRuleToDrag()
    {
        QFETCH(DragCase, drag);
        QUxWheel wheel;
        wheel.setOrientation(drag.vertical ? Qt::Vertical : Qt::Horizontal);
        wheel.resize(drag.vertical ? QSize(20, 130) : QSize(130, 20));
        wheel.setRange(0.0, 360.0);
        wheel.setWrapsAround(drag.wraps);
        wheel.setIgnoreRange(drag.ignore);
        wheel.setSingleStep(drag.step);
        wheel.setValue(drag.start);
        QSignalSpy spy(&wheel, &QUxWheel::valueChanged);
        if (drag.vertical)
            uxTest::drag(&wheel, QPoint(10, drag.from), QPoint(2, drag.to));
        else
            uxTest::drag(&wheel, QPoint(drag.from, 10), QPoint(drag.to, 10));
        QCOMPARE(wheel.value(), drag.expected);
        QVERIFY(!spy.isEmpty());
        QCOMPARE(spy.last().at(0).toDouble(), drag.expected);
    }

    void shouldReportIncrementsInRelativeMode()
    {
        QUxWheel wheel;
        wheel.resize(130, 20);
        wheel.setEmitRelativeValue(true);
        wheel.setSingleStep(2.0);
        wheel.setValue(7.0);
        QSignalSpy added(&wheel, &QUxWheel::valueAdded);
        QSignalSpy changed(&wheel, &QUxWheel::valueChanged);
        const QImage before = uxTest::grab(&wheel);
        drag(&wheel, QPoint(10, 10), QPoint(25, 10));
        QVERIFY(uxTest::grab(&wheel) != before); // the ribs follow the hand even though the value stays
        QCOMPARE(wheel.value(), 7.0);
        QCOMPARE(changed.count(), 0);
        // The release is a drag step of its own, reported even when it adds nothing.
        QCOMPARE(added.count(), 2);
        QCOMPARE(added.at(0).at(0).toDouble(), 30.0);
        QCOMPARE(added.at(1).at(0).toDouble(), 0.0);
    }

    void shouldApplyReleaseStepOfButtonThatNeverPressed()
    {
        QUxWheel wheel;
        wheel.resize(130, 20);
        wheel.setSingleStep(2.0);
        QTest::mouseRelease(&wheel, Qt::RightButton, Qt::NoModifier, QPoint(9, 10));
        // The drag origin is still -1, so the release counts 10 pixels.
        QCOMPARE(wheel.value(), 20.0);
    }

    void shouldNotDragWithoutTracking()
    {
        QUxWheel wheel;
        wheel.resize(130, 20);
        wheel.setTracking(false);
        QTest::mousePress(&wheel, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        moveMouse(&wheel, QPoint(30, 10));
        QCOMPARE(wheel.value(), 0.0);
        QTest::mouseRelease(&wheel, Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
        QCOMPARE(wheel.value(), 20.0);
    }

    void shouldTellBaseThatSliderIsDown()
    {
        QUxWheel wheel;
        wheel.resize(130, 20);
        QSignalSpy pressed(&wheel, &QAbstractSlider::sliderPressed);
        QSignalSpy released(&wheel, &QAbstractSlider::sliderReleased);
        QTest::mousePress(&wheel, Qt::MiddleButton, Qt::NoModifier, QPoint(10, 10));
        QVERIFY(wheel.isSliderDown());
        QCOMPARE(pressed.count(), 1);
        QTest::mouseRelease(&wheel, Qt::MiddleButton, Qt::NoModifier, QPoint(10, 10));
        QVERIFY(!wheel.isSliderDown());
        QCOMPARE(released.count(), 1);
    }

    void shouldStepWithKeysAndPassOtherKeysOn_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<int>("key");
        QTest::addColumn<double>("start");
        QTest::addColumn<double>("expected");

        // Single step 0.5, page step 10, range -20 to 20.
        QTest::newRow("right") << Qt::Horizontal << int(Qt::Key_Right) << 1.0 << 1.5;
        QTest::newRow("left") << Qt::Horizontal << int(Qt::Key_Left) << 1.0 << 0.5;
        QTest::newRow("up on horizontal") << Qt::Horizontal << int(Qt::Key_Up) << 1.0 << 1.0;
        QTest::newRow("down") << Qt::Vertical << int(Qt::Key_Down) << 1.0 << 1.5;
        QTest::newRow("up") << Qt::Vertical << int(Qt::Key_Up) << 1.0 << 0.5;
        QTest::newRow("left on vertical") << Qt::Vertical << int(Qt::Key_Left) << 1.0 << 1.0;
        QTest::newRow("page down") << Qt::Horizontal << int(Qt::Key_PageDown) << 1.0 << 11.0;
        QTest::newRow("page up") << Qt::Vertical << int(Qt::Key_PageUp) << 1.0 << -9.0;
        QTest::newRow("page down clamps") << Qt::Horizontal << int(Qt::Key_PageDown) << 15.0 << 20.0;
        QTest::newRow("home") << Qt::Horizontal << int(Qt::Key_Home) << 3.0 << -20.0;
        QTest::newRow("end") << Qt::Vertical << int(Qt::Key_End) << 3.0 << 20.0;
        QTest::newRow("other key passed on") << Qt::Horizontal << int(Qt::Key_A) << 0.0 << 0.0;
    }

    void shouldStepWithKeysAndPassOtherKeysOn()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(int, key);
        QFETCH(double, start);
        QFETCH(double, expected);

        QUxWheel wheel;
        wheel.setOrientation(orientation);
        wheel.setRange(-20.0, 20.0);
        wheel.setSingleStep(0.5);
        wheel.setPageStep(10);
        wheel.setValue(start);
        QSignalSpy spy(&wheel, &QUxWheel::valueChanged);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_A ? QStringLiteral("a") : QString());
        QApplication::sendEvent(&wheel, &press);
        QCOMPARE(press.isAccepted(), key != Qt::Key_A);
        QCOMPARE(wheel.value(), expected);
        QCOMPARE(spy.isEmpty(), expected == start);
    }

    void shouldTurnWithMouseWheel_data()
    {
        QTest::addColumn<int>("delta");
        QTest::addColumn<bool>("control");
        QTest::addColumn<double>("step");
        QTest::addColumn<double>("expected");

        // Page step 10, starting at 0: (step * delta) / 600, truncated toward zero.
        QTest::newRow("notch up adds 2") << 120 << false << 1.0 << 2.0;
        QTest::newRow("notch down subtracts 2") << -120 << false << 1.0 << -2.0;
        QTest::newRow("small delta adds nothing") << 30 << false << 1.0 << 0.0;
        QTest::newRow("truncates toward zero") << -90 << false << 1.0 << -1.0;
        QTest::newRow("control with step 1 adds nothing") << 120 << true << 1.0 << 0.0;
        QTest::newRow("control with step 5 adds 1") << 120 << true << 5.0 << 1.0;
        QTest::newRow("control truncates the step") << 600 << true << 2.9 << 2.0;
    }

    void shouldTurnWithMouseWheel()
    {
        QFETCH(int, delta);
        QFETCH(bool, control);
        QFETCH(double, step);
        QFETCH(double, expected);

        QUxWheel wheel;
        wheel.resize(130, 20);
        wheel.setPageStep(10);
        wheel.setSingleStep(step);
        QSignalSpy spy(&wheel, &QUxWheel::valueChanged);
        turnWheel(&wheel, delta, control ? Qt::ControlModifier : Qt::NoModifier);
        QCOMPARE(wheel.value(), expected);
        QCOMPARE(spy.count(), 1);
    }

    void shouldBringWheeledValueBackWithNextDragStep()
    {
        QUxWheel wheel;
        wheel.resize(130, 20);
        wheel.setRange(0.0, 100.0);
        wheel.setValue(99.0);
        turnWheel(&wheel, 240);
        QCOMPARE(wheel.value(), 103.0);
        drag(&wheel, QPoint(50, 10), QPoint(50, 10));
        QCOMPARE(wheel.value(), 100.0);
    }

    void shouldHintSizeByOrientationAndScale()
    {
        QUxWheel wheel;
        QCOMPARE(wheel.sizeHint(), QSize(130, 20));
        wheel.setOrientation(Qt::Vertical);
        QCOMPARE(wheel.sizeHint(), QSize(20, 130));
        uxPlatform::setDpiScale(1.5, 2.0);
        QCOMPARE(wheel.sizeHint(), QSize(30, 260));
        wheel.setOrientation(Qt::Horizontal);
        QCOMPARE(wheel.sizeHint(), QSize(195, 40));
    }

    void shouldPaintEveryPixelAndIgnoreCogCountBelowOne_data()
    {
        QTest::addColumn<int>("cogs");
        QTest::addColumn<int>("expected");
        QTest::newRow("one rib") << 1 << 1;
        QTest::newRow("more ribs than pixels") << INT_MAX << INT_MAX;
        QTest::newRow("zero ignored") << 0 << 17;
        QTest::newRow("negative ignored") << -4 << 17;
    }

    void shouldPaintEveryPixelAndIgnoreCogCountBelowOne()
    {
        QFETCH(int, cogs);
        QFETCH(int, expected);
        QUxWheel wheel;
        wheel.setCogCount(cogs);
        QCOMPARE(wheel.cogCount(), expected);
        wheel.resize(130, 20);
        const QImage image = uxTest::grab(&wheel);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                QCOMPARE(qAlpha(image.pixel(x, y)), 255);
    }

    void shouldMoveRibsWithValue_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal") << Qt::Horizontal;
        QTest::newRow("vertical") << Qt::Vertical;
    }

    void shouldMoveRibsWithValue()
    {
        QFETCH(Qt::Orientation, orientation);
        QUxWheel wheel;
        wheel.setOrientation(orientation);
        wheel.resize(orientation == Qt::Horizontal ? QSize(130, 20) : QSize(20, 130));
        const QImage atZero = uxTest::grab(&wheel);
        QCOMPARE(uxTest::grab(&wheel), atZero);
        wheel.setValue(3.0);
        QVERIFY(uxTest::grab(&wheel) != atZero);
        wheel.setValue(0.0);
        QCOMPARE(uxTest::grab(&wheel), atZero);
        wheel.setCogCount(5);
        QVERIFY(uxTest::grab(&wheel) != atZero);
    }

    void shouldShadeEndsDarkerThanMiddle()
    {
        QUxWheel wheel;
        wheel.resize(130, 20);
        const QImage image = uxTest::grab(&wheel);
        const double middle =
            (columnLightness(image, 60) + columnLightness(image, 65) + columnLightness(image, 70)) / 3;
        QVERIFY(columnLightness(image, 5) < middle - 0.2);
        QVERIFY(columnLightness(image, 124) < middle - 0.2);
    }

    void shouldPaintPressedAndFocusLooks()
    {
        QUxWheel wheel;
        wheel.resize(130, 20);
        const QImage idle = uxTest::grab(&wheel);
        QTest::mousePress(&wheel, Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
        const QImage pressed = uxTest::grab(&wheel);
        QTest::mouseRelease(&wheel, Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
        QVERIFY(pressed != idle);
        QCOMPARE(uxTest::grab(&wheel), idle);

        wheel.show();
        QApplication::setActiveWindow(&wheel);
        wheel.setFocus();
        QTRY_VERIFY(wheel.hasFocus());
        const QColor highlight = wheel.palette().color(QPalette::Active, QPalette::Highlight);
        QVERIFY(uxTest::sameColor(uxTest::grab(&wheel).pixelColor(65, 0), highlight, 60));
        QVERIFY(!uxTest::sameColor(idle.pixelColor(65, 0), highlight, 60));
    }
};

QTEST_MAIN(tst_QUxWheel)
#include "tst_QUxWheel.moc"
