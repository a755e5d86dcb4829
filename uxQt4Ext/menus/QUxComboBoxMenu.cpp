#include "QUxComboBoxMenu.h"

#include <QMouseEvent>
#include <QPointer>

class QUxComboBoxMenuPrivate
{
public:
    QPointer<QAction> selected;
    QVariant current;
    // A copy: a caller's temporary font must not leave the menu with a dangling reference.
    QFont font;
};

QUxComboBoxMenu::QUxComboBoxMenu(const QFont& font, const QVariant& current, QWidget* parent)
    : QMenu(parent), d(std::make_unique<QUxComboBoxMenuPrivate>())
{
    d->current = current;
    d->font = font;
    setProperty(Style, true);
    setFontSettings(this);
}

QUxComboBoxMenu::~QUxComboBoxMenu() = default;

void QUxComboBoxMenu::init(const QString& text, const QVariant& data)
{
    Q_UNUSED(text)
    Q_UNUSED(data)
}

QAction* QUxComboBoxMenu::showPopup(const QPoint& position)
{
    d->selected = nullptr;
    QAction* chosen = exec(position);
    return chosen ? chosen : d->selected.data();
}

QVariant QUxComboBoxMenu::currentValue() const { return d->current; }

QAction* QUxComboBoxMenu::selectedAction() const { return d->selected.data(); }

QAction* QUxComboBoxMenu::addItem(QMenu* menu, const QString& text, const QVariant& data)
{
    if (!menu)
        return nullptr;
    QAction* action = menu->addAction(text);
    action->setData(data);
    const bool current = data == d->current;
    action->setCheckable(current);
    action->setChecked(current);
    return action;
}

QMenu* QUxComboBoxMenu::addMenu(QMenu* menu, const QString& text, const QVariant& data)
{
    if (!menu)
        return nullptr;
    QMenu* sub = menu->addMenu(text);
    sub->setProperty(Style, true);
    sub->menuAction()->setData(data);
    setFontSettings(sub);
    // Deeper levels are plain menus; their sub-menu entries are made clickable here.
    sub->installEventFilter(this);
    return sub;
}

void QUxComboBoxMenu::setFontSettings(QMenu* menu)
{
    if (!menu)
        return;
    QFont font = menu->font();
    font.setFamily(d->font.family());
    if (d->font.pointSizeF() > 0)
        font.setPointSizeF(d->font.pointSizeF());
    else if (d->font.pointSize() > 0)
        font.setPointSize(d->font.pointSize());
    else if (d->font.pixelSize() > 0)
        font.setPixelSize(d->font.pixelSize());
    menu->setFont(font);
}

bool QUxComboBoxMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        auto* menu = qobject_cast<QMenu*>(watched);
        if (menu && selectSubMenuEntry(menu, static_cast<QMouseEvent*>(event)->pos()))
            return true;
    }
    return QMenu::eventFilter(watched, event);
}

void QUxComboBoxMenu::mouseReleaseEvent(QMouseEvent* event)
{
    selectSubMenuEntry(this, event->pos());
    QMenu::mouseReleaseEvent(event);
}

bool QUxComboBoxMenu::selectSubMenuEntry(QMenu* menu, const QPoint& pos)
{
    QAction* action = menu->actionAt(pos);
    if (!action || !action->menu() || !action->isEnabled())
        return false;
    d->selected = action;
    // Close from the clicked level outwards, menus only; closing this menu ends exec().
    for (QMenu* level = menu; level && level != this; level = qobject_cast<QMenu*>(level->parentWidget()))
        level->close();
    close();
    return true;
}
