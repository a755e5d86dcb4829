#include <QUxDoubleSpiner.h>
#include <QUxSlider.h>
#include <uxPlatform.h>
#include <uxTestSupport.h>
#include <uxUIStyle.h>

#include <QGridLayout>
#include <QLineEdit>
#include <QSlider>
#include <QtTest>

#include <functional>

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

using SliderAction = std::function<void(QUxSlider&)>;
/// Soft minimum, soft maximum, line step, last tick of the handle.
using Ticks = std::tuple<double, double, double, int>;
/// Previous value, new value, tick of the handle.
using Move = std::tuple<double, double, int>;

} // namespace

Q_DECLARE_METATYPE(SliderAction)
Q_DECLARE_METATYPE(Ticks)
Q_DECLARE_METATYPE(Move)

class tst_QUxSlider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init() { uxPlatform::reset(); }

    void shouldDeclarePublicSignalsAndSlotsHostsConnectByText()
    {
        const QMetaObject& m = QUxSlider::staticMetaObject;
        for (const char* text :
             {"valueChanged(double)", "sliderPressed()", "sliderMoved(double)", "sliderReleased()", "changedReturn()",
              "relativeOperatorApplied(RelativeOperator,double)", "setMinimum(double)", "setMaximum(double)",
              "setHardMinimum(double)", "setHardMaximum(double)", "setLineStep(double)", "setPageStep(double)",
              "setValue(double)", "onValueChanged(int)", "onSliderPressed()", "onSliderMoved(int)",
              "onSliderReleased()"})
            QVERIFY2(m.indexOfMethod(text) >= 0 && m.method(m.indexOfMethod(text)).access() == QMetaMethod::Public,
                     text);
    }

    void shouldSizeSliderAndSpinnerByScale_data()
    {
        QTest::addColumn<double>("scaleX");
        QTest::addColumn<double>("scaleY");
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<QList<QSize>>("sizes"); // slider minimum, spin box minimum and maximum, size hint
        QTest::newRow("horizontal at 1") << 1.0 << 1.0 << Qt::Horizontal
                                         << QList<QSize>{{32, 16}, {62, 16}, {62, 32}, {130, 20}};
        QTest::newRow("vertical at 2 x 1.5")
            << 2.0 << 1.5 << Qt::Vertical << QList<QSize>{{64, 24}, {124, 24}, {124, 48}, {260, 30}};
    }

    void shouldSizeSliderAndSpinnerByScale()
    {
        QFETCH(double, scaleX);
        QFETCH(double, scaleY);
        QFETCH(Qt::Orientation, orientation);
        QFETCH(QList<QSize>, sizes);
        uxPlatform::setDpiScale(scaleX, scaleY);
        QUxSlider slider(0.0, 10.0, 2.5, 5.0, orientation, nullptr, "exposure");
        QCOMPARE(slider.objectName(), QStringLiteral("exposure"));
        // min, max, value, and the page step: the line step of 2.5 truncated to 2 ticks
        QCOMPARE((QList<double>{slider.minValue(), slider.maxValue(), slider.value(), slider.pageStep()}),
                 (QList<double>{0.0, 10.0, 5.0, 5.0}));
        const QSlider* handle = innerSlider(slider);
        const QUxDoubleSpiner* spinner = innerSpinner(slider);
        QCOMPARE(handle->orientation(), orientation);
        QCOMPARE((QList<int>{handle->maximum(), handle->pageStep(), handle->value()}), (QList<int>{4, 2, 2}));
        QCOMPARE(
            (QList<QSize>{handle->minimumSize(), spinner->minimumSize(), spinner->maximumSize(), slider.sizeHint()}),
            sizes);
        QCOMPARE(handle->maximumHeight(), spinner->maximumHeight());
        QVERIFY(spinner->alignment() & Qt::AlignRight);
        QCOMPARE(spinner->buttonSymbols(), QAbstractSpinBox::NoButtons);
    }

    void shouldCutSoftRangeIntoTicksOfLineStep_data()
    {
        QTest::addColumn<Ticks>("ticks");
        // 2.5 ticks round up; a reversed range counts its size
        const Ticks ranges[] = {{0, 1, 0.1, 10}, {0, 1, 0.3, 3},   {0, 1, 0.4, 3}, {-1, 1, 0.5, 4},
                                {2, 0, 0.5, 4},  {0, 100, 1, 100}, {3, 3, 0.1, 0}};
        for (const Ticks& t : ranges)
            QTest::addRow("%g..%g by %g", std::get<0>(t), std::get<1>(t), std::get<2>(t)) << t;
    }

    void shouldCutSoftRangeIntoTicksOfLineStep()
    {
        QFETCH(Ticks, ticks);
        const auto [minimum, maximum, lineStep, lastTick] = ticks;
        QUxSlider slider;
        slider.setLineStep(lineStep);
        slider.setRange(minimum, maximum);
        const QSlider* handle = innerSlider(slider);
        QCOMPARE((QList<int>{handle->minimum(), handle->maximum(), handle->singleStep()}),
                 (QList<int>{0, lastTick, 1}));
    }

    void shouldRoundHandleTowardPreviousValue_data()
    {
        QTest::addColumn<Move>("move");
        // soft range 0 .. 1 by 0.1; a value that stays rounds up; beyond the ends the handle rests there
        const Move moves[] = {{0, 0.34, 3}, {1, 0.34, 4},    {0, 0.36, 3}, {1, 0.36, 4}, {0, 0.3, 3},
                              {1, 0.7, 7},  {0.34, 0.34, 4}, {0, 5, 10},   {0.5, -2, 0}};
        for (const Move& m : moves)
            QTest::addRow("%g to %g", std::get<0>(m), std::get<1>(m)) << m;
    }

    void shouldRoundHandleTowardPreviousValue()
    {
        QFETCH(Move, move);
        const auto [previous, value, tick] = move;
        QUxSlider slider; // soft range 0 .. 1, line step 0.1
        slider.setValue(previous);
        slider.setValue(value);
        QCOMPARE(innerSlider(slider)->value(), tick);
        QCOMPARE(slider.value(), value);
    }

    void shouldEmitInTheOrderListenersDependOn_data()
    {
        QTest::addColumn<SliderAction>("action");
        QTest::addColumn<QStringList>("order");
        // from 0.5 on a soft range -1 .. 1 by 0.25: the handle at tick 6 of 8
        QTest::newRow("setValue moving the handle")
            << SliderAction([](QUxSlider& s) { s.setValue(-0.5); })
            << QStringList{"valueChanged(-0.5)", "sliderReleased", "valueChanged(-0.5)"};
        QTest::newRow("setValue keeping the handle") // up from 0.5: tick 6 stays
            << SliderAction([](QUxSlider& s) { s.setValue(0.55); }) << QStringList{"valueChanged(0.55)"};
        QTest::newRow("setValue with the same value")
            << SliderAction([](QUxSlider& s) { s.setValue(0.5); }) << QStringList{"valueChanged(0.5)"};
        QTest::newRow("handle moved by a key or click")
            << SliderAction([](QUxSlider& s) { innerSlider(s)->setValue(2); }) << QStringList{"valueChanged(-0.5)"};
        QTest::newRow("handle dragged without tracking") << SliderAction([](QUxSlider& s) {
            s.setTracking(false);
            innerSlider(s)->setSliderDown(true);
            innerSlider(s)->setSliderPosition(2);
            QCOMPARE(innerSpinner(s)->value(), -0.5); // shown while dragging
            innerSlider(s)->setSliderDown(false);
        }) << QStringList{"sliderPressed", "sliderMoved(-0.5)", "sliderReleased", "valueChanged(-0.5)"};
        QTest::newRow("setValue while blocked moves the handle silently") << SliderAction([](QUxSlider& s) {
            QSignalSpy handleSpy(innerSlider(s), &QSlider::valueChanged);
            s.blockSignals(true);
            s.setValue(-0.5);
            s.blockSignals(false);
            QCOMPARE(std::make_pair(innerSlider(s)->value(), handleSpy.count()), std::make_pair(2, 0));
        }) << QStringList();
    }

    void shouldEmitInTheOrderListenersDependOn()
    {
        QFETCH(SliderAction, action);
        QFETCH(QStringList, order);
        QUxSlider slider;
        slider.setRange(-1.0, 1.0);
        slider.setLineStep(0.25);
        slider.setValue(0.5);
        SignalLog log(slider);
        QSignalSpy echoes(innerSpinner(slider), qOverload<double>(&QDoubleSpinBox::valueChanged));
        action(slider);
        QCOMPARE(log.entries, order);
        QCOMPARE(innerSpinner(slider)->value(), slider.value()); // shown without an echo back
        QCOMPARE(echoes.count(), 0);
    }

    void shouldClampToHardRange_data()
    {
        QTest::addColumn<bool>("rangeFirst");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("expected");
        QTest::newRow("above") << true << 3.0 << 2.0;
        QTest::newRow("below") << true << -1.0 << 0.0;
        QTest::newRow("inside beyond soft range") << true << 1.5 << 1.5;
        QTest::newRow("range shrinking onto the value") << false << 5.0 << 2.0;
    }

    void shouldClampToHardRange()
    {
        QFETCH(bool, rangeFirst);
        QFETCH(double, value);
        QFETCH(double, expected);
        QUxSlider slider;
        const std::function<void()> setRange = [&] { slider.setHardRange(0.0, 2.0); };
        const std::function<void()> setValue = [&] { slider.setValue(value); };
        (rangeFirst ? setRange : setValue)();
        QSignalSpy spy(&slider, &QUxSlider::valueChanged);
        (rangeFirst ? setValue : setRange)();
        QCOMPARE(slider.value(), expected);
        QCOMPARE(innerSpinner(slider)->value(), expected);
        QVERIFY(!spy.isEmpty());
        for (const QList<QVariant>& arguments : spy)
            QCOMPARE(arguments.at(0).toDouble(), expected);
    }

    void shouldKeepTypedValueBeyondSoftRangeAndRelayRelativeEntry()
    {
        QUxSlider slider;
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        SignalLog log(slider);
        QSignalSpy relative(&slider, &QUxSlider::relativeOperatorApplied);

        uxTest::typeAndCommit(innerSpinner(slider), QStringLiteral("5"));
        QCOMPARE(slider.value(), 5.0);
        QCOMPARE(innerSlider(slider)->value(), 10); // the handle rests at the end
        QVERIFY(log.entries.contains(QStringLiteral("valueChanged(5)")));
        QCOMPARE(log.entries.last(), QStringLiteral("changedReturn"));

        slider.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
        uxTest::typeAndCommit(innerSpinner(slider), QStringLiteral("+=2"));
        QCOMPARE(relative, QList<QVariantList>({{QVariant::fromValue(QUxDoubleSpiner::RelativeAdd), 2.0}}));
        QCOMPARE(slider.value(), 5.0);
    }

    void shouldPassLineStepToSpinnerAndKeepPageStepInTicks()
    {
        QUxSlider slider;
        QUxDoubleSpiner* spinner = innerSpinner(slider);
        QSignalSpy steps(spinner, &QUxDoubleSpiner::singleStepChanged);
        slider.setLineStep(0.25);
        slider.setLineStep(1e-9); // too fine for the spin box: it keeps its step
        QCOMPARE(spinner->singleStep(), 0.25);
        QCOMPARE(steps, QList<QVariantList>{{0.25}});

        slider.setSteps(0.5, 3.7); // the page step is set in whole ticks and read back in value units
        QCOMPARE(std::make_pair(slider.lineStep(), slider.pageStep()), std::make_pair(0.5, 1.5));
        QCOMPARE(innerSlider(slider)->pageStep(), 3);
        slider.setPageStep(0.9); // below one tick
        QCOMPARE(std::make_pair(innerSlider(slider)->pageStep(), slider.pageStep()), std::make_pair(0, 0.0));
    }

    void shouldSwapSidesOfSliderAndSpinner()
    {
        QUxSlider slider; // unnamed and horizontal
        QVERIFY(slider.objectName().isEmpty());
        QCOMPARE(innerSlider(slider)->orientation(), Qt::Horizontal);
        slider.resize(300, 30);
        slider.show();
        QCOMPARE(slider.sliderPos(), QUxSlider::Left);
        QVERIFY(innerSlider(slider)->x() < innerSpinner(slider)->x());

        slider.setSliderPos(QUxSlider::Right);
        QCOMPARE(slider.sliderPos(), QUxSlider::Right);
        QTRY_VERIFY(innerSpinner(slider)->x() < innerSlider(slider)->x());

        slider.setSliderPos(QUxSlider::Left);
        QTRY_VERIFY(innerSlider(slider)->x() < innerSpinner(slider)->x());
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
        for (bool on : {true, false}) {
            uxUIStyle::setMultiSelectHighlight(&slider, on);
            for (QWidget* w : QWidgetList{&slider, innerSlider(slider), innerSpinner(slider)})
                QCOMPARE(w->property("multiselect"), on ? QVariant(true) : QVariant());
            QCOMPARE(colourAt() == QColor(200, 0, 0), on); // the style sheet sees the new property
        }

        QWidget plain; // not a composite: only the widget itself is marked
        QLineEdit child(&plain);
        uxUIStyle::setMultiSelectHighlight(&plain, true);
        QCOMPARE(plain.property("multiselect"), QVariant(true));
        QVERIFY(!child.property("multiselect").isValid());
    }
};

QTEST_MAIN(tst_QUxSlider)
#include "tst_QUxSlider.moc"
