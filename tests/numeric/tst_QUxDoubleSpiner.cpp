#include <QUxDoubleSpiner.h>
#include <uxPlatform.h>
#include <uxSceneUnitChecks.h>
#include <uxScriptEvaluator_p.h>
#include <uxUIUtils.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QRandomGenerator>
#include <QScriptEngine>
#include <QSignalSpy>
#include <QTest>
#include <QWidgetAction>

#include <cmath>
#include <cstring>
#include <memory>

using Op = QUxDoubleSpiner::RelativeOperator;
using Mode = QUxDoubleSpiner::RelativeOperatorHandlingMode;
using State = QValidator::State;

namespace {

constexpr Mode Apply = QUxDoubleSpiner::ApplyRelativeOperator;
constexpr Mode Emit = QUxDoubleSpiner::EmitRelativeOperator;

QLineEdit* editOf(QAbstractSpinBox& spin) { return spin.findChild<QLineEdit*>(QStringLiteral("qt_spinbox_lineedit")); }

void typeText(QUxDoubleSpiner& spin, const QString& text)
{
    spin.selectAll();
    QTest::keyClicks(&spin, text);
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

/// Random arithmetic over the characters the field admits, sometimes broken by a stray character.
QString randomExpression(QRandomGenerator& rng, int depth)
{
    // Leading zeros read as octal to the engine; 0.1 and 1/3 catch any rounding that differs.
    static const QStringList numbers{"0", "7", "12.5", ".5", "3.", "0.1", "1000000", "3", "010", "08", "00", "0."};
    static const QStringList operators{"+", "-", "*", "/"};
    const auto pick = [&rng](const QStringList& list) { return list.at(rng.bounded(list.size())); };
    if (depth == 0 || rng.bounded(4) == 0)
        return pick(numbers);
    switch (rng.bounded(3)) {
    case 0:
        return QLatin1Char('(') + randomExpression(rng, depth - 1) + QLatin1Char(')');
    case 1:
        return pick(operators.mid(0, 2)) + randomExpression(rng, depth - 1);
    default:
        return randomExpression(rng, depth - 1) + (rng.bounded(2) ? " " : "") + pick(operators)
               + randomExpression(rng, depth - 1);
    }
}

QString randomAdmittedText(QRandomGenerator& rng)
{
    static const QString strays = QStringLiteral("0123456789 .()+-*/");
    QString text = randomExpression(rng, 3) + QLatin1Char('*') + randomExpression(rng, 3);
    if (rng.bounded(3) == 0)
        text.insert(rng.bounded(text.size() + 1), strays.at(rng.bounded(strays.size())));
    return text;
}

/// Equal to the last bit, where QCOMPARE on doubles would forgive rounding.
bool sameNumber(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

/// What a script engine of its own makes of @p text: a number (NaN and Infinity included) or nothing.
bool freshEngineNumber(const QString& text, double& result)
{
    QScriptEngine engine;
    const QScriptValue value = engine.evaluate(text);
    result = value.toNumber();
    return value.isNumber();
}

QString describe(Op op, double value) { return QStringLiteral("%1 %2").arg(int(op)).arg(value); }

/// Records the signals of one spin box in emission order.
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
        connect(spin, &QUxDoubleSpiner::mouseButtonPressed, this, [this] { entries << QStringLiteral("pressed"); });
        connect(spin, &QUxDoubleSpiner::mouseButtonReleased, this, [this] { entries << QStringLiteral("released"); });
    }
    QStringList entries;
};

} // namespace

class tst_QUxDoubleSpiner : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init()
    {
        uxUIUtils::setSceneUnitScale(1.0f);
        uxPlatform::reset();
    }

    void shouldStartWithItsDocumentedSetup()
    {
        QUxDoubleSpiner spin;
        QCOMPARE(spin.focusPolicy(), Qt::WheelFocus);
        QCOMPARE(spin.alignment(), Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(spin.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
        QCOMPARE(spin.minimum(), -2147483647.0);
        QCOMPARE(spin.maximum(), 2147483647.0);
        QCOMPARE(spin.decimals(), 10);
        QVERIFY(!spin.keyboardTracking());
        QCOMPARE(spin.locale(), QLocale::c());
        QCOMPARE(spin.relativeOperatorHandlingMode(), Apply);
        // read through the declared properties, which call the getters
        for (const auto& [name, value] : {std::pair<const char*, QVariant>("displayDecimals", 6),
                                          {"showStepHint", true},
                                          {"useExactDisplayDecimals", false},
                                          {"displaySceneUnit", false}})
            QCOMPARE(spin.property(name), value);

        QCOMPARE(spin.sizeHint(), QSize(90, uxPlatform::getSmallIconSizeY()));
        uxPlatform::setDpiScale(1.5, 1.5);
        QCOMPARE(spin.sizeHint(), QSize(135, uxPlatform::getSmallIconSizeY()));

        QSignalSpy focus(&spin, &QUxDoubleSpiner::focusGained);
        QFocusEvent focusIn(QEvent::FocusIn, Qt::TabFocusReason);
        QApplication::sendEvent(&spin, &focusIn);
        QCOMPARE(focus.count(), 1);

        // display decimals are clamped to [0, 323]
        for (const auto& [requested, stored] : {std::pair(500, 323), {-1, 0}, {3, 3}, {323, 323}}) {
            spin.setDisplayDecimals(requested);
            QCOMPARE(spin.displayDecimals(), stored);
        }
    }

    void shouldDeclareSignaturesHostsConnectByText()
    {
        const QMetaObject& meta = QUxDoubleSpiner::staticMetaObject;
        for (const char* signal : {"singleStepChanged(double)", "mouseButtonPressed()", "mouseButtonReleased()",
                                   "relativeOperatorChanged(RelativeOperator,double)",
                                   "relativeOperatorApplied(RelativeOperator,double)", "focusGained()"})
            QVERIFY2(meta.indexOfSignal(signal) >= meta.methodOffset(), signal);
        for (const char* slot : {"setSingleStep(double)", "stepEditingFinished()", "setDisplayDecimals(int)",
                                 "setUseExactDisplayDecimals(bool)"})
            QVERIFY2(meta.indexOfSlot(slot) >= meta.methodOffset(), slot);
    }

    void shouldValidateTypedText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("affixed");
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<State>("expected");
        // every text bare and between a prefix and a suffix, which are cut off by length
        const auto add = [](Mode mode, State expected, std::initializer_list<const char*> texts) {
            for (const char* text : texts) {
                for (bool affixed : {false, true})
                    QTest::addRow("\"%s\"%s%s", text, affixed ? " affixed" : "", mode == Emit ? " emitted" : "")
                        << QString::fromLatin1(text) << affixed << mode << expected;
            }
        };
        // "1/0" is a number (Infinity); letters, exponents and commas are refused
        add(Apply, QValidator::Acceptable, {"14", "-2.5", "2*(3+4)", "3 + 4", "1/0", "+=2", "*=1+1", "/=4"});
        add(Apply, QValidator::Intermediate, {"", "-", "2*(3+", "()", "+=", "*=(2"});
        add(Apply, QValidator::Invalid, {"1++2", "1..2", "1+ -2", "1-.-2", "1=2", "2+=3", "+=2=", "2*x", "1e5", "1,5"});
        // a relative entry is left for the owner to apply
        add(Emit, QValidator::Acceptable, {"3+4"});
        add(Emit, QValidator::Intermediate, {"+=2", "-="});
    }

    void shouldValidateTypedText()
    {
        QFETCH(QString, text);
        QFETCH(bool, affixed);
        QFETCH(Mode, mode);
        QFETCH(State, expected);
        QUxDoubleSpiner spin;
        if (affixed) {
            spin.setPrefix(QStringLiteral("x: "));
            spin.setSuffix(QStringLiteral(" mm"));
            text = QStringLiteral("x: %1 mm").arg(text);
        }
        spin.setRelativeOperatorHandlingMode(mode);
        int pos = text.size();
        QCOMPARE(spin.validate(text, pos), expected);
    }

    void shouldCommitTypedText_data()
    {
        QTest::addColumn<double>("start");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<double>("expected");
        // range -100 .. 100; division by zero and 0 * Infinity keep the value; the comma key enters a point
        const std::tuple<double, const char*, Mode, double> commits[] = {
            {0, "3+4", Apply, 7},   {0, "2*(3+4)", Apply, 14}, {1, "10 / 4", Apply, 2.5},   {0, "1,5", Apply, 1.5},
            {5, "+=2", Apply, 7},   {5, "-=2", Apply, 3},      {5, "*=1+1", Apply, 10},     {5, "/=4", Apply, 1.25},
            {5, "/=0", Apply, 5},   {0, "50*100", Apply, 100}, {0, "-50*100", Apply, -100}, {50, "+=1000", Apply, 100},
            {0, "1/0", Apply, 100}, {0, "*=1/0", Apply, 0},    {5, "+=2", Emit, 5},         {5, "3*3", Emit, 9}};
        for (const auto& [start, typed, mode, expected] : commits)
            QTest::addRow("%s from %g%s", typed, start, mode == Emit ? " emitted" : "")
                << start << QString(typed) << mode << expected;
    }

    void shouldCommitTypedText()
    {
        QFETCH(double, start);
        QFETCH(QString, typed);
        QFETCH(Mode, mode);
        QFETCH(double, expected);
        QUxDoubleSpiner spin;
        spin.setRange(-100.0, 100.0);
        spin.setValue(start);
        spin.setRelativeOperatorHandlingMode(mode);
        typeText(spin, typed);
        QTest::keyClick(&spin, Qt::Key_Return);
        QCOMPARE(spin.value(), expected);
    }

    void shouldReadValueFromText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("expected");
        // range 10 .. 20, value 12, affixes "x: " and " mm" cut by length; no number gives the lower bound
        for (const auto& [text, expected] : {std::pair("x: 2*(3+4) mm", 14.0),
                                             {"a: 3+4*2 cm", 11.0},
                                             {"x: -=0.5 mm", 11.5},
                                             {"x: *=2 mm", 20.0},
                                             {"x: ( mm", 10.0},
                                             {"x: 0/0 mm", 10.0},
                                             {"x: 99 mm", 20.0}})
            QTest::newRow(text) << QString::fromLatin1(text) << expected;
    }

    void shouldReadValueFromText()
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

    // The field reads plain arithmetic itself and keeps one script engine for the rest;
    // either way every admitted text must mean exactly what a fresh engine makes of it.
    void shouldEvaluateLikeAFreshScriptEngine()
    {
        QUxDoubleSpiner spin;
        spin.setRange(-1e12, 1e12);
        spin.setValue(1.5);
        spin.setRelativeOperatorHandlingMode(Apply);
        QRandomGenerator rng(20261123);
        int numbers = 0;
        for (int i = 0; i < 2000; ++i) {
            QString text = randomAdmittedText(rng);
            double reference = 0.0;
            const bool isNumber = freshEngineNumber(text, reference);
            numbers += isNumber;
            const double absolute = isNumber && !std::isnan(reference) ? qBound(-1e12, reference, 1e12) : 0.0;
            const double relative = isNumber && !std::isnan(reference) ? qBound(-1e12, 1.5 + reference, 1e12) : 0.0;
            QVERIFY2(sameNumber(spin.valueFromText(text), absolute), qPrintable(text));
            QVERIFY2(sameNumber(spin.valueFromText(QStringLiteral("+=") + text), relative), qPrintable(text));
            int pos = 0;
            const State state = spin.validate(text, pos);
            if (state != QValidator::Invalid)
                QVERIFY2((state == QValidator::Acceptable) == isNumber, qPrintable(text));
        }
        // The generator must exercise both outcomes to prove anything.
        QVERIFY(numbers > 200 && numbers < 1800);
    }

    void shouldFormatTextFromValue_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<bool>("exact");
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("expected");
        // no group separators; at most the display decimals, trailing zeros trimmed down to two unless exact
        const QLocale c = QLocale::c();
        const QLocale german(QLocale::German, QLocale::Germany);
        const std::tuple<double, int, bool, QLocale, const char*> formats[] = {
            {1234.5, 6, false, c, "1234.50"},
            {1234567.125, 6, false, c, "1234567.125"},
            {-1500.25, 6, false, c, "-1500.25"},
            {0.1, 6, false, c, "0.10"},
            {0.1, 6, true, c, "0.100000"},
            {0.1234, 6, false, c, "0.1234"},
            {0.123456789, 6, false, c, "0.123457"},
            {2.0, 6, false, c, "2.00"},
            {5.0, 0, false, c, "5.00"},
            {1.25, 1, false, c, "1.25"},
            {2.0, 3, true, c, "2.000"},
            {7.0, 0, true, c, "7"},
            {1234.5, 6, false, german, "1234,50"},
            {0.5, 6, false, german, "0,50"},
            {-999.9999999, 6, false, german, "-1000,00"}}; // rounded up into the thousands
        for (const auto& [value, decimals, exact, locale, expected] : formats)
            QTest::newRow(expected) << value << decimals << exact << locale << QString(expected);
    }

    void shouldFormatTextFromValue()
    {
        QFETCH(double, value);
        QFETCH(int, decimals);
        QFETCH(bool, exact);
        QFETCH(QLocale, locale);
        QFETCH(QString, expected);
        QUxDoubleSpiner spin;
        spin.setLocale(locale);
        spin.setDisplayDecimals(decimals);
        spin.setUseExactDisplayDecimals(exact);
        QCOMPARE(spin.textFromValue(value), expected);
    }

    void shouldIgnoreStepsBelowTheSmallestStep()
    {
        QUxDoubleSpiner spin;
        QSignalSpy steps(&spin, &QUxDoubleSpiner::singleStepChanged);
        for (double ignored : {1e-9, std::nan(""), HUGE_VAL})
            spin.setSingleStep(ignored);
        QCOMPARE(spin.singleStep(), 1.0);
        QCOMPARE(steps.count(), 0);

        spin.setSingleStep(0.25);
        QCOMPARE(spin.singleStep(), 0.25);
        QCOMPARE(steps.count(), 1);
        QCOMPARE(steps.at(0).at(0).toDouble(), 0.25);
    }

    void shouldReportRelativeEntries_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<double>("start");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("pending"); // operator and operand left pending by the typing
        QTest::addColumn<QString>("commit");
        QTest::addColumn<QStringList>("log"); // "|" marks the commit
        QTest::addColumn<double>("value");
        const auto row = [](const char* name, Mode mode, double start, const char* typed, const char* pending,
                            const char* commit, const QStringList& log, double value) {
            QTest::newRow(name) << mode << start << QString(typed) << QString(pending) << QString(commit) << log
                                << value;
        };
        // in emit mode every edit resets first; only a complete entry names an operator
        const QString c00 = QStringLiteral("changed 0 0");
        row("emitted on Return instead of applied", Emit, 5, "+=2", "1 2", "Return",
            {c00, c00, c00, "changed 1 2", "|", "applied 1 2", c00}, 5);
        row("emitted on focus out", Emit, 8, "/=4", "4 4", "focus out",
            {c00, c00, c00, "changed 4 4", "|", "applied 4 4", c00}, 8);
        row("absolute emitted as set on Enter", Emit, 0, "8", "0 0", "Enter", {c00, "|", "value 8", "applied 5 8", c00},
            8);
        row("absolute not emitted on focus out", Emit, 0, "3", "0 0", "focus out", {c00, "|", "value 3"}, 3);
        row("pending entry dropped by a new value", Emit, 0, "-=3", "2 3", "setValue, focus out",
            {c00, c00, c00, "changed 2 3", "|", "value 42"}, 42);
        // announced, but nothing is left pending for an owner
        row("applied without applying signal", Apply, 5, "+=2", "0 0", "Return", {"changed 1 2", "|", "value 7"}, 7);
    }

    void shouldReportRelativeEntries()
    {
        QFETCH(Mode, mode);
        QFETCH(double, start);
        QFETCH(QString, typed);
        QFETCH(QString, pending);
        QFETCH(QString, commit);
        QFETCH(QStringList, log);
        QFETCH(double, value);
        QUxDoubleSpiner spin;
        spin.setValue(start);
        spin.setRelativeOperatorHandlingMode(mode);
        SignalLog signalLog(&spin);
        QSignalSpy applied(&spin, &QUxDoubleSpiner::relativeOperatorApplied);

        typeText(spin, typed);
        QCOMPARE(describe(spin.currentRelativeOperator(), spin.currentRelativeValue()), pending);
        signalLog.entries << QStringLiteral("|");
        if (commit.startsWith(QLatin1String("setValue")))
            spin.setValue(42.0);
        if (commit == QLatin1String("Return") || commit == QLatin1String("Enter"))
            QTest::keyClick(&spin, commit == QLatin1String("Return") ? Qt::Key_Return : Qt::Key_Enter);
        else
            loseFocus(spin);
        QCOMPARE(signalLog.entries, log);
        QCOMPARE(spin.value(), value);
        QCOMPARE(spin.currentRelativeOperator(), QUxDoubleSpiner::NoRelativeOperator);
        // queued connections and spies see the operator as its registered type
        for (const QVariantList& arguments : applied)
            QVERIFY(log.contains("applied " + describe(arguments.at(0).value<Op>(), arguments.at(1).toDouble())));
    }

    void shouldDragValueWithMiddleButton_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("state");
        QTest::addColumn<bool>("dragCursor");
        QTest::addColumn<QStringList>("log");
        QTest::addColumn<double>("value");
        const auto row = [](const char* name, Qt::MouseButton button, const char* state, bool dragCursor,
                            const QStringList& log, double value) {
            QTest::newRow(name) << int(button) << QString(state) << dragCursor << log << value;
        };
        // one step per pixel; the second drag counts from its own press, not from the last release
        row("middle", Qt::MiddleButton, "", true,
            {"pressed", "value 5", "value 7", "released", "pressed", "value 8", "released"}, 8);
        row("middle emitted", Qt::MiddleButton, "emit", true,
            {"pressed", "applied 1 -5", "applied 1 2", "released", "pressed", "applied 1 1", "released"}, 10);
        const QStringList clicks{"pressed", "released", "pressed", "released"};
        row("left", Qt::LeftButton, "", false, clicks, 10);
        row("right", Qt::RightButton, "", false, clicks, 10);
        row("middle read-only", Qt::MiddleButton, "read-only", false, clicks, 10);
        row("middle disabled passes events", Qt::MiddleButton, "disabled", false, {}, 10);
    }

    void shouldDragValueWithMiddleButton()
    {
        QFETCH(int, button);
        QFETCH(QString, state);
        QFETCH(bool, dragCursor);
        QFETCH(QStringList, log);
        QFETCH(double, value);
        QUxDoubleSpiner spin;
        spin.resize(200, 30);
        spin.setSingleStep(0.5);
        spin.setValue(10.0);
        spin.setRelativeOperatorHandlingMode(state == QLatin1String("emit") ? Emit : Apply);
        spin.setReadOnly(state == QLatin1String("read-only"));
        spin.setEnabled(state != QLatin1String("disabled"));
        SignalLog signalLog(&spin);
        QLineEdit* edit = editOf(spin);
        for (const auto& path : {std::vector{60, 50, 54}, {100, 102}}) {
            sendMouse(edit, QEvent::MouseButtonPress, Qt::MouseButton(button), path.front());
            const QCursor* cursor = QGuiApplication::overrideCursor();
            QCOMPARE(cursor ? cursor->shape() : Qt::BlankCursor, dragCursor ? Qt::SizeHorCursor : Qt::BlankCursor);
            for (auto x = path.begin() + 1; x != path.end(); ++x)
                sendMouse(edit, QEvent::MouseMove, Qt::MouseButton(button), *x);
            sendMouse(edit, QEvent::MouseButtonRelease, Qt::MouseButton(button), path.back());
            QVERIFY(!QGuiApplication::overrideCursor());
        }
        QCOMPARE(signalLog.entries, log);
        QCOMPARE(spin.value(), value);
    }

    void shouldRestoreDragCursorWhenDeletedMidDrag()
    {
        while (QGuiApplication::overrideCursor())
            QGuiApplication::restoreOverrideCursor();
        auto* spin = new QUxDoubleSpiner;
        spin->show();
        QTest::mousePress(spin->findChild<QLineEdit*>(), Qt::MiddleButton, Qt::NoModifier, QPoint(10, 5));
        QVERIFY(QGuiApplication::overrideCursor());
        delete spin;
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void shouldMarkWrongInputOnlyAfterAPause()
    {
        QUxDoubleSpiner spin;
        QCOMPARE(spin.inputFeedbackDelay(), 800);
        spin.setInputFeedbackDelay(0); // the pause has passed at the next turn of the event loop
        typeText(spin, QStringLiteral("2*("));
        QVERIFY(!spin.isInputAcceptable());
        QVERIFY(!spin.property("inputAcceptable").isValid());
        QTRY_COMPARE(spin.property("inputAcceptable"), QVariant(false));

        // cleared as soon as the input is acceptable
        QTest::keyClicks(&spin, QStringLiteral("3)"));
        QVERIFY(spin.isInputAcceptable());
        QVERIFY(!spin.property("inputAcceptable").isValid());

        // and by a commit
        QTest::keyClicks(&spin, QStringLiteral("+("));
        QTRY_COMPARE(spin.property("inputAcceptable"), QVariant(false));
        QTest::keyClick(&spin, Qt::Key_Return);
        QVERIFY(!spin.property("inputAcceptable").isValid());
    }

    void shouldTakePendingRelativeEntryAsAcceptableInput()
    {
        QUxDoubleSpiner spin;
        spin.setInputFeedbackDelay(0);
        spin.setRelativeOperatorHandlingMode(Emit);
        typeText(spin, QStringLiteral("+="));
        QVERIFY(!spin.isInputAcceptable());
        QTRY_COMPARE(spin.property("inputAcceptable"), QVariant(false));
        QSignalSpy applied(&spin, &QUxDoubleSpiner::relativeOperatorApplied);
        QTest::keyClick(&spin, Qt::Key_1);
        QVERIFY(spin.isInputAcceptable());
        QCoreApplication::processEvents(); // the zero-delay mark above took one pass; none comes now
        QVERIFY(!spin.property("inputAcceptable").isValid());
        QCOMPARE(applied.count(), 0);
    }

    void shouldNotCrashOnDeeplyNestedExpression_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("pasted");
        const QString hundredKilobytes = QString(50000, '(') + QLatin1Char('1') + QString(50000, ')');
        const int half = QLineEdit().maxLength() / 2; // the longest text a field holds, balanced
        const QString longest = QString(half, '(') + QLatin1Char('1') + QString(half, ')');
        QTest::newRow("100 KB pasted") << hundredKilobytes << true;
        QTest::newRow("longest pasted") << longest << true;
        QTest::newRow("longest typed") << longest << false;
    }

    void shouldNotCrashOnDeeplyNestedExpression()
    {
        QFETCH(QString, text);
        QFETCH(bool, pasted);
        QUxDoubleSpiner spin;
        spin.setRange(-100.0, 100.0);
        spin.setValue(5.0);
        spin.selectAll();
        if (pasted) {
            QGuiApplication::clipboard()->setText(text);
            QTest::keyClick(&spin, Qt::Key_V, Qt::ControlModifier);
        } else {
            // The field re-reads its whole text on each key; typing every key would only repeat the last one.
            editOf(spin)->setText(text.left(text.size() / 2) + text.mid(text.size() / 2 + 1));
            editOf(spin)->setCursorPosition(text.size() / 2);
            QTest::keyClick(&spin, Qt::Key_1);
        }
        QVERIFY(editOf(spin)->text().size() <= editOf(spin)->maxLength());
        QString shown = editOf(spin)->text();
        int pos = 0;
        QVERIFY(spin.validate(shown, pos) != QValidator::Acceptable);
        QTest::keyClick(&spin, Qt::Key_Return);
        QCOMPARE(spin.value(), 5.0);

        typeText(spin, QStringLiteral("(3+4)"));
        QTest::keyClick(&spin, Qt::Key_Return);
        QCOMPARE(spin.value(), 7.0);
    }

    void shouldRefuseOnlyTextNestedBeyondTheCap_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("refused");
        constexpr int cap = uxScriptEvaluator::maxNestingDepth;
        const auto nested = [](int depth, const char* open, const char* close) {
            return QString(open).repeated(depth) + QStringLiteral("2.5") + QString(close).repeated(depth);
        };
        for (int depth : {1, 2, 10, cap - 1, cap, cap + 1, 1000}) {
            const bool refused = depth > cap;
            QTest::addRow("parentheses %d", depth) << nested(depth, "(", ")") << refused;
            QTest::addRow("negated %d", depth) << nested(depth, "-(", ")") << refused;
            QTest::addRow("signs %d", depth) << nested(depth, "- ", "") << refused;
            QTest::addRow("array %d", depth) << QStringLiteral("+") + nested(depth, "[", "]") << refused;
        }
        // random arithmetic (at most 6 deep) wrapped to just below the cap
        static const QStringList wrappers{"(", "-(", "+(", "- (", " ( "};
        QRandomGenerator rng(4711);
        for (int i = 0; i < 300; ++i) {
            const int depth = cap - 6 - rng.bounded(20);
            QString open;
            for (int level = 0; level < depth; ++level)
                open += wrappers.at(rng.bounded(wrappers.size()));
            QTest::addRow("random %d", i) << open + randomExpression(rng, 3) + QString(depth, ')') << false;
        }
    }

    // Up to the cap every text means what a fresh engine makes of it, to the last bit; beyond it, nothing.
    void shouldRefuseOnlyTextNestedBeyondTheCap()
    {
        QFETCH(QString, text);
        QFETCH(bool, refused);
        double ours = 0.0;
        double reference = 0.0;
        const bool isNumber = uxScriptEvaluator::evaluateNumber(text, ours);
        QCOMPARE(isNumber, !refused && freshEngineNumber(text, reference));
        QVERIFY(!isNumber || sameNumber(ours, reference));
    }

    void shouldEditStepSizeInContextMenu()
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

        // the step follows every keystroke; the commit closes the menu
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

    void shouldUpdateSceneUnitOnAllRegisteredInstances()
    {
        uxTest::verifySceneUnitFollowers<QUxDoubleSpiner>(QStringLiteral(" deg"));
    }

    void shouldApplyRelativeOperatorForHosts_data()
    {
        QTest::addColumn<Op>("op");
        QTest::addColumn<double>("operand");
        QTest::addColumn<double>("expected");
        // applied to 10; dividing by zero and a NaN result keep the value
        const std::tuple<Op, double, double> cases[] = {
            {QUxDoubleSpiner::RelativeAdd, 2.5, 12.5},     {QUxDoubleSpiner::RelativeSubtract, 2.5, 7.5},
            {QUxDoubleSpiner::RelativeMultiply, 3, 30},    {QUxDoubleSpiner::RelativeDivide, 4, 2.5},
            {QUxDoubleSpiner::RelativeDivide, 0, 10},      {QUxDoubleSpiner::RelativeSet, -1, -1},
            {QUxDoubleSpiner::NoRelativeOperator, 99, 10}, {QUxDoubleSpiner::RelativeMultiply, NAN, 10}};
        for (const auto& [op, operand, expected] : cases)
            QTest::addRow("%d %g", int(op), operand) << op << operand << expected;
    }

    void shouldApplyRelativeOperatorForHosts()
    {
        QFETCH(Op, op);
        QFETCH(double, operand);
        QFETCH(double, expected);
        QCOMPARE(QUxDoubleSpiner::applyRelativeOperator(10.0, op, operand), expected);
    }
};

QTEST_MAIN(tst_QUxDoubleSpiner)
#include "tst_QUxDoubleSpiner.moc"
