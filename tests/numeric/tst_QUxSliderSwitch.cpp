#include <QUxSliderSwitch.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QMouseEvent>
#include <QSignalSpy>
#include <QtTest>

namespace {

// At scale 1 the track is 25 x 16 with a knob of diameter 16 resting at x 8
// (off) or x 17 (on). The points below lie well inside one shape each, away
// from antialiased edges.
const QPoint KnobOffCentre(8, 8);
const QPoint KnobOnCentre(17, 8);
const QPoint TrackRightTop(18, 1);     // beside the knob when off, gradient start
const QPoint TrackRightBottom(21, 12); // beside the knob when off, gradient end
const QPoint TrackLeftTop(6, 1);       // beside the knob when on, gradient start
const QPoint TrackLeftBottom(4, 12);   // beside the knob when on, gradient end
const QPoint TopEdge(16, 0);           // the track outline, clear of the knob when off

QColor pixel(QUxSliderSwitch& sw, const QPoint& at) { return uxTest::grab(&sw).pixelColor(at); }

bool isWhite(const QColor& c) { return uxTest::sameColor(c, Qt::white, 2); }

} // namespace

class tst_QUxSliderSwitch : public QObject
{
    Q_OBJECT

private slots:
    void init() { uxPlatform::reset(); }

    void shouldScaleSizeHintWithDpi_data();
    void shouldScaleSizeHintWithDpi();
    void shouldToggleOnlyOnLeftRelease_data();
    void shouldToggleOnlyOnLeftRelease();
    void shouldIgnoreReleaseOutsideTheSwitch();
    void shouldIgnoreReleaseWhileDisabledOrHidden();
    void shouldEmitToggledOnEverySetOn();
    void shouldPaintTrackGradientsAndKnob_data();
    void shouldPaintTrackGradientsAndKnob();
    void shouldOutlineInOrangeUnderMouse();
    void shouldSlideKnobOnePixelPerStepAndStopAtTheEnd();
    void shouldSlideKnobToTheOtherSideAfterClick();
};

void tst_QUxSliderSwitch::shouldScaleSizeHintWithDpi_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QSize>("size");
    QTest::newRow("1") << 1.0 << QSize(25, 16);
    QTest::newRow("1.5 truncates 37.5") << 1.5 << QSize(37, 24);
    QTest::newRow("2") << 2.0 << QSize(50, 32);
}

void tst_QUxSliderSwitch::shouldScaleSizeHintWithDpi()
{
    QFETCH(double, scale);
    QFETCH(QSize, size);
    uxPlatform::setDpiScale(scale, scale);
    QUxSliderSwitch sw;
    QCOMPARE(sw.sizeHint(), size);
    QCOMPARE(sw.minimumSizeHint(), size);
    QCOMPARE(sw.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(sw.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QVERIFY(sw.testAttribute(Qt::WA_Hover));
}

void tst_QUxSliderSwitch::shouldToggleOnlyOnLeftRelease_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("left") << int(Qt::LeftButton) << true;
    QTest::newRow("right") << int(Qt::RightButton) << false;
    QTest::newRow("middle") << int(Qt::MiddleButton) << false;
}

void tst_QUxSliderSwitch::shouldToggleOnlyOnLeftRelease()
{
    QFETCH(int, button);
    QFETCH(bool, toggles);
    QUxSliderSwitch sw;
    sw.resize(sw.sizeHint());
    sw.show();
    QSignalSpy spy(&sw, &QUxSliderSwitch::toggled);

    QTest::mouseClick(&sw, Qt::MouseButton(button), Qt::NoModifier, QPoint(12, 8));

    QCOMPARE(sw.isOn(), toggles);
    QCOMPARE(spy.count(), toggles ? 1 : 0);
    if (toggles) {
        QCOMPARE(spy.at(0).at(0).toBool(), true);
        QTest::mouseClick(&sw, Qt::MouseButton(button), Qt::NoModifier, QPoint(12, 8));
        QCOMPARE(sw.isOn(), false);
        QCOMPARE(spy.at(1).at(0).toBool(), false);
    }
}

void tst_QUxSliderSwitch::shouldIgnoreReleaseOutsideTheSwitch()
{
    QUxSliderSwitch sw;
    sw.resize(sw.sizeHint());
    sw.show();
    QSignalSpy spy(&sw, &QUxSliderSwitch::toggled);

    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(30, 8), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&sw, &release);

    QVERIFY(!release.isAccepted());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(sw.isOn(), false);
}

void tst_QUxSliderSwitch::shouldIgnoreReleaseWhileDisabledOrHidden()
{
    QUxSliderSwitch sw;
    sw.resize(sw.sizeHint());
    QSignalSpy spy(&sw, &QUxSliderSwitch::toggled);

    QMouseEvent hiddenRelease(QEvent::MouseButtonRelease, QPointF(12, 8), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&sw, &hiddenRelease);
    QCOMPARE(spy.count(), 0);

    sw.show();
    sw.setEnabled(false);
    QMouseEvent disabledRelease(QEvent::MouseButtonRelease, QPointF(12, 8), Qt::LeftButton, Qt::NoButton,
                                Qt::NoModifier);
    QApplication::sendEvent(&sw, &disabledRelease);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(sw.isOn(), false);
}

void tst_QUxSliderSwitch::shouldEmitToggledOnEverySetOn()
{
    QUxSliderSwitch sw;
    QSignalSpy spy(&sw, &QUxSliderSwitch::toggled);
    sw.setOn(true);
    sw.setOn(true);
    sw.setOn(false);
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(spy.at(1).at(0).toBool(), true);
    QCOMPARE(spy.at(2).at(0).toBool(), false);
}

void tst_QUxSliderSwitch::shouldPaintTrackGradientsAndKnob_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QPoint>("knob");
    QTest::addColumn<QColor>("knobColor");
    QTest::addColumn<QPoint>("trackTop");
    QTest::addColumn<QColor>("topColor");
    QTest::addColumn<QPoint>("trackBottom");
    QTest::addColumn<QColor>("bottomColor");

    QTest::newRow("off") << false << true << KnobOffCentre << QColor(Qt::white) << TrackRightTop
                         << QColor(110, 110, 110) << TrackRightBottom << QColor(90, 90, 90);
    QTest::newRow("on") << true << true << KnobOnCentre << QColor(Qt::white) << TrackLeftTop << QColor(65, 65, 65)
                        << TrackLeftBottom << QColor(45, 45, 45);
    QTest::newRow("disabled off") << false << false << KnobOffCentre << QColor(0x6B, 0x6B, 0x6B) << TrackRightTop
                                  << QColor(90, 90, 90) << TrackRightBottom << QColor(70, 70, 70);
    QTest::newRow("disabled on") << true << false << KnobOnCentre << QColor(0x6B, 0x6B, 0x6B) << TrackLeftTop
                                 << QColor(90, 90, 90) << TrackLeftBottom << QColor(70, 70, 70);
}

void tst_QUxSliderSwitch::shouldPaintTrackGradientsAndKnob()
{
    QFETCH(bool, on);
    QFETCH(bool, enabled);
    QFETCH(QPoint, knob);
    QFETCH(QColor, knobColor);
    QFETCH(QPoint, trackTop);
    QFETCH(QColor, topColor);
    QFETCH(QPoint, trackBottom);
    QFETCH(QColor, bottomColor);

    QUxSliderSwitch sw;
    sw.setOn(on);
    sw.setEnabled(enabled);
    sw.resize(sw.sizeHint()); // the knob rests at its end after a resize
    const QImage image = uxTest::grab(&sw);

    QVERIFY2(uxTest::sameColor(image.pixelColor(knob), knobColor, 1), qPrintable(image.pixelColor(knob).name()));
    QVERIFY2(uxTest::sameColor(image.pixelColor(trackTop), topColor, 1), qPrintable(image.pixelColor(trackTop).name()));
    QVERIFY2(uxTest::sameColor(image.pixelColor(trackBottom), bottomColor, 1),
             qPrintable(image.pixelColor(trackBottom).name()));
}

void tst_QUxSliderSwitch::shouldOutlineInOrangeUnderMouse()
{
    QUxSliderSwitch sw;
    sw.resize(sw.sizeHint());

    const QColor plain = pixel(sw, TopEdge);
    QVERIFY2(qAbs(plain.red() - plain.blue()) <= 2, qPrintable(plain.name()));

    sw.setAttribute(Qt::WA_UnderMouse, true);
    const QColor hovered = pixel(sw, TopEdge);
    // Orange (244, 133, 22) blended into the grey track.
    QVERIFY2(hovered.red() - hovered.blue() > 60, qPrintable(hovered.name()));
    QVERIFY(hovered.red() > hovered.green() && hovered.green() > hovered.blue());
}

void tst_QUxSliderSwitch::shouldSlideKnobOnePixelPerStepAndStopAtTheEnd()
{
    QUxSliderSwitch sw;
    sw.resize(sw.sizeHint());
    const QPoint besideOffKnob(18, 8);
    QVERIFY(!isWhite(pixel(sw, besideOffKnob)));

    sw.setOn(true);
    for (int step = 0; step < 4; ++step)
        sw.animateSlider();
    // Knob centre 8 + 4 = 12: its right part now covers x 18.
    QVERIFY(isWhite(pixel(sw, besideOffKnob)));
    QVERIFY(!isWhite(pixel(sw, KnobOnCentre + QPoint(7, 0))));

    for (int step = 0; step < 20; ++step)
        sw.animateSlider();
    QUxSliderSwitch atRest;
    atRest.setOn(true);
    atRest.resize(atRest.sizeHint());
    QCOMPARE(uxTest::grab(&sw), uxTest::grab(&atRest));
}

void tst_QUxSliderSwitch::shouldSlideKnobToTheOtherSideAfterClick()
{
    QUxSliderSwitch sw;
    sw.resize(sw.sizeHint());
    sw.show();

    QTest::mouseClick(&sw, Qt::LeftButton, Qt::NoModifier, QPoint(12, 8));
    QTRY_VERIFY_WITH_TIMEOUT(uxTest::sameColor(pixel(sw, TrackLeftBottom), QColor(45, 45, 45), 1), 2000);
    QTRY_VERIFY_WITH_TIMEOUT(isWhite(pixel(sw, KnobOnCentre)), 2000);

    QTest::mouseClick(&sw, Qt::LeftButton, Qt::NoModifier, QPoint(12, 8));
    QTRY_VERIFY_WITH_TIMEOUT(uxTest::sameColor(pixel(sw, TrackRightBottom), QColor(90, 90, 90), 1), 2000);
    QTRY_VERIFY_WITH_TIMEOUT(isWhite(pixel(sw, KnobOffCentre)), 2000);
}

QTEST_MAIN(tst_QUxSliderSwitch)
#include "tst_QUxSliderSwitch.moc"
