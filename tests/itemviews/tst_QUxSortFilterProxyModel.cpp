#include <QUxSortFilterProxyModel.h>

#include <QStandardItemModel>
#include <QStringListModel>
#include <QTest>

namespace {

class Proxy : public QUxSortFilterProxyModel
{
public:
    using QUxSortFilterProxyModel::lessThan;
};

QStringList texts(const QAbstractItemModel& model)
{
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row)
        result << model.index(row, 0).data().toString();
    return result;
}

} // namespace

class tst_QUxSortFilterProxyModel : public QObject
{
    Q_OBJECT

private slots:
    // Tests and servers run under C, whose collation knows no numbers.
    void init() { QLocale::setDefault(QLocale::c()); }

    void shouldCompareNaturallyAndCaseSensitivelyUnderTheCLocale_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<bool>("less");
        QTest::newRow("2 before 10") << "item2"
                                     << "item10" << true;
        QTest::newRow("10 after 2") << "item10"
                                    << "item2" << false;
        QTest::newRow("number inside") << "x9y"
                                       << "x10y" << true;
        QTest::newRow("long numbers") << "v99999999999"
                                      << "v100000000000" << true;
        QTest::newRow("letters first") << "item10"
                                       << "jtem2" << true;
        QTest::newRow("equal") << "item1"
                               << "item1" << false;
        // Case-sensitive: the two spellings are not equal, lower case first.
        QTest::newRow("lower before upper") << "apple"
                                            << "Apple" << true;
        QTest::newRow("upper after lower") << "Apple"
                                           << "apple" << false;
    }

    void shouldCompareNaturallyAndCaseSensitivelyUnderTheCLocale()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QFETCH(bool, less);
        QStringListModel source({left, right});
        Proxy proxy;
        proxy.setSourceModel(&source);
        QCOMPARE(proxy.lessThan(left, right), less);
        QCOMPARE(proxy.lessThan(right, left), !less && left != right);
        QCOMPARE(proxy.lessThan(source.index(0), source.index(1)), less);
        QCOMPARE(proxy.lessThan(QModelIndex(), source.index(0)), !left.isEmpty()); // reads as ""
    }

    // Whatever the proxy keeps per row must follow every kind of source change.
    void shouldKeepTheOrderThroughSourceChanges_data()
    {
        QTest::addColumn<int>("change");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("edit") << 0 << QStringList({"n1", "n3", "n10", "n25"});
        QTest::newRow("insert") << 1 << QStringList({"n1", "n2", "n3", "n4", "n10"});
        QTest::newRow("remove") << 2 << QStringList({"n1", "n3", "n10"});
        QTest::newRow("reset") << 3 << QStringList({"m5", "m7", "m30"});
        QTest::newRow("source sorts itself") << 4 << QStringList({"n1", "n2", "n3", "n10"});
        QTest::newRow("sort role") << 5 << QStringList({"n3", "n1", "n2", "n10"});
        QTest::newRow("new source") << 6 << QStringList({"k8", "k9", "k11"});
    }

    void shouldKeepTheOrderThroughSourceChanges()
    {
        QFETCH(int, change);
        QFETCH(QStringList, expected);
        QStandardItemModel source, other;
        for (const char* name : {"n10", "n2", "n1", "n3"}) {
            source.appendRow(new QStandardItem(name));
            source.item(source.rowCount() - 1)->setData(QString("r%1").arg(11 - source.rowCount()), Qt::UserRole);
        }
        for (const char* name : {"k11", "k9", "k8"})
            other.appendRow(new QStandardItem(name));
        Proxy proxy;
        proxy.setSourceModel(&source);
        proxy.sort(0);
        QCOMPARE(texts(proxy), QStringList({"n1", "n2", "n3", "n10"}));
        if (change == 0) {
            source.item(1)->setText("n25");
        } else if (change == 1) {
            source.insertRow(0, new QStandardItem("n4"));
        } else if (change == 2) {
            source.removeRow(1);
            proxy.invalidate(); // sorts every row again
        } else if (change == 3) {
            source.clear();
            for (const char* name : {"m5", "m30", "m7"})
                source.appendRow(new QStandardItem(name));
        } else if (change == 4) {
            source.sort(0, Qt::DescendingOrder); // permutes the rows behind a layout change
        } else if (change == 5) {
            proxy.setSortRole(Qt::UserRole); // r7 (n3) to r10 (n10)
        } else {
            proxy.setSourceModel(&other);
            proxy.sort(0);
        }
        QCOMPARE(texts(proxy), expected);
    }
};

QTEST_MAIN(tst_QUxSortFilterProxyModel)
#include "tst_QUxSortFilterProxyModel.moc"
