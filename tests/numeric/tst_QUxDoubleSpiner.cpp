#include <QUxDoubleSpiner.h>
#include <uxPlatform.h>
#include <uxUIUtils.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QWidgetAction>

#include <cmath>
#include <memory>

using Op = QUxDoubleSpiner::RelativeOperator;
using Mode = QUxDoubleSpiner::RelativeOperatorHandlingMode;

namespace {

QLineEdit* editOf(QAbstractSpinBox& spin) { return spin.findChild<QLineEdit*>(QStringLiteral("qt_spinbox_lineedit")); }

void typeText(QUxDoubleSpiner& spin, const QString& text)
{
    spin.selectAll();
    QTest::keyClicks(&spin, text);
}

void typeAndEnter(QUxDoubleSpiner& spin, const QString& text)
{
    typeText(spin, text);
    QTest::keyClick(&spin, Qt::Key_Return);
}

void loseFocus(QUxDoubleSpiner& spin)
{
    QFocusEvent focusOut(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&spin, &focusOut);
}

void sendMouse(QWidget* target, QEvent::Type type, Qt::MouseButton button, int x)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, QPointF(x, 5), target->mapToGlobal(QPoint(x, 5)),
                      type == QEvent::MouseMove ? Qt::NoButton : button, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

void dragWith(QUxDoubleSpiner& spin, Qt::MouseButton button, int fromX, int toX)
{
    QLineEdit* edit = editOf(spin);
    sendMouse(edit, QEvent::MouseButtonPress, button, fromX);
    sendMouse(edit, QEvent::MouseMove, button, toX);
    sendMouse(edit, QEvent::MouseButtonRelease, button, toX);
}

QString describe(Op op, double value) { return QStringLiteral("%1 %2").arg(int(op)).arg(value); }

/// Records the relative-entry and value signals of one spin box, in emission order.
class SignalLog : public QObject
{
public:
    explicit SignalLog(QUxDoubleSpiner* spin)
    {
        connect(spin, &QUxDoubleSpiner::relativeOperatorChanged, this,
                [this](Op op, double v) { entries << QStringLiteral("changed ") + describe(op, v); });
        connect(spin, &QUxDoubleSpiner::relativeOperatorApplied, this,
                [this](Op op, double v) { entries << QStringLiteral("applied ") + describe(op, v); });
        connect(spin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this](double v) { entries << QStringLiteral("value %1").arg(v); });
    }
    QStringList entries;
};

} // namespace

class tst_QUxDoubleSpiner : public QObject
{
    Q_OBJECT

private slots:
    void shouldRestoreDragCursorWhenDeletedMidDrag();
    void shouldApplyRelativeOperatorForHosts_data();
    void shouldApplyRelativeOperatorForHosts();
    void initTestCase();
    void init();

    void shouldStartWithItsDocumentedSetup();
    void shouldDeclareSignaturesHostsConnectByText_data();
    void shouldDeclareSignaturesHostsConnectByText();
    void shouldHintNinetyPixelsBySmallIconHeight();
    void shouldValidateTypedText_data();
    void shouldValidateTypedText();
    void shouldCommitTypedText_data();
    void shouldCommitTypedText();
    void shouldReadValueFromText_data();
    void shouldReadValueFromText();
    void shouldFormatTextFromValue_data();
    void shouldFormatTextFromValue();
    void shouldRemoveGroupSeparatorsOfOtherLocales();
    void shouldClampDisplayDecimals_data();
    void shouldClampDisplayDecimals();
    void shouldIgnoreStepsBelowTheSmallestStep();
    void shouldEmitRelativeEntryOnEnterInsteadOfApplyingIt();
    void shouldEmitRelativeEntryOnFocusOut();
    void shouldEmitAbsoluteEntryAsRelativeSetOnEnterOnly();
    void shouldApplyRelativeEntryWithoutApplyingSignal();
    void shouldDropPendingRelativeEntryWhenValueChanges();
    void shouldDragValueWithMiddleButton();
    void shouldEmitDragStepsInEmitMode();
    void shouldIgnoreDragsOfOtherButtonsAndLockedBoxes();
    void shouldPassMouseEventsWhileDisabled();
    void shouldMarkWrongInputOnlyAfterDelay();
    void shouldClearInputMarkAsSoonAsInputIsAcceptable();
    void shouldTakePendingRelativeEntryAsAcceptableInput();
    void shouldTurnCommaKeyIntoDecimalPoint();
    void shouldEmitFocusGainedOnFocusIn();
    void shouldEditStepSizeInContextMenu();
    void shouldUpdateSceneUnitOnAllRegisteredInstances();
};

void tst_QUxDoubleSpiner::initTestCase() { QLocale::setDefault(QLocale::c()); }

void tst_QUxDoubleSpiner::init()
{
    uxUIUtils::setSceneUnitScale(1.0f);
    uxPlatform::reset();
}

void tst_QUxDoubleSpiner::shouldStartWithItsDocumentedSetup()
{
    QUxDoubleSpiner spin;
    QCOMPARE(spin.focusPolicy(), Qt::WheelFocus);
    QCOMPARE(spin.alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(spin.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(spin.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(spin.minimum(), -2147483647.0);
    QCOMPARE(spin.maximum(), 2147483647.0);
    QCOMPARE(spin.decimals(), 10);
    QVERIFY(!spin.keyboardTracking());
    QCOMPARE(spin.locale(), QLocale::c());
    QCOMPARE(spin.displayDecimals(), 6);
    QVERIFY(!spin.useExactDisplayDecimals());
    QVERIFY(spin.showStepHint());
    QVERIFY(!spin.displaySceneUnit());
    QCOMPARE(spin.relativeOperatorHandlingMode(), QUxDoubleSpiner::ApplyRelativeOperator);
    QCOMPARE(spin.property("displayDecimals").toInt(), 6);
    for (const char* name : {"showStepHint", "useExactDisplayDecimals", "displaySceneUnit"})
        QVERIFY2(spin.property(name).isValid(), name);
}

void tst_QUxDoubleSpiner::shouldDeclareSignaturesHostsConnectByText_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("signature");
    const QString signal = QStringLiteral("signal");
    const QString slot = QStringLiteral("slot");
    QTest::newRow("singleStepChanged") << signal << "singleStepChanged(double)";
    QTest::newRow("mouseButtonPressed") << signal << "mouseButtonPressed()";
    QTest::newRow("mouseButtonReleased") << signal << "mouseButtonReleased()";
    QTest::newRow("relativeOperatorChanged") << signal << "relativeOperatorChanged(RelativeOperator,double)";
    QTest::newRow("relativeOperatorApplied") << signal << "relativeOperatorApplied(RelativeOperator,double)";
    QTest::newRow("focusGained") << signal << "focusGained()";
    QTest::newRow("setSingleStep") << slot << "setSingleStep(double)";
    QTest::newRow("stepEditingFinished") << slot << "stepEditingFinished()";
    QTest::newRow("setDisplayDecimals") << slot << "setDisplayDecimals(int)";
    QTest::newRow("setUseExactDisplayDecimals") << slot << "setUseExactDisplayDecimals(bool)";
    QTest::newRow("finishedEditing") << slot << "finishedEditing()";
    QTest::newRow("changedValue") << slot << "changedValue(QString)";
    QTest::newRow("checkInput") << slot << "checkInput(QString)";
    QTest::newRow("updateVisualInputFeedback") << slot << "updateVisualInputFeedback()";
    QTest::newRow("setCurrentRelativeOperator") << slot << "setCurrentRelativeOperator(RelativeOperator,double)";
}

void tst_QUxDoubleSpiner::shouldDeclareSignaturesHostsConnectByText()
{
    QFETCH(QString, kind);
    QFETCH(QString, signature);
    const QMetaObject& meta = QUxDoubleSpiner::staticMetaObject;
    const QByteArray text = signature.toLatin1();
    const int index = kind == QLatin1String("signal") ? meta.indexOfSignal(text) : meta.indexOfSlot(text);
    QVERIFY2(index >= meta.methodOffset(), text.constData());
}

void tst_QUxDoubleSpiner::shouldHintNinetyPixelsBySmallIconHeight()
{
    QUxDoubleSpiner spin;
    QCOMPARE(spin.sizeHint(), QSize(90, uxPlatform::getSmallIconSizeY()));
    uxPlatform::setDpiScale(1.5, 1.5);
    QCOMPARE(spin.sizeHint(), QSize(135, uxPlatform::getSmallIconSizeY()));
}

void tst_QUxDoubleSpiner::shouldValidateTypedText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("expected");

    const int apply = QUxDoubleSpiner::ApplyRelativeOperator;
    const int emitting = QUxDoubleSpiner::EmitRelativeOperator;
    const int ok = QValidator::Acceptable;
    const int partial = QValidator::Intermediate;
    const int refused = QValidator::Invalid;
    const QString none;

    QTest::newRow("plain number") << "14" << none << none << apply << ok;
    QTest::newRow("negative number") << "-2.5" << none << none << apply << ok;
    QTest::newRow("empty") << "" << none << none << apply << partial;
    QTest::newRow("lone minus") << "-" << none << none << apply << partial;
    QTest::newRow("expression") << "2*(3+4)" << none << none << apply << ok;
    QTest::newRow("sum") << "3+4" << none << none << emitting << ok;
    QTest::newRow("blanks inside") << "3 + 4" << none << none << apply << ok;
    QTest::newRow("open parenthesis") << "2*(3+" << none << none << apply << partial;
    QTest::newRow("empty parentheses") << "()" << none << none << apply << partial;
    QTest::newRow("division by zero is a number") << "1/0" << none << none << apply << ok;
    QTest::newRow("two operators") << "1++2" << none << none << apply << refused;
    QTest::newRow("two points") << "1..2" << none << none << apply << refused;
    QTest::newRow("operators split by blank") << "1+ -2" << none << none << apply << refused;
    QTest::newRow("operators split by point") << "1-.-2" << none << none << apply << refused;
    QTest::newRow("equals inside") << "1=2" << none << none << apply << refused;
    QTest::newRow("operator after number") << "2+=3" << none << none << apply << refused;
    QTest::newRow("two equals") << "+=2=" << none << none << apply << refused;
    QTest::newRow("letter") << "2*x" << none << none << apply << refused;
    QTest::newRow("exponent") << "1e5" << none << none << apply << refused;
    QTest::newRow("comma") << "1,5" << none << none << apply << refused;
    QTest::newRow("relative applied") << "+=2" << none << none << apply << ok;
    QTest::newRow("relative emitted") << "+=2" << none << none << emitting << partial;
    QTest::newRow("relative expression operand") << "*=1+1" << none << none << apply << ok;
    QTest::newRow("relative divide") << "/=4" << none << none << apply << ok;
    QTest::newRow("relative without operand") << "+=" << none << none << apply << partial;
    QTest::newRow("relative without operand emitted") << "-=" << none << none << emitting << partial;
    QTest::newRow("relative broken operand") << "*=(2" << none << none << apply << partial;
    QTest::newRow("affixes around expression") << "x: 3+4 mm"
                                               << "x: "
                                               << " mm" << apply << ok;
    QTest::newRow("affixes around refused text") << "x: 1++2 mm"
                                                 << "x: "
                                                 << " mm" << apply << refused;
    QTest::newRow("affixes around relative entry") << "x: +=1 mm"
                                                   << "x: "
                                                   << " mm" << emitting << partial;
}

void tst_QUxDoubleSpiner::shouldValidateTypedText()
{
    QFETCH(QString, text);
    QFETCH(QString, prefix);
    QFETCH(QString, suffix);
    QFETCH(int, mode);
    QFETCH(int, expected);

    QUxDoubleSpiner spin;
    spin.setPrefix(prefix);
    spin.setSuffix(suffix);
    spin.setRelativeOperatorHandlingMode(Mode(mode));
    int pos = text.size();
    QCOMPARE(int(spin.validate(text, pos)), expected);
}

void tst_QUxDoubleSpiner::shouldCommitTypedText_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("expected");

    const int apply = QUxDoubleSpiner::ApplyRelativeOperator;
    const int emitting = QUxDoubleSpiner::EmitRelativeOperator;
    QTest::newRow("sum") << 0.0 << "3+4" << apply << 7.0;
    QTest::newRow("nested expression") << 0.0 << "2*(3+4)" << apply << 14.0;
    QTest::newRow("blanks") << 1.0 << "10 / 4" << apply << 2.5;
    QTest::newRow("add") << 5.0 << "+=2" << apply << 7.0;
    QTest::newRow("subtract") << 5.0 << "-=2" << apply << 3.0;
    QTest::newRow("multiply by expression") << 5.0 << "*=1+1" << apply << 10.0;
    QTest::newRow("divide") << 5.0 << "/=4" << apply << 1.25;
    QTest::newRow("divide by zero keeps value") << 5.0 << "/=0" << apply << 5.0;
    QTest::newRow("clamped above") << 0.0 << "50*100" << apply << 100.0;
    QTest::newRow("clamped below") << 0.0 << "-50*100" << apply << -100.0;
    QTest::newRow("relative clamped") << 50.0 << "+=1000" << apply << 100.0;
    QTest::newRow("infinity clamped") << 0.0 << "1/0" << apply << 100.0;
    QTest::newRow("zero times infinity keeps value") << 0.0 << "*=1/0" << apply << 0.0;
    QTest::newRow("relative kept in emit mode") << 5.0 << "+=2" << emitting << 5.0;
    QTest::newRow("expression in emit mode") << 5.0 << "3*3" << emitting << 9.0;
}

void tst_QUxDoubleSpiner::shouldCommitTypedText()
{
    QFETCH(double, start);
    QFETCH(QString, typed);
    QFETCH(int, mode);
    QFETCH(double, expected);

    QUxDoubleSpiner spin;
    spin.setRange(-100.0, 100.0);
    spin.setValue(start);
    spin.setRelativeOperatorHandlingMode(Mode(mode));
    typeAndEnter(spin, typed);
    QCOMPARE(spin.value(), expected);
}

void tst_QUxDoubleSpiner::shouldReadValueFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");

    QTest::newRow("expression") << "x: 2*(3+4) mm" << 14.0;
    QTest::newRow("affixes cut by length") << "a: 3+4*2 cm" << 11.0;
    QTest::newRow("relative on current value") << "x: -=0.5 mm" << 11.5;
    QTest::newRow("relative result clamped") << "x: *=2 mm" << 20.0;
    QTest::newRow("unparsable gives lower bound") << "x: ( mm" << 10.0;
    QTest::newRow("not a number gives lower bound") << "x: 0/0 mm" << 10.0;
    QTest::newRow("above range") << "x: 99 mm" << 20.0;
}

void tst_QUxDoubleSpiner::shouldReadValueFromText()
{
    QFETCH(QString, text);
    QFETCH(double, expected);

    QUxDoubleSpiner spin;
    spin.setRange(10.0, 20.0);
    spin.setValue(12.0);
    spin.setPrefix(QStringLiteral("x: "));
    spin.setSuffix(QStringLiteral(" mm"));
    QCOMPARE(spin.valueFromText(text), expected);
}

void tst_QUxDoubleSpiner::shouldFormatTextFromValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<bool>("exact");
    QTest::addColumn<QString>("expected");

    QTest::newRow("thousands without separator") << 1234.5 << 6 << false << "1234.50";
    QTest::newRow("millions") << 1234567.125 << 6 << false << "1234567.125";
    QTest::newRow("negative thousands") << -1500.25 << 6 << false << "-1500.25";
    QTest::newRow("tenth") << 0.1 << 6 << false << "0.10";
    QTest::newRow("tenth exact") << 0.1 << 6 << true << "0.100000";
    QTest::newRow("trailing zeros trimmed") << 0.1234 << 6 << false << "0.1234";
    QTest::newRow("rounded to display decimals") << 0.123456789 << 6 << false << "0.123457";
    QTest::newRow("integer") << 2.0 << 6 << false << "2.00";
    QTest::newRow("no decimals still two") << 5.0 << 0 << false << "5.00";
    QTest::newRow("one decimal still two") << 1.25 << 1 << false << "1.25";
    QTest::newRow("exact three") << 2.0 << 3 << true << "2.000";
    QTest::newRow("exact none") << 7.0 << 0 << true << "7";
}

void tst_QUxDoubleSpiner::shouldFormatTextFromValue()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(bool, exact);
    QFETCH(QString, expected);

    QUxDoubleSpiner spin;
    spin.setDisplayDecimals(decimals);
    spin.setUseExactDisplayDecimals(exact);
    QCOMPARE(spin.textFromValue(value), expected);
}

void tst_QUxDoubleSpiner::shouldRemoveGroupSeparatorsOfOtherLocales()
{
    QUxDoubleSpiner spin;
    spin.setLocale(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(spin.textFromValue(1234.5), QStringLiteral("1234,50"));
    QCOMPARE(spin.textFromValue(0.5), QStringLiteral("0,50"));
    QCOMPARE(spin.textFromValue(-999.9999999), QStringLiteral("-1000,00"));
}

void tst_QUxDoubleSpiner::shouldClampDisplayDecimals_data()
{
    QTest::addColumn<int>("requested");
    QTest::addColumn<int>("stored");
    QTest::newRow("too many") << 500 << 323;
    QTest::newRow("negative") << -1 << 0;
    QTest::newRow("in range") << 3 << 3;
    QTest::newRow("upper bound") << 323 << 323;
}

void tst_QUxDoubleSpiner::shouldClampDisplayDecimals()
{
    QFETCH(int, requested);
    QFETCH(int, stored);
    QUxDoubleSpiner spin;
    spin.setDisplayDecimals(requested);
    QCOMPARE(spin.displayDecimals(), stored);
}

void tst_QUxDoubleSpiner::shouldIgnoreStepsBelowTheSmallestStep()
{
    QUxDoubleSpiner spin;
    QSignalSpy steps(&spin, &QUxDoubleSpiner::singleStepChanged);
    spin.setSingleStep(1e-9);
    spin.setSingleStep(std::nan(""));
    spin.setSingleStep(HUGE_VAL);
    QCOMPARE(spin.singleStep(), 1.0);
    QCOMPARE(steps.count(), 0);

    spin.setSingleStep(0.25);
    QCOMPARE(spin.singleStep(), 0.25);
    QCOMPARE(steps.count(), 1);
    QCOMPARE(steps.at(0).at(0).toDouble(), 0.25);
}

void tst_QUxDoubleSpiner::shouldEmitRelativeEntryOnEnterInsteadOfApplyingIt()
{
    QUxDoubleSpiner spin;
    spin.setValue(5.0);
    spin.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    SignalLog log(&spin);

    typeText(spin, QStringLiteral("+=2"));
    // every edit resets first; only the complete entry names an operator
    QCOMPARE(log.entries, QStringList({"changed 0 0", "changed 0 0", "changed 0 0", "changed 1 2"}));
    QCOMPARE(spin.currentRelativeOperator(), QUxDoubleSpiner::RelativeAdd);
    QCOMPARE(spin.currentRelativeValue(), 2.0);

    log.entries.clear();
    QTest::keyClick(&spin, Qt::Key_Return);
    QCOMPARE(log.entries, QStringList({"applied 1 2", "changed 0 0"}));
    QCOMPARE(spin.value(), 5.0);
    QCOMPARE(spin.currentRelativeOperator(), QUxDoubleSpiner::NoRelativeOperator);
}

void tst_QUxDoubleSpiner::shouldEmitRelativeEntryOnFocusOut()
{
    QUxDoubleSpiner spin;
    spin.setValue(8.0);
    spin.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    typeText(spin, QStringLiteral("/=4"));
    SignalLog log(&spin);
    QSignalSpy applied(&spin, &QUxDoubleSpiner::relativeOperatorApplied);

    loseFocus(spin);
    QCOMPARE(log.entries, QStringList({"applied 4 4", "changed 0 0"}));
    QCOMPARE(applied.at(0).at(0).value<Op>(), QUxDoubleSpiner::RelativeDivide);
    QCOMPARE(spin.value(), 8.0);
}

void tst_QUxDoubleSpiner::shouldEmitAbsoluteEntryAsRelativeSetOnEnterOnly()
{
    QUxDoubleSpiner spin;
    spin.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    typeText(spin, QStringLiteral("8"));
    SignalLog log(&spin);
    QTest::keyClick(&spin, Qt::Key_Enter);
    QCOMPARE(log.entries, QStringList({"value 8", "applied 5 8", "changed 0 0"}));

    log.entries.clear();
    typeText(spin, QStringLiteral("3"));
    log.entries.clear();
    loseFocus(spin);
    QCOMPARE(log.entries, QStringList({"value 3"}));
}

void tst_QUxDoubleSpiner::shouldApplyRelativeEntryWithoutApplyingSignal()
{
    QUxDoubleSpiner spin;
    spin.setValue(5.0);
    SignalLog log(&spin);
    typeAndEnter(spin, QStringLiteral("+=2"));
    // the typed entry is announced, but nothing is left pending for an owner
    QCOMPARE(log.entries, QStringList({"changed 1 2", "value 7"}));
    QCOMPARE(spin.currentRelativeOperator(), QUxDoubleSpiner::NoRelativeOperator);
}

void tst_QUxDoubleSpiner::shouldDropPendingRelativeEntryWhenValueChanges()
{
    QUxDoubleSpiner spin;
    spin.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    typeText(spin, QStringLiteral("-=3"));
    QCOMPARE(spin.currentRelativeOperator(), QUxDoubleSpiner::RelativeSubtract);

    spin.setValue(42.0);
    QCOMPARE(spin.currentRelativeOperator(), QUxDoubleSpiner::NoRelativeOperator);
    QSignalSpy applied(&spin, &QUxDoubleSpiner::relativeOperatorApplied);
    loseFocus(spin);
    QCOMPARE(applied.count(), 0);
}

void tst_QUxDoubleSpiner::shouldDragValueWithMiddleButton()
{
    QUxDoubleSpiner spin;
    spin.resize(200, 30);
    spin.setSingleStep(0.5);
    spin.setValue(10.0);
    QSignalSpy pressed(&spin, &QUxDoubleSpiner::mouseButtonPressed);
    QSignalSpy released(&spin, &QUxDoubleSpiner::mouseButtonReleased);
    QSignalSpy values(&spin, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    QLineEdit* edit = editOf(spin);

    sendMouse(edit, QEvent::MouseButtonPress, Qt::MiddleButton, 60);
    QCOMPARE(pressed.count(), 1);
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::SizeHorCursor);

    sendMouse(edit, QEvent::MouseMove, Qt::MiddleButton, 50);
    QCOMPARE(spin.value(), 5.0);
    sendMouse(edit, QEvent::MouseMove, Qt::MiddleButton, 54);
    QCOMPARE(spin.value(), 7.0);
    sendMouse(edit, QEvent::MouseButtonRelease, Qt::MiddleButton, 54);
    QCOMPARE(released.count(), 1);
    QVERIFY(!QGuiApplication::overrideCursor());
    QCOMPARE(values.count(), 2);

    // the next drag counts from its own press, not from the last release
    dragWith(spin, Qt::MiddleButton, 100, 102);
    QCOMPARE(spin.value(), 8.0);
}

void tst_QUxDoubleSpiner::shouldEmitDragStepsInEmitMode()
{
    QUxDoubleSpiner spin;
    spin.resize(200, 30);
    spin.setSingleStep(0.5);
    spin.setValue(10.0);
    spin.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    SignalLog log(&spin);

    dragWith(spin, Qt::MiddleButton, 60, 50);
    QCOMPARE(log.entries, QStringList({"applied 1 -5"}));
    QCOMPARE(spin.value(), 10.0);
}

void tst_QUxDoubleSpiner::shouldIgnoreDragsOfOtherButtonsAndLockedBoxes()
{
    QUxDoubleSpiner spin;
    spin.resize(200, 30);
    spin.setValue(10.0);
    dragWith(spin, Qt::LeftButton, 60, 90);
    dragWith(spin, Qt::RightButton, 60, 90);
    QCOMPARE(spin.value(), 10.0);

    spin.setReadOnly(true);
    QSignalSpy released(&spin, &QUxDoubleSpiner::mouseButtonReleased);
    sendMouse(editOf(spin), QEvent::MouseButtonPress, Qt::MiddleButton, 60);
    QVERIFY(!QGuiApplication::overrideCursor());
    sendMouse(editOf(spin), QEvent::MouseMove, Qt::MiddleButton, 90);
    sendMouse(editOf(spin), QEvent::MouseButtonRelease, Qt::MiddleButton, 90);
    QCOMPARE(spin.value(), 10.0);
    QCOMPARE(released.count(), 1);
}

void tst_QUxDoubleSpiner::shouldPassMouseEventsWhileDisabled()
{
    QUxDoubleSpiner spin;
    spin.setValue(10.0);
    spin.setEnabled(false);
    QSignalSpy pressed(&spin, &QUxDoubleSpiner::mouseButtonPressed);
    dragWith(spin, Qt::MiddleButton, 60, 90);
    QCOMPARE(pressed.count(), 0);
    QCOMPARE(spin.value(), 10.0);
}

void tst_QUxDoubleSpiner::shouldMarkWrongInputOnlyAfterDelay()
{
    QUxDoubleSpiner spin;
    typeText(spin, QStringLiteral("2*("));
    QVERIFY(!spin.isInputAcceptable());
    // not yet: the mark waits for a pause in typing
    QVERIFY(!spin.property("inputAcceptable").isValid());
    QTRY_COMPARE_WITH_TIMEOUT(spin.property("inputAcceptable"), QVariant(false), 3000);

    QTest::keyClick(&spin, Qt::Key_Return);
    QVERIFY(!spin.property("inputAcceptable").isValid());
}

void tst_QUxDoubleSpiner::shouldClearInputMarkAsSoonAsInputIsAcceptable()
{
    QUxDoubleSpiner spin;
    typeText(spin, QStringLiteral("2*("));
    QTRY_COMPARE_WITH_TIMEOUT(spin.property("inputAcceptable"), QVariant(false), 3000);
    QTest::keyClicks(&spin, QStringLiteral("3)"));
    QVERIFY(spin.isInputAcceptable());
    QVERIFY(!spin.property("inputAcceptable").isValid());
}

void tst_QUxDoubleSpiner::shouldTakePendingRelativeEntryAsAcceptableInput()
{
    QUxDoubleSpiner spin;
    spin.setRelativeOperatorHandlingMode(QUxDoubleSpiner::EmitRelativeOperator);
    typeText(spin, QStringLiteral("+="));
    QVERIFY(!spin.isInputAcceptable());
    QTest::keyClick(&spin, Qt::Key_1);
    QVERIFY(spin.isInputAcceptable());
    QSignalSpy applied(&spin, &QUxDoubleSpiner::relativeOperatorApplied);
    QVERIFY(!applied.wait(1200));
    QVERIFY(!spin.property("inputAcceptable").isValid());
}

void tst_QUxDoubleSpiner::shouldTurnCommaKeyIntoDecimalPoint()
{
    QUxDoubleSpiner spin;
    spin.selectAll();
    QTest::keyClick(&spin, Qt::Key_1);
    QTest::keyClick(&spin, Qt::Key_Comma, Qt::NoModifier);
    QTest::keyClick(&spin, Qt::Key_5);
    QCOMPARE(editOf(spin)->text(), QStringLiteral("1.5"));
    QTest::keyClick(&spin, Qt::Key_Return);
    QCOMPARE(spin.value(), 1.5);
}

void tst_QUxDoubleSpiner::shouldEmitFocusGainedOnFocusIn()
{
    QUxDoubleSpiner spin;
    QSignalSpy focus(&spin, &QUxDoubleSpiner::focusGained);
    QFocusEvent focusIn(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&spin, &focusIn);
    QCOMPARE(focus.count(), 1);
}

void tst_QUxDoubleSpiner::shouldEditStepSizeInContextMenu()
{
    QUxDoubleSpiner spin;
    spin.setSingleStep(0.5);
    spin.show();
    QVERIFY(QTest::qWaitForWindowExposed(&spin));

    QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(10, 10), spin.mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(&spin, &request);
    QVERIFY(request.isAccepted());
    auto* menu = editOf(spin)->findChild<QMenu*>();
    QVERIFY(menu);
    QTRY_VERIFY_WITH_TIMEOUT(menu->isVisible(), 3000);
    QCOMPARE(menu->pos(), spin.mapToGlobal(QPoint(10, 10)));
    auto* action = qobject_cast<QWidgetAction*>(menu->defaultAction());
    QVERIFY(action);
    auto* editor = qobject_cast<QUxDoubleSpiner*>(action->defaultWidget());
    QVERIFY(editor);
    QCOMPARE(editor->prefix(), QStringLiteral("Step: "));
    QCOMPARE(editor->minimum(), 1e-7);
    QCOMPARE(editor->maximum(), 100000.0);
    QCOMPARE(editor->value(), 0.5);
    QCOMPARE(editor->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(editor->contextMenuPolicy(), Qt::NoContextMenu);

    QSignalSpy steps(&spin, &QUxDoubleSpiner::singleStepChanged);
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("0.25"));
    QCOMPARE(spin.singleStep(), 0.25);
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(steps.last().at(0).toDouble(), 0.25);
    QTRY_VERIFY_WITH_TIMEOUT(!menu->isVisible(), 3000);

    QContextMenuEvent again(QContextMenuEvent::Keyboard, QPoint(10, 10));
    QApplication::sendEvent(&spin, &again);
    QCOMPARE(editOf(spin)->findChildren<QMenu*>().size(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(menu->isVisible(), 3000);
    // a keyboard request has no pointer position: half a box right of the request, at mid height
    QCOMPARE(menu->pos(), spin.mapToGlobal(QPoint(10, 0)) + QPoint(spin.width() / 2, spin.height() / 2));
    menu->hide();
}

void tst_QUxDoubleSpiner::shouldUpdateSceneUnitOnAllRegisteredInstances()
{
    QUxDoubleSpiner first;
    QUxDoubleSpiner second;
    QUxDoubleSpiner plain;
    plain.setSuffix(QStringLiteral(" deg"));
    first.setDisplaySceneUnit(true);
    second.setDisplaySceneUnit(true);
    QCOMPARE(first.suffix(), QStringLiteral(" mm"));
    {
        auto gone = std::make_unique<QUxDoubleSpiner>();
        gone->setDisplaySceneUnit(true);
    }

    uxUIUtils::setSceneUnitScale(10.0f);
    QUxDoubleSpiner::updateInstancesWithSceneUnit();
    QCOMPARE(first.suffix(), QStringLiteral(" cm"));
    QCOMPARE(second.suffix(), QStringLiteral(" cm"));
    QCOMPARE(plain.suffix(), QStringLiteral(" deg"));

    second.setDisplaySceneUnit(false);
    QCOMPARE(second.suffix(), QString());
    uxUIUtils::setSceneUnitScale(2.5f);
    QUxDoubleSpiner::updateInstancesWithSceneUnit();
    QCOMPARE(first.suffix(), QString());
    uxUIUtils::setSceneUnitScale(1000.0f);
    QUxDoubleSpiner::updateInstancesWithSceneUnit();
    QCOMPARE(first.suffix(), QStringLiteral(" m"));
    QCOMPARE(second.suffix(), QString());

    // switching on again reads the unit anew, even without the class-wide update
    uxUIUtils::setSceneUnitScale(10.0f);
    first.setDisplaySceneUnit(true);
    QCOMPARE(first.suffix(), QStringLiteral(" cm"));
}

void tst_QUxDoubleSpiner::shouldApplyRelativeOperatorForHosts_data()
{
    QTest::addColumn<int>("op");
    QTest::addColumn<double>("operand");
    QTest::addColumn<double>("expected");
    QTest::newRow("+=") << int(QUxDoubleSpiner::RelativeAdd) << 2.5 << 12.5;
    QTest::newRow("-=") << int(QUxDoubleSpiner::RelativeSubtract) << 2.5 << 7.5;
    QTest::newRow("*=") << int(QUxDoubleSpiner::RelativeMultiply) << 3.0 << 30.0;
    QTest::newRow("/=") << int(QUxDoubleSpiner::RelativeDivide) << 4.0 << 2.5;
    QTest::newRow("/= 0 keeps the value") << int(QUxDoubleSpiner::RelativeDivide) << 0.0 << 10.0;
    QTest::newRow("set") << int(QUxDoubleSpiner::RelativeSet) << -1.0 << -1.0;
    QTest::newRow("none") << int(QUxDoubleSpiner::NoRelativeOperator) << 99.0 << 10.0;
    QTest::newRow("*= NaN keeps the value") << int(QUxDoubleSpiner::RelativeMultiply) << double(NAN) << 10.0;
}

void tst_QUxDoubleSpiner::shouldApplyRelativeOperatorForHosts()
{
    QFETCH(int, op);
    QFETCH(double, operand);
    QFETCH(double, expected);
    QCOMPARE(QUxDoubleSpiner::applyRelativeOperator(10.0, QUxDoubleSpiner::RelativeOperator(op), operand), expected);
}

void tst_QUxDoubleSpiner::shouldRestoreDragCursorWhenDeletedMidDrag()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    auto* spin = new QUxDoubleSpiner;
    spin->show();
    QWidget* edit = spin->findChild<QLineEdit*>();
    QTest::mousePress(edit, Qt::MiddleButton, Qt::NoModifier, QPoint(10, 5));
    QVERIFY(QGuiApplication::overrideCursor());
    delete spin;
    QVERIFY(!QGuiApplication::overrideCursor());
}

QTEST_MAIN(tst_QUxDoubleSpiner)
#include "tst_QUxDoubleSpiner.moc"
