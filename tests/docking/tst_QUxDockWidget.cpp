#include <QUxDockWidget.h>
#include <QUxDragModuleLabel.h>
#include <QUxTitleBarGUIW.h>
#include <uxPlatform.h>
#include <uxTestSupport.h>

#include <QDrag>
#include <QGridLayout>
#include <QMainWindow>
#include <QMimeData>
#include <QPainter>
#include <QStatusBar>
#include <QSvgRenderer>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

namespace {

// Brackets the title bar form's texts and records which were asked for.
struct RecordingTranslator : QTranslator
{
    mutable QStringList asked;
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        if (qstrcmp(context, "QUxTitleBarGUI") != 0)
            return QString();
        asked << QString::fromUtf8(text);
        return QStringLiteral("[%1]").arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

QImage svgImage(const QString& file, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(QStringLiteral(":/iconmanager/resources/") + file).render(&painter);
    return image;
}

// The payload of the drag that a press at (1, 1) and a left-button move by @p distance start, if any.
QByteArray dragPayload(QUxDragModuleLabel& label, int distance)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // earlier drags
    QTest::mousePress(&label, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    uxTest::moveMouse(&label, QPoint(1 + distance, 1));
    const QDrag* drag = label.findChild<QDrag*>(); // a finished drag is deleted later
    return drag ? drag->mimeData()->data("application/corva-module-icon") : QByteArray("no drag");
}

} // namespace

class tst_QUxDockWidget : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { uxPlatform::reset(); }

    void shouldBuildTheTitleBarFormWithItsNamesLayoutAndTexts()
    {
        RecordingTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QUxTitleBarGUIW bar(nullptr, QStringLiteral("Materials"));
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(translator.asked, (QStringList{"Form", "TextLabel", "X", "X", "X"}));
        QCOMPARE((QStringList{bar.objectName(), bar.windowTitle(), bar.titleLabel()->text(), bar.dockButton()->text()}),
                 (QStringList{"QUxTitleBar", "[Form]", "Materials", "[X]"}));
        QCOMPARE(bar.size(), QSize(588, 24));
        auto* grid = bar.findChild<QGridLayout*>("gridLayout");
        QCOMPARE(grid->contentsMargins(), QMargins(4, 2, 4, 2));
        const QStringList columns{"_icon", "_titleBarName", "_docking", "_dock", "_close"};
        for (int column = 0; column < columns.size(); ++column)
            QCOMPARE(grid->itemAtPosition(0, column)->widget()->objectName(), columns.at(column));
        bar.dockingButton()->setChecked(true);
        bar.dockingButton()->setChecked(false);
        QVERIFY(!bar.dockButton()->isEnabled());
    }

    void shouldScaleTitleButtonsAndImagesWithTheDisplay_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("side");
        QTest::addColumn<int>("small");
        QTest::newRow("scale 1") << 1.0 << 20 << 16;
        QTest::newRow("scale 1.5") << 1.5 << 30 << 24;
    }

    void shouldScaleTitleButtonsAndImagesWithTheDisplay()
    {
        QFETCH(double, scale);
        QFETCH(int, side);
        QFETCH(int, small);
        uxPlatform::setDpiScale(scale, scale);
        uxPlatform::setIconBaseSize(uxPlatform::SmallIcon, 16, 16);
        QUxDockWidget dock(QStringLiteral("Lights"), QStringLiteral("Lights"));
        QUxTitleBarGUIW* bar = dock.titleBar();
        QCOMPARE(dock.titleBarWidget(), bar);
        QCOMPARE((QStringList{bar->objectName(), bar->titleLabel()->objectName()}),
                 (QStringList{"DockWidgetTitleBar", "Lights_TitleLabel"}));
        QCOMPARE(bar->titleLabel()->contentsMargins(), QMargins(8, 0, 0, 0));
        for (QToolButton* button : {bar->closeButton(), bar->dockButton(), bar->dockingButton()}) {
            QCOMPARE(button->maximumSize(), QSize(side, side));
            QCOMPARE(button->icon().availableSizes(QIcon::Disabled, QIcon::On), QList<QSize>{QSize(side, side)});
        }
        QCOMPARE(bar->iconLabel()->pixmap(Qt::ReturnByValue).toImage(), svgImage("Various/Module.svg", side));
        QCOMPARE(bar->iconLabel()->module(), &dock);
        dock.setIcon(QIcon(QPixmap::fromImage(svgImage("General/Search.svg", 64))));
        QCOMPARE(bar->iconLabel()->pixmap(Qt::ReturnByValue).size(), QSize(small, small));
        dock.setIcon(QIcon());
        QVERIFY(bar->iconLabel()->pixmap(Qt::ReturnByValue).isNull());
    }

    void shouldGateDockingBackBehindTheDockingSwitch_data()
    {
        QTest::addColumn<bool>("docking");
        QTest::addColumn<int>("areas");
        QTest::newRow("docking on") << true << 11;
        QTest::newRow("docking off") << false << 0;
    }

    void shouldGateDockingBackBehindTheDockingSwitch()
    {
        QFETCH(bool, docking);
        QFETCH(int, areas);
        QMainWindow window;
        auto* dock = new QUxDockWidget(QStringLiteral("Scene"), QStringLiteral("Scene"), QIcon(), &window);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        window.show();
        dock->setDockingEnabled(docking);
        QCOMPARE(int(dock->allowedAreas()), areas);
        QCOMPARE(dock->titleBar()->dockButton()->isEnabled(), docking);
        QVERIFY(!dock->isFloating()); // switching it off does not undock

        dock->setFloating(true);
        dock->setFloating(false);
        QCOMPARE(dock->isFloating(), !docking);
        dock->setFloating(true);
        QTest::mouseDClick(dock->titleBar(), Qt::LeftButton, Qt::NoModifier, QPoint(40, 8));
        QCOMPARE(dock->isFloating(), !docking);
        dock->setFloating(true);
        QTest::mouseClick(dock->titleBar()->dockButton(), Qt::LeftButton);
        QCOMPARE(dock->isFloating(), !docking);
        QTest::mouseClick(dock->titleBar()->dockingButton(), Qt::LeftButton); // flips the switch
        QCOMPARE(int(dock->allowedAreas()), 11 - areas);
        dock->showDockingButtons(false);
        QVERIFY(dock->titleBar()->dockingButton()->isHidden() && dock->titleBar()->dockButton()->isHidden());
        QTest::mouseClick(dock->titleBar()->closeButton(), Qt::LeftButton);
        QVERIFY(dock->isHidden());
    }

    void shouldFitOnlyMainWindowContentToDockedAndFloatingStates()
    {
        QMainWindow window;
        auto* dock = new QUxDockWidget(QStringLiteral("Tree"), QStringLiteral("Tree"), QIcon(), &window);
        auto* module = new QMainWindow;
        module->setCentralWidget(new QWidget);
        module->setStatusBar(new QStatusBar);
        dock->setWidget(module);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        for (bool floating : {true, false, true}) {
            dock->setFloating(floating);
            QCOMPARE(module->centralWidget()->contentsMargins(), floating ? QMargins() : QMargins(0, 4, 0, 4));
            QCOMPARE(module->statusBar()->isHidden(), !floating);
        }
        auto* plain = new QWidget;
        plain->setContentsMargins(1, 2, 3, 4);
        dock->setWidget(plain);
        dock->setFloating(false);
        QCOMPARE(plain->contentsMargins(), QMargins(1, 2, 3, 4));
    }

    void shouldOutlineAndRoundAFloatingDockOnly()
    {
        QMainWindow window;
        auto* dock = new QUxDockWidget(QStringLiteral("Paint"), QString(), QIcon(), &window);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        dock->setFloating(true);
        dock->resize(200, 60);
        const QImage image = uxTest::grab(dock);
        for (const QPoint& corner : {QPoint(0, 0), QPoint(199, 0), QPoint(0, 59), QPoint(199, 59)})
            QVERIFY(!dock->mask().contains(corner));
        for (const QPoint& inside : {QPoint(100, 30), QPoint(100, 0), QPoint(0, 30), QPoint(2, 2)})
            QVERIFY(dock->mask().contains(inside));
        QVERIFY(uxTest::sameColor(image.pixelColor(100, 59), QColor(127, 127, 127), 1));
        dock->setFloating(false);
        uxTest::grab(dock);
        QVERIFY(dock->mask().isEmpty());
    }

    void shouldReadBackOnlyPayloadsOfLiveDocks_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("prefix only") << QByteArray("0x");
        QTest::newRow("nil") << QByteArray("(nil)");
        QTest::newRow("garbage") << QByteArray("module");
        QTest::newRow("non-hex digit") << QByteArray("0x12345g");
        QTest::newRow("leading space") << QByteArray(" 0x12345");
        QTest::newRow("negative") << QByteArray("-0x10");
        QTest::newRow("very long") << QByteArray("0x") + QByteArray(4096, 'f');
        QTest::newRow("random number") << QByteArray("0x12345678");
    }

    void shouldReadBackOnlyPayloadsOfLiveDocks()
    {
        QFETCH(QByteArray, data);
        auto* dock = new QUxDockWidget;
        const QByteArray payload = QUxDockWidget::payload(dock);
        QCOMPARE(QUxDockWidget::fromPayload(payload), dock);
        QCOMPARE(QUxDockWidget::fromPayload(payload.toUpper().replace("0X", "0x")), dock);
        for (const QByteArray& forged : {payload.chopped(1), payload + "0", payload + " ", payload + '\0', data})
            QVERIFY2(!QUxDockWidget::fromPayload(forged), forged.constData());
        int onStack = 0;
        QWidget notADock;
        for (const void* forged : {static_cast<const void*>(&onStack), static_cast<const void*>(&notADock)})
            QVERIFY(!QUxDockWidget::fromPayload(QUxDockWidget::payload(static_cast<const QUxDockWidget*>(forged))));
        delete dock;
        QVERIFY(!QUxDockWidget::fromPayload(payload));
    }

    void shouldDragTheModuleFromTheStartDistanceOnAndForgetADeletedOne()
    {
        QUxDragModuleLabel label(QPixmap(16, 16));
        const int distance = QApplication::startDragDistance();
        QCOMPARE(dragPayload(label, distance - 1), QByteArray("no drag"));
        QVERIFY(!QUxDockWidget::fromPayload(dragPayload(label, distance)));
        auto* dock = new QUxDockWidget;
        label.setModule(dock);
        QCOMPARE(QUxDockWidget::fromPayload(dragPayload(label, distance)), dock);
        delete dock;
        QCOMPARE(dragPayload(label, distance + 5), QUxDockWidget::payload(nullptr));
    }
};

QTEST_MAIN(tst_QUxDockWidget)
#include "tst_QUxDockWidget.moc"
