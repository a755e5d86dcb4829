#include "QUxSortFilterProxyModel.h"

#include <QCollator>
#include <QCollatorSortKey>
#include <QLocale>

#include <optional>
#include <vector>

namespace {

QCollator naturalCollator()
{
    // The C locale's collator ignores numeric mode ("item10" before "item2");
    // an English collation honours it.
    QLocale locale;
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English, QLocale::UnitedStates);
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseSensitive);
    collator.setNumericMode(true);
    return collator;
}

} // namespace

// Sorting compares each row many times; a collation key made once per row
// turns every comparison into a byte comparison. Keys are kept per parent and
// column, indexed by row, and forgotten whenever the source could have moved
// or changed what they were made from.
class QUxSortFilterProxyModelPrivate
{
public:
    struct Group
    {
        QModelIndex parent;
        int column;
        std::vector<std::optional<QCollatorSortKey>> keys;
    };
    struct Slot
    {
        int group = -1;
        int row = -1;
    };

    QCollator collator = naturalCollator();
    std::vector<Group> groups;
    int lastGroup = -1;
    int role = -1;
    const QAbstractItemModel* model = nullptr;
    std::vector<QMetaObject::Connection> connections;

    void clear()
    {
        groups.clear();
        lastGroup = -1;
    }

    int findGroup(const QModelIndex& parent, int column) const
    {
        if (lastGroup >= 0 && groups[size_t(lastGroup)].column == column && groups[size_t(lastGroup)].parent == parent)
            return lastGroup;
        for (size_t i = 0; i < groups.size(); ++i) {
            if (groups[i].column == column && groups[i].parent == parent)
                return int(i);
        }
        return -1;
    }

    /// Where the key of @p index lives, made room for; no slot for indexes of other models.
    Slot slotFor(const QModelIndex& index)
    {
        if (!model || !index.isValid() || index.model() != model)
            return {};
        const QModelIndex parent = index.parent();
        int group = findGroup(parent, index.column());
        if (group < 0) {
            groups.push_back({parent, index.column(), {}});
            group = int(groups.size()) - 1;
            groups.back().keys.resize(size_t(qMax(0, model->rowCount(parent))));
        }
        auto& keys = groups[size_t(group)].keys;
        if (size_t(index.row()) >= keys.size())
            keys.resize(size_t(index.row()) + 1);
        lastGroup = group;
        return {group, index.row()};
    }

    const QCollatorSortKey& keyAt(const Slot& slot, const QModelIndex& index)
    {
        auto& key = groups[size_t(slot.group)].keys[size_t(slot.row)];
        if (!key)
            key = collator.sortKey(index.data(role).toString());
        return *key;
    }

    void forget(const QModelIndex& topLeft, const QModelIndex& bottomRight)
    {
        if (!topLeft.isValid() || !bottomRight.isValid()) {
            clear();
            return;
        }
        const QModelIndex parent = topLeft.parent();
        for (auto& group : groups) {
            if (group.parent != parent || group.column < topLeft.column() || group.column > bottomRight.column())
                continue;
            const size_t last = qMin(size_t(qMax(0, bottomRight.row()) + 1), group.keys.size());
            for (size_t row = size_t(qMax(0, topLeft.row())); row < last; ++row)
                group.keys[row].reset();
        }
    }
};

QUxSortFilterProxyModel::QUxSortFilterProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent), d(std::make_unique<QUxSortFilterProxyModelPrivate>())
{}

QUxSortFilterProxyModel::~QUxSortFilterProxyModel() = default;

void QUxSortFilterProxyModel::setSourceModel(QAbstractItemModel* model)
{
    for (const auto& connection : d->connections)
        disconnect(connection);
    d->connections.clear();
    d->clear();
    d->model = model;
    // Connected before the base class connects its own handlers, so that the
    // keys are forgotten before it sorts the changed rows again.
    if (model) {
        const auto clear = [this] { d->clear(); };
        auto& c = d->connections;
        c.push_back(connect(model, &QAbstractItemModel::dataChanged, this,
                            [this](const QModelIndex& tl, const QModelIndex& br) { d->forget(tl, br); }));
        c.push_back(connect(model, &QAbstractItemModel::rowsInserted, this, clear));
        c.push_back(connect(model, &QAbstractItemModel::rowsRemoved, this, clear));
        c.push_back(connect(model, &QAbstractItemModel::rowsMoved, this, clear));
        c.push_back(connect(model, &QAbstractItemModel::columnsInserted, this, clear));
        c.push_back(connect(model, &QAbstractItemModel::columnsRemoved, this, clear));
        c.push_back(connect(model, &QAbstractItemModel::columnsMoved, this, clear));
        c.push_back(connect(model, &QAbstractItemModel::layoutChanged, this, clear));
        c.push_back(connect(model, &QAbstractItemModel::modelReset, this, clear));
    }
    QSortFilterProxyModel::setSourceModel(model);
}

void QUxSortFilterProxyModel::sort(int column, Qt::SortOrder order)
{
    // The base class indexes with a large negative column unchecked.
    if (column < -1)
        return;
    QSortFilterProxyModel::sort(column, order);
}

bool QUxSortFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    // A source model that went away, or a new sort role, makes every key stale.
    if (d->model != sourceModel() || d->role != sortRole()) {
        d->clear();
        d->model = sourceModel();
        d->role = sortRole();
    }
    const auto leftSlot = d->slotFor(left);
    const auto rightSlot = d->slotFor(right);
    if (leftSlot.group < 0 || rightSlot.group < 0)
        return lessThan(left.data(sortRole()).toString(), right.data(sortRole()).toString());
    const QCollatorSortKey& leftKey = d->keyAt(leftSlot, left);
    return leftKey.compare(d->keyAt(rightSlot, right)) < 0;
}

bool QUxSortFilterProxyModel::lessThan(const QString& left, const QString& right) const
{
    return d->collator.compare(left, right) < 0;
}
