#include <QUxSliderSwitch.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QMouseEvent>
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

    void shouldScaleSizeHintWithDpi_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<QSize>("size");
        QTest::newRow("1") << 1.0 << QSize(25, 16);
        QTest::newRow("1.5 truncates 37.5") << 1.5 << QSize(37, 24);
        QTest::newRow("2") << 2.0 << QSize(50, 32);
    }

    void shouldScaleSizeHintWithDpi()
    {
        QFETCH(double, scale);
        QFETCH(QSize, size);
        uxPlatform::setDpiScale(scale, scale);
        QUxSliderSwitch sw;
        QCOMPARE(std::make_pair(sw.sizeHint(), sw.minimumSizeHint()), std::make_pair(size, size));
        QCOMPARE(sw.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    }

    void shouldToggleOnlyOnLeftReleaseInside_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<bool>("toggles");
        const QPoint inside(12, 8);
        QTest::newRow("left") << int(Qt::LeftButton) << QString() << inside << true;
        QTest::newRow("right") << int(Qt::RightButton) << QString() << inside << false;
        QTest::newRow("middle") << int(Qt::MiddleButton) << QString() << inside << false;
        QTest::newRow("outside") << int(Qt::LeftButton) << QString() << QPoint(30, 8) << false;
        QTest::newRow("hidden") << int(Qt::LeftButton) << QStringLiteral("hidden") << inside << false;
        QTest::newRow("disabled") << int(Qt::LeftButton) << QStringLiteral("disabled") << inside << false;
    }

    void shouldToggleOnlyOnLeftReleaseInside()
    {
        QFETCH(int, button);
        QFETCH(QString, state);
        QFETCH(QPoint, at);
        QFETCH(bool, toggles);
        QUxSliderSwitch sw;
        sw.resize(sw.sizeHint());
        sw.setVisible(state != QLatin1String("hidden"));
        sw.setEnabled(state != QLatin1String("disabled"));
        QSignalSpy spy(&sw, &QUxSliderSwitch::toggled);

        for (bool on : {true, false}) {
            QMouseEvent press(QEvent::MouseButtonPress, at, Qt::MouseButton(button), Qt::MouseButton(button),
                              Qt::NoModifier);
            QApplication::sendEvent(&sw, &press);
            QCOMPARE(spy.count(), on ? 0 : int(toggles)); // a press alone toggles nothing
            QMouseEvent release(QEvent::MouseButtonRelease, at, Qt::MouseButton(button), Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(&sw, &release);
            QCOMPARE(sw.isOn(), toggles && on);
            if (state.isEmpty())
                QCOMPARE(release.isAccepted(), toggles); // ignored releases go on to the parent
            if (toggles)                                 // the knob slides over on its own
                QTRY_VERIFY(isWhite(pixel(sw, on ? KnobOnCentre : KnobOffCentre)));
        }
        QCOMPARE(spy, toggles ? QList<QVariantList>({{true}, {false}}) : QList<QVariantList>());
    }

    void shouldPaintTrackGradientsKnobAndOutline_data()
    {
        QTest::addColumn<bool>("on");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("hovered");
        QTest::addColumn<QColor>("top"); // the track beside the knob: its gradient from top to bottom
        QTest::addColumn<QColor>("bottom");
        QTest::newRow("off") << false << true << false << QColor(110, 110, 110) << QColor(90, 90, 90);
        QTest::newRow("on") << true << true << false << QColor(65, 65, 65) << QColor(45, 45, 45);
        QTest::newRow("disabled off") << false << false << false << QColor(90, 90, 90) << QColor(70, 70, 70);
        QTest::newRow("disabled on") << true << false << false << QColor(90, 90, 90) << QColor(70, 70, 70);
        QTest::newRow("off under the mouse") << false << true << true << QColor(110, 110, 110) << QColor(90, 90, 90);
    }

    void shouldPaintTrackGradientsKnobAndOutline()
    {
        QFETCH(bool, on);
        QFETCH(bool, enabled);
        QFETCH(bool, hovered);
        QFETCH(QColor, top);
        QFETCH(QColor, bottom);
        QUxSliderSwitch sw;
        sw.setOn(on);
        sw.setEnabled(enabled);
        sw.setAttribute(Qt::WA_UnderMouse, hovered);
        sw.resize(sw.sizeHint()); // the knob rests at its end after a resize
        const QImage image = uxTest::grab(&sw);
        const QColor knob = enabled ? QColor(Qt::white) : QColor(0x6B, 0x6B, 0x6B);
        for (const auto& [at, color] : {std::pair(on ? KnobOnCentre : KnobOffCentre, knob),
                                        {on ? TrackLeftTop : TrackRightTop, top},
                                        {on ? TrackLeftBottom : TrackRightBottom, bottom}})
            QVERIFY2(uxTest::sameColor(image.pixelColor(at), color, 1), qPrintable(image.pixelColor(at).name()));
        // Orange (244, 133, 22) blended into the grey track under the mouse, else grey or the white knob.
        const QColor edge = image.pixelColor(TopEdge);
        const bool orange = edge.red() - edge.blue() > 60 && edge.red() > edge.green() && edge.green() > edge.blue();
        QVERIFY2(hovered ? orange : qAbs(edge.red() - edge.blue()) <= 2, qPrintable(edge.name()));
    }

    void shouldSlideKnobOnePixelPerStepAndEmitOnEverySetOn()
    {
        QUxSliderSwitch sw;
        sw.resize(sw.sizeHint());
        QSignalSpy spy(&sw, &QUxSliderSwitch::toggled);
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
        sw.setOn(true); // already on: reported all the same
        sw.setOn(false);
        QCOMPARE(spy, QList<QVariantList>({{true}, {true}, {false}}));
    }
};

QTEST_MAIN(tst_QUxSliderSwitch)
#include "tst_QUxSliderSwitch.moc"
