#include <uxIconCache.h>
#include <uxIconManager.h>
#include <uxLog.h>
#include <uxMessage.h>
#include <uxPlatform.h>
#include <uxStyle.h>

#include <QtTest>

// What a replacement of the default host modules must honour that the widget tests do not already prove.
class tst_hostModules : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        uxPlatform::reset();
        uxLog::setHandler({});
    }

    void shouldScaleIconSizesAndIgnoreNonPositiveScales_data()
    {
        QTest::addColumn<QPointF>("scale");
        QTest::addColumn<QPointF>("kept");
        QTest::addColumn<QList<QSize>>("sizes"); // mini, small, medium, large, tree view
        QTest::newRow("defaults") << QPointF(1, 1) << QPointF(1, 1)
                                  << QList<QSize>{{16, 16}, {20, 20}, {24, 24}, {32, 32}, {16, 0}};
        QTest::newRow("zero y") << QPointF(2, 0) << QPointF(2, 1)
                                << QList<QSize>{{32, 16}, {40, 20}, {48, 24}, {64, 32}, {32, 0}};
        QTest::newRow("negative x") << QPointF(-1, 0.5) << QPointF(1, 0.5)
                                    << QList<QSize>{{16, 8}, {20, 10}, {24, 12}, {32, 16}, {16, 0}};
        QTest::newRow("infinite x, NaN y") << QPointF(qInf(), qQNaN()) << QPointF(1, 1)
                                           << QList<QSize>{{16, 16}, {20, 20}, {24, 24}, {32, 32}, {16, 0}};
    }

    void shouldScaleIconSizesAndIgnoreNonPositiveScales()
    {
        QFETCH(QPointF, scale);
        QFETCH(QPointF, kept);
        QFETCH(QList<QSize>, sizes);
        uxPlatform::setDpiScale(scale.x(), scale.y());
        QCOMPARE(QPointF(uxPlatform::getDpiScaleX(), uxPlatform::getDpiScaleY()), kept);
        using P = uxPlatform;
        const QList<QSize> actual{{P::getMiniIconSizeX(), P::getMiniIconSizeY()},
                                  {P::getSmallIconSizeX(), P::getSmallIconSizeY()},
                                  {P::getMediumIconSizeX(), P::getMediumIconSizeY()},
                                  {P::getLargeIconSizeX(), P::getLargeIconSizeY()},
                                  {P::getTreeViewIconSizeX(), 0}};
        QCOMPARE(actual, sizes);
    }

    void shouldGiveNullIconsForUnknownNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("known");
        QTest::newRow("bare name") << QStringLiteral("Close") << true;
        QTest::newRow("path") << QStringLiteral("General/CloseOffNormal.svg") << true;
        QTest::newRow("unknown path") << QStringLiteral("General/NoSuchIcon.svg") << false;
        QTest::newRow("unknown bare name") << QStringLiteral("nothing") << false;
        QTest::newRow("empty") << QString() << false;
    }

    void shouldGiveNullIconsForUnknownNames()
    {
        QFETCH(QString, name);
        QFETCH(bool, known);
        const QByteArray utf8 = name.toUtf8();
        QCOMPARE(uxIconManager::get(utf8.constData()).isNull(), !known);
        QCOMPARE(uxIconManager::getIcon(utf8.toStdString(), "").isNull(), !known);
        QCOMPARE(uxIconManager::renderPixmap(name, 40, 30).isNull(), !known);
        QVERIFY(uxIconManager::renderPixmap(name, 0, 10).isNull());
        QVERIFY(uxIconManager::get(nullptr).isNull());
    }

    void shouldCaptureFormattedWarnings()
    {
        std::vector<std::string> seen;
        uxLog::setHandler([&seen](const std::string& m) { seen.push_back(m); });
        uxLog::warning("%s: can't find %d of %.1f", "Box", 3, 2.5);
        uxLog::warning(nullptr);
        QCOMPARE(seen.size(), size_t(1));
        QCOMPARE(QString::fromStdString(seen.front()), QStringLiteral("Box: can't find 3 of 2.5"));
    }

    void shouldAnswerTheRemainingHostQueries()
    {
        QVERIFY(!uxIconCache::getListIcon().isNull() && !uxIconCache::getGridIcon().isNull());
        QVERIFY(uxStyle::getLockedItemColor() != uxStyle::getInactiveNodeColor());
        QVERIFY(!uxMessage().get(QStringLiteral("missing")).isValid());
        QVERIFY(uxPlatform::isCorvaDesign() && !uxPlatform::isCorvaViewer() && !uxPlatform::isCorvaEssentials());
    }
};

QTEST_MAIN(tst_hostModules)
#include "tst_hostModules.moc"
