#include "QUxSAMenuSearchAction_p.h"

#include <QActionEvent>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMenu>

#include <utility>

QUxSAMenuSearchAction::QUxSAMenuSearchAction(QMenu* menu)
    : QWidgetAction(menu), m_menu(menu), m_lineEdit(new QLineEdit(menu))
{
    connect(m_lineEdit, &QLineEdit::textChanged, this, &QUxSAMenuSearchAction::textChanged);
    connect(m_lineEdit, &QLineEdit::returnPressed, this, &QUxSAMenuSearchAction::textFinished);
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &QUxSAMenuSearchAction::textFinished);
    m_lineEdit->installEventFilter(this);
    setDefaultWidget(m_lineEdit);
}

QUxSAMenuSearchAction::~QUxSAMenuSearchAction() = default;

void QUxSAMenuSearchAction::textChanged(const QString& text)
{
    if (!m_menu)
        return;
    // An open menu lays itself out again on each changed entry, which would make one keystroke quadratic in the
    // number of entries; hold those notices back and let the last one through once every entry is set.
    const bool holdLayout = m_menu->isVisible() && !m_menu->isTearOffMenuVisible();
    if (holdLayout)
        m_menu->installEventFilter(this);
    const QList<QAction*> actions = m_menu->actions();
    for (QAction* action : actions) {
        if (qobject_cast<QUxSAMenuSearchAction*>(action))
            continue;
        action->setVisible(text.isEmpty() || action->text().contains(text, Qt::CaseInsensitive));
    }
    if (!holdLayout)
        return;
    m_menu->removeEventFilter(this);
    if (QAction* changed = std::exchange(m_heldChange, nullptr)) {
        QActionEvent event(QEvent::ActionChanged, changed);
        QCoreApplication::sendEvent(m_menu, &event);
    }
}

// The end of an edit needs no action of its own; the slot is where a host can hook in.
void QUxSAMenuSearchAction::textFinished() {}

bool QUxSAMenuSearchAction::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_menu && event->type() == QEvent::ActionChanged) {
        m_heldChange = static_cast<QActionEvent*>(event)->action();
        return true;
    }
    // Pointing at the field makes it the menu's active entry, so typed keys reach it.
    if (event->type() == QEvent::Enter && m_menu)
        m_menu->setActiveAction(this);
    return QWidgetAction::eventFilter(watched, event);
}
