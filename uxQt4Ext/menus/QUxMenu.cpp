#include "QUxMenu.h"

// Kept so that per-menu state can be added without changing the class layout.
class QUxMenuPrivate
{
};

QUxMenu::QUxMenu(QWidget* parent) : QMenu(parent), d(new QUxMenuPrivate)
{
    setAttribute(Qt::WA_TranslucentBackground, true);
}

QUxMenu::QUxMenu(const QString& title, QWidget* parent) : QMenu(title, parent), d(new QUxMenuPrivate)
{
    setAttribute(Qt::WA_TranslucentBackground, true);
}

QUxMenu::~QUxMenu() = default;
