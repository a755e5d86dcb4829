// Sorting a long list of names behind a sort proxy: ours in natural order
// against the stock proxy's default string order, over the same source model.
// Each iteration builds a fresh proxy, so ours also pays for its collation keys.
#include <QUxSortFilterProxyModel.h>

#include <QRandomGenerator>
#include <QStringListModel>
#include <QtTest>

#include <memory>

namespace {

QStringList sceneNames(int count)
{
    static const char* const stems[] = {"Mesh", "Camera", "Light", "Group", "Bolt", "Panel", "Wheel", "Door"};
    QRandomGenerator random(42);
    QStringList names;
    names.reserve(count);
    for (int i = 0; i < count; ++i)
        names << QStringLiteral("%1_%2").arg(stems[random.bounded(8)]).arg(random.bounded(1000000));
    return names;
}

} // namespace

class bench_QUxSortFilterProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void sort100kNames_data()
    {
        QTest::addColumn<bool>("anchor");
        QTest::newRow("ours") << false;
        QTest::newRow("anchor") << true;
    }

    void sort100kNames()
    {
        QFETCH(bool, anchor);
        QStringListModel source(sceneNames(100000));
        std::unique_ptr<QSortFilterProxyModel> proxy;
        QBENCHMARK
        {
            proxy = anchor ? std::make_unique<QSortFilterProxyModel>() : std::make_unique<QUxSortFilterProxyModel>();
            proxy->setSourceModel(&source);
            proxy->sort(0);
        }
        QCOMPARE(proxy->rowCount(), 100000);
        if (!anchor) {
            // Natural order: the same stem sorts by the number's value.
            const QString first = proxy->index(0, 0).data().toString();
            QVERIFY(first.startsWith("Bolt_"));
        }
    }
};

QTEST_MAIN(bench_QUxSortFilterProxyModel)
#include "bench_QUxSortFilterProxyModel.moc"
