#include <QUxDoubleSpiner.h>
#include <QUxWheel.h>
#include <QUxWheelPrec.h>

#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QApplication>
#include <QLayout>
#include <QLineEdit>
#include <QtTest>

namespace {

using Operator = QUxDoubleSpiner::RelativeOperator;

/// The arguments of one relativeOperatorApplied() emission, as a spy holds them.
QList<QVariantList> relayed(Operator op, double amount) { return {{QVariant::fromValue(op), amount}}; }

/// Gives the wheel of @p control a real width.
void layOut(QUxWheelPrec& control)
{
    control.resize(300, 20);
    control.layout()->activate();
}

enum DragMode { Absolute, Relative, ReadOnly };
/// One drag across the wheel of a control with range 0 to 100, or a turn of it: mode, single step, start value,
/// from and to x of a drag, delta of a turn (0 for a drag), and the new value, or in relative mode the start plus
/// the reported increment.
using WheelCase = std::tuple<DragMode, double, double, int, int, int, double>;

} // namespace

Q_DECLARE_METATYPE(WheelCase)

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

    void shouldPlaceFieldBeforeWheelThatCanBeHidden()
    {
        QUxWheelPrec control;
        layOut(control);
        QCOMPARE(control.focusProxy(), control.spiner());
        QVERIFY(control.isWheelVisible());
        QVERIFY(control.spiner()->geometry().right() < control.wheel()->geometry().left());
        QVERIFY(control.wheel()->width() >= 40);
        control.setWheelVisible(false);
        QVERIFY(!control.isWheelVisible() && control.wheel()->isHidden());
        control.setWheelVisible(true);
        QVERIFY(control.isWheelVisible() && !control.wheel()->isHidden());
    }

    void shouldDeclareSignalsHostsConnectByText()
    {
        // relativeOperatorApplied is spied by its text below
        for (const char* text :
             {"valueChanged(double)", "sliderPressed()", "sliderReleased()", "mouseButtonPressed()",
              "mouseButtonReleased()", "focusGained()", "singleStepChanged(double)", "editingFinished()"})
            QVERIFY2(QUxWheelPrec::staticMetaObject.indexOfSignal(text) >= 0, text);
    }

    void shouldRelayTypedEntry_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("op"); // -1: no relative entry
        QTest::addColumn<double>("amount");
        QTest::addColumn<double>("value");
        QTest::newRow("relative multiply") << "*=3" << int(QUxDoubleSpiner::RelativeMultiply) << 3.0 << 5.0;
        QTest::newRow("relative add") << "+=2" << int(QUxDoubleSpiner::RelativeAdd) << 2.0 << 5.0;
        QTest::newRow("expression") << "3+4" << -1 << 0.0 << 7.0;
    }

    void shouldRelayTypedEntry()
    {
        QFETCH(QString, text);
        QFETCH(int, op);
        QFETCH(double, amount);
        QFETCH(double, value);
        QUxWheelPrec control;
        control.setValue(5.0);
        if (op >= 0)
            control.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
        QSignalSpy relative(&control, SIGNAL(relativeOperatorApplied(RelativeOperator, double)));
        QVERIFY(relative.isValid());
        QSignalSpy changed(&control, &QUxWheelPrec::valueChanged);
        QSignalSpy finished(&control, &QUxWheelPrec::editingFinished);
        uxTest::typeAndCommit(control.spiner(), text);
        QCOMPARE(relative, op < 0 ? QList<QVariantList>() : relayed(Operator(op), amount));
        QCOMPARE(changed.isEmpty(), op >= 0);
        QCOMPARE(control.value(), value);
        QVERIFY(finished.count() >= 1);
    }

    void shouldForwardSettingsToFieldAndWheel_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("onWheel");
        QTest::addColumn<QByteArray>("childProperty");
        const auto row = [](const char* property, const QVariant& value, bool onWheel, const char* childProperty) {
            QTest::newRow(property) << QByteArray(property) << value << onWheel << QByteArray(childProperty);
        };
        row("minimum", -5.0, false, "minimum");
        row("maximum", 50.0, false, "maximum");
        row("decimals", 3, false, "decimals");
        row("displayDecimals", 2, false, "displayDecimals");
        row("useExactDisplayDecimals", true, false, "useExactDisplayDecimals");
        row("showStepHint", false, false, "showStepHint");
        row("suffix", QStringLiteral(" mm"), false, "suffix");
        row("buttonSymbols", QVariant::fromValue(QAbstractSpinBox::UpDownArrows), false, "buttonSymbols");
        row("minimumSpinerSize", QSize(60, 18), false, "minimumSize");
        row("maximumSpinerSize", QSize(120, 26), false, "maximumSize");
        row("minimumWheelSize", QSize(40, 12), true, "minimumSize");
        row("maximumWheelSize", QSize(80, 24), true, "maximumSize");
    }

    void shouldForwardSettingsToFieldAndWheel()
    {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        QFETCH(bool, onWheel);
        QFETCH(QByteArray, childProperty);
        QUxWheelPrec control;
        QVERIFY(control.setProperty(property.constData(), value));
        QObject* child = onWheel ? static_cast<QObject*>(control.wheel()) : control.spiner();
        QCOMPARE(child->property(childProperty.constData()), value);
        QCOMPARE(control.property(property.constData()), value);
    }

    void shouldEmitOnceForProgrammaticValueOrRangeClamp()
    {
        QUxWheelPrec control;
        control.setRange(0.0, 10.0);
        QSignalSpy spy(&control, &QUxWheelPrec::valueChanged);
        QSignalSpy fieldSpy(control.spiner(), QOverload<double>::of(&QDoubleSpinBox::valueChanged));
        control.setValue(3.5);
        control.setValue(3.5);
        control.setValue(20.0);
        control.setValue(8.0);
        control.setMaximum(5.0);
        control.setMinimum(-3.0);
        QCOMPARE(spy, QList<QVariantList>({{3.5}, {10.0}, {8.0}, {5.0}}));
        QCOMPARE(fieldSpy.count(), 0);
        control.setDecimals(0);
        control.setValue(2.4);
        QCOMPARE(control.value(), 2.0);
    }

    void shouldForwardSingleStep_data()
    {
        QTest::addColumn<bool>("inField");
        QTest::addColumn<double>("step");
        QTest::addColumn<double>("expected");
        QTest::newRow("fine step") << false << 0.25 << 0.25;
        QTest::newRow("coarse step") << false << 10.0 << 10.0;
        QTest::newRow("below smallest step") << false << 1e-9 << 1.0;
        QTest::newRow("changed in field") << true << 0.125 << 0.125;
    }

    void shouldForwardSingleStep()
    {
        QFETCH(bool, inField);
        QFETCH(double, step);
        QFETCH(double, expected);
        QUxWheelPrec control;
        QSignalSpy spy(&control, &QUxWheelPrec::singleStepChanged);
        if (inField)
            control.spiner()->setSingleStep(step);
        else
            control.setSingleStep(step);
        QCOMPARE(control.singleStep(), expected);
        QCOMPARE(control.spiner()->singleStep(), expected);
        QCOMPARE(spy,
                 expected == step ? QList<QVariantList>{{step}} : QList<QVariantList>()); // a refused step is silent
    }

    void shouldDriveFieldWithWheelDragOrTurn_data()
    {
        QTest::addColumn<WheelCase>("wheelCase");
        QTest::newRow("ten pixels right at 0.5") << WheelCase{Absolute, 0.5, 10.0, 20, 30, 0, 15.0};
        QTest::newRow("ten pixels left at 0.5") << WheelCase{Absolute, 0.5, 10.0, 30, 20, 0, 5.0};
        QTest::newRow("fine step") << WheelCase{Absolute, 0.01, 1.0, 5, 30, 0, 1.25};
        QTest::newRow("clamped at maximum") << WheelCase{Absolute, 1.0, 98.0, 10, 30, 0, 100.0};
        QTest::newRow("clamped at minimum") << WheelCase{Absolute, 1.0, 2.0, 30, 10, 0, 0.0};
        QTest::newRow("relative rightwards") << WheelCase{Relative, 0.5, 3.0, 20, 30, 0, 8.0};
        QTest::newRow("relative leftwards") << WheelCase{Relative, 0.5, 3.0, 30, 20, 0, -2.0};
        QTest::newRow("read-only field") << WheelCase{ReadOnly, 1.0, 4.0, 10, 30, 0, 4.0};
        QTest::newRow("turn a notch up") << WheelCase{Absolute, 0.25, 1.0, 0, 0, 120, 1.5};
        QTest::newRow("turn two notches down") << WheelCase{Absolute, 0.25, 1.5, 0, 0, -240, 0.5};
        QTest::newRow("relative turn") << WheelCase{Relative, 0.5, 0.5, 0, 0, 120, 1.5};
    }

    void shouldDriveFieldWithWheelDragOrTurn()
    {
        QFETCH(WheelCase, wheelCase);
        const auto [mode, step, start, fromX, toX, delta, expected] = wheelCase;
        QUxWheelPrec control;
        layOut(control);
        control.setRange(0.0, 100.0);
        control.setSingleStep(step);
        control.setValue(start);
        control.spiner()->setReadOnly(mode == ReadOnly);
        if (mode == Relative)
            control.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
        QSignalSpy spy(&control, &QUxWheelPrec::valueChanged);
        QSignalSpy relative(&control, &QUxWheelPrec::relativeOperatorApplied);
        QSignalSpy pressed(&control, &QUxWheelPrec::sliderPressed);
        QSignalSpy released(&control, &QUxWheelPrec::sliderReleased);
        QSignalSpy buttonPressed(&control, &QUxWheelPrec::mouseButtonPressed);
        if (delta)
            uxTest::turnWheel(control.wheel(), delta);
        else
            uxTest::drag(control.wheel(), QPoint(fromX, 5), QPoint(toX, 5));
        const int drags = delta ? 0 : 1;
        QCOMPARE((QList<int>{pressed.count(), released.count(), buttonPressed.count()}), (QList<int>{drags, drags, 0}));
        const bool relays = mode == Relative;
        QCOMPARE(control.value(), relays ? start : expected);
        QCOMPARE(relative, relays ? relayed(QUxDoubleSpiner::RelativeAdd, expected - start) : QList<QVariantList>());
        QCOMPARE(spy, mode == Absolute ? QList<QVariantList>{{expected}} : QList<QVariantList>());
    }

    void shouldRelayFieldButtonsAndFocusAndMarkFieldForMultiSelection()
    {
        QUxWheelPrec control;
        layOut(control);
        QSignalSpy pressed(&control, &QUxWheelPrec::mouseButtonPressed);
        QSignalSpy released(&control, &QUxWheelPrec::mouseButtonReleased);
        auto* edit = control.spiner()->findChild<QLineEdit*>();
        QVERIFY(edit);
        QTest::mousePress(edit, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QTest::mouseRelease(edit, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QCOMPARE(std::make_pair(pressed.count(), released.count()), std::make_pair(1, 1));

        QSignalSpy focus(&control, &QUxWheelPrec::focusGained);
        control.show();
        QApplication::setActiveWindow(&control);
        control.setFocus();
        QTRY_COMPARE(focus.count(), 1);
        QVERIFY(control.spiner()->hasFocus());

        control.setMultiSelectHighlight(true);
        QCOMPARE(control.spiner()->property("multiselect"), QVariant(true));
        control.setMultiSelectHighlight(false);
        QVERIFY(!control.spiner()->property("multiselect").isValid());
        control.setControlProperty("inputAcceptable", false);
        QCOMPARE(control.spiner()->property("inputAcceptable"), QVariant(false));
    }
};

QTEST_MAIN(tst_QUxWheelPrec)
#include "tst_QUxWheelPrec.moc"
