#include "QUxSpiner.h"

#include "uxSceneUnitSuffix_p.h"
#include "uxSignalBlocker.h"
#include "uxUIUtils.h"

#include <uxPlatform.h>

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QSet>

namespace {

enum MouseMode { LeftButtonDown = 0, MiddleButtonDrag = 1, RightButtonDown = 2, ButtonsReleased = 4 };

} // namespace

class QUxSpinerPrivate
{
public:
    int savedValue = 0;
    bool pressed = false;
    bool stepEditing = false;
    int lastMouseX = 0;
    int mouseMode = ButtonsReleased;
    QString savedPrefix;
    QString savedSuffix;
    int savedMinimum = 0;
    int savedMaximum = 0;
    bool showStepHint = true;
    bool autoStepsOnMousePress = true;
    bool displaySceneUnit = false;
    /// A step value reached the host through valueChanged while the step was edited.
    bool stepValueEmitted = false;

    static QSet<QUxSpiner*> s_instancesWithSceneUnit;
};

QSet<QUxSpiner*> QUxSpinerPrivate::s_instancesWithSceneUnit;

QUxSpiner::QUxSpiner(QWidget* parent) : QSpinBox(parent), d(std::make_unique<QUxSpinerPrivate>())
{
    setFocusPolicy(Qt::WheelFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setRange(-2147483647, 2147483647);
    setKeyboardTracking(false);
    lineEdit()->installEventFilter(this);
    connect(this, &QSpinBox::editingFinished, this, &QUxSpiner::finishedEditing);
    connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] {
        if (d->stepEditing)
            d->stepValueEmitted = true;
    });
}

QUxSpiner::~QUxSpiner() { QUxSpinerPrivate::s_instancesWithSceneUnit.remove(this); }

QSize QUxSpiner::sizeHint() const
{
    return QSize(qRound(90 * uxPlatform::getDpiScaleX()), uxPlatform::getSmallIconSizeY());
}

bool QUxSpiner::showStepHint() const { return d->showStepHint; }

void QUxSpiner::setShowStepHint(bool show) { d->showStepHint = show; }

bool QUxSpiner::autoStepsOnMousePress() const { return d->autoStepsOnMousePress; }

void QUxSpiner::setAutoStepsOnMousePress(bool enabled) { d->autoStepsOnMousePress = enabled; }

bool QUxSpiner::displaySceneUnit() const { return d->displaySceneUnit; }

void QUxSpiner::setDisplaySceneUnit(bool on)
{
    // No early return: switching on again also picks up a changed unit.
    d->displaySceneUnit = on;
    updateSceneUnit();
    uxSceneUnitSuffix::track(QUxSpinerPrivate::s_instancesWithSceneUnit, this, on);
}

void QUxSpiner::updateSceneUnit() { uxSceneUnitSuffix::show(this, d->displaySceneUnit); }

void QUxSpiner::updateInstancesWithSceneUnit()
{
    uxSceneUnitSuffix::updateAll(QUxSpinerPrivate::s_instancesWithSceneUnit);
}

bool QUxSpiner::isEditingStep() const { return d->stepEditing; }

void QUxSpiner::setSingleStep(int value)
{
    QSpinBox::setSingleStep(value);
    emit singleStepChanged(value);
}

// ---------------------------------------------------------------------------
// Mouse dragging on the text field

bool QUxSpiner::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != lineEdit())
        return QSpinBox::eventFilter(watched, event);
    if (!isEnabled())
        return false;

    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        d->pressed = true;
        d->lastMouseX = mouse->x();
        if (mouse->button() == Qt::LeftButton) {
            d->mouseMode = LeftButtonDown;
            return false;
        }
        if (mouse->button() == Qt::RightButton) {
            d->mouseMode = RightButtonDown;
            return false;
        }
        if (mouse->button() == Qt::MiddleButton)
            d->mouseMode = MiddleButtonDrag;
        return true;
    }
    case QEvent::MouseMove: {
        if (!d->pressed)
            return false;
        const int x = static_cast<QMouseEvent*>(event)->x();
        // 64 bits: a drag near the ends of the int range must clamp, not wrap.
        const qint64 delta = qint64(x - d->lastMouseX) * singleStep();
        d->lastMouseX = x;
        if (delta != 0 && d->mouseMode == MiddleButtonDrag && !isReadOnly()) {
            // While the box shows its step, dragging edits the step and tells nobody.
            const uxSignalBlocker blocker(d->stepEditing ? this : nullptr);
            setValue(int(qBound<qint64>(minimum(), value() + delta, maximum())));
        }
        return d->mouseMode != LeftButtonDown && d->mouseMode != RightButtonDown;
    }
    case QEvent::MouseButtonRelease:
        d->lastMouseX = static_cast<QMouseEvent*>(event)->x();
        d->pressed = false;
        d->mouseMode = ButtonsReleased;
        return true;
    default:
        return false;
    }
}

void QUxSpiner::timerEvent(QTimerEvent* event)
{
    // The spin box repeats steps from timers while an arrow is held.
    if (!d->autoStepsOnMousePress) {
        event->ignore();
        return;
    }
    QSpinBox::timerEvent(event);
}

// ---------------------------------------------------------------------------
// Step editing

void QUxSpiner::contextMenuEvent(QContextMenuEvent* event)
{
    QPointer<QMenu> menu = lineEdit()->createStandardContextMenu();
    if (!menu)
        return;
    menu->addSeparator();
    const StepEnabled enabled = stepEnabled();
    QAction* up = menu->addAction(tr("&Step up"));
    up->setEnabled(enabled & StepUpEnabled);
    QAction* down = menu->addAction(tr("Step &down"));
    down->setEnabled(enabled & StepDownEnabled);
    menu->addSeparator();
    QAction* step = menu->addAction(tr("Step..."));

    const QPointer<QUxSpiner> self(this);
    const QPoint pos = event->reason() == QContextMenuEvent::Mouse
                           ? event->globalPos()
                           : mapToGlobal(QPoint(event->pos().x(), 0)) + QPoint(width() / 2, height() / 2);
    const QAction* chosen = menu->exec(pos);
    delete menu;
    event->accept();
    if (!self || !chosen)
        return;
    if (chosen == up)
        stepBy(1);
    else if (chosen == down)
        stepBy(-1);
    else if (chosen == step)
        beginStepEditing();
}

void QUxSpiner::beginStepEditing()
{
    // Saving again would replace the box's own value and range by the step's.
    if (d->stepEditing) {
        selectAll();
        return;
    }
    const uxSignalBlocker blocker(this);
    d->savedValue = value();
    d->savedMinimum = minimum();
    d->savedMaximum = maximum();
    d->savedPrefix = prefix();
    d->savedSuffix = suffix();
    setPrefix(d->showStepHint ? tr("step ") : QString());
    setRange(1, 1000);
    setValue(singleStep());
    setSuffix(QString());
    selectAll();
    d->stepValueEmitted = false;
    d->stepEditing = true;
}

void QUxSpiner::finishedEditing()
{
    if (!d->stepEditing)
        return;
    d->stepEditing = false;
    setSingleStep(value());
    // Hosts that never saw the step value need not hear about the way back.
    const uxSignalBlocker blocker(d->stepValueEmitted ? nullptr : this);
    setPrefix(d->savedPrefix);
    setSuffix(d->savedSuffix);
    setMinimum(d->savedMinimum);
    setMaximum(d->savedMaximum);
    setValue(d->savedValue);
}
