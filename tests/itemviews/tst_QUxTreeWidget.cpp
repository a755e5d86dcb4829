#include <QUxCustomDelegate.h>
#include <QUxDataWidgetMapper.h>
#include <QUxNoEditDelegate.h>
#include <QUxScrollBarPositionSaver.h>
#include <QUxTreeWidget.h>
#include <uxHeaderViewBase.h>

#include "uxTestSupport.h"

#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTimer>

namespace {

/// Records the hooks and opens the protected handlers to the test.
class Tree : public QUxTreeWidget
{
public:
    explicit Tree(QWidget* owner) : QUxTreeWidget(owner, "Tree")
    {
        for (const char* name : {"one", "two", "three"})
            addTopLevelItem(new QTreeWidgetItem(QStringList(name)));
        initWidget(owner);
    }
    void addAcceptedDropFormats() override
    {
        addAcceptedDropFormat("application/x-b");
        addAcceptedDropFormat("application/x-a");
    }
    void onStartDrag() override { ++drags; }
    void onDrop(QDropEvent*, QString format) override { drops << format; }
    void updatePopupItemVisibility() override { ++popupUpdates; }
    using QUxTreeWidget::dragEnterEvent;
    using QUxTreeWidget::dragMoveEvent;
    using QUxTreeWidget::dropEvent;
    int drags = 0, popupUpdates = 0;
    QStringList drops;
};

/// Runs @p open while a zero timer reads the popup it shows ("text [x]", " off" when disabled),
/// triggers the entry named @p trigger and closes the popup, so that nothing blocks.
QStringList readPopup(const std::function<void()>& open, const QString& trigger = QString())
{
    QStringList entries;
    QTimer::singleShot(0, qApp, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            for (QAction* action : menu->actions()) {
                entries << action->text() + (action->isChecked() ? " [x]" : " [ ]")
                               + (action->isEnabled() ? "" : " off");
                if (action->text() == trigger)
                    action->trigger();
            }
            menu->close();
        }
    });
    open();
    QCoreApplication::processEvents(); // spends the timer when no popup opened
    return entries;
}

/// The header's context menu, through its viewport as a right click delivers it.
QStringList openMenu(uxHeaderViewBase& header, const QString& trigger = QString())
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2));
    return readPopup([&] { QCoreApplication::sendEvent(header.viewport(), &event); }, trigger);
}

bool firstRow(const QModelIndex& index) { return index.row() == 0; }

} // namespace

class tst_QUxTreeWidget : public QObject
{
    Q_OBJECT

private slots:
    void shouldStartADragOnlyFromTheStartDragDistance_data()
    {
        QTest::addColumn<int>("distance");
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("drags");
        const int start = QApplication::startDragDistance();
        QTest::newRow("shorter") << start - 1 << int(Qt::LeftButton) << 0;
        QTest::newRow("exactly") << start << int(Qt::LeftButton) << 1;
        QTest::newRow("right button") << start + 20 << int(Qt::RightButton) << 0;
    }

    void shouldStartADragOnlyFromTheStartDragDistance()
    {
        QFETCH(int, distance);
        QFETCH(int, button);
        QFETCH(int, drags);
        QWidget owner;
        Tree tree(&owner);
        tree.resize(300, 200);
        owner.show();
        QVERIFY(QTest::qWaitForWindowExposed(&owner));
        QSignalSpy entered(&tree, &QAbstractItemView::entered); // the base handling's trace
        const QPoint press = tree.visualItemRect(tree.topLevelItem(0)).topLeft() + QPoint(5, 5);
        QTest::mousePress(tree.viewport(), Qt::MouseButton(button), Qt::NoModifier, press);
        uxTest::moveMouse(tree.viewport(), press + QPoint(distance, 0), Qt::MouseButton(button));
        QCOMPARE(tree.drags, drags);
        QCOMPARE(entered.count(), 1 - drags);
    }

    void shouldTakeOnlyAcceptedFormatsInListOrder_data()
    {
        QTest::addColumn<QStringList>("offered");
        QTest::addColumn<QString>("format");
        QTest::newRow("none accepted") << QStringList({"text/plain"}) << QString();
        QTest::newRow("list order") << QStringList({"application/x-a", "application/x-b"}) << "application/x-b";
        QTest::newRow("second only") << QStringList({"application/x-a"}) << "application/x-a";
    }

    void shouldTakeOnlyAcceptedFormatsInListOrder()
    {
        QFETCH(QStringList, offered);
        QFETCH(QString, format);
        QWidget owner;
        Tree tree(&owner);
        QMimeData mime;
        for (const QString& type : offered)
            mime.setData(type, "7");
        QDragEnterEvent enter(QPoint(5, 5), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        tree.dragEnterEvent(&enter);
        QCOMPARE(enter.isAccepted(), !format.isEmpty());
        QDragMoveEvent move(QPoint(5, 5), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        move.accept(); // what was decided before stays
        tree.dragMoveEvent(&move);
        QVERIFY(move.isAccepted());
        for (QMimeData* data : {&mime, static_cast<QMimeData*>(nullptr)}) {
            QDropEvent drop(QPoint(5, 5), Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
            tree.dropEvent(&drop);
        }
        QCOMPARE(tree.drops, format.isEmpty() ? QStringList() : QStringList(format));
        QCOMPARE(tree.topLevelItemCount(), 3);
    }

    void shouldOpenThePopupOnTheOwnersContextMenuRequest()
    {
        QWidget owner;
        Tree tree(&owner);
        QCOMPARE(tree.popupMenu()->parent(), &owner);
        const auto request = [&] { emit owner.customContextMenuRequested(QPoint(3, 3)); };
        QCOMPARE(readPopup(request), QStringList());
        tree.popupMenu()->addAction("Rename");
        QCOMPARE(readPopup(request), QStringList({"Rename [ ]"}));
        QCOMPARE(tree.popupUpdates, 2);
    }

    void shouldListShownColumnsFirstAndKeepTheLastOne_data()
    {
        QTest::addColumn<QList<int>>("hidden");
        QTest::addColumn<bool>("fixFirstPosition");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("all shown") << QList<int>() << false << QStringList({"Name [x]", "Type [x]", "Id [x]"});
        QTest::newRow("one hidden") << QList<int>({1}) << false << QStringList({"Name [x]", "Id [x]", "Type [ ]"});
        QTest::newRow("last shown") << QList<int>({0, 2}) << false
                                    << QStringList({"Type [x] off", "Name [ ]", "Id [ ]"});
        // Id moved to the front: the fixed position 0 now holds Id, not Name.
        QTest::newRow("fixed position") << QList<int>() << true << QStringList({"Name [x]", "Type [x]"});
    }

    void shouldListShownColumnsFirstAndKeepTheLastOne()
    {
        QFETCH(QList<int>, hidden);
        QFETCH(bool, fixFirstPosition);
        QFETCH(QStringList, entries);
        QStandardItemModel model(1, 3);
        model.setHorizontalHeaderLabels({"Name", "Type", ""});
        model.setHeaderData(2, Qt::Horizontal, "Id", Qt::UserRole);
        uxHeaderViewBase header(&model);
        for (int logical : hidden)
            header.setColumnVisible(logical, false);
        if (fixFirstPosition) {
            header.moveSection(2, 0);
            header.setSectionHideable(0, false);
        }
        QCOMPARE(openMenu(header), entries);
    }

    void shouldDisableTheLastCheckedEntryAfterHidingAColumn()
    {
        QStandardItemModel model(1, 2), empty;
        model.setHorizontalHeaderLabels({"Name", "Type"});
        uxHeaderViewBase header(&model), bare(&empty);
        QCOMPARE(openMenu(header, "Type"), QStringList({"Name [x]", "Type [x]"}));
        QVERIFY(header.isSectionHidden(1));
        QCOMPARE(openMenu(header), QStringList({"Name [x] off", "Type [ ]"}));
        QCOMPARE(openMenu(bare), QStringList());
        QCOMPARE(uxHeaderViewBase(nullptr).getHeaderName(0), QString());
    }

    void shouldCreateEditorsOnlyWhereAllowed()
    {
        QStandardItemModel model(2, 1);
        QUxCustomDelegate custom;
        QUxNoEditDelegate none;
        QWidget parent;
        QVERIFY(custom.createEditor(&parent, {}, model.index(0, 0)));
        custom.setIsEditableFunction(&firstRow);
        QVERIFY(custom.createEditor(&parent, {}, model.index(0, 0)));
        QVERIFY(!custom.createEditor(&parent, {}, model.index(1, 0)));
        QVERIFY(!none.createEditor(&parent, {}, model.index(0, 0)));
    }

    void shouldUnderlineWhereThePredicateSays_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("gaps");
        QTest::newRow("solid") << int(Qt::SolidLine) << false;
        QTest::newRow("dotted") << int(Qt::DotLine) << true;
    }

    // Two rows of the same text, only the first underlined: they differ in one
    // horizontal line of text colour and nowhere else.
    void shouldUnderlineWhereThePredicateSays()
    {
        QFETCH(int, style);
        QFETCH(bool, gaps);
        QStandardItemModel model;
        model.appendColumn({new QStandardItem("<b>Linked</b> node"), new QStandardItem("<b>Linked</b> node")});
        QListView view;
        view.setFocusPolicy(Qt::NoFocus); // no focus frame on either row
        QUxCustomDelegate delegate;
        delegate.setIsUnderlinedFunction(&firstRow);
        delegate.setUnderlinePenStyle(Qt::PenStyle(style));
        view.setItemDelegate(&delegate);
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QRect first = view.visualRect(model.index(0, 0));
        const int offset = view.visualRect(model.index(1, 0)).top() - first.top();
        const QImage image = uxTest::grab(view.viewport());
        QMap<int, QList<int>> differing; // y -> x of differing pixels
        for (int y = first.top(); y <= first.bottom(); ++y) {
            for (int x = first.left(); x <= first.right(); ++x) {
                if (image.pixel(x, y) != image.pixel(x, y + offset)) {
                    differing[y] << x;
                    QCOMPARE(image.pixelColor(x, y), view.palette().color(QPalette::Text));
                }
            }
        }
        QCOMPARE(differing.size(), 1);
        const QList<int> xs = differing.value(differing.firstKey());
        QVERIFY(xs.size() > 20);
        QCOMPARE(xs.last() - xs.first() + 1 > xs.size(), gaps);
    }

    void shouldCommitCombosAtOnceThroughTheirUserRoleData_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("shown");
        QTest::newRow("match") << "b" << 1;
        QTest::newRow("case differs") << "B" << -1;
    }

    void shouldCommitCombosAtOnceThroughTheirUserRoleData()
    {
        QFETCH(QString, stored);
        QFETCH(int, shown);
        QStandardItemModel model(1, 1);
        model.setData(model.index(0, 0), stored);
        QWidget window;
        auto* combo = new QComboBox(&window);
        combo->addItem("Alpha", "a");
        combo->addItem("Beta", "b");
        combo->addItem("Gamma", "c");
        QUxDataWidgetMapper mapper(&window);
        mapper.setModel(&model);
        mapper.addMapping(nullptr, 0);
        mapper.addMapping(combo, 0);
        mapper.toFirst();
        QCOMPARE(combo->currentIndex(), shown);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        combo->setFocus();
        combo->setCurrentIndex(2); // no focus change by the user: the mapper commits on its own
        QCOMPARE(model.index(0, 0).data().toString(), QString("c"));
    }

    void shouldRestoreTheScrollPositionUnlessThereIsNoScrollBar()
    {
        QScrollBar bar(Qt::Vertical);
        bar.setRange(0, 100);
        bar.setValue(50);
        {
            const QUxScrollBarPositionSaver saver(&bar), copy(saver);
            bar.setValue(0);
        }
        QCOMPARE(bar.value(), 50);
        const QUxScrollBarPositionSaver none(nullptr);
        QVERIFY(!none.isValid());
        auto* doomed = new QScrollBar(Qt::Vertical);
        const QUxScrollBarPositionSaver orphan(doomed);
        delete doomed; // outlived by its saver, which must not touch it
    }
};

QTEST_MAIN(tst_QUxTreeWidget)
#include "tst_QUxTreeWidget.moc"
