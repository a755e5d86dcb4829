#include <QUxDoubleSpiner.h>
#include <QUxSlider.h>
#include <uxPlatform.h>
#include <uxTestSupport.h>
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

} // namespace

class tst_QUxSlider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init() { uxPlatform::reset(); }

    void shouldDeclareSignalsAndSlotsByText()
    {
        QByteArrayList signalList, publicSlots;
        const QMetaObject* meta = &QUxSlider::staticMetaObject;
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() == QMetaMethod::Signal)
                signalList << method.methodSignature();
            else if (method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Public)
                publicSlots << method.methodSignature();
        }
        QCOMPARE(signalList,
                 QByteArrayList({"valueChanged(double)", "sliderPressed()", "sliderMoved(double)", "sliderReleased()",
                                 "changedReturn()", "relativeOperatorApplied(RelativeOperator,double)"}));
        for (const char* slot :
             {"setMinimum(double)", "setMaximum(double)", "setHardMinimum(double)", "setHardMaximum(double)",
              "setLineStep(double)", "setPageStep(double)", "setValue(double)", "onValueChanged(int)",
              "onSliderPressed()", "onSliderMoved(int)", "onSliderReleased()"})
            QVERIFY2(publicSlots.contains(slot), slot);
    }

    void shouldSizeSliderAndSpinnerByScale_data()
    {
        QTest::addColumn<double>("scaleX");
        QTest::addColumn<double>("scaleY");
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal at 1") << 1.0 << 1.0 << Qt::Horizontal;
        QTest::newRow("vertical at 2 x 1.5") << 2.0 << 1.5 << Qt::Vertical;
    }

    void shouldSizeSliderAndSpinnerByScale()
    {
        QFETCH(double, scaleX);
        QFETCH(double, scaleY);
        QFETCH(Qt::Orientation, orientation);
        uxPlatform::setDpiScale(scaleX, scaleY);
        QUxSlider slider(0.0, 10.0, 2.5, 5.0, orientation, nullptr, "exposure");
        QCOMPARE(slider.objectName(), QStringLiteral("exposure"));
        QCOMPARE(slider.minValue(), 0.0);
        QCOMPARE(slider.maxValue(), 10.0);
        QCOMPARE(slider.value(), 5.0);
        QCOMPARE(slider.pageStep(), 5.0); // the line step of 2.5 truncated to 2 ticks

        const QSlider* handle = innerSlider(slider);
        QCOMPARE(handle->orientation(), orientation);
        QCOMPARE(handle->maximum(), 4);
        QCOMPARE(handle->pageStep(), 2);
        QCOMPARE(handle->value(), 2);
        QCOMPARE(handle->minimumSize(), QSize(int(32 * scaleX), int(16 * scaleY)));
        QCOMPARE(handle->maximumHeight(), int(32 * scaleY));

        const QUxDoubleSpiner* spinner = innerSpinner(slider);
        QCOMPARE(spinner->minimumSize(), QSize(int(62 * scaleX), int(16 * scaleY)));
        QCOMPARE(spinner->maximumSize(), QSize(int(62 * scaleX), int(32 * scaleY)));
        QVERIFY(spinner->alignment() & Qt::AlignRight);
        QCOMPARE(spinner->buttonSymbols(), QAbstractSpinBox::NoButtons);

        auto* grid = qobject_cast<QGridLayout*>(slider.layout());
        QVERIFY(grid);
        QCOMPARE(grid->contentsMargins(), QMargins());
        QCOMPARE(grid->columnStretch(0), 1);
        QCOMPARE(grid->columnStretch(1), 0);
        QCOMPARE(slider.sizeHint(), QSize(int(130 * scaleX), qRound(20 * scaleY)));
    }

    void shouldCutSoftRangeIntoTicksOfLineStep_data()
    {
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("lineStep");
        QTest::addColumn<int>("lastTick");
        // 2.5 ticks round up; a reversed range counts its size
        const std::tuple<double, double, double, int> ranges[] = {{0, 1, 0.1, 10}, {0, 1, 0.3, 3}, {0, 1, 0.4, 3},
                                                                  {-1, 1, 0.5, 4}, {2, 0, 0.5, 4}, {0, 100, 1, 100},
                                                                  {3, 3, 0.1, 0}};
        for (const auto& [minimum, maximum, lineStep, lastTick] : ranges)
            QTest::addRow("%g..%g by %g", minimum, maximum, lineStep) << minimum << maximum << lineStep << lastTick;
    }

    void shouldCutSoftRangeIntoTicksOfLineStep()
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

    void shouldRoundHandleTowardPreviousValue_data()
    {
        QTest::addColumn<double>("previous");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("tick");
        // soft range 0 .. 1 by 0.1; a value that stays rounds up; beyond the ends the handle rests there
        const std::tuple<double, double, int> moves[] = {{0, 0.34, 3},    {1, 0.34, 4}, {0, 0.36, 3},
                                                         {1, 0.36, 4},    {0, 0.3, 3},  {1, 0.7, 7},
                                                         {0.34, 0.34, 4}, {0, 5, 10},   {0.5, -2, 0}};
        for (const auto& [previous, value, tick] : moves)
            QTest::addRow("%g to %g", previous, value) << previous << value << tick;
    }

    void shouldRoundHandleTowardPreviousValue()
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

    void shouldEmitValueChangedReleasedValueChangedWhenHandleMoves()
    {
        QUxSlider slider; // unnamed and horizontal, soft range 0 .. 1 by 0.1
        QVERIFY(slider.objectName().isEmpty());
        QCOMPARE(innerSlider(slider)->orientation(), Qt::Horizontal);
        SignalLog log(slider);
        slider.setValue(0.5);
        QCOMPARE(log.entries, QStringList({"valueChanged(0.5)", "sliderReleased", "valueChanged(0.5)"}));

        // once only when the handle stays
        log.entries.clear();
        slider.setValue(0.5);
        slider.setValue(0.55); // up from 0.5: tick 5 stays
        QCOMPARE(log.entries, QStringList({"valueChanged(0.5)", "valueChanged(0.55)"}));
    }

    void shouldClampToHardRange_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("expected");
        QTest::newRow("above") << 3.0 << 2.0;
        QTest::newRow("below") << -1.0 << 0.0;
        QTest::newRow("inside beyond soft range") << 1.5 << 1.5;
    }

    void shouldClampToHardRange()
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

    void shouldIgnoreNaNAndClampCurrentValueWhenHardRangeShrinks()
    {
        QUxSlider slider;
        slider.setValue(0.4);
        QSignalSpy spy(&slider, &QUxSlider::valueChanged);
        slider.setValue(std::nan(""));
        QCOMPARE(slider.value(), 0.4);
        QCOMPARE(innerSpinner(slider)->value(), 0.4);
        QCOMPARE(innerSlider(slider)->value(), 4);
        QCOMPARE(spy.count(), 0);

        slider.setValue(5.0);
        slider.setHardRange(0.0, 2.0);
        QCOMPARE(slider.value(), 2.0);
        QCOMPARE(spy.last().at(0).toDouble(), 2.0);
        QCOMPARE(slider.hardMinValue(), 0.0);
        QCOMPARE(slider.hardMaxValue(), 2.0);
    }

    void shouldKeepTypedValueBeyondSoftRange()
    {
        QUxSlider slider;
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        SignalLog log(slider);

        uxTest::typeAndCommit(innerSpinner(slider), QStringLiteral("5"));

        QCOMPARE(slider.value(), 5.0);
        QCOMPARE(innerSlider(slider)->value(), 10);
        QVERIFY(log.entries.contains(QStringLiteral("valueChanged(5)")));
        QCOMPARE(log.entries.last(), QStringLiteral("changedReturn"));
    }

    void shouldTakeValueFromHandleMoves()
    {
        QUxSlider slider;
        slider.setRange(-1.0, 1.0);
        slider.setLineStep(0.25);
        SignalLog log(slider);

        innerSlider(slider)->setValue(6); // a key press or click on the groove
        QCOMPARE(slider.value(), 0.5);
        QCOMPARE(innerSpinner(slider)->value(), 0.5);
        QCOMPARE(log.entries, QStringList{"valueChanged(0.5)"});
    }

    void shouldReportDragWithoutTrackingOnRelease()
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

        QCOMPARE(log.entries,
                 QStringList({"sliderPressed", "sliderMoved(0.4)", "sliderReleased", "valueChanged(0.4)"}));
        QCOMPARE(slider.value(), 0.4);
    }

    void shouldShowValueInSpinnerWithoutEchoAndStepItByLineStep()
    {
        QUxSlider slider;
        QUxDoubleSpiner* spinner = innerSpinner(slider);
        QSignalSpy values(spinner, qOverload<double>(&QDoubleSpinBox::valueChanged));
        QSignalSpy steps(spinner, &QUxDoubleSpiner::singleStepChanged);
        slider.setValue(0.75);
        QCOMPARE(spinner->value(), 0.75);
        QCOMPARE(spinner->text(), QStringLiteral("0.75"));
        QCOMPARE(values.count(), 0);

        slider.setLineStep(0.25);
        QCOMPARE(spinner->singleStep(), 0.25);
        QCOMPARE(steps.count(), 1);
        slider.setLineStep(1e-9); // too fine for the spin box: it keeps its step
        QCOMPARE(spinner->singleStep(), 0.25);
        QCOMPARE(steps.count(), 1);
    }

    void shouldKeepPageStepInTicks_data()
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

    void shouldKeepPageStepInTicks()
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

    void shouldSwapSidesOfSliderAndSpinner()
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

    void shouldRelayRelativeOperatorOfSpinner()
    {
        QUxSlider slider;
        slider.setValue(0.5);
        slider.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        QSignalSpy spy(&slider, &QUxSlider::relativeOperatorApplied);

        uxTest::typeAndCommit(innerSpinner(slider), QStringLiteral("+=2"));

        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<QUxDoubleSpiner::RelativeOperator>(), QUxDoubleSpiner::RelativeAdd);
        QCOMPARE(spy.at(0).at(1).toDouble(), 2.0);
        QCOMPARE(slider.value(), 0.5);
    }

    void shouldNotLetHandleSignalsOutWhileBlocked()
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

    void shouldPropagateMultiselectHighlightAndRepolish()
    {
        QUxSlider slider;
        slider.setStyleSheet(QStringLiteral("QSlider[multiselect=\"true\"] { background-color: rgb(200, 0, 0); }"));
        slider.resize(200, 24);
        const auto colourAt = [&] {
            return slider.grab().toImage().pixelColor(innerSlider(slider)->mapTo(&slider, QPoint(1, 1)));
        };
        QVERIFY(colourAt() != QColor(200, 0, 0));

        uxUIStyle::setMultiSelectHighlight(&slider, true);
        QCOMPARE(innerSlider(slider)->property("multiselect"), QVariant(true));
        QCOMPARE(innerSpinner(slider)->property("multiselect"), QVariant(true));
        QCOMPARE(colourAt(), QColor(200, 0, 0)); // the style sheet sees the new property

        uxUIStyle::setMultiSelectHighlight(&slider, false);
        QVERIFY(!slider.property("multiselect").isValid());
        QVERIFY(!innerSlider(slider)->property("multiselect").isValid());
        QVERIFY(!innerSpinner(slider)->property("multiselect").isValid());
        QVERIFY(colourAt() != QColor(200, 0, 0));

        QWidget plain; // not a composite: only the widget itself is marked
        QLineEdit child(&plain);
        uxUIStyle::setMultiSelectHighlight(&plain, true);
        QCOMPARE(plain.property("multiselect"), QVariant(true));
        QVERIFY(!child.property("multiselect").isValid());
    }
};

QTEST_MAIN(tst_QUxSlider)
#include "tst_QUxSlider.moc"
