#include "QUxAbstractTreeModel.h"

#include <uxStyle.h>

#include <QDataStream>
#include <QMimeData>

#include <algorithm>

namespace {

// Payloads and parent chains come from outside: bound the work spent on them.
constexpr int kMaxDraggedIds = 1 << 20;
constexpr int kMaxDepth = 1 << 16;

// The id questions are not const (a host model may cache its answers); the
// item-model protocol is.
QUxAbstractTreeModel* mutableSelf(const QUxAbstractTreeModel* model)
{
    return const_cast<QUxAbstractTreeModel*>(model);
}

} // namespace

class QUxAbstractTreeModelPrivate
{
public:
    unsigned int rootId = 0;
};

QUxAbstractTreeModel::QUxAbstractTreeModel(QObject* parent)
    : QAbstractItemModel(parent), d(new QUxAbstractTreeModelPrivate)
{}

QUxAbstractTreeModel::~QUxAbstractTreeModel() = default;

QModelIndex QUxAbstractTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    auto* const self = mutableSelf(this);
    if (!hasIndex(row, column, parent) || getRootId() == 0)
        return QModelIndex();
    const unsigned int child = self->getChildId(getItemId(parent), row);
    return child == 0 ? QModelIndex() : createIndex(row, column, quintptr(child));
}

QModelIndex QUxAbstractTreeModel::parent(const QModelIndex& index) const
{
    auto* const self = mutableSelf(this);
    if (!index.isValid() || getRootId() == 0)
        return QModelIndex();
    const unsigned int p = self->getParentId(getItemId(index));
    if (p == 0 || p == getRootId())
        return QModelIndex();
    const int row = self->getRow(p);
    return row < 0 ? QModelIndex() : createIndex(row, 0, quintptr(p));
}

QModelIndex QUxAbstractTreeModel::getModelIndex(unsigned int id)
{
    // While the root is 0 the model is empty, so no item has an index in it.
    if (id == 0 || id == getRootId() || getRootId() == 0)
        return QModelIndex();
    const int row = getRow(id);
    return row < 0 ? QModelIndex() : createIndex(row, 0, quintptr(id));
}

int QUxAbstractTreeModel::rowCount(const QModelIndex& parent) const
{
    auto* const self = mutableSelf(this);
    if (parent.column() >= 1 || getRootId() == 0)
        return 0;
    return std::max(0, self->getChildCount(getItemId(parent)));
}

int QUxAbstractTreeModel::columnCount(const QModelIndex&) const { return 1; }

QVariant QUxAbstractTreeModel::data(const QModelIndex& index, int role) const
{
    auto* const self = mutableSelf(this);
    const unsigned int id = getItemId(index);
    switch (role) {
    case Qt::DisplayRole:
        return self->getText(id);
    case Qt::DecorationRole:
        return self->getDecoration(id);
    case Qt::EditRole:
        return self->getEditText(id);
    case Qt::ForegroundRole:
        // Locked wins over inactive.
        if (!isEditable(id))
            return uxStyle::getLockedItemColor();
        if (!self->isActive(id))
            return uxStyle::getInactiveNodeColor();
        return QVariant();
    default:
        return QVariant();
    }
}

bool QUxAbstractTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !setText(getItemId(index), value.toString()))
        return false;
    emit dataChanged(index, index);
    return true;
}

QStringList QUxAbstractTreeModel::mimeTypes() const { return {mutableSelf(this)->getMimeType()}; }

QMimeData* QUxAbstractTreeModel::mimeData(const QList<QModelIndex>& indexes) const
{
    auto* const self = mutableSelf(this);
    if (indexes.isEmpty())
        return nullptr;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QModelIndex& index : indexes)
        stream << quint32(getItemId(index));
    auto* mime = new QMimeData;
    mime->setData(self->getMimeType(), bytes);
    return mime;
}

std::vector<unsigned int> QUxAbstractTreeModel::getIds(const QMimeData* mime)
{
    std::vector<unsigned int> ids;
    if (!mime || !mime->hasFormat(getMimeType()))
        return ids;
    const QByteArray bytes = mime->data(getMimeType());
    // A torn or oversized payload is refused as a whole rather than read in part.
    if (bytes.size() % 4 != 0 || bytes.size() / 4 > kMaxDraggedIds)
        return ids;
    ids.reserve(size_t(bytes.size() / 4));
    QDataStream stream(bytes);
    while (!stream.atEnd()) {
        quint32 id = 0;
        stream >> id;
        if (stream.status() != QDataStream::Ok)
            return {};
        ids.push_back(id);
    }
    return ids;
}

bool QUxAbstractTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                                        const QModelIndex& parent)
{
    if (!data || action != Qt::MoveAction)
        return false;
    const unsigned int target = getItemId(parent);
    if (target == 0)
        return false;
    const std::vector<unsigned int> ids = getIds(data);
    if (ids.empty())
        return false;
    // Ids that name nothing, and a move of an item into its own subtree, change nothing.
    std::vector<unsigned int> chain{target};
    for (unsigned int p = getParentId(target); p != 0 && chain.size() < size_t(kMaxDepth); p = getParentId(p))
        chain.push_back(p);
    std::sort(chain.begin(), chain.end());
    for (const unsigned int id : ids) {
        if (id == 0 || getRow(id) < 0 || std::binary_search(chain.begin(), chain.end(), id))
            return false;
    }
    beginResetModel();
    if (row == -1)
        moveTo(target, ids);
    else if (row >= 0)
        moveBefore(target, unsigned(row), ids);
    endResetModel();
    return true;
}

Qt::DropActions QUxAbstractTreeModel::supportedDropActions() const { return Qt::MoveAction; }

Qt::ItemFlags QUxAbstractTreeModel::flags(const QModelIndex& index) const
{
    // The root answers too, so that a droppable root takes drops on the view's empty area.
    const unsigned int id = getItemId(index);
    Qt::ItemFlags result = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (isDraggable(id))
        result |= Qt::ItemIsDragEnabled;
    if (isDroppable(id))
        result |= Qt::ItemIsDropEnabled;
    if (isEditable(id))
        result |= Qt::ItemIsEditable;
    if (isCheckable(id))
        result |= Qt::ItemIsUserCheckable;
    return result;
}

void QUxAbstractTreeModel::setRootId(unsigned int id)
{
    d->rootId = id;
    beginResetModel();
    endResetModel();
}

unsigned int QUxAbstractTreeModel::getRootId() const { return d->rootId; }

void QUxAbstractTreeModel::refresh()
{
    if (signalsBlocked())
        return;
    beginResetModel();
    endResetModel();
}

unsigned int QUxAbstractTreeModel::getItemId(const QModelIndex& index) const
{
    return index.isValid() ? unsigned(index.internalId()) : getRootId();
}

QString QUxAbstractTreeModel::getEditText(unsigned int id) { return getText(id); }
bool QUxAbstractTreeModel::isCheckable(unsigned int) const { return false; }
bool QUxAbstractTreeModel::isEditable(unsigned int) const { return false; }
bool QUxAbstractTreeModel::isDraggable(unsigned int) const { return false; }
bool QUxAbstractTreeModel::isDroppable(unsigned int) const { return false; }
void QUxAbstractTreeModel::moveTo(unsigned int, const std::vector<unsigned int>&) {}
void QUxAbstractTreeModel::moveBefore(unsigned int, unsigned int, const std::vector<unsigned int>&) {}
