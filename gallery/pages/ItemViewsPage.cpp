#include "GalleryLog.h"
#include "GalleryPage.h"

#include <QUxAbstractTreeModel.h>
#include <QUxCachedSelectionModel.h>
#include <QUxCachedTreeView.h>
#include <QUxCustomDelegate.h>
#include <QUxSortFilterProxyModel.h>
#include <uxHeaderViewBase.h>

#include <QApplication>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace {

/// One node of a generated assembly.
struct Node
{
    QString name;
    unsigned parent = 0;
    std::vector<unsigned> children;
    bool group = false;
    bool locked = false;
    bool active = true;
    int triangles = 0;
};

/// A host-side scene held as plain nodes, shown through the id-based model:
/// no Qt object per node, ids as the only key.
class SceneModel : public QUxAbstractTreeModel
{
public:
    enum Column { Name, Kind, Triangles, ColumnCount };

    explicit SceneModel(QObject* parent) : QUxAbstractTreeModel(parent)
    {
        m_nodes.resize(2); // id 0 names nothing; 1 is the scene root
        m_nodes[1].name = QStringLiteral("Scene");
        m_nodes[1].group = true;
        generate(1, 0);
        setRootId(1);
    }

    int nodeCount() const { return int(m_nodes.size()) - 2; }

    /// Every group's children in reverse order: rows change, ids stay.
    void rebuild()
    {
        for (Node& node : m_nodes)
            std::reverse(node.children.begin(), node.children.end());
        refresh();
    }

    int columnCount(const QModelIndex& parent) const override { return parent.column() > 0 ? 0 : ColumnCount; }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        const char* const titles[] = {"Name", "Type", "Triangles"};
        return section >= 0 && section < ColumnCount ? tr(titles[section]) : QVariant();
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (index.column() == Name || role == Qt::ForegroundRole)
            return QUxAbstractTreeModel::data(index, role);
        if (role != Qt::DisplayRole)
            return {};
        const Node& node = m_nodes[getItemId(index)];
        if (index.column() == Kind)
            return node.group ? tr("Assembly") : tr("Part");
        return node.group ? QVariant() : QVariant(node.triangles);
    }

    QString getMimeType() override { return QStringLiteral("application/x-ux-gallery-node"); }
    QString getText(unsigned int id) override { return valid(id) ? m_nodes[id].name : QString(); }
    bool setText(unsigned int id, const QString& text) override
    {
        if (!valid(id) || text.trimmed().isEmpty())
            return false;
        m_nodes[id].name = text.trimmed();
        return true;
    }
    QVariant getDecoration(unsigned int id) override
    {
        if (!valid(id))
            return {};
        return QApplication::style()->standardIcon(m_nodes[id].group ? QStyle::SP_DirIcon : QStyle::SP_FileIcon);
    }
    bool isActive(unsigned int id) override { return !valid(id) || m_nodes[id].active; }
    unsigned int getChildId(unsigned int parentId, int row) override
    {
        if (!valid(parentId) || row < 0 || row >= int(m_nodes[parentId].children.size()))
            return 0;
        return m_nodes[parentId].children[size_t(row)];
    }
    int getRow(unsigned int id) override
    {
        if (!valid(id) || !valid(m_nodes[id].parent))
            return -1;
        const auto& siblings = m_nodes[m_nodes[id].parent].children;
        return int(std::find(siblings.begin(), siblings.end(), id) - siblings.begin());
    }
    int getChildCount(unsigned int id) override { return valid(id) ? int(m_nodes[id].children.size()) : 0; }
    unsigned int getParentId(unsigned int id) override { return valid(id) ? m_nodes[id].parent : 0; }

protected:
    bool isEditable(unsigned int id) const override { return valid(id) && !m_nodes[id].locked; }
    bool isDraggable(unsigned int id) const override { return id > 1 && valid(id) && !m_nodes[id].locked; }
    bool isDroppable(unsigned int id) const override { return valid(id) && m_nodes[id].group; }

    void moveTo(unsigned int parentId, const std::vector<unsigned int>& ids) override
    {
        moveBefore(parentId, unsigned(getChildCount(parentId)), ids);
    }

    void moveBefore(unsigned int parentId, unsigned int row, const std::vector<unsigned int>& ids) override
    {
        for (unsigned id : ids) {
            if (!isDraggable(id) || !isDroppable(parentId) || isAncestor(id, parentId))
                continue; // several columns of one row arrive as one id repeated
            auto& old = m_nodes[m_nodes[id].parent].children;
            const auto at = std::find(old.begin(), old.end(), id);
            if (m_nodes[id].parent == parentId && unsigned(at - old.begin()) < row)
                --row;
            old.erase(at);
            auto& now = m_nodes[parentId].children;
            now.insert(now.begin() + std::min<size_t>(row, now.size()), id);
            m_nodes[id].parent = parentId;
            ++row;
        }
    }

private:
    bool valid(unsigned id) const { return id > 0 && id < m_nodes.size(); }

    bool isAncestor(unsigned ancestor, unsigned id) const
    {
        for (; valid(id); id = m_nodes[id].parent)
            if (id == ancestor)
                return true;
        return false;
    }

    /// A deterministic assembly: five levels, a few thousand nodes.
    void generate(unsigned parent, int depth)
    {
        static const char* const assemblies[] = {"Chassis", "Body", "Axle", "Wheel", "Seat", "Door"};
        static const char* const parts[] = {"Bolt", "Bracket", "Panel", "Hinge", "Washer", "Clip", "Gasket"};
        const int groups = depth < 4 ? 3 + depth : 0;
        const int leaves = 3 + (depth * 2 + int(parent)) % 6;
        for (int i = 0; i < groups + leaves; ++i) {
            const unsigned id = unsigned(m_nodes.size());
            m_nodes.push_back(Node());
            Node& node = m_nodes.back();
            node.parent = parent;
            node.group = i < groups;
            node.name = QStringLiteral("%1 %2")
                            .arg(QLatin1String(node.group ? assemblies[(id + depth) % 6] : parts[id % 7]))
                            .arg(i + 1);
            node.locked = id % 11 == 0;
            node.active = id % 7 != 0;
            node.triangles = int((id * 2654435761u) % 20000u);
            m_nodes[parent].children.push_back(id);
            if (m_nodes[id].group)
                generate(id, depth + 1);
        }
    }

    std::vector<Node> m_nodes;
};

/// Locked nodes are underlined; they are the ones the model refuses to rename.
bool isLocked(const QModelIndex& index) { return !(index.flags() & Qt::ItemIsEditable); }

class ItemViewsPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ItemViewsPage)

public:
    ItemViewsPage()
    {
        auto* log = new GalleryLog(this);
        log->setMaximumWidth(300);
        auto* box = new QGroupBox(tr("Scene tree"), this);
        auto* layout = new QVBoxLayout(box);

        auto* model = new SceneModel(box);
        auto* proxy = new QUxSortFilterProxyModel(box);
        proxy->setSourceModel(model);
        proxy->setRecursiveFilteringEnabled(true);
        proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);

        m_view = new QUxCachedTreeView(box);
        m_view->setModel(proxy);
        auto* header = new uxHeaderViewBase(proxy, m_view);
        header->setSectionHideable(0, false); // the name column stays
        m_view->setHeader(header);
        m_view->setSelectionModel(new QUxCachedSelectionModel(proxy, m_view));
        m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        m_view->setDragDropMode(QAbstractItemView::InternalMove);
        m_view->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
        m_view->setSortingEnabled(true);
        m_view->sortByColumn(0, Qt::AscendingOrder);
        auto* delegate = new QUxCustomDelegate(m_view);
        delegate->setIsUnderlinedFunction(isLocked);
        delegate->setIsEditableFunction([](const QModelIndex& index) { return !isLocked(index); });
        m_view->setItemDelegateForColumn(0, delegate);
        m_view->setColumnWidth(0, 280);
        m_view->setColumnWidth(1, 110);

        auto* filter = new QLineEdit(box);
        filter->setPlaceholderText(tr("Filter by name (natural order: Bolt 2 before Bolt 10)"));
        filter->setClearButtonEnabled(true);
        connect(filter, &QLineEdit::textChanged, proxy, &QSortFilterProxyModel::setFilterFixedString);
        auto* rebuild = new QPushButton(tr("Rebuild"), box);
        rebuild->setToolTip(tr("Reverses every assembly and resets the model: selection and expansion survive."));
        connect(rebuild, &QPushButton::clicked, model, [model, log] {
            model->rebuild();
            log->log(QStringLiteral("modelReset()"));
        });
        m_status = new QLabel(box);
        connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { showStatus(); });

        auto* controls = new QHBoxLayout;
        controls->addWidget(filter, 1);
        controls->addWidget(rebuild);
        layout->addLayout(controls);
        layout->addWidget(m_view, 1);
        layout->addWidget(m_status);
        auto* hint = new QLabel(tr("Drag nodes onto assemblies to reparent them; F2 renames (locked nodes, underlined, "
                                   "refuse); right-click the header to choose columns."),
                                box);
        hint->setWordWrap(true);
        layout->addWidget(hint);

        connect(m_view, &QTreeView::expanded, log, [log, proxy](const QModelIndex& index) {
            log->log(QStringLiteral("expanded(%1)").arg(proxy->data(index).toString()));
        });
        connect(model, &QAbstractItemModel::dataChanged, log, [log](const QModelIndex& index) {
            log->log(QStringLiteral("dataChanged(%1)").arg(index.data().toString()));
        });

        auto* page = new QHBoxLayout(this);
        page->addWidget(box, 1);
        page->addWidget(log);

        const QModelIndex first = proxy->index(0, 0);
        m_view->expand(first);
        m_view->selectionModel()->select(proxy->index(1, 0, first),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
        m_count = model->nodeCount();
        showStatus();
    }

private:
    void showStatus()
    {
        m_status->setText(
            tr("%1 nodes, %2 selected").arg(m_count).arg(m_view->selectionModel()->selectedRows().size()));
    }

    QUxCachedTreeView* m_view = nullptr;
    QLabel* m_status = nullptr;
    int m_count = 0;
};

} // namespace

UX_GALLERY_PAGE(50, "Item views", "itemviews", [] { return new ItemViewsPage; });
