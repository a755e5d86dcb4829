#include <QUxAbstractTreeModel.h>
#include <QUxCachedSelectionModel.h>
#include <QUxCachedTreeView.h>

#include <uxStyle.h>

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTest>

#include <map>
#include <memory>
#include <set>
#include <utility>

namespace {

const QString kMime = QStringLiteral("application/x-test-node");

/// A scene graph of a few thousand nodes: root 1, ten top-level nodes 2..11, every later id k under k / 4.
class SceneModel : public QUxAbstractTreeModel
{
public:
    struct Node
    {
        unsigned parent = 0;
        std::vector<unsigned> children;
        bool active = true, editable = true;
    };
    std::map<unsigned, Node> nodes;
    QStringList calls;
    int columns = 1;

    explicit SceneModel(unsigned last = 3000)
    {
        nodes[1];
        for (unsigned id = 2; id <= last; ++id)
            attach(id, id <= 11 ? 1 : id / 4, -1);
        setRootId(1);
    }
    void attach(unsigned id, unsigned parent, int row)
    {
        auto& siblings = nodes[parent].children;
        siblings.insert(row < 0 || size_t(row) > siblings.size() ? siblings.end() : siblings.begin() + row, id);
        nodes[id].parent = parent;
    }
    void detach(unsigned id)
    {
        auto& siblings = nodes[nodes[id].parent].children;
        siblings.erase(std::find(siblings.begin(), siblings.end(), id));
        nodes[id].parent = 0;
    }

    int columnCount(const QModelIndex&) const override { return columns; }
    QString getMimeType() override { return kMime; }
    QString getText(unsigned id) override { return QStringLiteral("node%1").arg(id); }
    bool setText(unsigned, const QString&) override { return false; }
    QVariant getDecoration(unsigned) override { return QVariant(); }
    bool isActive(unsigned id) override { return nodes[id].active; }
    unsigned getChildId(unsigned parent, int row) override
    {
        const auto& c = nodes[parent].children;
        return row >= 0 && size_t(row) < c.size() ? c[size_t(row)] : 0;
    }
    int getRow(unsigned id) override
    {
        const auto it = nodes.find(id);
        if (it == nodes.end() || it->second.parent == 0)
            return -1;
        const auto& c = nodes[it->second.parent].children;
        return int(std::find(c.begin(), c.end(), id) - c.begin());
    }
    int getChildCount(unsigned id) override { return int(nodes[id].children.size()); }
    unsigned getParentId(unsigned id) override { return nodes.count(id) ? nodes[id].parent : 0; }

protected:
    bool isEditable(unsigned id) const override { return nodes.count(id) && nodes.at(id).editable; }
    bool isDraggable(unsigned) const override { return true; }
    bool isDroppable(unsigned) const override { return true; }
    void moveTo(unsigned parent, const std::vector<unsigned>& ids) override { record("moveTo", parent, -1, ids); }
    void moveBefore(unsigned parent, unsigned row, const std::vector<unsigned>& ids) override
    {
        record("moveBefore", parent, int(row), ids);
    }
    void record(const char* what, unsigned parent, int row, const std::vector<unsigned>& ids)
    {
        QStringList moved;
        calls << QStringLiteral("%1 %2%3 ")
                     .arg(what)
                     .arg(parent)
                     .arg(row < 0 ? QString() : QStringLiteral(" %1").arg(row));
        for (const unsigned id : ids) {
            moved << QString::number(id);
            detach(id);
            attach(id, parent, row < 0 ? -1 : row++);
        }
        calls.last() += moved.join(',');
    }
};

/// The scene the tests use, watched by Qt's model tester throughout. The tester wants the invalid
/// index flagged at most drop-enabled; the model answers it with the root item's flags instead (so
/// drops land on a view's empty area, see topLevelItemsHaveInvalidParent). This subclass gives the
/// tester what it checks and leaves every real item to the model under test.
class Scene : public SceneModel
{
public:
    using SceneModel::SceneModel;
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        return index.isValid() ? SceneModel::flags(index) : Qt::ItemIsDropEnabled;
    }

private:
    QAbstractItemModelTester tester{this, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

/// A view over @p scene, or over a sort and filter proxy of it, with the cached selection model.
struct Viewed
{
    Scene scene;
    QSortFilterProxyModel proxy;
    QUxCachedTreeView view;
    QUxCachedSelectionModel* selection = nullptr;

    explicit Viewed(bool proxied)
    {
        proxy.setSourceModel(&scene);
        view.setModel(proxied ? static_cast<QAbstractItemModel*>(&proxy) : &scene);
        selection = new QUxCachedSelectionModel(view.model(), &view);
        view.setSelectionModel(selection);
    }
    QModelIndex at(unsigned id)
    {
        const QModelIndex index = scene.getModelIndex(id);
        return view.model() == &proxy ? proxy.mapFromSource(index) : index;
    }
    unsigned sourceId(const QModelIndex& index) const
    {
        return unsigned((view.model() == &proxy ? proxy.mapToSource(index) : index).internalId());
    }
    std::set<unsigned> selectedIds() const
    {
        std::set<unsigned> ids;
        for (const QModelIndex& index : selection->sourceModelSelection().indexes())
            ids.insert(unsigned(index.internalId()));
        return ids;
    }
    std::set<unsigned> expandedIds()
    {
        std::set<unsigned> ids;
        for (const auto& entry : scene.nodes)
            if (view.isExpanded(at(entry.first)))
                ids.insert(entry.first);
        return ids;
    }
};

} // namespace

class tst_QUxAbstractTreeModel : public QObject
{
    Q_OBJECT
private slots:
    void rootIdZeroIsEmpty()
    {
        Scene scene;
        const QModelIndex earlier = scene.getModelIndex(12);
        scene.setRootId(0);
        QCOMPARE(scene.rowCount(), 0);
        QVERIFY(!scene.index(0, 0).isValid());
        QVERIFY(!scene.parent(earlier).isValid());
        QVERIFY(!scene.getModelIndex(12).isValid());
    }

    void topLevelItemsHaveInvalidParent()
    {
        Scene scene;
        QCOMPARE(scene.getParentId(2), 1u);
        QVERIFY(!scene.parent(scene.index(0, 0)).isValid());
        QCOMPARE(scene.parent(scene.getModelIndex(12)), scene.getModelIndex(3));
        QVERIFY(!scene.getModelIndex(1).isValid());
        QCOMPARE(SceneModel().flags(QModelIndex()), Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled
                                                        | Qt::ItemIsDropEnabled | Qt::ItemIsEditable);
    }

    void dropRow_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("onto the item") << -1 << QStringList{"moveTo 5 20"};
        QTest::newRow("between rows") << 3 << QStringList{"moveBefore 5 3 20"};
        QTest::newRow("other negative row") << -2 << QStringList();
    }
    void dropRow()
    {
        QFETCH(int, row);
        Scene scene;
        QSignalSpy resets(&scene, &QAbstractItemModel::modelReset);
        std::unique_ptr<QMimeData> mime(scene.mimeData({scene.getModelIndex(20)}));
        QVERIFY(scene.dropMimeData(mime.get(), Qt::MoveAction, row, 0, scene.getModelIndex(5)));
        QTEST(scene.calls, "calls");
        QCOMPARE(resets.count(), 1);
        if (row == 3)
            QCOMPARE(scene.getRow(20), 3);
    }

    void threeColumnsWriteTheIdThreeTimes()
    {
        Scene scene;
        scene.columns = 3;
        const QModelIndex first = scene.getModelIndex(20);
        std::unique_ptr<QMimeData> mime(
            scene.mimeData({first, first.sibling(first.row(), 1), first.sibling(first.row(), 2)}));
        QCOMPARE(mime->data(kMime), QByteArray::fromHex("000000140000001400000014"));
        QVERIFY(scene.dropMimeData(mime.get(), Qt::MoveAction, -1, 0, scene.getModelIndex(6)));
        QCOMPARE(scene.calls, QStringList{"moveTo 6 20,20,20"});
    }

    void badDropChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("format");
        QTest::addColumn<int>("action");
        QTest::addColumn<unsigned>("target");
        const int move = Qt::MoveAction;
        QTest::newRow("odd byte count") << QByteArray::fromHex("0000001400") << kMime << move << 5u;
        QTest::newRow("random bytes") << QByteArray::fromHex("9be1c07f3a5d22e8f0017c4b") << kMime << move << 5u;
        QTest::newRow("count beyond the data") << QByteArray::fromHex("000f424000000014") << kMime << move << 5u;
        QTest::newRow("ids naming nothing") << QByteArray::fromHex("00000000000186a0") << kMime << move << 5u;
        QTest::newRow("onto a descendant") << QByteArray::fromHex("00000003") << kMime << move << 50u;
        QTest::newRow("onto itself") << QByteArray::fromHex("00000005") << kMime << move << 5u;
        QTest::newRow("empty") << QByteArray() << kMime << move << 5u;
        QTest::newRow("foreign format") << QByteArray::fromHex("00000014") << "text/plain" << move << 5u;
        QTest::newRow("copy") << QByteArray::fromHex("00000014") << kMime << int(Qt::CopyAction) << 5u;
    }
    void badDropChangesNothing()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, format);
        QFETCH(int, action);
        QFETCH(unsigned, target);
        Scene scene;
        QSignalSpy resets(&scene, &QAbstractItemModel::modelAboutToBeReset);
        QMimeData mime;
        mime.setData(format, bytes);
        QVERIFY(!scene.dropMimeData(&mime, Qt::DropAction(action), -1, 0, scene.getModelIndex(target)));
        QVERIFY(!scene.dropMimeData(nullptr, Qt::MoveAction, -1, 0, scene.getModelIndex(target)));
        QCOMPARE(resets.count(), 0);
        QVERIFY(scene.calls.isEmpty()); // the only way the scene changes
    }

    void foreground_data()
    {
        QTest::addColumn<bool>("editable");
        QTest::addColumn<bool>("active");
        QTest::addColumn<QVariant>("color");
        QTest::newRow("plain") << true << true << QVariant();
        QTest::newRow("inactive") << true << false << QVariant(uxStyle::getInactiveNodeColor());
        QTest::newRow("locked") << false << true << QVariant(uxStyle::getLockedItemColor());
        QTest::newRow("locked and inactive") << false << false << QVariant(uxStyle::getLockedItemColor());
    }
    void foreground()
    {
        QFETCH(bool, editable);
        QFETCH(bool, active);
        Scene scene;
        scene.nodes[12].editable = editable;
        scene.nodes[12].active = active;
        QTEST(scene.getModelIndex(12).data(Qt::ForegroundRole), "color");
    }

    void selectionAndExpansionSurviveResets_data()
    {
        QTest::addColumn<bool>("proxied");
        QTest::newRow("plain") << false;
        QTest::newRow("behind a sort and filter proxy") << true;
    }
    void selectionAndExpansionSurviveResets()
    {
        QFETCH(bool, proxied);
        Viewed v(proxied);
        for (const unsigned id : {3u, 12u, 13u})
            v.view.expand(v.at(id));
        for (const unsigned id : {12u, 13u, 50u})
            v.selection->select(v.at(id), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        v.view.collapse(v.at(3));
        if (proxied) { // rows move and one unrelated branch hides: the keys must not care
            v.proxy.sort(0, Qt::DescendingOrder);
            v.proxy.setFilterRegularExpression(QStringLiteral("^(?!node4$)"));
        }
        v.scene.detach(13);
        v.scene.refresh();
        QCOMPARE(v.selectedIds(), (std::set<unsigned>{12, 50}));
        QCOMPARE(v.expandedIds(), (std::set<unsigned>{12}));
        v.view.expand(v.at(3));
        v.scene.attach(13, 3, 1);
        QSignalSpy expansions(&v.view, &QTreeView::expanded);
        v.scene.refresh();
        QCOMPARE(v.selectedIds(), (std::set<unsigned>{12, 13, 50}));
        QCOMPARE(v.expandedIds(), (std::set<unsigned>{3, 12, 13}));
        QStringList order; // top down, in the rows the view shows
        for (const QList<QVariant>& signal : qAsConst(expansions))
            order << v.scene.getText(v.sourceId(signal.at(0).toModelIndex()));
        QCOMPARE(order.join(','), QLatin1String(proxied ? "node3,node13,node12" : "node3,node12,node13"));
        v.selection->deselectAll();
        v.scene.refresh();
        QVERIFY(v.selectedIds().empty());
    }

    void modelTesterPassesThroughResetsRootChangesAndDrops()
    {
        Scene scene;
        QUxCachedTreeView view;
        view.setModel(&scene);
        scene.refresh();
        scene.setRootId(3);
        QCOMPARE(scene.rowCount(), 4);
        scene.setRootId(1);
        std::unique_ptr<QMimeData> mime(scene.mimeData({scene.getModelIndex(20), scene.getModelIndex(700)}));
        QVERIFY(scene.dropMimeData(mime.get(), Qt::MoveAction, 0, 0, QModelIndex()));
        QCOMPARE(scene.index(1, 0).internalId(), quintptr(700));
    }

    void hostileUse_data()
    {
        QTest::addColumn<int>("proxies");
        QTest::addColumn<bool>("nested");
        QTest::addColumn<bool>("nullModel");
        QTest::newRow("null model") << 0 << false << true;
        QTest::newRow("proxy chain three deep") << 3 << false << false;
        QTest::newRow("reset inside a reset") << 1 << true << false;
    }
    void hostileUse()
    {
        QFETCH(int, proxies);
        QFETCH(bool, nested);
        QFETCH(bool, nullModel);
        Scene scene;
        QSortFilterProxyModel chain[3];
        QAbstractItemModel* top = &scene;
        for (int i = 0; i < proxies; top = &chain[i++])
            chain[i].setSourceModel(top);
        QUxCachedTreeView view;
        view.setModel(top);
        QUxCachedSelectionModel selection(top);
        view.setSelectionModel(&selection);
        view.expand(top->index(2, 0));
        selection.select(top->index(3, 0), QItemSelectionModel::Select);
        bool again = nested;
        connect(&scene, &QAbstractItemModel::modelReset, this, [&] {
            if (std::exchange(again, false))
                scene.refresh();
        });
        if (nullModel) {
            view.setModel(nullptr);
            selection.setModel(nullptr);
        }
        scene.refresh();
        for (const QModelIndex& index : selection.selectedIndexes())
            QVERIFY(index.isValid() && index.model() == top);
        selection.deselectAll();
        QCOMPARE(selection.selectedIndexes().size(), 0);
    }
};

QTEST_MAIN(tst_QUxAbstractTreeModel)
#include "tst_QUxAbstractTreeModel.moc"
