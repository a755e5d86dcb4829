#include <QUxCollapsibleFrame.h>

#include <uxPlatform.h>

#include <QAccessible>
#include <QCheckBox>
#include <QGridLayout>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// Counts the mouse releases that reach it from its children.
class Panel : public QWidget
{
public:
    int releases = 0;

protected:
    void mouseReleaseEvent(QMouseEvent*) override { ++releases; }
};

QWidget* head(QUxCollapsibleFrame* frame) { return frame->findChild<QWidget*>("CollapsibleHead"); }

/// The first argument of every emission caught by @p spy.
QVariantList firstArgs(const QSignalSpy& spy)
{
    QVariantList result;
    for (const QVariantList& args : spy)
        result << args.at(0);
    return result;
}

} // namespace

class tst_QUxCollapsibleFrame : public QObject
{
    Q_OBJECT
private slots:
    void init() { uxPlatform::reset(); }

    void shouldEmitToggledOnEveryRequest_data()
    {
        QTest::addColumn<bool>("collapsible");
        QTest::addColumn<bool>("byClick"); // a release on the header instead of the property
        QTest::addColumn<QVariantList>("requests");
        QTest::addColumn<QVariantList>("toggles");
        QTest::newRow("collapse twice") << true << false << QVariantList{true, true} << QVariantList{true, true};
        QTest::newRow("collapse, open") << true << false << QVariantList{true, false} << QVariantList{true, false};
        QTest::newRow("not collapsible") << false << false << QVariantList{true} << QVariantList();
        QTest::newRow("two clicks") << true << true << QVariantList{0, 0} << QVariantList{true, false};
        QTest::newRow("clicks, fixed") << false << true << QVariantList{0, 0} << QVariantList();
    }
    void shouldEmitToggledOnEveryRequest()
    {
        QFETCH(bool, collapsible);
        QFETCH(bool, byClick);
        QFETCH(QVariantList, requests);
        QFETCH(QVariantList, toggles);
        Panel panel;
        auto* frame = new QUxCollapsibleFrame(QStringLiteral("Lights"), false, &panel);
        frame->setCollapsible(collapsible);
        panel.show();
        QSignalSpy toggled(frame, &QUxCollapsibleFrame::toggled);
        for (const QVariant& request : requests) {
            if (byClick)
                QTest::mouseClick(head(frame), Qt::LeftButton);
            else
                frame->setProperty("collapsed", request);
        }
        QCOMPARE(firstArgs(toggled), toggles);
        const bool collapsed = !toggles.isEmpty() && toggles.last().toBool();
        QCOMPARE(frame->isCollapsed(), collapsed);
        QCOMPARE(frame->findChild<QWidget*>("CollapsibleBody")->isVisible(), !collapsed);
        QCOMPARE(panel.releases, 0); // the header keeps its releases, foldable or not
    }

    void shouldReportHeaderToAccessibility()
    {
        QUxCollapsibleFrame frame(QStringLiteral("Lights"), true);
        QAccessibleInterface* header = QAccessible::queryAccessibleInterface(head(&frame));
        QVERIFY(header);
        QCOMPARE(header->text(QAccessible::Name), QStringLiteral("Lights"));
        QVERIFY(header->state().collapsed && !header->state().expanded);
        header->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(!frame.isCollapsed() && header->state().expanded);
    }

    void shouldTitlePagesFromTwo()
    {
        QUxCollapsibleFrame frame;
        QSignalSpy indexes(&frame, &QUxCollapsibleFrame::currentIndexChanged);
        QSignalSpy titles(&frame, &QUxCollapsibleFrame::pageTitleChanged);
        auto* named = new QWidget;
        named->setWindowTitle(QStringLiteral("Shadows"));
        frame.addPage(new QWidget);
        frame.addPage(named);
        frame.insertPage(0, new QWidget);
        QStringList got;
        for (int i = 0; i < frame.count(); ++i)
            got << frame.widget(i)->windowTitle();
        QCOMPARE(got, (QStringList{"Page 4", "Page 2", "Shadows"}));
        frame.setCurrentIndex(2);
        frame.setCurrentIndex(7);
        QCOMPARE(firstArgs(indexes), (QVariantList{2, 2}));
        frame.setPageTitle(QStringLiteral("Ambient"));
        QCOMPARE(firstArgs(titles), QVariantList{QStringLiteral("Ambient")});
        frame.removePage(0);
        QCOMPARE(frame.widget(0)->windowTitle(), QStringLiteral("Page 2"));
    }

    void shouldApplyHeaderSettings()
    {
        QUxCollapsibleFrame frame;
        auto* layout = new QVBoxLayout(new QWidget);
        frame.addPage(layout->parentWidget());
        frame.show();
        QVERIFY(frame.setProperty("frameVisibile", false));
        QVERIFY(!head(&frame)->isVisible() && !frame.isFrameVisible());
        QCOMPARE(layout->contentsMargins(), QMargins());
        frame.setFrameVisible(true);
        QCOMPARE(layout->contentsMargins(), QMargins(9, 9, 9, 9));
        QVERIFY(!frame.isHeaderCheckBoxVisible());
        QVERIFY(frame.setProperty("headerCheckBoxVisibile", true) && frame.isHeaderCheckBoxVisible());
        QSignalSpy states(&frame, &QUxCollapsibleFrame::stateChanged);
        frame.headerCheckBox()->setCheckState(Qt::PartiallyChecked);
        QCOMPARE(firstArgs(states), QVariantList{int(Qt::PartiallyChecked)});
        frame.setLedValue(true); // recorded nowhere: the frame has no LED
        QCOMPARE(std::make_tuple(frame.ledOnColor(), frame.ledOffColor(), frame.ledValue()),
                 std::make_tuple(QUxCollapsibleFrame::WHITE, QUxCollapsibleFrame::BLACK, false));
    }

    void shouldFixLabelColumns_data()
    {
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::newRow("one column") << 1 << 0 << 0;
        QTest::newRow("two columns") << 2 << 150 << 0;
        QTest::newRow("four columns") << 4 << 150 << 150;
    }
    void shouldFixLabelColumns()
    {
        QFETCH(int, columns);
        QFETCH(int, first);
        QFETCH(int, second);
        uxPlatform::setDpiScale(1.5, 1.0);
        QWidget panel;
        auto* outer = new QUxCollapsibleFrame(&panel);
        auto* inner = new QUxCollapsibleFrame;
        outer->addPage(inner);
        auto* grid = new QGridLayout(new QWidget);
        inner->addPage(grid->parentWidget());
        auto* excluded = new QGridLayout;
        grid->addLayout(excluded, 1, 0);
        for (int column = 0; column < columns; ++column)
            grid->addWidget(new QWidget, 0, column), excluded->addWidget(new QWidget, 0, column);
        std::vector<QGridLayout*> exclude{excluded};
        QUxCollapsibleFrame::fixLayouts(&panel, 100, &exclude);
        const int secondWidth = columns > 1 ? grid->columnMinimumWidth(1) : 0; // no bounds check in Qt
        QCOMPARE(std::make_pair(grid->columnMinimumWidth(0), secondWidth), std::make_pair(first, second));
        QCOMPARE(excluded->columnMinimumWidth(0), 0);
        QUxCollapsibleFrame::fixLayout(grid->parentWidget(), 20);
        QCOMPARE(grid->columnMinimumWidth(0), first ? 30 : 0);
        std::set<QUxCollapsibleFrame*> frames;
        QUxCollapsibleFrame::findCollapsibleFrames(&panel, frames);
        QCOMPARE(frames, (std::set<QUxCollapsibleFrame*>{outer, inner}));
    }

    void shouldIgnoreBadInput()
    {
        QUxCollapsibleFrame frame;
        auto* noLayout = new QWidget;
        for (QWidget* page : std::initializer_list<QWidget*>{nullptr, &frame, head(&frame), noLayout, noLayout})
            frame.addPage(page);
        frame.insertPage(-5, new QWidget);
        frame.removePage(42);
        QCOMPARE(frame.count(), 2);
        frame.setFrameVisible(false);
        QUxCollapsibleFrame::fixLayouts(nullptr, 10, nullptr);
        QUxCollapsibleFrame::fixLayout(nullptr, 10);
        QUxCollapsibleFrame::fixLayouts(&frame, INT_MAX, nullptr);
        QVERIFY(!frame.grab().isNull());
    }
};

QTEST_MAIN(tst_QUxCollapsibleFrame)
#include "tst_QUxCollapsibleFrame.moc"
