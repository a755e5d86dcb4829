#include "uxHeaderViewBase.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QCursor>
#include <QMenu>

#include <set>

class uxHeaderViewBasePrivate
{
public:
    std::set<int> notHideable;
};

uxHeaderViewBase::uxHeaderViewBase(QAbstractItemModel* model, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), d(std::make_unique<uxHeaderViewBasePrivate>())
{
    if (model)
        setModel(model);
    setDragDropMode(InternalMove);
    setSectionsMovable(true);
    setDragEnabled(true);
    setDropIndicatorShown(true);
    setSectionResizeMode(Interactive);
    setSectionsClickable(true);
    setDefaultAlignment(Qt::AlignLeft);
}

uxHeaderViewBase::~uxHeaderViewBase() = default;

void uxHeaderViewBase::setColumnVisible(int logicalIndex, bool visible) { setSectionHidden(logicalIndex, !visible); }

bool uxHeaderViewBase::isColumnVisible(int logicalIndex) const { return !isSectionHidden(logicalIndex); }

QAbstractItemModel* uxHeaderViewBase::headerModel() { return model(); }

void uxHeaderViewBase::setSectionHideable(int index, bool hideable)
{
    if (hideable)
        d->notHideable.erase(index);
    else
        d->notHideable.insert(index);
}

bool uxHeaderViewBase::sectionHideable(int index) const { return d->notHideable.count(index) == 0; }

QString uxHeaderViewBase::getHeaderName(int logicalIndex)
{
    const QAbstractItemModel* source = headerModel();
    if (!source)
        return QString();
    const QString name = source->headerData(logicalIndex, Qt::Horizontal, Qt::DisplayRole).toString();
    return name.isEmpty() ? source->headerData(logicalIndex, Qt::Horizontal, Qt::UserRole).toString() : name;
}

int uxHeaderViewBase::getVisibleColumnCount() const
{
    int visible = 0;
    for (int logical = 0; logical < count(); ++logical)
        visible += isColumnVisible(logical) ? 1 : 0;
    return visible;
}

void uxHeaderViewBase::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    AddActions(&menu, true);
    AddActions(&menu, false);
    if (getVisibleColumnCount() == 1)
        disableCheckedActions(&menu);
    if (!menu.actions().isEmpty())
        menu.exec(event ? event->globalPos() : QCursor::pos());
}

void uxHeaderViewBase::AddActions(QMenu* menu, bool visible)
{
    if (!menu)
        return;
    for (int position = 0; position < count(); ++position) {
        const int logical = logicalIndex(position);
        // The not-hideable set holds visual positions, not logical indexes.
        if (isColumnVisible(logical) != visible || d->notHideable.count(position) != 0)
            continue;
        QAction* action = menu->addAction(getHeaderName(logical));
        action->setCheckable(true);
        action->setChecked(visible);
        action->setData(logical);
        connect(action, SIGNAL(toggled(bool)), this, SLOT(OnChangeVisibility(bool)));
    }
}

void uxHeaderViewBase::disableCheckedActions(QMenu* menu)
{
    if (!menu)
        return;
    for (QAction* action : menu->actions()) {
        if (action->isChecked())
            action->setEnabled(false);
    }
}

void uxHeaderViewBase::OnChangeVisibility(bool on)
{
    const auto* action = qobject_cast<const QAction*>(sender());
    bool ok = false;
    const int logical = action ? action->data().toInt(&ok) : -1;
    if (ok)
        setColumnVisible(logical, on);
}
