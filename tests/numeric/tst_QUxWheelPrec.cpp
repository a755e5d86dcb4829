#include <QUxDoubleSpiner.h>
#include <QUxWheel.h>
#include <QUxWheelPrec.h>

#include <uxPlatform.h>

#include <QApplication>
#include <QLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

namespace {

using Operator = QUxDoubleSpiner::RelativeOperator;

void dragWheel(QUxWheel* wheel, int fromX, int toX)
{
    QTest::mousePress(wheel, Qt::LeftButton, Qt::NoModifier, QPoint(fromX, 5));
    // Straight to the wheel: QTest moves the cursor, which reaches no widget offscreen.
    const QPoint to(toX, 5);
    QMouseEvent move(QEvent::MouseMove, to, wheel->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(wheel, &move);
    QTest::mouseRelease(wheel, Qt::LeftButton, Qt::NoModifier, to);
}

void turnMouseWheel(QWidget* widget, int delta)
{
    const QPointF pos(widget->width() / 2.0, widget->height() / 2.0);
    QWheelEvent event(pos, widget->mapToGlobal(pos.toPoint()), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

/// A laid-out control whose wheel has a real width.
struct Fixture
{
    Fixture()
    {
        control.resize(300, 20);
        control.layout()->activate();
    }
    QUxWheelPrec control;
};

} // namespace

class tst_QUxWheelPrec : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::c());
        qRegisterMetaType<QUxDoubleSpiner::RelativeOperator>();
    }
    void init() { uxPlatform::reset(); }

    void shouldPlaceFieldBeforeWheel();
    void shouldDeclareSignalsInOrder();
    void shouldForwardSettingsToField();
    void shouldEmitOnceForProgrammaticValue();
    void shouldReportValueClampedByNewRange();
    void shouldForwardSingleStep_data();
    void shouldForwardSingleStep();
    void shouldRelayStepChangedInField();
    void shouldDriveFieldWithWheelDrag_data();
    void shouldDriveFieldWithWheelDrag();
    void shouldStepFieldByMouseWheelOverWheel();
    void shouldSignalSliderPressAndRelease();
    void shouldReportWheelTurnsAsRelativeAdd_data();
    void shouldReportWheelTurnsAsRelativeAdd();
    void shouldLeaveReadOnlyFieldAlone();
    void shouldRelayTypedRelativeEntry();
    void shouldRelayTypedValueAndEditingFinished();
    void shouldRelayFieldMouseButtons();
    void shouldRelayFocusGainedThroughProxy();
    void shouldHideAndShowWheel();
    void shouldSizeFieldAndWheel();
    void shouldMarkFieldForMultiSelection();
};

void tst_QUxWheelPrec::shouldPlaceFieldBeforeWheel()
{
    Fixture f;
    QUxWheelPrec& control = f.control;
    QCOMPARE(control.spiner()->parentWidget(), &control);
    QCOMPARE(control.wheel()->parentWidget(), &control);
    QCOMPARE(control.focusProxy(), control.spiner());
    QVERIFY(control.isWheelVisible());
    QVERIFY(control.spiner()->geometry().right() < control.wheel()->geometry().left());
    QVERIFY(control.wheel()->width() >= 40);
    QCOMPARE(control.buttonSymbols(), QAbstractSpinBox::NoButtons);
}

void tst_QUxWheelPrec::shouldDeclareSignalsInOrder()
{
    // The vector controls and hosts connect these by their text.
    const QByteArrayList signatures{"valueChanged(double)", "relativeOperatorApplied(RelativeOperator,double)",
                                    "sliderPressed()",      "sliderReleased()",
                                    "mouseButtonPressed()", "mouseButtonReleased()",
                                    "focusGained()",        "singleStepChanged(double)",
                                    "editingFinished()"};
    QByteArrayList declared;
    const QMetaObject* meta = &QUxWheelPrec::staticMetaObject;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            declared << meta->method(i).methodSignature();
    }
    QCOMPARE(declared, signatures);

    QUxWheelPrec control;
    control.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    QSignalSpy byText(&control, SIGNAL(relativeOperatorApplied(RelativeOperator, double)));
    QVERIFY(byText.isValid());
    control.spiner()->selectAll();
    QTest::keyClicks(control.spiner(), QStringLiteral("*=3"));
    QTest::keyClick(control.spiner(), Qt::Key_Return);
    QCOMPARE(byText.count(), 1);
    QCOMPARE(byText.at(0).at(0).value<Operator>(), QUxDoubleSpiner::RelativeMultiply);
    QCOMPARE(byText.at(0).at(1).toDouble(), 3.0);
}

void tst_QUxWheelPrec::shouldForwardSettingsToField()
{
    QUxWheelPrec control;
    control.setMinimum(-5.0);
    control.setMaximum(50.0);
    control.setDecimals(3);
    control.setDisplayDecimals(2);
    control.setUseExactDisplayDecimals(true);
    control.setShowStepHint(false);
    control.setSuffix(QStringLiteral(" mm"));
    control.setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    control.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);

    const QUxDoubleSpiner* field = control.spiner();
    QCOMPARE(field->minimum(), -5.0);
    QCOMPARE(field->maximum(), 50.0);
    QCOMPARE(field->decimals(), 3);
    QCOMPARE(field->displayDecimals(), 2);
    QVERIFY(field->useExactDisplayDecimals());
    QVERIFY(!field->showStepHint());
    QCOMPARE(field->suffix(), QStringLiteral(" mm"));
    QCOMPARE(field->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
    QCOMPARE(field->relativeOperatorHandlingMode(), QUxDoubleSpiner::EmitRelativeOperator);
    // Read back the way the vector controls read their components.
    QCOMPARE(control.minimum(), -5.0);
    QCOMPARE(control.decimals(), 3);
    QCOMPARE(control.displayDecimals(), 2);
    QVERIFY(!control.showStepHint());
}

void tst_QUxWheelPrec::shouldEmitOnceForProgrammaticValue()
{
    QUxWheelPrec control;
    control.setRange(0.0, 10.0);
    QSignalSpy spy(&control, &QUxWheelPrec::valueChanged);
    QSignalSpy fieldSpy(control.spiner(), QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    control.setValue(3.5);
    control.setValue(3.5);
    control.setValue(20.0);
    control.setValue(4.0);
    control.setValue(std::nan("")); // not a number: ignored, not taken for a bound
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(0).at(0).toDouble(), 3.5);
    QCOMPARE(spy.at(1).at(0).toDouble(), 10.0);
    QCOMPARE(spy.at(2).at(0).toDouble(), 4.0);
    QCOMPARE(control.value(), 4.0);
    QCOMPARE(fieldSpy.count(), 0);
}

void tst_QUxWheelPrec::shouldReportValueClampedByNewRange()
{
    QUxWheelPrec control;
    control.setValue(8.0);
    QSignalSpy spy(&control, &QUxWheelPrec::valueChanged);
    control.setMaximum(5.0);
    control.setMinimum(-3.0);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toDouble(), 5.0);
    control.setDecimals(0);
    control.setValue(2.4);
    QCOMPARE(control.value(), 2.0);
}

void tst_QUxWheelPrec::shouldForwardSingleStep_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("expected");
    QTest::addColumn<int>("emissions");
    QTest::newRow("fine step") << 0.25 << 0.25 << 1;
    QTest::newRow("coarse step") << 10.0 << 10.0 << 1;
    QTest::newRow("below smallest step") << 1e-9 << 1.0 << 0;
}

void tst_QUxWheelPrec::shouldForwardSingleStep()
{
    QFETCH(double, step);
    QFETCH(double, expected);
    QFETCH(int, emissions);
    QUxWheelPrec control;
    QSignalSpy spy(&control, &QUxWheelPrec::singleStepChanged);
    control.setSingleStep(step);
    QCOMPARE(control.singleStep(), expected);
    QCOMPARE(control.spiner()->singleStep(), expected);
    QCOMPARE(spy.count(), emissions);
    if (emissions)
        QCOMPARE(spy.at(0).at(0).toDouble(), step);
}

void tst_QUxWheelPrec::shouldRelayStepChangedInField()
{
    QUxWheelPrec control;
    QSignalSpy spy(&control, &QUxWheelPrec::singleStepChanged);
    control.spiner()->setSingleStep(0.125);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toDouble(), 0.125);
}

void tst_QUxWheelPrec::shouldDriveFieldWithWheelDrag_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("start");
    QTest::addColumn<int>("fromX");
    QTest::addColumn<int>("toX");
    QTest::addColumn<double>("expected");

    // Range 0 to 100.
    QTest::newRow("ten pixels right at 0.5") << 0.5 << 10.0 << 20 << 30 << 15.0;
    QTest::newRow("ten pixels left at 0.5") << 0.5 << 10.0 << 30 << 20 << 5.0;
    QTest::newRow("fine step") << 0.01 << 1.0 << 5 << 30 << 1.25;
    QTest::newRow("clamped at maximum") << 1.0 << 98.0 << 10 << 30 << 100.0;
    QTest::newRow("clamped at minimum") << 1.0 << 2.0 << 30 << 10 << 0.0;
}

void tst_QUxWheelPrec::shouldDriveFieldWithWheelDrag()
{
    QFETCH(double, step);
    QFETCH(double, start);
    QFETCH(int, fromX);
    QFETCH(int, toX);
    QFETCH(double, expected);

    Fixture f;
    QUxWheelPrec& control = f.control;
    control.setRange(0.0, 100.0);
    control.setSingleStep(step);
    control.setValue(start);
    QSignalSpy spy(&control, &QUxWheelPrec::valueChanged);
    QSignalSpy relative(&control, &QUxWheelPrec::relativeOperatorApplied);
    dragWheel(control.wheel(), fromX, toX);
    QCOMPARE(control.value(), expected);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toDouble(), expected);
    QCOMPARE(relative.count(), 0);
}

void tst_QUxWheelPrec::shouldStepFieldByMouseWheelOverWheel()
{
    Fixture f;
    QUxWheelPrec& control = f.control;
    control.setSingleStep(0.25);
    control.setValue(1.0);
    turnMouseWheel(control.wheel(), 120);
    QCOMPARE(control.value(), 1.5);
    turnMouseWheel(control.wheel(), -240);
    QCOMPARE(control.value(), 0.5);
}

void tst_QUxWheelPrec::shouldSignalSliderPressAndRelease()
{
    Fixture f;
    QUxWheelPrec& control = f.control;
    QSignalSpy pressed(&control, &QUxWheelPrec::sliderPressed);
    QSignalSpy released(&control, &QUxWheelPrec::sliderReleased);
    QSignalSpy buttonPressed(&control, &QUxWheelPrec::mouseButtonPressed);
    dragWheel(control.wheel(), 10, 20);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
    QCOMPARE(buttonPressed.count(), 0);
}

void tst_QUxWheelPrec::shouldReportWheelTurnsAsRelativeAdd_data()
{
    QTest::addColumn<int>("fromX");
    QTest::addColumn<int>("toX");
    QTest::addColumn<double>("increment");
    // Single step 0.5.
    QTest::newRow("rightwards") << 20 << 30 << 5.0;
    QTest::newRow("leftwards") << 30 << 20 << -5.0;
}

void tst_QUxWheelPrec::shouldReportWheelTurnsAsRelativeAdd()
{
    QFETCH(int, fromX);
    QFETCH(int, toX);
    QFETCH(double, increment);

    Fixture f;
    QUxWheelPrec& control = f.control;
    control.setSingleStep(0.5);
    control.setValue(3.0);
    control.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    QSignalSpy relative(&control, &QUxWheelPrec::relativeOperatorApplied);
    QSignalSpy changed(&control, &QUxWheelPrec::valueChanged);
    dragWheel(control.wheel(), fromX, toX);
    QCOMPARE(relative.count(), 1);
    QCOMPARE(relative.at(0).at(0).value<Operator>(), QUxDoubleSpiner::RelativeAdd);
    QCOMPARE(relative.at(0).at(1).toDouble(), increment);

    turnMouseWheel(control.wheel(), 120);
    QCOMPARE(relative.count(), 2);
    QCOMPARE(relative.at(1).at(1).toDouble(), 1.0);
    QCOMPARE(control.value(), 3.0);
    QCOMPARE(changed.count(), 0);
}

void tst_QUxWheelPrec::shouldLeaveReadOnlyFieldAlone()
{
    Fixture f;
    QUxWheelPrec& control = f.control;
    control.spiner()->setReadOnly(true);
    control.setValue(4.0);
    dragWheel(control.wheel(), 10, 30);
    QCOMPARE(control.value(), 4.0);
}

void tst_QUxWheelPrec::shouldRelayTypedRelativeEntry()
{
    QUxWheelPrec control;
    control.setValue(5.0);
    control.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    QSignalSpy relative(&control, &QUxWheelPrec::relativeOperatorApplied);
    QSignalSpy finished(&control, &QUxWheelPrec::editingFinished);
    control.spiner()->selectAll();
    QTest::keyClicks(control.spiner(), QStringLiteral("+=2"));
    QTest::keyClick(control.spiner(), Qt::Key_Return);
    QCOMPARE(relative.count(), 1);
    QCOMPARE(relative.at(0).at(0).value<Operator>(), QUxDoubleSpiner::RelativeAdd);
    QCOMPARE(relative.at(0).at(1).toDouble(), 2.0);
    QCOMPARE(control.value(), 5.0);
    QVERIFY(finished.count() >= 1);
}

void tst_QUxWheelPrec::shouldRelayTypedValueAndEditingFinished()
{
    QUxWheelPrec control;
    QSignalSpy changed(&control, &QUxWheelPrec::valueChanged);
    QSignalSpy finished(&control, &QUxWheelPrec::editingFinished);
    control.spiner()->selectAll();
    QTest::keyClicks(control.spiner(), QStringLiteral("3+4"));
    QTest::keyClick(control.spiner(), Qt::Key_Return);
    QCOMPARE(control.value(), 7.0);
    QVERIFY(!changed.isEmpty());
    QCOMPARE(changed.last().at(0).toDouble(), 7.0);
    QVERIFY(finished.count() >= 1);
}

void tst_QUxWheelPrec::shouldRelayFieldMouseButtons()
{
    Fixture f;
    QUxWheelPrec& control = f.control;
    QSignalSpy pressed(&control, &QUxWheelPrec::mouseButtonPressed);
    QSignalSpy released(&control, &QUxWheelPrec::mouseButtonReleased);
    auto* edit = control.spiner()->findChild<QLineEdit*>();
    QVERIFY(edit);
    QTest::mousePress(edit, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseRelease(edit, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
}

void tst_QUxWheelPrec::shouldRelayFocusGainedThroughProxy()
{
    Fixture f;
    QUxWheelPrec& control = f.control;
    QSignalSpy focus(&control, &QUxWheelPrec::focusGained);
    control.show();
    QApplication::setActiveWindow(&control);
    control.setFocus();
    QTRY_COMPARE(focus.count(), 1);
    QVERIFY(control.spiner()->hasFocus());
}

void tst_QUxWheelPrec::shouldHideAndShowWheel()
{
    QUxWheelPrec control;
    control.setWheelVisible(false);
    QVERIFY(!control.isWheelVisible());
    QVERIFY(control.wheel()->isHidden());
    control.setWheelVisible(true);
    QVERIFY(control.isWheelVisible());
}

void tst_QUxWheelPrec::shouldSizeFieldAndWheel()
{
    QUxWheelPrec control;
    control.setMinimumWheelSize(QSize(40, 12));
    control.setMaximumWheelSize(QSize(80, 24));
    control.setMinimumSpinerSize(QSize(60, 18));
    control.setMaximumSpinerSize(QSize(120, 26));
    QCOMPARE(control.wheel()->minimumSize(), QSize(40, 12));
    QCOMPARE(control.wheel()->maximumSize(), QSize(80, 24));
    QCOMPARE(control.spiner()->minimumSize(), QSize(60, 18));
    QCOMPARE(control.spiner()->maximumSize(), QSize(120, 26));
}

void tst_QUxWheelPrec::shouldMarkFieldForMultiSelection()
{
    QUxWheelPrec control;
    control.setMultiSelectHighlight(true);
    QCOMPARE(control.spiner()->property("multiselect"), QVariant(true));
    control.setMultiSelectHighlight(false);
    QVERIFY(!control.spiner()->property("multiselect").isValid());
    control.setControlProperty("inputAcceptable", false);
    QCOMPARE(control.spiner()->property("inputAcceptable"), QVariant(false));
}

QTEST_MAIN(tst_QUxWheelPrec)
#include "tst_QUxWheelPrec.moc"
