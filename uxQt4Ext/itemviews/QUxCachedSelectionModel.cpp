#include "QUxCachedSelectionModel.h"

#include "QUxAbstractTreeModel.h"

#include <QAbstractProxyModel>

#include <set>

class QUxCachedSelectionModelPrivate
{
public:
    std::set<quint64> keys;
    int restoring = 0;
};

QUxCachedSelectionModel::QUxCachedSelectionModel(QAbstractItemModel* model, QObject* parent)
    : QItemSelectionModel(model, parent), d(new QUxCachedSelectionModelPrivate)
{
    connectSelectionChanged();
    if (model)
        connect(model, SIGNAL(modelReset()), this, SLOT(restoreSelection()));
}

QUxCachedSelectionModel::~QUxCachedSelectionModel() { d->keys.clear(); }

void QUxCachedSelectionModel::deselectAll()
{
    clearSelection();
    clearSelectionCache();
}

QItemSelection QUxCachedSelectionModel::sourceModelSelection() const
{
    const auto* proxy = qobject_cast<const QAbstractProxyModel*>(model());
    return proxy ? proxy->mapSelectionToSource(selection()) : selection();
}

const QAbstractItemModel* QUxCachedSelectionModel::sourceModel() const
{
    const auto* proxy = qobject_cast<const QAbstractProxyModel*>(model());
    return proxy ? proxy->sourceModel() : model();
}

QModelIndex QUxCachedSelectionModel::getSourceIndex(const QModelIndex& index) const
{
    const auto* proxy = qobject_cast<const QAbstractProxyModel*>(model());
    return proxy ? proxy->mapToSource(index) : index;
}

QModelIndex QUxCachedSelectionModel::getSelectionModelIndex(quint64 key)
{
    const auto* proxy = qobject_cast<const QAbstractProxyModel*>(model());
    auto* tree = qobject_cast<QUxAbstractTreeModel*>(proxy ? proxy->sourceModel() : model());
    if (!tree)
        return QModelIndex();
    const QModelIndex index = tree->getModelIndex(unsigned(key));
    return proxy ? proxy->mapFromSource(index) : index;
}

void QUxCachedSelectionModel::storeSelected(const QModelIndex& sourceIndex)
{
    d->keys.insert(sourceIndex.internalId());
}

void QUxCachedSelectionModel::storeDeselected(const QModelIndex& sourceIndex)
{
    d->keys.erase(sourceIndex.internalId());
}

void QUxCachedSelectionModel::clearSelectionCache() { d->keys.clear(); }

QItemSelection QUxCachedSelectionModel::getCachedSelection()
{
    QItemSelection selection;
    selection.reserve(int(d->keys.size()));
    for (const quint64 key : d->keys) {
        const QModelIndex index = getSelectionModelIndex(key);
        selection.append(QItemSelectionRange(index, index));
    }
    return selection;
}

void QUxCachedSelectionModel::storeSelection(QItemSelection selected, QItemSelection deselected)
{
    if (const auto* proxy = qobject_cast<const QAbstractProxyModel*>(model())) {
        selected = proxy->mapSelectionToSource(selected);
        deselected = proxy->mapSelectionToSource(deselected);
    }
    const QModelIndexList added = selected.indexes();
    for (const QModelIndex& index : added)
        storeSelected(index);
    const QModelIndexList removed = deselected.indexes();
    for (const QModelIndex& index : removed)
        storeDeselected(index);
}

void QUxCachedSelectionModel::restoreSelection()
{
    if (!model())
        return;
    const QItemSelection selection = getCachedSelection();
    // Our own restore must not rewrite the cache; a reset inside it reconnects only once.
    disconnectSelectionChanged();
    ++d->restoring;
    select(selection, QItemSelectionModel::ClearAndSelect);
    if (--d->restoring == 0)
        connectSelectionChanged();
}

void QUxCachedSelectionModel::connectSelectionChanged()
{
    connect(this, &QItemSelectionModel::selectionChanged, this, &QUxCachedSelectionModel::storeSelection,
            Qt::UniqueConnection);
}

void QUxCachedSelectionModel::disconnectSelectionChanged()
{
    disconnect(this, &QItemSelectionModel::selectionChanged, this, &QUxCachedSelectionModel::storeSelection);
}
