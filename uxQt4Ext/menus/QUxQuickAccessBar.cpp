#include "QUxQuickAccessBar.h"

#include <QUxDockWidget.h>
#include <QUxQuickAccessButton.h>

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFrame>
#include <QLinearGradient>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>

#include <map>
#include <set>

namespace {

const char* const s_moduleFormat = "application/corva-module-icon";
const char* const s_buttonFormat = "application/corva-quickAccess-button";

QFrame* spacerFrame()
{
    auto* frame = new QFrame(nullptr, Qt::WindowFlags());
    frame->setContentsMargins(0, 0, 0, 0);
    frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return frame;
}

// An address is only believed when the drop comes from this process: a drag
// started here has a source, and an event sent by code of this process is not
// spontaneous. A drop from another process has neither, so the object its
// bytes name (if any) is not the one they meant: it reads as naming nothing.
bool fromThisProcess(const QDropEvent* event) { return event->source() != nullptr || !event->spontaneous(); }

} // namespace

class QUxQuickAccessBarPrivate
{
public:
    struct Entry
    {
        QAction* action = nullptr;
        const QObject* dock = nullptr; // compared only, never dereferenced
    };

    explicit QUxQuickAccessBarPrivate(QUxQuickAccessBar* bar) : q(bar) {}

    bool onBar(QUxQuickAccessButton* button) const { return button && buttons.count(button) != 0; }
    QAction* place(QUxQuickAccessButton* button, QAction* before);
    void track(QUxQuickAccessButton* button, QAction* action, QUxDockWidget* dock);
    void forget(QUxQuickAccessButton* button);

    QUxQuickAccessBar* const q;
    QAction* trailingSpacer = nullptr;
    QAction* doneAction = nullptr;
    bool highlight = false;
    int highlightPosition = 0;
    std::map<QUxQuickAccessButton*, Entry> buttons;
    std::set<const QObject*> modules;
};

// Made without a parent: the tool bar takes a widget out of its parent before
// placing it, and taking one out of a main window walks the window's whole
// focus chain, which made registering hundreds of modules quadratic.
namespace {
QUxQuickAccessButton* newButton() { return new QUxQuickAccessButton(nullptr); }
} // namespace

QAction* QUxQuickAccessBarPrivate::place(QUxQuickAccessButton* button, QAction* before)
{
    if (!before)
        before = trailingSpacer;
    return before ? q->insertWidget(before, button) : q->addWidget(button);
}

void QUxQuickAccessBarPrivate::track(QUxQuickAccessButton* button, QAction* action, QUxDockWidget* dock)
{
    buttons[button] = {action, dock};
    if (dock) {
        modules.insert(dock);
        // A dock that goes away takes its button along, silently: hosts save the
        // bar on its signals, and docks die first when the main window closes.
        QObject::connect(dock, &QObject::destroyed, button, [this, button](QObject* gone) {
            modules.erase(gone);
            button->setDockWidget(nullptr);
            forget(button);
        });
    }
    // By the time destroyed() arrives the widget is half gone: only the bookkeeping may be dropped.
    QObject::connect(button, &QObject::destroyed, q, [this, button] {
        const auto found = buttons.find(button);
        if (found != buttons.end()) {
            modules.erase(found->second.dock);
            buttons.erase(found);
        }
    });
}

void QUxQuickAccessBarPrivate::forget(QUxQuickAccessButton* button)
{
    const auto found = buttons.find(button);
    if (found == buttons.end())
        return;
    QAction* action = found->second.action;
    modules.erase(found->second.dock);
    buttons.erase(found);
    // Gone for good, but later: the button may be inside its own mouse handler or drag.
    button->disconnect(q);
    q->removeAction(action);
    action->deleteLater();
}

QUxQuickAccessBar::QUxQuickAccessBar(QWidget* parent) : QUxToolBar(parent), d(new QUxQuickAccessBarPrivate(this))
{
    init();
}

QUxQuickAccessBar::QUxQuickAccessBar(const QString& title, QWidget* parent)
    : QUxToolBar(title, parent), d(new QUxQuickAccessBarPrivate(this))
{
    init();
}

QUxQuickAccessBar::~QUxQuickAccessBar()
{
    // The buttons die after this object's private part; their goodbyes must not reach it.
    const QList<QUxQuickAccessButton*> children = findChildren<QUxQuickAccessButton*>();
    for (QUxQuickAccessButton* button : children)
        button->disconnect(this);
}

void QUxQuickAccessBar::init()
{
    setAcceptDrops(true);
    setMovable(false);
    setFloatable(false);
    setAllowedAreas(Qt::BottomToolBarArea);
    addWidget(spacerFrame());
    d->trailingSpacer = addWidget(spacerFrame());
    auto* done = new QPushButton(tr("Done"), this);
    done->setObjectName("QuickAccessDoneButton");
    connect(done, &QPushButton::clicked, this, &QUxQuickAccessBar::finishEditing);
    d->doneAction = addWidget(done);
    d->doneAction->setVisible(false);
}

void QUxQuickAccessBar::addModule(QUxDockWidget* widget, QAction* before, const QIcon& icon, const QString& name,
                                  const QString& toolTip, bool unused)
{
    Q_UNUSED(unused)
    if (!widget || d->modules.count(widget))
        return;
    auto* button = newButton();
    button->setCheckable(true);
    button->setIcon(icon.isNull() ? widget->icon() : icon);
    button->setText(name.isEmpty() ? widget->nickName() : name);
    button->setToolTip(toolTip.isEmpty() ? widget->getToolclipKey() : toolTip);
    button->setDockWidget(widget);
    connect(button, &QUxQuickAccessButton::startedEditing, this, &QUxQuickAccessBar::editingMode);
    connect(button, &QUxQuickAccessButton::removeButton, this, &QUxQuickAccessBar::removeModule);
    connect(widget, &QDockWidget::visibilityChanged, button, &QUxQuickAccessButton::changedWidgetVisibility);
    QAction* action = d->place(button, before);
    action->setText(widget->getIntName());
    d->track(button, action, widget);
    emit moduleAdded();
    updateButtonStates();
}

void QUxQuickAccessBar::addButton(QAction* action, const QIcon& icon)
{
    auto* button = newButton();
    QAction* barAction = d->place(button, nullptr);
    barAction->setText(tr("Title"));
    button->setDefaultAction(action);
    if (!icon.isNull())
        button->setIcon(icon);
    d->track(button, barAction, nullptr);
    updateButtonStates();
}

void QUxQuickAccessBar::addSpecial(QAction* action)
{
    if (!action)
        return;
    if (d->trailingSpacer)
        insertAction(d->trailingSpacer, action);
    else
        addAction(action);
}

void QUxQuickAccessBar::clear()
{
    while (!d->buttons.empty())
        d->forget(d->buttons.begin()->first);
    d->modules.clear();
}

std::vector<QString> QUxQuickAccessBar::moduleNames() const
{
    std::vector<QString> names;
    const QList<QAction*> all = actions();
    for (const QAction* action : all) {
        if (!action->text().isEmpty())
            names.push_back(action->text());
    }
    return names;
}

void QUxQuickAccessBar::removeModule(QUxQuickAccessButton* button)
{
    if (!button)
        return;
    if (QUxDockWidget* dock = button->dockWidget())
        d->modules.erase(dock);
    d->forget(button);
    emit moduleRemoved();
}

void QUxQuickAccessBar::buttonDestroyed(QUxQuickAccessButton* button) { d->forget(button); }

void QUxQuickAccessBar::finishEditing()
{
    QUxQuickAccessButton::finishEditing();
    d->doneAction->setVisible(false);
    update();
    for (const auto& entry : d->buttons)
        entry.first->update();
}

void QUxQuickAccessBar::editingMode()
{
    d->doneAction->setVisible(true);
    update();
    for (const auto& entry : d->buttons)
        entry.first->update();
}

void QUxQuickAccessBar::updateButtonStates()
{
    for (const auto& entry : d->buttons) {
        QUxQuickAccessButton* button = entry.first;
        if (QUxDockWidget* dock = button->dockWidget()) {
            const bool wasBlocked = button->blockSignals(true);
            button->setChecked(dock->isVisible());
            button->blockSignals(wasBlocked);
        }
    }
}

void QUxQuickAccessBar::dragEnterEvent(QDragEnterEvent* event)
{
    const QMimeData* mime = event->mimeData();
    if (mime && (mime->hasFormat(s_moduleFormat) || mime->hasFormat(s_buttonFormat)))
        event->accept();
    else
        event->ignore();
}

void QUxQuickAccessBar::dragMoveEvent(QDragMoveEvent* event)
{
    const QMimeData* mime = event->mimeData();
    if (mime && mime->hasFormat(s_moduleFormat)) {
        event->accept();
    } else if (mime && mime->hasFormat(s_buttonFormat)) {
        event->accept();
        calculateHighlightPosition(event->pos().x());
        d->highlight = true;
        update();
    } else {
        event->ignore();
    }
}

void QUxQuickAccessBar::dropEvent(QDropEvent* event)
{
    const QMimeData* mime = event->mimeData();
    if (mime && mime->hasFormat(s_moduleFormat)) {
        const QByteArray data = mime->data(s_moduleFormat);
        if (data.isEmpty())
            return;
        QUxDockWidget* dock = QUxDockWidget::fromPayload(data);
        if (dock && fromThisProcess(event))
            addModule(dock, nullptr, QIcon(), QString(), QString(), false);
        emit moduleDropped();
    } else if (mime && mime->hasFormat(s_buttonFormat)) {
        const QByteArray data = mime->data(s_buttonFormat);
        if (data.isEmpty())
            return;
        QUxQuickAccessButton* button = QUxQuickAccessButton::fromPayload(data);
        QUxDockWidget* dock = button && fromThisProcess(event) ? button->dockWidget() : nullptr;
        if (dock) {
            removeModule(button);
            QAction* before = calculateNextAction();
            addModule(dock, before, QIcon(), QString(), QString(), false);
            emit orderChanged();
        }
    }
    d->highlight = false;
    update();
}

void QUxQuickAccessBar::paintEvent(QPaintEvent* event)
{
    QToolBar::paintEvent(event);
    if (!d->highlight)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QLinearGradient gradient(0, 0, 0.5, 0);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setSpread(QGradient::ReflectSpread);
    gradient.setColorAt(0, QColor(244, 133, 22, 0));
    gradient.setColorAt(1, QColor(244, 133, 22, 150));
    painter.setBrush(gradient);
    painter.drawRect(QRect(d->highlightPosition - 20, 0, 40, height()));
}

void QUxQuickAccessBar::calculateHighlightPosition(int x)
{
    int minLeft = 10000;
    int maxRight = -10000;
    const QList<QUxQuickAccessButton*> children = findChildren<QUxQuickAccessButton*>();
    for (QUxQuickAccessButton* button : children) {
        // Buttons already taken off the bar wait for deletion at their old places.
        if (!d->onBar(button))
            continue;
        const int left = button->pos().x();
        const int right = left + button->width() + 1;
        if (left <= x && x <= right) {
            d->highlightPosition = left + (button->width() + 1) / 2 > x ? left : right;
            return;
        }
        minLeft = qMin(minLeft, left);
        maxRight = qMax(maxRight, right);
    }
    d->highlightPosition = x > maxRight ? maxRight : (x < minLeft ? minLeft : x);
}

QAction* QUxQuickAccessBar::calculateNextAction() const
{
    QUxQuickAccessButton* best = nullptr;
    int bestX = 10000;
    const QList<QUxQuickAccessButton*> children = findChildren<QUxQuickAccessButton*>();
    for (QUxQuickAccessButton* button : children) {
        if (!d->onBar(button))
            continue;
        const int x = button->pos().x();
        if (x >= d->highlightPosition && x < bestX) {
            best = button;
            bestX = x;
        }
    }
    const auto found = d->buttons.find(best);
    return found == d->buttons.end() ? nullptr : found->second.action;
}
