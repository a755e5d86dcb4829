#include <uxIconCache.h>
#include <uxIconManager.h>
#include <uxLog.h>
#include <uxMessage.h>
#include <uxPlatform.h>
#include <uxStyle.h>

#include <QtTest>

// The default host modules that ship with the library, so that it runs on its own.
class tst_hostModules : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        uxPlatform::reset();
        uxLog::setHandler({});
    }

    void shouldScaleIconSizesWithDpi_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("small");
        QTest::addColumn<int>("large");
        QTest::newRow("1.0") << 1.0 << 20 << 32;
        QTest::newRow("1.5") << 1.5 << 30 << 48;
    }

    void shouldScaleIconSizesWithDpi()
    {
        QFETCH(double, scale);
        QFETCH(int, small);
        QFETCH(int, large);
        uxPlatform::setDpiScale(scale, scale);
        QCOMPARE(uxPlatform::getDpiScaleX(), scale);
        QCOMPARE(uxPlatform::getDpiScaleY(), scale);
        QCOMPARE(QSize(uxPlatform::getSmallIconSizeX(), uxPlatform::getSmallIconSizeY()), QSize(small, small));
        QCOMPARE(QSize(uxPlatform::getLargeIconSizeX(), uxPlatform::getLargeIconSizeY()), QSize(large, large));
        QVERIFY(uxPlatform::getMiniIconSizeX() < uxPlatform::getSmallIconSizeX());
        QVERIFY(uxPlatform::getMediumIconSizeY() < uxPlatform::getLargeIconSizeY());
        QVERIFY(uxPlatform::getTreeViewIconSizeX() > 0);
    }

    void shouldIgnoreNonPositiveScale()
    {
        uxPlatform::setDpiScale(2.0, 0.0);
        QCOMPARE(uxPlatform::getDpiScaleX(), 2.0);
        QCOMPARE(uxPlatform::getDpiScaleY(), 1.0);
        uxPlatform::setIconBaseSize(uxPlatform::SmallIcon, 10, 12);
        QCOMPARE(QSize(uxPlatform::getSmallIconSizeX(), uxPlatform::getSmallIconSizeY()), QSize(20, 12));
    }

    void shouldAnswerEditionAndVersionQueries()
    {
        QVERIFY(uxPlatform::isCorvaDesign());
        uxPlatform::setEdition(uxPlatform::Viewer);
        QVERIFY(uxPlatform::isCorvaViewer());
        QVERIFY(!uxPlatform::isCorvaDesign());
        QVERIFY(!uxPlatform::isCorvaEssentials());
        uxPlatform::setAppVersionName(QStringLiteral("2026.4"));
        QCOMPARE(uxPlatform::getAppVersionName(), QStringLiteral("2026.4"));
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

    void shouldReadMessageAttributesByName()
    {
        uxMessage message;
        message.set(QStringLiteral("frame"), 12);
        QCOMPARE(message.get(QStringLiteral("frame")).toInt(), 12);
        QVERIFY(!message.get(QStringLiteral("missing")).isValid());
        QVERIFY(message.contains(QStringLiteral("frame")));
    }

    void shouldFindEveryLibraryIcon_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"General/CloseOffNormal.svg", "General/CloseOnNormal.svg", "General/CloseDisabled.svg",
              "General/DockOnOffOffNormal.svg", "General/DockOnOffOnNormal.svg", "General/DockOnOffDisabled.svg",
              "General/EnableDockingOffNormal.svg", "General/EnableDockingOnNormal.svg",
              "General/EnableDockingDisabled.svg", "Various/Module.svg", "General/LockOffNormal.svg",
              "General/UnlockOffNormal.svg", "General/ToolButtonExtension.svg", "Search", "Close"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void shouldFindEveryLibraryIcon()
    {
        QFETCH(QString, name);
        const QImage image = uxIconManager::get(name.toUtf8().constData()).toImage();
        QVERIFY(!image.isNull());
        QVERIFY(!uxIconManager::getIcon(name.toStdString(), "").isNull());
        QImage blank(image.size(), image.format());
        blank.fill(Qt::transparent);
        QVERIFY(image != blank); // something is drawn
    }

    void shouldRenderIconsAtRequestedSizeOrGiveNull()
    {
        QCOMPARE(uxIconManager::renderPixmap(QStringLiteral("Various/Module.svg"), 40, 30).size(), QSize(40, 30));
        QCOMPARE(uxIconManager::getIcon("Search", 18, 18, "").availableSizes().value(0), QSize(18, 18));
        QVERIFY(QFile::exists(QStringLiteral(":/iconmanager/resources/General/DockOnOffOnNormal.svg")));
        // Unknown names.
        QVERIFY(uxIconManager::get("General/NoSuchIcon.svg").isNull());
        QVERIFY(uxIconManager::get(nullptr).isNull());
        QVERIFY(uxIconManager::getIcon("nothing", "").isNull());
        QVERIFY(uxIconManager::getIcon("", "").isNull());
        QVERIFY(uxIconManager::renderPixmap(QStringLiteral("Close"), 0, 10).isNull());
    }

    void shouldUseSecondNameForCheckedState()
    {
        const QIcon icon = uxIconManager::getIcon("General/CloseOffNormal.svg", 16, 16, "General/CloseOnNormal.svg");
        const QImage off = icon.pixmap(16, 16, QIcon::Normal, QIcon::Off).toImage();
        QVERIFY(!off.isNull());
        QVERIFY(off != icon.pixmap(16, 16, QIcon::Normal, QIcon::On).toImage());
    }

    void shouldShareListAndGridIcons()
    {
        QVERIFY(!uxIconCache::getListIcon().isNull());
        QVERIFY(!uxIconCache::getGridIcon().isNull());
    }

    void shouldDistinguishStyleColours()
    {
        const QColor locked = uxStyle::getLockedItemColor();
        const QColor inactive = uxStyle::getInactiveNodeColor();
        QVERIFY(locked.isValid() && inactive.isValid());
        const int distance = qAbs(locked.red() - inactive.red()) + qAbs(locked.green() - inactive.green())
                             + qAbs(locked.blue() - inactive.blue());
        QVERIFY(distance > 100);
    }
};

QTEST_MAIN(tst_hostModules)
#include "tst_hostModules.moc"
