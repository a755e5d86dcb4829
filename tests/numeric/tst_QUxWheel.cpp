#include <QUxWheel.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QApplication>
#include <QtTest>

namespace {

constexpr double IntRange = 2147483647.0;

using uxTest::drag;
using uxTest::moveMouse;
using uxTest::turnWheel;

/// One drag across a wheel with range 0 to 360: vertical (dragged along y and sideways by 8 pixels), wraps, ignores
/// the range, start value, single step, from and to pixel, expected value.
using DragCase = std::tuple<bool, bool, bool, double, double, int, int, double>;

/// Orientation, key, start value, expected value.
using KeyCase = std::tuple<Qt::Orientation, int, double, double>;
/// Wheel delta, Ctrl held, single step, expected value.
using TurnCase = std::tuple<int, bool, double, double>;

} // namespace

Q_DECLARE_METATYPE(DragCase)
Q_DECLARE_METATYPE(KeyCase)
Q_DECLARE_METATYPE(TurnCase)

/// A horizontal wheel of the size it hints at scale 1.
struct Wheel : QUxWheel
{
    Wheel() { resize(130, 20); }
};

class tst_QUxWheel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init() { uxPlatform::reset(); }

    void shouldStartAsHorizontalFullRangeWheelOrSixArgumentWheelWithInvertedRange()
    {
        QUxWheel wheel; // value, range, step, transmission ratio
        QCOMPARE((QList<double>{wheel.value(), wheel.minimum(), wheel.maximum(), wheel.singleStep(),
                                wheel.transmissionRatio()}),
                 (QList<double>{0.0, -IntRange, IntRange, 1.0, 1.0}));
        wheel.setCogCount(0);
        wheel.setCogCount(-4); // below one is ignored
        QCOMPARE(wheel.cogCount(), 17);
        wheel.setCogCount(1);
        QCOMPARE(wheel.cogCount(), 1);
        QVERIFY(!wheel.limitedDrag() && !wheel.wrapsAround() && !wheel.ignoreRange() && !wheel.emitsRelativeValue());
        const QMetaProperty user = wheel.metaObject()->userProperty();
        QCOMPARE(user.name(), "value");
        QCOMPARE(user.notifySignal().methodSignature(), QByteArray("valueChanged(double)"));

        QUxWheel six(5, 500, 25, 42, Qt::Vertical);
        QCOMPARE((QList<double>{six.minimum(), six.maximum(), six.value(), six.singleStep()}),
                 (QList<double>{-2147483647.0, -2147483648.0, 42.0, 1.0}));
        QCOMPARE(std::make_pair(six.pageStep(), six.QAbstractSlider::singleStep()), std::make_pair(25, 1));
        QVERIFY(six.limitedDrag());
        QCOMPARE(std::make_pair(wheel.orientation(), six.orientation()), std::make_pair(Qt::Horizontal, Qt::Vertical));

        QUxWheel sixHorizontal(0, 0, 10, 50, Qt::Horizontal);
        const QSizePolicy across(QSizePolicy::Expanding, QSizePolicy::Fixed), upright(across.transposed());
        QCOMPARE((QList<QSizePolicy>{wheel.sizePolicy(), six.sizePolicy(), sixHorizontal.sizePolicy()}),
                 (QList<QSizePolicy>{across, upright, across}));
        QVERIFY(wheel.focusPolicy() == Qt::WheelFocus && six.focusPolicy() == Qt::WheelFocus);
        // Until the host sets a range, every drag clamps to the inverted range's minimum.
        sixHorizontal.resize(130, 20);
        drag(&sixHorizontal, QPoint(10, 10), QPoint(60, 10));
        QCOMPARE(sixHorizontal.value(), -IntRange);
        sixHorizontal.setRange(0.0, 100.0);
        drag(&sixHorizontal, QPoint(10, 10), QPoint(30, 10));
        QCOMPARE(sixHorizontal.value(), 0.0);
    }

    void shouldStoreValueUnclampedUntilNextDragStepEmitEveryTimeAndMirrorItInBase()
    {
        Wheel wheel;
        wheel.setRange(0.0, 10.0);
        QSignalSpy spy(&wheel, &QUxWheel::valueChanged);
        QSignalSpy baseSpy(&wheel, &QAbstractSlider::valueChanged);
        QSignalSpy steps(&wheel, &QUxWheel::singleStepChanged);
        wheel.setValue(25.5);
        wheel.setValue(25.5);
        QCOMPARE(std::make_pair(wheel.value(), wheel.QAbstractSlider::value()), std::make_pair(25.5, 25));
        wheel.setRange(30.0, 40.0);
        wheel.updateValue(-3.25); // silent; the base truncates toward zero
        QCOMPARE(std::make_pair(wheel.value(), wheel.QAbstractSlider::value()), std::make_pair(-3.25, -3));
        QCOMPARE(wheel.minimum(), 30.0);
        QCOMPARE(baseSpy.count(), 0);

        static_cast<QAbstractSlider&>(wheel).setValue(42); // a host driving the base
        QCOMPARE(wheel.value(), 42.0);
        QCOMPARE(spy, QList<QVariantList>({{25.5}, {25.5}, {42.0}}));
        turnWheel(&wheel, 240); // two notches of the page step 10 lead further out of the range
        QCOMPARE(wheel.value(), 46.0);
        drag(&wheel, QPoint(50, 10), QPoint(50, 10));
        QCOMPARE(wheel.value(), 40.0);
        wheel.setSingleStep(2.75);
        QCOMPARE(std::make_pair(wheel.singleStep(), wheel.QAbstractSlider::singleStep()), std::make_pair(2.75, 2));
        QCOMPARE(steps, QList<QVariantList>{{2.75}});
    }

    void shouldApplyRangeRuleToDrag_data()
    {
        QTest::addColumn<DragCase>("dragCase");
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
        QFETCH(DragCase, dragCase);
        const auto [vertical, wraps, ignore, start, step, from, to, expected] = dragCase;
        QUxWheel wheel;
        wheel.setOrientation(vertical ? Qt::Vertical : Qt::Horizontal);
        wheel.resize(vertical ? QSize(20, 130) : QSize(130, 20));
        wheel.setRange(0.0, 360.0);
        wheel.setWrapsAround(wraps);
        wheel.setIgnoreRange(ignore);
        wheel.setSingleStep(step);
        wheel.setValue(start);
        QSignalSpy spy(&wheel, &QUxWheel::valueChanged);
        if (vertical)
            drag(&wheel, QPoint(10, from), QPoint(2, to));
        else
            drag(&wheel, QPoint(from, 10), QPoint(to, 10));
        QCOMPARE(wheel.value(), expected);
        QVERIFY(!spy.isEmpty());
        QCOMPARE(spy.last().at(0).toDouble(), expected);
    }

    void shouldReportIncrementsInRelativeMode()
    {
        Wheel wheel;
        wheel.setEmitRelativeValue(true);
        wheel.setSingleStep(2.0);
        wheel.setValue(7.0);
        QSignalSpy added(&wheel, &QUxWheel::valueAdded);
        QSignalSpy changed(&wheel, &QUxWheel::valueChanged);
        drag(&wheel, QPoint(10, 10), QPoint(25, 10));
        QCOMPARE(wheel.value(), 7.0);
        QCOMPARE(changed.count(), 0);
        // The release is a drag step of its own, reported even when it adds nothing.
        QCOMPARE(added, QList<QVariantList>({{30.0}, {0.0}}));
    }

    void shouldHoldSliderDownForAnyButtonAndStepOnEveryRelease()
    {
        Wheel wheel;
        wheel.setSingleStep(2.0);
        QSignalSpy pressed(&wheel, &QAbstractSlider::sliderPressed);
        QSignalSpy released(&wheel, &QAbstractSlider::sliderReleased);
        QTest::mousePress(&wheel, Qt::RightButton, Qt::NoModifier, QPoint(9, 10));
        QVERIFY(wheel.isSliderDown());
        // Only a left press starts a drag: the origin is still -1, so the release at x 9 counts 10 pixels.
        QTest::mouseRelease(&wheel, Qt::RightButton, Qt::NoModifier, QPoint(9, 10));
        QVERIFY(!wheel.isSliderDown());
        QCOMPARE(std::make_pair(pressed.count(), released.count()), std::make_pair(1, 1));
        QCOMPARE(wheel.value(), 20.0);

        wheel.setTracking(false); // moves are ignored, the release still steps
        QTest::mousePress(&wheel, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        moveMouse(&wheel, QPoint(30, 10));
        QCOMPARE(wheel.value(), 20.0);
        QTest::mouseRelease(&wheel, Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
        QCOMPARE(wheel.value(), 60.0);
    }

    void shouldStepWithKeysAndPassOtherKeysOn_data()
    {
        QTest::addColumn<KeyCase>("keyCase");
        // Single step 0.5, page step 10, range -20 to 20; an arrow of the other orientation does nothing.
        const Qt::Orientation h = Qt::Horizontal, v = Qt::Vertical;
        const KeyCase cases[] = {
            {h, Qt::Key_Right, 1, 1.5},   {h, Qt::Key_Left, 1, 0.5},  {h, Qt::Key_Up, 1, 1},
            {v, Qt::Key_Down, 1, 1.5},    {v, Qt::Key_Up, 1, 0.5},    {v, Qt::Key_Left, 1, 1},
            {h, Qt::Key_PageDown, 1, 11}, {v, Qt::Key_PageUp, 1, -9}, {h, Qt::Key_PageDown, 15, 20},
            {h, Qt::Key_Home, 3, -20},    {v, Qt::Key_End, 3, 20},    {h, Qt::Key_A, 0, 0}};
        for (const KeyCase& c : cases)
            QTest::addRow("%s %s from %g", std::get<0>(c) == h ? "horizontal" : "vertical",
                          qPrintable(QKeySequence(std::get<1>(c)).toString()), std::get<2>(c))
                << c;
    }

    void shouldStepWithKeysAndPassOtherKeysOn()
    {
        QFETCH(KeyCase, keyCase);
        const auto [orientation, key, start, expected] = keyCase;
        QUxWheel wheel;
        wheel.setOrientation(orientation);
        wheel.setRange(-20.0, 20.0);
        wheel.setSingleStep(0.5);
        wheel.setPageStep(10);
        wheel.setValue(start);
        QSignalSpy spy(&wheel, &QUxWheel::valueChanged);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_A ? QStringLiteral("a") : QString());
        QApplication::sendEvent(&wheel, &press);
        QCOMPARE(press.isAccepted(), key != Qt::Key_A); // other keys go on to the parent
        QCOMPARE(wheel.value(), expected);
        QCOMPARE(spy.isEmpty(), expected == start);
    }

    void shouldTurnWithMouseWheel_data()
    {
        QTest::addColumn<TurnCase>("turn");
        // Page step 10, or the single step truncated with Ctrl, from 0: (step * delta) / 600, truncated toward zero.
        const TurnCase cases[] = {{120, false, 1, 2}, {-120, false, 1, -2}, {30, false, 1, 0},  {-90, false, 1, -1},
                                  {120, true, 1, 0},  {120, true, 5, 1},    {600, true, 2.9, 2}};
        for (const TurnCase& c : cases)
            QTest::addRow("delta %d%s step %g", std::get<0>(c), std::get<1>(c) ? " ctrl" : "", std::get<2>(c)) << c;
    }

    void shouldTurnWithMouseWheel()
    {
        QFETCH(TurnCase, turn);
        const auto [delta, control, step, expected] = turn;
        Wheel wheel;
        wheel.setPageStep(10);
        wheel.setSingleStep(step);
        QSignalSpy spy(&wheel, &QUxWheel::valueChanged);
        turnWheel(&wheel, delta, control ? Qt::ControlModifier : Qt::NoModifier);
        QCOMPARE(wheel.value(), expected);
        QCOMPARE(spy.count(), 1);
    }

    void shouldHintSizeByOrientationAndPaintEveryPixelFollowingValue_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<QSize>("hint");
        QTest::addColumn<QSize>("scaledHint"); // at scale 1.5 x 2
        QTest::newRow("horizontal") << Qt::Horizontal << QSize(130, 20) << QSize(195, 40);
        QTest::newRow("vertical") << Qt::Vertical << QSize(20, 130) << QSize(30, 260);
    }

    void shouldHintSizeByOrientationAndPaintEveryPixelFollowingValue()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(QSize, hint);
        QFETCH(QSize, scaledHint);
        QUxWheel wheel;
        wheel.setOrientation(orientation);
        QCOMPARE(wheel.sizeHint(), hint);
        wheel.resize(hint);
        const QImage atZero = uxTest::grab(&wheel);
        for (int y = 0; y < atZero.height(); ++y)
            for (int x = 0; x < atZero.width(); ++x)
                QCOMPARE(qAlpha(atZero.pixel(x, y)), 255);
        wheel.setValue(3.0);
        QVERIFY(uxTest::grab(&wheel) != atZero);
        uxPlatform::setDpiScale(1.5, 2.0);
        QCOMPARE(wheel.sizeHint(), scaledHint);
    }
};

QTEST_MAIN(tst_QUxWheel)
#include "tst_QUxWheel.moc"
