#include "QUxSAMenu.h"

#include "QUxSAMenuSearchAction_p.h"

#include <QLineEdit>

// Kept so that per-menu state can be added without changing the class layout.
class QUxSAMenuPrivate
{
};

QUxSAMenu::QUxSAMenu(QWidget* parent) : QUxMenu(parent), d(new QUxSAMenuPrivate)
{
    addAction(new QUxSAMenuSearchAction(this));
}

QUxSAMenu::QUxSAMenu(const QString& title, QWidget* parent) : QUxMenu(title, parent), d(new QUxSAMenuPrivate)
{
    addAction(new QUxSAMenuSearchAction(this));
}

QUxSAMenu::~QUxSAMenu() = default;

void QUxSAMenu::setVisible(bool visible)
{
    if (!visible) {
        QWidget::setVisible(false);
        return;
    }
    QUxSAMenuSearchAction* search = nullptr;
    const QList<QAction*> entries = actions();
    for (QAction* action : entries) {
        action->setEnabled(true);
        action->setVisible(true);
        if (auto* candidate = qobject_cast<QUxSAMenuSearchAction*>(action))
            search = candidate;
    }
    if (search) {
        if (auto* field = qobject_cast<QLineEdit*>(search->defaultWidget())) {
            // Clearing must not filter: every entry was just shown again.
            const bool wasBlocked = field->blockSignals(true);
            field->clear();
            field->blockSignals(wasBlocked);
            field->setFocus(Qt::OtherFocusReason);
        }
    }
    QWidget::setVisible(true);
}
