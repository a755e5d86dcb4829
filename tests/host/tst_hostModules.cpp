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
    void init();

    void shouldScaleIconSizesWithDpi_data();
    void shouldScaleIconSizesWithDpi();
    void shouldIgnoreNonPositiveScale();
    void shouldAnswerEditionQueries();
    void shouldCaptureFormattedWarnings();
    void shouldReadMessageAttributesByName();

    void shouldFindEveryLibraryIcon_data();
    void shouldFindEveryLibraryIcon();
    void shouldRenderPixmapAtRequestedSize();
    void shouldGiveNullForUnknownNames();
    void shouldUseSecondNameForCheckedState();
    void shouldOfferListAndGridIcons();
    void shouldDistinguishStyleColours();
};

void tst_hostModules::init()
{
    uxPlatform::reset();
    uxLog::setHandler({});
}

void tst_hostModules::shouldScaleIconSizesWithDpi_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("small");
    QTest::addColumn<int>("large");
    QTest::newRow("1.0") << 1.0 << 20 << 32;
    QTest::newRow("1.5") << 1.5 << 30 << 48;
    QTest::newRow("2.0") << 2.0 << 40 << 64;
}

void tst_hostModules::shouldScaleIconSizesWithDpi()
{
    QFETCH(double, scale);
    QFETCH(int, small);
    QFETCH(int, large);
    uxPlatform::setDpiScale(scale, scale);
    QCOMPARE(uxPlatform::getDpiScaleX(), scale);
    QCOMPARE(uxPlatform::getDpiScaleY(), scale);
    QCOMPARE(uxPlatform::getSmallIconSizeX(), small);
    QCOMPARE(uxPlatform::getSmallIconSizeY(), small);
    QCOMPARE(uxPlatform::getLargeIconSizeX(), large);
    QCOMPARE(uxPlatform::getLargeIconSizeY(), large);
    QVERIFY(uxPlatform::getMiniIconSizeX() < uxPlatform::getSmallIconSizeX());
    QVERIFY(uxPlatform::getMediumIconSizeY() < uxPlatform::getLargeIconSizeY());
    QVERIFY(uxPlatform::getTreeViewIconSizeX() > 0);
}

void tst_hostModules::shouldIgnoreNonPositiveScale()
{
    uxPlatform::setDpiScale(2.0, 0.0);
    QCOMPARE(uxPlatform::getDpiScaleX(), 2.0);
    QCOMPARE(uxPlatform::getDpiScaleY(), 1.0);
    uxPlatform::setIconBaseSize(uxPlatform::SmallIcon, 10, 12);
    QCOMPARE(uxPlatform::getSmallIconSizeX(), 20);
    QCOMPARE(uxPlatform::getSmallIconSizeY(), 12);
}

void tst_hostModules::shouldAnswerEditionQueries()
{
    QVERIFY(uxPlatform::isCorvaDesign());
    uxPlatform::setEdition(uxPlatform::Viewer);
    QVERIFY(uxPlatform::isCorvaViewer());
    QVERIFY(!uxPlatform::isCorvaDesign());
    QVERIFY(!uxPlatform::isCorvaEssentials());
    uxPlatform::setAppVersionName(QStringLiteral("2026.4"));
    QCOMPARE(uxPlatform::getAppVersionName(), QStringLiteral("2026.4"));
}

void tst_hostModules::shouldCaptureFormattedWarnings()
{
    std::vector<std::string> seen;
    uxLog::setHandler([&seen](const std::string& m) { seen.push_back(m); });
    uxLog::warning("%s: can't find %d of %.1f", "Box", 3, 2.5);
    uxLog::warning(nullptr);
    QCOMPARE(seen.size(), size_t(1));
    QCOMPARE(QString::fromStdString(seen.front()), QStringLiteral("Box: can't find 3 of 2.5"));
}

void tst_hostModules::shouldReadMessageAttributesByName()
{
    uxMessage message;
    message.set(QStringLiteral("frame"), 12);
    QCOMPARE(message.get(QStringLiteral("frame")).toInt(), 12);
    QVERIFY(!message.get(QStringLiteral("missing")).isValid());
    QVERIFY(message.contains(QStringLiteral("frame")));
}

void tst_hostModules::shouldFindEveryLibraryIcon_data()
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

void tst_hostModules::shouldFindEveryLibraryIcon()
{
    QFETCH(QString, name);
    const QPixmap pixmap = uxIconManager::get(name.toUtf8().constData());
    QVERIFY(!pixmap.isNull());
    QVERIFY(!uxIconManager::getIcon(name.toStdString(), "").isNull());
    // Something is drawn: not every pixel is transparent.
    const QImage image = pixmap.toImage();
    bool painted = false;
    for (int y = 0; y < image.height() && !painted; ++y)
        for (int x = 0; x < image.width() && !painted; ++x)
            painted = qAlpha(image.pixel(x, y)) > 0;
    QVERIFY(painted);
}

void tst_hostModules::shouldRenderPixmapAtRequestedSize()
{
    QCOMPARE(uxIconManager::renderPixmap(QStringLiteral("Various/Module.svg"), 40, 30).size(), QSize(40, 30));
    QCOMPARE(uxIconManager::getIcon("Search", 18, 18, "").availableSizes().value(0), QSize(18, 18));
    QVERIFY(QFile::exists(QStringLiteral(":/iconmanager/resources/General/DockOnOffOnNormal.svg")));
}

void tst_hostModules::shouldGiveNullForUnknownNames()
{
    QVERIFY(uxIconManager::get("General/NoSuchIcon.svg").isNull());
    QVERIFY(uxIconManager::get(nullptr).isNull());
    QVERIFY(uxIconManager::getIcon("nothing", "").isNull());
    QVERIFY(uxIconManager::getIcon("", "").isNull());
    QVERIFY(uxIconManager::renderPixmap(QStringLiteral("Close"), 0, 10).isNull());
}

void tst_hostModules::shouldUseSecondNameForCheckedState()
{
    const QIcon icon = uxIconManager::getIcon("General/CloseOffNormal.svg", 16, 16, "General/CloseOnNormal.svg");
    const QImage off = icon.pixmap(16, 16, QIcon::Normal, QIcon::Off).toImage();
    const QImage on = icon.pixmap(16, 16, QIcon::Normal, QIcon::On).toImage();
    QVERIFY(!off.isNull());
    QVERIFY(off != on);
}

void tst_hostModules::shouldOfferListAndGridIcons()
{
    QVERIFY(!uxIconCache::getListIcon().isNull());
    QVERIFY(!uxIconCache::getGridIcon().isNull());
    QCOMPARE(&uxIconCache::getListIcon(), &uxIconCache::getListIcon());
}

void tst_hostModules::shouldDistinguishStyleColours()
{
    const QColor locked = uxStyle::getLockedItemColor();
    const QColor inactive = uxStyle::getInactiveNodeColor();
    QVERIFY(locked.isValid() && inactive.isValid());
    const int distance = qAbs(locked.red() - inactive.red()) + qAbs(locked.green() - inactive.green())
                         + qAbs(locked.blue() - inactive.blue());
    QVERIFY(distance > 100);
}

QTEST_MAIN(tst_hostModules)
#include "tst_hostModules.moc"
