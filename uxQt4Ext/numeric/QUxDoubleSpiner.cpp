#include "QUxDoubleSpiner.h"

#include "uxSceneUnitSuffix_p.h"
#include "uxScriptEvaluator_p.h"
#include "uxSignalBlocker.h"
#include "uxUIStyle.h"
#include "uxUIUtils.h"

#include <uxPlatform.h>

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QSet>
#include <QStyle>
#include <QTimer>
#include <QWidgetAction>

#include <cmath>

namespace {

enum MouseMode { LeftButtonDown = 0, MiddleButtonDrag = 1, RightButtonDown = 2, ButtonsReleased = 4 };

constexpr double kSmallestStep = 1e-8;
constexpr int kMaxDisplayDecimals = 323;

const QMap<QString, QUxDoubleSpiner::RelativeOperator>& relativeOperatorPrefixes()
{
    static const QMap<QString, QUxDoubleSpiner::RelativeOperator> prefixes{
        {QStringLiteral("+="), QUxDoubleSpiner::RelativeAdd},
        {QStringLiteral("-="), QUxDoubleSpiner::RelativeSubtract},
        {QStringLiteral("*="), QUxDoubleSpiner::RelativeMultiply},
        {QStringLiteral("/="), QUxDoubleSpiner::RelativeDivide}};
    return prefixes;
}

// The patterns run on every keystroke: compile them once.
const QRegularExpression& admittedCharacters()
{
    static const QRegularExpression re(QStringLiteral("^[0-9 .()=+*/-]*$"));
    return re;
}

const QRegularExpression& malformedSequence()
{
    // two operators in a row, two points in a row, or operators split by one blank or point
    static const QRegularExpression re(QStringLiteral("[+*/-]{2,}|\\.{2,}|[+*/-][ .][+*/-]"));
    return re;
}

const QRegularExpression& relativePrefix()
{
    static const QRegularExpression re(QStringLiteral("^[+*/-]="));
    return re;
}

const QRegularExpression& plainNumber()
{
    static const QRegularExpression re(QStringLiteral("^-?[0-9.]*$"));
    return re;
}

int significantDecimals(const QString& fixedText)
{
    const int point = fixedText.indexOf(QLatin1Char('.'));
    if (point < 0)
        return 0;
    int last = fixedText.size() - 1;
    while (last > point && fixedText.at(last) == QLatin1Char('0'))
        --last;
    return last - point;
}

// The line edit always shows prefix and suffix, so they are cut by length.
QString strippedText(const QString& text, const QString& prefix, const QString& suffix)
{
    QString core = text;
    core.chop(suffix.size());
    return core.mid(prefix.size()).simplified();
}

// Signals carry the operator under its short name: queued connections and
// signal spies look the type up by that text.
void registerRelativeOperatorType()
{
    static const bool registered = [] {
        qRegisterMetaType<QUxDoubleSpiner::RelativeOperator>();
        qRegisterMetaType<QUxDoubleSpiner::RelativeOperator>("RelativeOperator");
        return true;
    }();
    Q_UNUSED(registered)
}

double combined(double value, QUxDoubleSpiner::RelativeOperator op, double operand)
{
    switch (op) {
    case QUxDoubleSpiner::RelativeAdd:
        return value + operand;
    case QUxDoubleSpiner::RelativeSubtract:
        return value - operand;
    case QUxDoubleSpiner::RelativeMultiply:
        return value * operand;
    case QUxDoubleSpiner::RelativeDivide:
        return operand == 0.0 ? value : value / operand;
    case QUxDoubleSpiner::RelativeSet:
        return operand;
    case QUxDoubleSpiner::NoRelativeOperator:
        break;
    }
    return value;
}

} // namespace

class QUxDoubleSpinerPrivate
{
public:
    int displayDecimals = 6;
    bool useExactDisplayDecimals = false;
    bool pressed = false;
    int lastMouseX = 0;
    int mouseMode = ButtonsReleased;
    bool dragCursorShown = false; // the override cursor this box pushed for a middle-button drag
    bool showStepHint = true;
    QMenu* stepMenu = nullptr;
    QTimer* feedbackTimer = nullptr;
    QUxDoubleSpiner::RelativeOperatorHandlingMode relativeOperatorHandlingMode = QUxDoubleSpiner::ApplyRelativeOperator;
    bool enterPressed = false;
    bool inputAcceptable = true;
    int feedbackDelay = 800; // long enough that a half-typed entry is not flagged mid-word
    QUxDoubleSpiner::RelativeOperator currentRelativeOperator = QUxDoubleSpiner::NoRelativeOperator;
    double currentRelativeValue = 0.0;
    bool checkingInput = false;
    bool displaySceneUnit = false;

    static QSet<QUxDoubleSpiner*> s_instancesWithSceneUnit;

    bool emitsRelativeOperator() const { return relativeOperatorHandlingMode == QUxDoubleSpiner::EmitRelativeOperator; }
};

QSet<QUxDoubleSpiner*> QUxDoubleSpinerPrivate::s_instancesWithSceneUnit;

QUxDoubleSpiner::QUxDoubleSpiner(QWidget* parent)
    : QDoubleSpinBox(parent), d(std::make_unique<QUxDoubleSpinerPrivate>())
{
    registerRelativeOperatorType();
    setFocusPolicy(Qt::WheelFocus);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setDecimals(10);
    setRange(-2147483647.0, 2147483647.0);
    setKeyboardTracking(false);
    setLocale(QLocale::c());

    lineEdit()->installEventFilter(this);

    connect(this, &QDoubleSpinBox::editingFinished, this, &QUxDoubleSpiner::finishedEditing);
    // textChanged comes with every value change, like the deprecated valueChanged(QString).
    connect(this, &QDoubleSpinBox::textChanged, this, &QUxDoubleSpiner::changedValue);
    connect(this, SIGNAL(relativeOperatorChanged(RelativeOperator, double)), this,
            SLOT(setCurrentRelativeOperator(RelativeOperator, double)));
    connect(lineEdit(), &QLineEdit::textEdited, this, &QUxDoubleSpiner::checkInput);
}

QUxDoubleSpiner::~QUxDoubleSpiner()
{
    // A box deleted in the middle of a drag must not leave the whole application with its cursor.
    if (d->dragCursorShown)
        QGuiApplication::restoreOverrideCursor();
    QUxDoubleSpinerPrivate::s_instancesWithSceneUnit.remove(this);
}

QSize QUxDoubleSpiner::sizeHint() const
{
    return QSize(qRound(90 * uxPlatform::getDpiScaleX()), uxPlatform::getSmallIconSizeY());
}

// ---------------------------------------------------------------------------
// Text

QValidator::State QUxDoubleSpiner::validate(QString& text, int& pos) const
{
    const QString input = strippedText(text, prefix(), suffix());
    if (d->checkingInput && d->emitsRelativeOperator())
        emit relativeOperatorChanged(NoRelativeOperator, 0.0);

    if (!admittedCharacters().match(input).hasMatch() || input.count(QLatin1Char('=')) > 1)
        return QValidator::Invalid;
    if (malformedSequence().match(input).hasMatch())
        return QValidator::Invalid;
    const bool relative = input.contains(QLatin1Char('='));
    if (relative && !relativePrefix().match(input).hasMatch())
        return QValidator::Invalid;

    if (plainNumber().match(input).hasMatch())
        return QDoubleSpinBox::validate(text, pos);

    RelativeOperator op = NoRelativeOperator;
    double operand = 0.0;
    if (relative && parseRelativeOperator(input, op, operand)) {
        if (d->checkingInput)
            emit relativeOperatorChanged(op, operand);
        return d->emitsRelativeOperator() ? QValidator::Intermediate : QValidator::Acceptable;
    }
    double result = 0.0;
    return uxScriptEvaluator::evaluateNumber(input, result) ? QValidator::Acceptable : QValidator::Intermediate;
}

bool QUxDoubleSpiner::parseRelativeOperator(const QString& text, RelativeOperator& op, double& operand) const
{
    if (!relativePrefix().match(text).hasMatch())
        return false;
    const QString operandText = text.mid(2);
    bool ok = false;
    double parsed = operandText.toDouble(&ok);
    if (!ok && !uxScriptEvaluator::evaluateNumber(operandText, parsed))
        return false;
    // A NaN operand would turn the value into NaN and from there into a range bound.
    if (std::isnan(parsed))
        return false;

    const auto& prefixes = relativeOperatorPrefixes();
    for (auto it = prefixes.cbegin(); it != prefixes.cend(); ++it) {
        if (text.startsWith(it.key())) {
            op = it.value();
            operand = parsed;
            return true;
        }
    }
    return false;
}

double QUxDoubleSpiner::valueFromText(const QString& text) const
{
    const QString input = strippedText(text, prefix(), suffix());
    double result = 0.0;
    RelativeOperator op = NoRelativeOperator;
    double operand = 0.0;
    if (!d->emitsRelativeOperator() && input.size() > 2 && parseRelativeOperator(input, op, operand)) {
        result = applyRelativeOperator(value(), op, operand);
    } else if (!uxScriptEvaluator::evaluateNumber(input, result) || std::isnan(result)) {
        result = 0.0;
    }
    return qBound(minimum(), result, maximum());
}

QString QUxDoubleSpiner::textFromValue(double value) const
{
    const int decimals = d->useExactDisplayDecimals
                             ? d->displayDecimals
                             : qMax(2, significantDecimals(QString::number(value, 'f', d->displayDecimals)));
    const QLocale loc = locale();
    QString text = loc.toString(value, 'f', decimals);
    // Judged on the shown digits: 999.9999 rounds up to a grouped "1,000.00".
    if (qAbs(QString::number(value, 'f', decimals).toDouble()) >= 1000.0)
        text.remove(loc.groupSeparator());
    return text;
}

// ---------------------------------------------------------------------------
// Properties

bool QUxDoubleSpiner::showStepHint() const { return d->showStepHint; }

void QUxDoubleSpiner::setShowStepHint(bool show) { d->showStepHint = show; }

int QUxDoubleSpiner::displayDecimals() const { return d->displayDecimals; }

void QUxDoubleSpiner::setDisplayDecimals(int decimals)
{
    const int clamped = qBound(0, decimals, kMaxDisplayDecimals);
    if (clamped == d->displayDecimals)
        return;
    d->displayDecimals = clamped;
    setValue(value()); // the same value: no signal, but the text is formatted anew
}

bool QUxDoubleSpiner::useExactDisplayDecimals() const { return d->useExactDisplayDecimals; }

void QUxDoubleSpiner::setUseExactDisplayDecimals(bool enabled)
{
    if (enabled == d->useExactDisplayDecimals)
        return;
    d->useExactDisplayDecimals = enabled;
    setValue(value());
}

bool QUxDoubleSpiner::displaySceneUnit() const { return d->displaySceneUnit; }

void QUxDoubleSpiner::setDisplaySceneUnit(bool on)
{
    // No early return: switching on again also picks up a changed unit.
    d->displaySceneUnit = on;
    updateSceneUnit();
    uxSceneUnitSuffix::track(QUxDoubleSpinerPrivate::s_instancesWithSceneUnit, this, on);
}

void QUxDoubleSpiner::updateSceneUnit() { uxSceneUnitSuffix::show(this, d->displaySceneUnit); }

void QUxDoubleSpiner::updateInstancesWithSceneUnit()
{
    uxSceneUnitSuffix::updateAll(QUxDoubleSpinerPrivate::s_instancesWithSceneUnit);
}

double QUxDoubleSpiner::applyRelativeOperator(double value, RelativeOperator op, double operand)
{
    // 0 *= Infinity has no value; clamping NaN would jump to a range bound.
    const double result = combined(value, op, operand);
    return std::isnan(result) ? value : result;
}

// A NaN bound would make the value NaN and every later clamp meaningless.
void QUxDoubleSpiner::setMinimum(double minimum)
{
    if (!std::isnan(minimum))
        QDoubleSpinBox::setMinimum(minimum);
}

void QUxDoubleSpiner::setMaximum(double maximum)
{
    if (!std::isnan(maximum))
        QDoubleSpinBox::setMaximum(maximum);
}

void QUxDoubleSpiner::setRange(double minimum, double maximum)
{
    QDoubleSpinBox::setRange(std::isnan(minimum) ? QDoubleSpinBox::minimum() : minimum,
                             std::isnan(maximum) ? QDoubleSpinBox::maximum() : maximum);
}

void QUxDoubleSpiner::setRelativeOperatorHandlingMode(RelativeOperatorHandlingMode mode)
{
    d->relativeOperatorHandlingMode = mode;
}

QUxDoubleSpiner::RelativeOperatorHandlingMode QUxDoubleSpiner::relativeOperatorHandlingMode() const
{
    return d->relativeOperatorHandlingMode;
}

QUxDoubleSpiner::RelativeOperator QUxDoubleSpiner::currentRelativeOperator() const
{
    return d->currentRelativeOperator;
}

double QUxDoubleSpiner::currentRelativeValue() const { return d->currentRelativeValue; }

bool QUxDoubleSpiner::isInputAcceptable() const { return d->inputAcceptable; }

int QUxDoubleSpiner::inputFeedbackDelay() const { return d->feedbackDelay; }

void QUxDoubleSpiner::setInputFeedbackDelay(int milliseconds) { d->feedbackDelay = qMax(0, milliseconds); }

void QUxDoubleSpiner::setSingleStep(double value)
{
    // NaN and infinite steps would turn the next drag into NaN.
    if (!std::isfinite(value) || value < kSmallestStep)
        return;
    QDoubleSpinBox::setSingleStep(value);
    emit singleStepChanged(value);
}

void QUxDoubleSpiner::reapplyStyle()
{
    style()->unpolish(this);
    style()->polish(this);
    update();
}

// ---------------------------------------------------------------------------
// Relative entries and commit

void QUxDoubleSpiner::setCurrentRelativeOperator(RelativeOperator op, double value)
{
    if (!d->emitsRelativeOperator())
        return;
    d->currentRelativeOperator = op;
    d->currentRelativeValue = value;
}

void QUxDoubleSpiner::emitRelativeValue()
{
    if (!d->emitsRelativeOperator() || d->currentRelativeOperator == NoRelativeOperator)
        return;
    const RelativeOperator op = d->currentRelativeOperator;
    const double operand = d->currentRelativeValue;
    emit relativeOperatorApplied(op, operand);
    emit relativeOperatorChanged(NoRelativeOperator, 0.0);
    // Cleared directly too: an owner may have blocked our signals.
    setCurrentRelativeOperator(NoRelativeOperator, 0.0);
}

void QUxDoubleSpiner::finishedEditing()
{
    if (d->emitsRelativeOperator()) {
        if (d->enterPressed && d->currentRelativeOperator == NoRelativeOperator)
            setCurrentRelativeOperator(RelativeSet, value());
        emitRelativeValue();
    }
    if (d->feedbackTimer)
        d->feedbackTimer->stop();
    d->inputAcceptable = true;
    resetVisualInputFeedback();
}

void QUxDoubleSpiner::changedValue(QString /*text*/)
{
    if (d->emitsRelativeOperator())
        setCurrentRelativeOperator(NoRelativeOperator, 0.0);
}

// ---------------------------------------------------------------------------
// Input feedback

void QUxDoubleSpiner::checkInput(QString text)
{
    int pos = lineEdit()->cursorPosition();
    d->checkingInput = true;
    const QValidator::State state = validate(text, pos);
    d->checkingInput = false;
    d->inputAcceptable = state == QValidator::Acceptable || d->currentRelativeOperator != NoRelativeOperator;

    if (!d->feedbackTimer) {
        d->feedbackTimer = new QTimer(this);
        d->feedbackTimer->setSingleShot(true);
        connect(d->feedbackTimer, SIGNAL(timeout()), this, SLOT(updateVisualInputFeedback()));
    }
    if (d->inputAcceptable) {
        d->feedbackTimer->stop();
        resetVisualInputFeedback();
    } else {
        d->feedbackTimer->start(d->feedbackDelay);
    }
}

void QUxDoubleSpiner::updateVisualInputFeedback()
{
    uxUIStyle::setControlProperty(this, "inputAcceptable", d->inputAcceptable ? QVariant() : QVariant(false));
}

void QUxDoubleSpiner::resetVisualInputFeedback() { uxUIStyle::setControlProperty(this, "inputAcceptable", QVariant()); }

// ---------------------------------------------------------------------------
// Keyboard and focus

void QUxDoubleSpiner::keyPressEvent(QKeyEvent* event)
{
    d->enterPressed = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Comma) {
        // Whatever the keyboard layout, the comma key enters the decimal point.
        QKeyEvent period(QEvent::KeyPress, Qt::Key_Period, Qt::NoModifier, QStringLiteral("."), event->isAutoRepeat(),
                         ushort(event->count()));
        QAbstractSpinBox::keyPressEvent(&period);
        event->setAccepted(period.isAccepted());
        return;
    }
    QAbstractSpinBox::keyPressEvent(event);
}

void QUxDoubleSpiner::focusInEvent(QFocusEvent* event)
{
    d->enterPressed = false;
    emit focusGained();
    QDoubleSpinBox::focusInEvent(event);
}

void QUxDoubleSpiner::focusOutEvent(QFocusEvent* event)
{
    d->enterPressed = false;
    QDoubleSpinBox::focusOutEvent(event);
}

// ---------------------------------------------------------------------------
// Mouse dragging on the text field

bool QUxDoubleSpiner::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != lineEdit())
        return QDoubleSpinBox::eventFilter(watched, event);
    if (!isEnabled())
        return false;

    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        // A quick second press arrives as a double click; it starts a drag all the same.
        const auto* mouse = static_cast<QMouseEvent*>(event);
        d->pressed = true;
        d->lastMouseX = mouse->x();
        emit mouseButtonPressed();
        switch (mouse->button()) {
        case Qt::MiddleButton:
            d->mouseMode = MiddleButtonDrag;
            if (!isReadOnly()) {
                QGuiApplication::setOverrideCursor(QCursor(Qt::SizeHorCursor));
                d->dragCursorShown = true;
            }
            return true;
        case Qt::RightButton:
            d->mouseMode = RightButtonDown;
            return false;
        case Qt::LeftButton:
            d->mouseMode = LeftButtonDown;
            return false;
        default:
            return true;
        }
    }
    case QEvent::MouseMove: {
        if (!d->pressed)
            return false;
        const int x = static_cast<QMouseEvent*>(event)->x();
        const double delta = (x - d->lastMouseX) * singleStep();
        d->lastMouseX = x;
        if (delta != 0.0 && d->mouseMode == MiddleButtonDrag && !isReadOnly()) {
            if (d->emitsRelativeOperator())
                emit relativeOperatorApplied(RelativeAdd, delta);
            else
                setValue(value() + delta);
        }
        return d->mouseMode != LeftButtonDown && d->mouseMode != RightButtonDown;
    }
    case QEvent::MouseButtonRelease:
        d->lastMouseX = static_cast<QMouseEvent*>(event)->x();
        d->pressed = false;
        d->mouseMode = ButtonsReleased;
        d->dragCursorShown = false;
        if (!isReadOnly())
            QGuiApplication::restoreOverrideCursor();
        emit mouseButtonReleased();
        return true;
    default:
        return false;
    }
}

// ---------------------------------------------------------------------------
// Step-size menu

void QUxDoubleSpiner::contextMenuEvent(QContextMenuEvent* event)
{
    if (!d->stepMenu) {
        d->stepMenu = new QMenu(lineEdit());
        auto* editor = new QUxDoubleSpiner(d->stepMenu);
        editor->setRange(1e-7, 100000.0);
        editor->setFixedWidth(qRound(102 * uxPlatform::getDpiScaleX()));
        editor->setDisplayDecimals(6);
        editor->setButtonSymbols(QAbstractSpinBox::NoButtons);
        editor->setPrefix(tr("Step: "));
        editor->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        editor->setContextMenuPolicy(Qt::NoContextMenu);
        // The step follows every keystroke, not only the commit.
        editor->setKeyboardTracking(true);
        connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &QUxDoubleSpiner::setSingleStep);
        connect(editor, &QDoubleSpinBox::editingFinished, this, &QUxDoubleSpiner::stepEditingFinished);

        auto* action = new QWidgetAction(d->stepMenu);
        action->setDefaultWidget(editor);
        d->stepMenu->addAction(action);
        d->stepMenu->setDefaultAction(action);

        {
            const uxSignalBlocker blocker(editor);
            editor->setValue(singleStep());
        }
        editor->selectAll();
        editor->setFocus();
    }
    const QPoint pos = event->reason() == QContextMenuEvent::Mouse
                           ? event->globalPos()
                           : mapToGlobal(QPoint(event->pos().x(), 0)) + QPoint(width() / 2, height() / 2);
    d->stepMenu->popup(pos);
    d->stepMenu->setActiveAction(d->stepMenu->defaultAction());
    event->accept();
}

void QUxDoubleSpiner::stepEditingFinished()
{
    if (d->stepMenu)
        d->stepMenu->hide();
}
