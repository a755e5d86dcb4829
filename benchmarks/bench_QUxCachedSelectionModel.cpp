// Bringing back selection and expansion after a model reset, on a tree of
// 100,000 items (depth 6) with 10,000 selected and 5,000 expanded, behind a
// QSortFilterProxyModel. Timed: from endResetModel() until the view is laid
// out again with its selection and expansion back.
// Anchors: a plain QTreeView and QItemSelectionModel going through the same
// reset and restoring nothing; and KViewStateSerializer restoring the same
// ids, its lookups answered by the very id lookup our classes use.
#include <QUxAbstractTreeModel.h>
#include <QUxCachedSelectionModel.h>
#include <QUxCachedTreeView.h>

#include <QApplication>
#include <QPointer>
#include <QSortFilterProxyModel>
#include <QtTest>

#ifdef UX_HAVE_KVIEWSTATESERIALIZER
#include <KViewStateSerializer>
#endif

#include <vector>

namespace {

/// Items 2..100001 under root 1, level by level; children of a node are contiguous ids.
class BenchTree : public QUxAbstractTreeModel
{
public:
    BenchTree()
    {
        const int levels[] = {10, 100, 1000, 5000, 20000, 73890};
        const unsigned last = 100001;
        parents.assign(last + 1, 0);
        rows.assign(last + 1, 0);
        first.assign(last + 1, 0);
        counts.assign(last + 1, 0);
        unsigned previousStart = 1, previousCount = 1, start = 2;
        for (const int count : levels) {
            for (unsigned i = 0; i < unsigned(count); ++i) {
                const unsigned id = start + i;
                const unsigned parent = previousStart + unsigned(quint64(i) * previousCount / unsigned(count));
                if (counts[parent]++ == 0)
                    first[parent] = id;
                parents[id] = parent;
                rows[id] = int(id - first[parent]);
            }
            previousStart = start;
            previousCount = unsigned(count);
            start += unsigned(count);
        }
        setRootId(1);
    }
    void begin() { beginResetModel(); }
    void end() { endResetModel(); }

    QString getMimeType() override { return QStringLiteral("application/x-bench-node"); }
    QString getText(unsigned id) override { return QString::number(id); }
    bool setText(unsigned, const QString&) override { return false; }
    QVariant getDecoration(unsigned) override { return QVariant(); }
    bool isActive(unsigned) override { return true; }
    unsigned getChildId(unsigned parent, int row) override
    {
        return parent < counts.size() && row >= 0 && row < counts[parent] ? first[parent] + unsigned(row) : 0;
    }
    int getRow(unsigned id) override { return id > 1 && id < rows.size() ? rows[id] : -1; }
    int getChildCount(unsigned id) override { return id < counts.size() ? counts[id] : 0; }
    unsigned getParentId(unsigned id) override { return id < parents.size() ? parents[id] : 0; }

    std::vector<unsigned> parents, first;
    std::vector<int> rows, counts;
};

/// The selected ids (every tenth item) and the expanded ids (the first 5,000 inner nodes).
std::vector<unsigned> selectedIds()
{
    std::vector<unsigned> ids;
    for (unsigned id = 2; ids.size() < 10000; id += 10)
        ids.push_back(id);
    return ids;
}
std::vector<unsigned> expandedIds()
{
    std::vector<unsigned> ids;
    for (unsigned id = 2; ids.size() < 5000; ++id)
        ids.push_back(id);
    return ids;
}

/// One tree behind a proxy, shown in a view of type View.
template<class View>
struct Scene
{
    BenchTree tree;
    QSortFilterProxyModel proxy;
    View view;

    Scene()
    {
        proxy.setSourceModel(&tree);
        view.setModel(&proxy);
        view.resize(400, 600);
        view.show();
    }
    QModelIndex at(unsigned id) { return proxy.mapFromSource(tree.getModelIndex(id)); }
    void selectAndExpand()
    {
        QItemSelection selection;
        for (const unsigned id : selectedIds())
            selection.select(at(id), at(id));
        view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        for (const unsigned id : expandedIds())
            view.expand(at(id));
        view.indexAt(QPoint(0, 0)); // lay out
    }
    bool restored()
    {
        const std::vector<unsigned> selected = selectedIds();
        const std::vector<unsigned> expanded = expandedIds();
        return view.selectionModel()->selectedIndexes().size() == int(selected.size())
               && view.selectionModel()->isSelected(at(selected.back())) && view.isExpanded(at(expanded.back()));
    }
    /// Resets the tree; times endResetModel() and @p restore up to a laid-out view.
    template<class Restore>
    void timedReset(Restore restore)
    {
        tree.begin();
        QBENCHMARK_ONCE
        {
            tree.end();
            restore();
            view.indexAt(QPoint(0, 0)); // runs the deferred item layout
        }
    }
};

struct CachedScene : Scene<QUxCachedTreeView>
{
    CachedScene()
    {
        view.setSelectionModel(new QUxCachedSelectionModel(&proxy, &view));
        selectAndExpand();
    }
};

#ifdef UX_HAVE_KVIEWSTATESERIALIZER
class IdSerializer : public KViewStateSerializer
{
protected:
    QModelIndex indexFromConfigString(const QAbstractItemModel* model, const QString& key) const override
    {
        const auto* proxy = qobject_cast<const QAbstractProxyModel*>(model);
        auto* tree = qobject_cast<QUxAbstractTreeModel*>(proxy ? proxy->sourceModel() : nullptr);
        return tree ? proxy->mapFromSource(tree->getModelIndex(key.toUInt())) : QModelIndex();
    }
    QString indexToConfigString(const QModelIndex& index) const override
    {
        const auto* proxy = qobject_cast<const QAbstractProxyModel*>(index.model());
        return QString::number(proxy ? proxy->mapToSource(index).internalId() : index.internalId());
    }
};

QStringList keys(const std::vector<unsigned>& ids)
{
    QStringList out;
    for (const unsigned id : ids)
        out << QString::number(id);
    return out;
}
#endif

void addRows()
{
    QTest::addColumn<bool>("anchor");
    QTest::newRow("ours") << false;
    QTest::newRow("anchor") << true;
}

} // namespace

class bench_QUxCachedSelectionModel : public QObject
{
    Q_OBJECT
private slots:
    void restoreAfterResetVsPlainReset_data() { addRows(); }
    void restoreAfterResetVsPlainReset()
    {
        QFETCH(bool, anchor);
        if (anchor) {
            Scene<QTreeView> plain;
            plain.selectAndExpand();
            plain.timedReset([] {});
            QVERIFY(plain.view.selectionModel()->selectedIndexes().isEmpty());
        } else {
            CachedScene ours;
            ours.timedReset([] {});
            QVERIFY(ours.restored());
        }
    }

    void restoreAfterResetVsKViewStateSerializer_data() { addRows(); }
    void restoreAfterResetVsKViewStateSerializer()
    {
#ifndef UX_HAVE_KVIEWSTATESERIALIZER
        QSKIP("KViewStateSerializer not found: install libkf5widgetsaddons-dev (scripts/install-deps --bench)");
#else
        QFETCH(bool, anchor);
        if (anchor) {
            Scene<QTreeView> kde;
            const QStringList selected = keys(selectedIds()), expanded = keys(expandedIds());
            kde.selectAndExpand();
            kde.timedReset([&] {
                QPointer<IdSerializer> serializer = new IdSerializer;
                serializer->setView(&kde.view);
                serializer->restoreExpanded(expanded);
                serializer->restoreSelection(selected);
                delete serializer.data();
            });
            QVERIFY(kde.restored());
        } else {
            CachedScene ours;
            ours.timedReset([] {});
            QVERIFY(ours.restored());
        }
#endif
    }
};

// One run of the KViewStateSerializer anchor takes minutes, past QtTest's
// five-minute watchdog; give each function an hour.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QTEST_FUNCTION_TIMEOUT"))
        qputenv("QTEST_FUNCTION_TIMEOUT", "3600000");
    QApplication app(argc, argv);
    bench_QUxCachedSelectionModel suite;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&suite, argc, argv);
}
#include "bench_QUxCachedSelectionModel.moc"
