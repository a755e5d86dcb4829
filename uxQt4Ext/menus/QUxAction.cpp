#include "QUxAction.h"

#include <QToolBar>

#include <set>

namespace {

std::set<QUxAction*>& liveActions()
{
    static std::set<QUxAction*> actions;
    return actions;
}

bool s_showIconText = false;

} // namespace

// Kept so that per-action state can be added without changing the class layout.
class QUxActionPrivate
{
};

QUxAction::QUxAction(QObject* parent) : QAction(parent), d(new QUxActionPrivate) { liveActions().insert(this); }

QUxAction::QUxAction(const QString& text, QObject* parent) : QAction(text, parent), d(new QUxActionPrivate)
{
    liveActions().insert(this);
}

QUxAction::QUxAction(const QIcon& icon, const QString& text, QObject* parent)
    : QAction(icon, text, parent), d(new QUxActionPrivate)
{
    liveActions().insert(this);
}

QUxAction::~QUxAction() { liveActions().erase(this); }

void QUxAction::showIconText(bool show)
{
    s_showIconText = show;
    const Qt::ToolButtonStyle style = show ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly;
    for (QUxAction* action : liveActions()) {
        for (QWidget* widget : action->associatedWidgets()) {
            if (auto* toolBar = qobject_cast<QToolBar*>(widget))
                toolBar->setToolButtonStyle(style);
        }
    }
}

bool QUxAction::iconTextShown() { return s_showIconText; }
