#include <QUxDoubleSpiner.h>
#include <QUxSlider.h>
#include <uxPlatform.h>
#include <uxUIStyle.h>

#include <QGridLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>

namespace {

QSlider* innerSlider(QUxSlider& slider) { return slider.findChild<QSlider*>(); }
QUxDoubleSpiner* innerSpinner(QUxSlider& slider) { return slider.findChild<QUxDoubleSpiner*>(); }

/// Records the slider's signals in the order they arrive.
class SignalLog : public QObject
{
public:
    explicit SignalLog(QUxSlider& slider)
    {
        connect(&slider, &QUxSlider::valueChanged, this,
                [this](double v) { entries << QStringLiteral("valueChanged(%1)").arg(v); });
        connect(&slider, &QUxSlider::sliderPressed, this, [this] { entries << QStringLiteral("sliderPressed"); });
        connect(&slider, &QUxSlider::sliderMoved, this,
                [this](double v) { entries << QStringLiteral("sliderMoved(%1)").arg(v); });
        connect(&slider, &QUxSlider::sliderReleased, this, [this] { entries << QStringLiteral("sliderReleased"); });
        connect(&slider, &QUxSlider::changedReturn, this, [this] { entries << QStringLiteral("changedReturn"); });
    }
    QStringList entries;
};

void typeIntoSpinner(QUxSlider& slider, const QString& text)
{
    QUxDoubleSpiner* spinner = innerSpinner(slider);
    spinner->setFocus();
    spinner->selectAll();
    QTest::keyClicks(spinner, text);
    QTest::keyClick(spinner, Qt::Key_Return);
}

} // namespace

class tst_QUxSlider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init() { uxPlatform::reset(); }

    void shouldDeclareSignalsAndSlotsByText();
    void shouldSizeSliderAndSpinnerByScale_data();
    void shouldSizeSliderAndSpinnerByScale();
    void shouldCutSoftRangeIntoTicksOfLineStep_data();
    void shouldCutSoftRangeIntoTicksOfLineStep();
    void shouldRoundHandleTowardPreviousValue_data();
    void shouldRoundHandleTowardPreviousValue();
    void shouldEmitValueChangedReleasedValueChangedWhenHandleMoves();
    void shouldEmitValueChangedOnceWhenHandleStays();
    void shouldClampToHardRange_data();
    void shouldClampToHardRange();
    void shouldClampCurrentValueWhenHardRangeShrinks();
    void shouldIgnoreValueThatIsNotANumber();
    void shouldKeepTypedValueBeyondSoftRange();
    void shouldTakeValueFromHandleMoves();
    void shouldReportDragWithoutTrackingOnRelease();
    void shouldShowValueInSpinnerWithoutEcho();
    void shouldStepSpinnerByLineStep();
    void shouldKeepPageStepInTicks_data();
    void shouldKeepPageStepInTicks();
    void shouldBuildFromFullConstructor();
    void shouldSwapSidesOfSliderAndSpinner();
    void shouldRelayRelativeOperatorOfSpinner();
    void shouldNotLetHandleSignalsOutWhileBlocked();
    void shouldPropagateMultiselectHighlight();
    void shouldRepolishInnerWidgetsForStyleSheet();
};

void tst_QUxSlider::shouldDeclareSignalsAndSlotsByText()
{
    QByteArrayList signalList;
    QMap<QByteArray, QMetaMethod::Access> slotAccess;
    const QMetaObject* meta = &QUxSlider::staticMetaObject;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            signalList << method.methodSignature();
        else if (method.methodType() == QMetaMethod::Slot)
            slotAccess.insert(method.methodSignature(), method.access());
    }
    QCOMPARE(signalList,
             QByteArrayList({"valueChanged(double)", "sliderPressed()", "sliderMoved(double)", "sliderReleased()",
                             "changedReturn()", "relativeOperatorApplied(RelativeOperator,double)"}));
    const QByteArrayList publicSlots{"setMinimum(double)",     "setMaximum(double)",  "setHardMinimum(double)",
                                     "setHardMaximum(double)", "setLineStep(double)", "setPageStep(double)",
                                     "setValue(double)",       "onValueChanged(int)", "onSliderPressed()",
                                     "onSliderMoved(int)",     "onSliderReleased()"};
    for (const QByteArray& slot : publicSlots)
        QVERIFY2(slotAccess.value(slot, QMetaMethod::Private) == QMetaMethod::Public, slot.constData());
    QVERIFY(slotAccess.contains("appliedRelativeOperator(RelativeOperator,double)"));
    QCOMPARE(slotAccess.value("appliedRelativeOperator(RelativeOperator,double)"), QMetaMethod::Private);
}

void tst_QUxSlider::shouldSizeSliderAndSpinnerByScale_data()
{
    QTest::addColumn<double>("scaleX");
    QTest::addColumn<double>("scaleY");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("horizontal at 1") << 1.0 << 1.0 << Qt::Horizontal;
    QTest::newRow("horizontal at 1.5 x 2") << 1.5 << 2.0 << Qt::Horizontal;
    QTest::newRow("vertical keeps the same bounds") << 1.0 << 1.0 << Qt::Vertical;
    QTest::newRow("vertical at 2 x 1.5") << 2.0 << 1.5 << Qt::Vertical;
}

void tst_QUxSlider::shouldSizeSliderAndSpinnerByScale()
{
    QFETCH(double, scaleX);
    QFETCH(double, scaleY);
    QFETCH(Qt::Orientation, orientation);
    uxPlatform::setDpiScale(scaleX, scaleY);
    QUxSlider slider(0.0, 1.0, 0.1, 0.0, orientation);

    const QSlider* handle = innerSlider(slider);
    QCOMPARE(handle->orientation(), orientation);
    QCOMPARE(handle->minimumHeight(), int(16 * scaleY));
    QCOMPARE(handle->maximumHeight(), int(32 * scaleY));
    QCOMPARE(handle->minimumWidth(), int(32 * scaleX));

    const QUxDoubleSpiner* spinner = innerSpinner(slider);
    QCOMPARE(spinner->minimumWidth(), int(62 * scaleX));
    QCOMPARE(spinner->maximumWidth(), int(62 * scaleX));
    QCOMPARE(spinner->minimumHeight(), int(16 * scaleY));
    QCOMPARE(spinner->maximumHeight(), int(32 * scaleY));
    QVERIFY(spinner->alignment() & Qt::AlignRight);
    QCOMPARE(spinner->buttonSymbols(), QAbstractSpinBox::NoButtons);

    auto* grid = qobject_cast<QGridLayout*>(slider.layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->columnStretch(0), 1);
    QCOMPARE(grid->columnStretch(1), 0);
    QCOMPARE(slider.sizeHint(), QSize(int(130 * scaleX), qRound(20 * scaleY)));
}

void tst_QUxSlider::shouldCutSoftRangeIntoTicksOfLineStep_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("lineStep");
    QTest::addColumn<int>("lastTick");
    QTest::newRow("0..1 by 0.1") << 0.0 << 1.0 << 0.1 << 10;
    QTest::newRow("0..1 by 0.3") << 0.0 << 1.0 << 0.3 << 3;
    QTest::newRow("0..1 by 0.4 rounds 2.5 up") << 0.0 << 1.0 << 0.4 << 3;
    QTest::newRow("-1..1 by 0.5") << -1.0 << 1.0 << 0.5 << 4;
    QTest::newRow("reversed 2..0 by 0.5") << 2.0 << 0.0 << 0.5 << 4;
    QTest::newRow("0..100 by 1") << 0.0 << 100.0 << 1.0 << 100;
    QTest::newRow("empty range") << 3.0 << 3.0 << 0.1 << 0;
}

void tst_QUxSlider::shouldCutSoftRangeIntoTicksOfLineStep()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, lineStep);
    QFETCH(int, lastTick);
    QUxSlider slider;
    slider.setLineStep(lineStep);
    slider.setRange(minimum, maximum);
    QCOMPARE(innerSlider(slider)->minimum(), 0);
    QCOMPARE(innerSlider(slider)->maximum(), lastTick);
    QCOMPARE(innerSlider(slider)->singleStep(), 1);
}

void tst_QUxSlider::shouldRoundHandleTowardPreviousValue_data()
{
    QTest::addColumn<double>("previous");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("tick");
    QTest::newRow("up to 0.34") << 0.0 << 0.34 << 3;
    QTest::newRow("down to 0.34") << 1.0 << 0.34 << 4;
    QTest::newRow("up to 0.36") << 0.0 << 0.36 << 3;
    QTest::newRow("down to 0.36") << 1.0 << 0.36 << 4;
    QTest::newRow("up to exact 0.3") << 0.0 << 0.3 << 3;
    QTest::newRow("down to exact 0.7") << 1.0 << 0.7 << 7;
    QTest::newRow("same 0.34 rounds up") << 0.34 << 0.34 << 4;
    QTest::newRow("beyond the end") << 0.0 << 5.0 << 10;
    QTest::newRow("below the start") << 0.5 << -2.0 << 0;
}

void tst_QUxSlider::shouldRoundHandleTowardPreviousValue()
{
    QFETCH(double, previous);
    QFETCH(double, value);
    QFETCH(int, tick);
    QUxSlider slider; // soft range 0 .. 1, line step 0.1
    slider.setValue(previous);
    slider.setValue(value);
    QCOMPARE(innerSlider(slider)->value(), tick);
    QCOMPARE(slider.value(), value);
}

void tst_QUxSlider::shouldEmitValueChangedReleasedValueChangedWhenHandleMoves()
{
    QUxSlider slider;
    SignalLog log(slider);
    slider.setValue(0.5);
    QCOMPARE(log.entries, QStringList({QStringLiteral("valueChanged(0.5)"), QStringLiteral("sliderReleased"),
                                       QStringLiteral("valueChanged(0.5)")}));
}

void tst_QUxSlider::shouldEmitValueChangedOnceWhenHandleStays()
{
    QUxSlider slider;
    slider.setValue(0.5);
    SignalLog log(slider);

    slider.setValue(0.5);
    slider.setValue(0.55); // up from 0.5: tick 5 stays
    QCOMPARE(log.entries, QStringList({QStringLiteral("valueChanged(0.5)"), QStringLiteral("valueChanged(0.55)")}));
}

void tst_QUxSlider::shouldClampToHardRange_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("above") << 3.0 << 2.0;
    QTest::newRow("below") << -1.0 << 0.0;
    QTest::newRow("inside beyond soft range") << 1.5 << 1.5;
}

void tst_QUxSlider::shouldClampToHardRange()
{
    QFETCH(double, value);
    QFETCH(double, expected);
    QUxSlider slider;
    slider.setHardRange(0.0, 2.0);
    QSignalSpy spy(&slider, &QUxSlider::valueChanged);
    slider.setValue(value);
    QCOMPARE(slider.value(), expected);
    QVERIFY(!spy.isEmpty());
    for (const QList<QVariant>& arguments : spy)
        QCOMPARE(arguments.at(0).toDouble(), expected);
    QCOMPARE(innerSpinner(slider)->value(), expected);
}

void tst_QUxSlider::shouldClampCurrentValueWhenHardRangeShrinks()
{
    QUxSlider slider;
    slider.setValue(5.0);
    QSignalSpy spy(&slider, &QUxSlider::valueChanged);
    slider.setHardRange(0.0, 2.0);
    QCOMPARE(slider.value(), 2.0);
    QCOMPARE(spy.last().at(0).toDouble(), 2.0);
    QCOMPARE(slider.hardMinValue(), 0.0);
    QCOMPARE(slider.hardMaxValue(), 2.0);
}

void tst_QUxSlider::shouldIgnoreValueThatIsNotANumber()
{
    QUxSlider slider;
    slider.setValue(0.4);
    QSignalSpy spy(&slider, &QUxSlider::valueChanged);
    slider.setValue(std::nan(""));
    QCOMPARE(slider.value(), 0.4);
    QCOMPARE(innerSpinner(slider)->value(), 0.4);
    QCOMPARE(innerSlider(slider)->value(), 4);
    QCOMPARE(spy.count(), 0);
}

void tst_QUxSlider::shouldKeepTypedValueBeyondSoftRange()
{
    QUxSlider slider;
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    SignalLog log(slider);

    typeIntoSpinner(slider, QStringLiteral("5"));

    QCOMPARE(slider.value(), 5.0);
    QCOMPARE(innerSlider(slider)->value(), 10);
    QVERIFY(log.entries.contains(QStringLiteral("valueChanged(5)")));
    QCOMPARE(log.entries.last(), QStringLiteral("changedReturn"));
}

void tst_QUxSlider::shouldTakeValueFromHandleMoves()
{
    QUxSlider slider;
    slider.setRange(-1.0, 1.0);
    slider.setLineStep(0.25);
    SignalLog log(slider);

    innerSlider(slider)->setValue(6); // a key press or click on the groove
    QCOMPARE(slider.value(), 0.5);
    QCOMPARE(innerSpinner(slider)->value(), 0.5);
    QCOMPARE(log.entries, QStringList{QStringLiteral("valueChanged(0.5)")});
}

void tst_QUxSlider::shouldReportDragWithoutTrackingOnRelease()
{
    QUxSlider slider;
    slider.setTracking(false);
    QVERIFY(!slider.hasTracking());
    SignalLog log(slider);

    QSlider* handle = innerSlider(slider);
    handle->setSliderDown(true);
    handle->setSliderPosition(4);
    QCOMPARE(innerSpinner(slider)->value(), 0.4);
    handle->setSliderDown(false);

    QCOMPARE(log.entries, QStringList({QStringLiteral("sliderPressed"), QStringLiteral("sliderMoved(0.4)"),
                                       QStringLiteral("sliderReleased"), QStringLiteral("valueChanged(0.4)")}));
    QCOMPARE(slider.value(), 0.4);
}

void tst_QUxSlider::shouldShowValueInSpinnerWithoutEcho()
{
    QUxSlider slider;
    QSignalSpy spinnerSpy(innerSpinner(slider), qOverload<double>(&QDoubleSpinBox::valueChanged));
    slider.setValue(0.75);
    QCOMPARE(innerSpinner(slider)->value(), 0.75);
    QCOMPARE(innerSpinner(slider)->text(), QStringLiteral("0.75"));
    QCOMPARE(spinnerSpy.count(), 0);
}

void tst_QUxSlider::shouldStepSpinnerByLineStep()
{
    QUxSlider slider;
    QSignalSpy spy(innerSpinner(slider), &QUxDoubleSpiner::singleStepChanged);
    slider.setLineStep(0.25);
    QCOMPARE(innerSpinner(slider)->singleStep(), 0.25);
    QCOMPARE(spy.count(), 1);

    slider.setLineStep(1e-9); // too fine for the spin box: it keeps its step
    QCOMPARE(innerSpinner(slider)->singleStep(), 0.25);
    QCOMPARE(spy.count(), 1);
}

void tst_QUxSlider::shouldKeepPageStepInTicks_data()
{
    QTest::addColumn<double>("pageStep");
    QTest::addColumn<int>("ticks");
    QTest::addColumn<double>("value");
    // Line step 0.5: the page step is set in ticks and read back in value units.
    QTest::newRow("truncated to whole ticks") << 3.7 << 3 << 1.5;
    QTest::newRow("below one tick") << 0.9 << 0 << 0.0;
    QTest::newRow("beyond the int range") << 1e300 << INT_MAX << INT_MAX * 0.5;
    QTest::newRow("far below the int range counts its size") << -1e300 << INT_MAX << INT_MAX * 0.5;
    QTest::newRow("not a number") << std::nan("") << 0 << 0.0;
}

void tst_QUxSlider::shouldKeepPageStepInTicks()
{
    QFETCH(double, pageStep);
    QFETCH(int, ticks);
    QFETCH(double, value);
    QUxSlider slider;
    slider.setSteps(0.5, pageStep);
    QCOMPARE(slider.lineStep(), 0.5);
    QCOMPARE(innerSlider(slider)->pageStep(), ticks);
    QCOMPARE(slider.pageStep(), value);
}

void tst_QUxSlider::shouldBuildFromFullConstructor()
{
    QUxSlider slider(0.0, 10.0, 2.5, 5.0, Qt::Vertical, nullptr, "exposure");
    QCOMPARE(slider.objectName(), QStringLiteral("exposure"));
    QCOMPARE(innerSlider(slider)->orientation(), Qt::Vertical);
    QCOMPARE(slider.minValue(), 0.0);
    QCOMPARE(slider.maxValue(), 10.0);
    QCOMPARE(innerSlider(slider)->maximum(), 4);
    QCOMPARE(innerSlider(slider)->pageStep(), 2); // 2.5 truncated
    QCOMPARE(slider.pageStep(), 5.0);
    QCOMPARE(slider.value(), 5.0);
    QCOMPARE(innerSlider(slider)->value(), 2);

    QUxSlider unnamed;
    QVERIFY(unnamed.objectName().isEmpty());
    QCOMPARE(innerSlider(unnamed)->orientation(), Qt::Horizontal);
}

void tst_QUxSlider::shouldSwapSidesOfSliderAndSpinner()
{
    QUxSlider slider;
    slider.resize(300, 30);
    slider.show();
    QCOMPARE(slider.sliderPos(), QUxSlider::Left);
    QVERIFY(innerSlider(slider)->x() < innerSpinner(slider)->x());

    slider.setSliderPos(QUxSlider::Right);
    QCOMPARE(slider.sliderPos(), QUxSlider::Right);
    QTRY_VERIFY(innerSpinner(slider)->x() < innerSlider(slider)->x());
    QVERIFY(innerSlider(slider)->width() > innerSpinner(slider)->width()); // the slider still takes the stretch

    slider.setSliderPos(QUxSlider::Left);
    QTRY_VERIFY(innerSlider(slider)->x() < innerSpinner(slider)->x());
}

void tst_QUxSlider::shouldRelayRelativeOperatorOfSpinner()
{
    QUxSlider slider;
    slider.setValue(0.5);
    slider.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    QSignalSpy spy(&slider, &QUxSlider::relativeOperatorApplied);

    typeIntoSpinner(slider, QStringLiteral("+=2"));

    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<QUxDoubleSpiner::RelativeOperator>(), QUxDoubleSpiner::RelativeAdd);
    QCOMPARE(spy.at(0).at(1).toDouble(), 2.0);
    QCOMPARE(slider.value(), 0.5);
}

void tst_QUxSlider::shouldNotLetHandleSignalsOutWhileBlocked()
{
    QUxSlider slider;
    QSignalSpy handleSpy(innerSlider(slider), &QSlider::valueChanged);
    slider.blockSignals(true);
    slider.setValue(0.8);
    slider.blockSignals(false);
    QCOMPARE(handleSpy.count(), 0);
    QCOMPARE(innerSlider(slider)->value(), 8);

    slider.setValue(0.2);
    QCOMPARE(handleSpy.count(), 1);
}

void tst_QUxSlider::shouldPropagateMultiselectHighlight()
{
    QUxSlider slider;
    uxUIStyle::setMultiSelectHighlight(&slider, true);
    QCOMPARE(innerSlider(slider)->property("multiselect"), QVariant(true));
    QCOMPARE(innerSpinner(slider)->property("multiselect"), QVariant(true));

    uxUIStyle::setMultiSelectHighlight(&slider, false);
    QVERIFY(!slider.property("multiselect").isValid());
    QVERIFY(!innerSlider(slider)->property("multiselect").isValid());
    QVERIFY(!innerSpinner(slider)->property("multiselect").isValid());

    QWidget plain; // not a composite: only the widget itself is marked
    QLineEdit child(&plain);
    uxUIStyle::setMultiSelectHighlight(&plain, true);
    QCOMPARE(plain.property("multiselect"), QVariant(true));
    QVERIFY(!child.property("multiselect").isValid());
}

void tst_QUxSlider::shouldRepolishInnerWidgetsForStyleSheet()
{
    QUxSlider slider;
    slider.setStyleSheet(QStringLiteral("QSlider[multiselect=\"true\"] { background-color: rgb(200, 0, 0); }"));
    slider.resize(200, 24);
    auto colourAt = [&] {
        return slider.grab().toImage().pixelColor(innerSlider(slider)->mapTo(&slider, QPoint(1, 1)));
    };
    QVERIFY(colourAt() != QColor(200, 0, 0));

    uxUIStyle::setMultiSelectHighlight(&slider, true);
    QCOMPARE(colourAt(), QColor(200, 0, 0));

    uxUIStyle::setMultiSelectHighlight(&slider, false);
    QVERIFY(colourAt() != QColor(200, 0, 0));
}

QTEST_MAIN(tst_QUxSlider)
#include "tst_QUxSlider.moc"
