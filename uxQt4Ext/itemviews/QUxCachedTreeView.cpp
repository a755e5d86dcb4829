#include "QUxCachedTreeView.h"

#include "QUxAbstractTreeModel.h"

#include <QAbstractProxyModel>

#include <algorithm>
#include <limits>
#include <set>
#include <utility>
#include <vector>

namespace {

constexpr size_t kMaxDepth = 1 << 16;

/// Whether @p index is an item the tree really shows: each step up is a row of its parent.
bool reachable(QUxAbstractTreeModel* tree, QModelIndex index)
{
    for (size_t depth = 0; index.isValid(); ++depth) {
        const QModelIndex parent = tree->parent(index);
        if (depth > kMaxDepth || tree->index(index.row(), 0, parent) != index)
            return false;
        index = parent;
    }
    return true;
}

} // namespace

class QUxCachedTreeViewPrivate
{
public:
    std::set<quint64> keys;

    static quint64 keyOf(const QAbstractItemModel* model, const QModelIndex& index)
    {
        const auto* proxy = qobject_cast<const QAbstractProxyModel*>(model);
        return proxy ? proxy->mapToSource(index).internalId() : index.internalId();
    }

    // Depth first, pre-order, over every item whether its branch is open or not.
    // Iterative, so that a deep hierarchy cannot exhaust the stack.
    static QModelIndexList gather(const QAbstractItemModel* model)
    {
        QModelIndexList out;
        std::vector<std::pair<QModelIndex, int>> stack{{QModelIndex(), 0}};
        while (!stack.empty()) {
            auto& [parent, row] = stack.back();
            if (row >= model->rowCount(parent)) {
                stack.pop_back();
                continue;
            }
            const QModelIndex child = model->index(row++, 0, parent);
            if (!child.isValid())
                continue; // a hole in a model; walking it would restart at the root
            out.append(child);
            stack.emplace_back(child, 0);
        }
        return out;
    }

    // Right after a reset of the view's own model nothing is expanded (the view's own
    // reset ran first), so only remembered items can need a call. When the source model
    // finds items by id, visit just those, in the order the whole-tree walk meets them
    // (pre-order is the order of row paths), instead of every item of a big tree.
    static bool findByKey(QAbstractItemModel* model, const std::set<quint64>& keys, QModelIndexList& out)
    {
        const auto* proxy = qobject_cast<const QAbstractProxyModel*>(model);
        auto* tree = qobject_cast<QUxAbstractTreeModel*>(proxy ? proxy->sourceModel() : model);
        if (!tree)
            return false;
        std::vector<std::pair<std::vector<int>, QModelIndex>> found;
        for (const quint64 key : keys) {
            const QModelIndex source =
                key > std::numeric_limits<unsigned>::max() ? QModelIndex() : tree->getModelIndex(unsigned(key));
            const QModelIndex index = proxy ? proxy->mapFromSource(source) : source;
            if (!source.isValid() || !index.isValid() || !reachable(tree, source))
                continue;
            std::vector<int> path;
            for (QModelIndex step = index; step.isValid() && path.size() < kMaxDepth; step = step.parent())
                path.push_back(step.row());
            std::reverse(path.begin(), path.end());
            found.emplace_back(std::move(path), index);
        }
        std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        for (const auto& entry : found)
            out.append(entry.second);
        return true;
    }
};

QUxCachedTreeView::QUxCachedTreeView(QWidget* parent) : QTreeView(parent), d(new QUxCachedTreeViewPrivate)
{
    connect(this, &QTreeView::expanded, this, &QUxCachedTreeView::storeExpanded);
    connect(this, &QTreeView::collapsed, this, &QUxCachedTreeView::storeCollapsed);
}

QUxCachedTreeView::~QUxCachedTreeView() = default;

void QUxCachedTreeView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    if (model)
        connect(model, SIGNAL(modelReset()), this, SLOT(restoreExpanded()), Qt::UniqueConnection);
}

void QUxCachedTreeView::setParentsExpanded(const QModelIndex& index, bool expand)
{
    for (QModelIndex ancestor = index.parent(); ancestor.isValid(); ancestor = ancestor.parent())
        setExpanded(ancestor, expand);
}

void QUxCachedTreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    const bool updates = updatesEnabled();
    setUpdatesEnabled(false);
    QTreeView::selectionChanged(selected, deselected);
    setUpdatesEnabled(updates);
}

void QUxCachedTreeView::clearExpandedCache() { d->keys.clear(); }

void QUxCachedTreeView::storeExpanded(QModelIndex index)
{
    if (model())
        d->keys.insert(QUxCachedTreeViewPrivate::keyOf(model(), index));
}

void QUxCachedTreeView::storeCollapsed(QModelIndex index)
{
    if (model())
        d->keys.erase(QUxCachedTreeViewPrivate::keyOf(model(), index));
}

void QUxCachedTreeView::restoreExpanded()
{
    QAbstractItemModel* const current = model();
    if (!current)
        return;
    setUpdatesEnabled(false);
    scheduleDelayedItemsLayout();
    QModelIndexList all;
    if (sender() != current || !QUxCachedTreeViewPrivate::findByKey(current, d->keys, all))
        all = QUxCachedTreeViewPrivate::gather(current);
    for (const QModelIndex& index : qAsConst(all)) {
        const bool shouldExpand = d->keys.count(QUxCachedTreeViewPrivate::keyOf(current, index)) != 0;
        if (isExpanded(index) != shouldExpand)
            setExpanded(index, shouldExpand);
    }
    setUpdatesEnabled(true);
}
