#include <QUxWhiteBalance.h>

#include <uxPlatform.h>

#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

namespace {

QSlider* sliderOf(const QUxWhiteBalance& balance) { return balance.findChild<QSlider*>(); }
QSpinBox* spinBoxOf(const QUxWhiteBalance& balance) { return balance.findChild<QSpinBox*>(); }

QList<int> values(const QSignalSpy& spy)
{
    QList<int> result;
    for (const QList<QVariant>& arguments : spy)
        result << arguments.at(0).toInt();
    return result;
}

} // namespace

class tst_QUxWhiteBalance : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void shouldStartAtTheMinimumNotAtTheDefault();
    void shouldBuildColdSliderWarmSpinBoxFromLeftToRight();
    void shouldTakeObjectNameFromConstructor();
    void shouldScaleFixedSizesWithDpi();
    void shouldEmitTwiceOnProgrammaticChange();
    void shouldNotEmitWhenValueIsUnchanged();
    void shouldClampSpinBoxButReportRequestedValue_data();
    void shouldClampSpinBoxButReportRequestedValue();
    void shouldLetSpinBoxGoBeyondTheSliderRange_data();
    void shouldLetSpinBoxGoBeyondTheSliderRange();
    void shouldFollowTheSliderOnce();
    void shouldFollowTypedValues();
    void shouldSetStepOnBothControls();
};

void tst_QUxWhiteBalance::initTestCase() { QLocale::setDefault(QLocale::c()); }

void tst_QUxWhiteBalance::init() { uxPlatform::reset(); }

void tst_QUxWhiteBalance::shouldStartAtTheMinimumNotAtTheDefault()
{
    QUxWhiteBalance balance;
    QCOMPARE(balance.value(), 1000);
    QCOMPARE(balance.minimum(), 1000);
    QCOMPARE(balance.maximum(), 15000);
    QCOMPARE(balance.step(), 10);
    QCOMPARE(balance.ticks(), QUxWhiteBalance::NoTicks);
    QCOMPARE(sliderOf(balance)->value(), 1000);
    QCOMPARE(sliderOf(balance)->minimum(), 1000);
    QCOMPARE(sliderOf(balance)->maximum(), 15000);
    QCOMPARE(sliderOf(balance)->pageStep(), 100);
    QCOMPARE(sliderOf(balance)->orientation(), Qt::Horizontal);
    QCOMPARE(balance.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(sliderOf(balance)->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(balance.focusProxy(), spinBoxOf(balance));
    QCOMPARE(spinBoxOf(balance)->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(balance.toolTip(),
             QStringLiteral("Shifts the content's white balance to match the color temperature of the scene in "
                            "Kelvin. Lower values produce cooler (bluish) colors. Higher values produce warmer "
                            "(yellowish) colors."));
}

void tst_QUxWhiteBalance::shouldBuildColdSliderWarmSpinBoxFromLeftToRight()
{
    QUxWhiteBalance balance;
    balance.resize(400, 30);
    balance.show();
    QVERIFY(QTest::qWaitForWindowExposed(&balance));
    QLabel* cold = nullptr;
    QLabel* warm = nullptr;
    for (QLabel* label : balance.findChildren<QLabel*>()) {
        if (label->text() == QLatin1String("Cold"))
            cold = label;
        else if (label->text() == QLatin1String("Warm"))
            warm = label;
    }
    QVERIFY(cold && warm);
    QVERIFY(cold->x() < sliderOf(balance)->x());
    QVERIFY(sliderOf(balance)->x() < warm->x());
    QVERIFY(warm->x() < spinBoxOf(balance)->x());
    QCOMPARE(balance.trailer(), QStringLiteral("Cold"));
    QCOMPARE(balance.epilog(), QStringLiteral("Warm"));
    QCOMPARE(balance.suffix(), QStringLiteral("K"));
    QCOMPARE(spinBoxOf(balance)->text(), QStringLiteral("1000K"));
}

void tst_QUxWhiteBalance::shouldTakeObjectNameFromConstructor()
{
    QUxWhiteBalance named(nullptr, "SceneWhiteBalance");
    QCOMPARE(named.objectName(), QStringLiteral("SceneWhiteBalance"));
    QUxWhiteBalance unnamed(nullptr, nullptr);
    QVERIFY(unnamed.objectName().isEmpty());
}

void tst_QUxWhiteBalance::shouldScaleFixedSizesWithDpi()
{
    uxPlatform::setDpiScale(1.5, 2.0);
    QUxWhiteBalance balance;
    QCOMPARE(spinBoxOf(balance)->width(), 93); // 62 * 1.5
    QCOMPARE(spinBoxOf(balance)->minimumHeight(), 32);
    QCOMPARE(spinBoxOf(balance)->maximumHeight(), 64);
    QCOMPARE(sliderOf(balance)->minimumHeight(), 32);
    QCOMPARE(sliderOf(balance)->maximumHeight(), 64);
}

void tst_QUxWhiteBalance::shouldEmitTwiceOnProgrammaticChange()
{
    QUxWhiteBalance balance;
    QSignalSpy spy(&balance, &QUxWhiteBalance::valueChanged);
    balance.setValue(6500);
    QCOMPARE(values(spy), (QList<int>{6500, 6500}));
    QCOMPARE(balance.value(), 6500);
    QCOMPARE(sliderOf(balance)->value(), 6500);
}

void tst_QUxWhiteBalance::shouldNotEmitWhenValueIsUnchanged()
{
    QUxWhiteBalance balance;
    balance.setValue(4200);
    QSignalSpy spy(&balance, &QUxWhiteBalance::valueChanged);
    balance.setValue(4200);
    QCOMPARE(spy.count(), 0);
}

void tst_QUxWhiteBalance::shouldClampSpinBoxButReportRequestedValue_data()
{
    QTest::addColumn<int>("requested");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QList<int>>("emitted");
    // The spin box reports what it holds, then the control repeats the request as it came.
    QTest::newRow("above the maximum") << 30000 << 15000 << QList<int>{15000, 30000};
    QTest::newRow("below the minimum, already there") << 10 << 1000 << QList<int>{10};
    QTest::newRow("inside") << 2700 << 2700 << QList<int>{2700, 2700};
}

void tst_QUxWhiteBalance::shouldClampSpinBoxButReportRequestedValue()
{
    QFETCH(int, requested);
    QFETCH(int, expected);
    QFETCH(QList<int>, emitted);
    QUxWhiteBalance balance;
    QSignalSpy spy(&balance, &QUxWhiteBalance::valueChanged);
    balance.setValue(requested);
    QCOMPARE(balance.value(), expected);
    QCOMPARE(values(spy), emitted);
}

void tst_QUxWhiteBalance::shouldLetSpinBoxGoBeyondTheSliderRange_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("requested");
    QTest::addColumn<int>("sliderValue");
    QTest::newRow("above, from the middle") << 5000 << 1000 << 20000 << 20000 << 15000;
    QTest::newRow("above, from the slider's end") << 15000 << 1000 << 20000 << 18000 << 15000;
    QTest::newRow("below, from the middle") << 5000 << 500 << 15000 << 500 << 1000;
}

void tst_QUxWhiteBalance::shouldLetSpinBoxGoBeyondTheSliderRange()
{
    QFETCH(int, start);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, requested);
    QFETCH(int, sliderValue);
    QUxWhiteBalance balance;
    balance.setValue(start);
    balance.setMinimum(minimum);
    balance.setMaximum(maximum);
    QCOMPARE(sliderOf(balance)->minimum(), 1000);
    QCOMPARE(sliderOf(balance)->maximum(), 15000);
    QSignalSpy spy(&balance, &QUxWhiteBalance::valueChanged);

    balance.setValue(requested);

    QCOMPARE(balance.value(), requested);
    QCOMPARE(sliderOf(balance)->value(), sliderValue);
    QCOMPARE(values(spy), (QList<int>{requested, requested}));
}

void tst_QUxWhiteBalance::shouldFollowTheSliderOnce()
{
    QUxWhiteBalance balance;
    balance.setValue(6500);
    QSignalSpy spy(&balance, &QUxWhiteBalance::valueChanged);
    sliderOf(balance)->triggerAction(QAbstractSlider::SliderPageStepAdd);
    QCOMPARE(balance.value(), 6600);
    QCOMPARE(values(spy), QList<int>{6600});
}

void tst_QUxWhiteBalance::shouldFollowTypedValues()
{
    QUxWhiteBalance balance;
    QSignalSpy spy(&balance, &QUxWhiteBalance::valueChanged);
    QSpinBox* spinBox = spinBoxOf(balance);
    spinBox->selectAll();
    QTest::keyClicks(spinBox, QStringLiteral("5400"));
    QTest::keyClick(spinBox, Qt::Key_Enter);
    QCOMPARE(balance.value(), 5400);
    QCOMPARE(sliderOf(balance)->value(), 5400);
    QVERIFY(!spy.isEmpty());
    QCOMPARE(values(spy).last(), 5400);
}

void tst_QUxWhiteBalance::shouldSetStepOnBothControls()
{
    QUxWhiteBalance balance;
    balance.setStep(50);
    QCOMPARE(balance.step(), 50);
    QCOMPARE(spinBoxOf(balance)->singleStep(), 50);
    QCOMPARE(sliderOf(balance)->singleStep(), 50);
    balance.setValue(3000);
    QTest::keyClick(spinBoxOf(balance), Qt::Key_Up);
    QCOMPARE(balance.value(), 3050);
}

QTEST_MAIN(tst_QUxWhiteBalance)
#include "tst_QUxWhiteBalance.moc"
