#include <QUxFlowLayout.h>

#include <QSpacerItem>
#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

#include <tuple>

using Sizes = QList<QSize>;
using Points = QList<QPoint>;

class tst_QUxFlowLayout : public QObject
{
    Q_OBJECT

private slots:
    void shouldWrapAtHandComputedPositions_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("margin");
        QTest::addColumn<int>("spacing"); // horizontal; vertical is one more
        QTest::addColumn<Sizes>("sizes");
        QTest::addColumn<Points>("positions");
        QTest::addColumn<int>("height");
        const QSize s(30, 10);
        // The third item ends exactly on the edge and stays.
        QTest::newRow("wraps") << 100 << 0 << 5 << Sizes{s, s, s, {30, 20}} << Points{{0, 0}, {35, 0}, {70, 0}, {0, 16}}
                               << 36;
        QTest::newRow("margins") << 100 << 4 << 2 << Sizes{{40, 10}, {40, 12}, {40, 10}}
                                 << Points{{4, 4}, {46, 4}, {4, 19}} << 33;
        QTest::newRow("wider than the area")
            << 50 << 0 << 5 << Sizes{{80, 10}, {20, 10}, {20, 10}} << Points{{0, 0}, {0, 16}, {25, 16}} << 26;
        QTest::newRow("tallest sets the row")
            << 60 << 0 << 0 << Sizes{s, {30, 40}, s} << Points{{0, 0}, {30, 0}, {0, 41}} << 51;
    }

    void shouldWrapAtHandComputedPositions()
    {
        QFETCH(int, width);
        QFETCH(int, margin);
        QFETCH(int, spacing);
        QFETCH(Sizes, sizes);
        QFETCH(Points, positions);
        QFETCH(int, height);
        QWidget container;
        auto* layout = new QUxFlowLayout(&container, margin, spacing, spacing + 1);
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        for (const QSize& size : sizes) {
            layout->addWidget(new QWidget(&container));
            container.findChildren<QWidget*>().last()->setFixedSize(size);
        }
        container.show();
        QCOMPARE(layout->heightForWidth(width), height);
        layout->setGeometry(QRect(0, 0, width, 500));
        Points placed;
        for (int i = 0; i < layout->count(); ++i)
            placed << layout->itemAt(i)->geometry().topLeft();
        QCOMPARE(placed, positions);
    }

    void shouldAnswerForChangedItems()
    {
        QWidget container;
        auto* layout = new QUxFlowLayout(&container, 0, 5, 6);
        QWidget children[3];
        for (QWidget& child : children) {
            child.setFixedSize(30, 10);
            layout->addWidget(&child);
        }
        container.show();
        QCOMPARE(layout->heightForWidth(65), 26);
        children[1].hide();
        QCOMPARE(layout->heightForWidth(65), 10);
        children[1].show();
        children[0].setFixedSize(30, 30);
        QCOMPARE(layout->heightForWidth(65), 46);
    }

    void shouldLayOutTenThousandItems()
    {
        // 100 small items a row; then huge items, one a row, far past any int width in sum.
        for (const auto& [size, width, last] : {std::tuple(QSize(10, 10), 1000, QPoint(990, 990)),
                                                std::tuple(QSize(QWIDGETSIZE_MAX, 1), 100, QPoint(0, 9999))}) {
            QUxFlowLayout layout(0, 0, 0);
            QSpacerItem* item = nullptr;
            for (int i = 0; i < 10000; ++i)
                layout.addItem(
                    item = new QSpacerItem(size.width(), size.height(), QSizePolicy::Fixed, QSizePolicy::Fixed));
            QCOMPARE(layout.heightForWidth(width), last.y() + size.height());
            layout.setGeometry(QRect(0, 0, width, 10000));
            QCOMPARE(item->geometry().topLeft(), last);
        }
    }

    void shouldHandleNoItemsAndParentSpacing()
    {
        QUxFlowLayout empty(5, -1, -1);
        empty.setGeometry(QRect(0, 0, 100, 100));
        QVERIFY(!empty.itemAt(0) && !empty.takeAt(-1) && empty.horizontalSpacing() == -1);
        QCOMPARE(empty.heightForWidth(-5), 10);

        QWidget container;
        auto* outer = new QVBoxLayout(&container);
        outer->setSpacing(11);
        auto* inner = new QUxFlowLayout(3, -1, -1);
        outer->addLayout(inner);
        QCOMPARE(inner->verticalSpacing(), 11);
        inner->addItem(new QSpacerItem(20, 40, QSizePolicy::Fixed, QSizePolicy::Fixed));
        QCOMPARE(inner->minimumSize(), QSize(26, 46));
    }
};

QTEST_MAIN(tst_QUxFlowLayout)
#include "tst_QUxFlowLayout.moc"
