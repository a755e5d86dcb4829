// Placing the chips of a tag area: a flow layout of 2,000 fixed-size widgets
// against a QHBoxLayout holding the same widgets. Both sides get the same
// rectangle, shifted by one pixel every other pass, so that each pass moves
// every widget on both sides (a box layout skips a pass for an unchanged
// rectangle).
#include <QUxFlowLayout.h>

#include <QHBoxLayout>
#include <QWidget>
#include <QtTest>

#include <memory>

namespace {

constexpr int kItems = 2000;
const QSize kItemSize(40, 20);
constexpr int kWidth = 800;

/// A shown container with @p layout filled with kItems fixed-size widgets.
std::unique_ptr<QWidget> filled(QLayout* layout)
{
    auto container = std::make_unique<QWidget>();
    container->setLayout(layout);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    for (int i = 0; i < kItems; ++i) {
        auto* child = new QWidget(container.get());
        child->setFixedSize(kItemSize);
        layout->addWidget(child);
    }
    container->resize(kWidth, 600);
    container->show();
    return container;
}

QLayout* makeLayout(bool anchor)
{
    if (!anchor)
        return new QUxFlowLayout(0, 3, 3);
    auto* box = new QHBoxLayout;
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(3);
    return box;
}

} // namespace

class bench_QUxFlowLayout : public QObject
{
    Q_OBJECT

private slots:
    void setGeometry_data()
    {
        QTest::addColumn<bool>("anchor");
        QTest::newRow("ours") << false;
        QTest::newRow("anchor") << true;
    }

    void setGeometry()
    {
        QFETCH(bool, anchor);
        QLayout* layout = makeLayout(anchor);
        const auto container = filled(layout);
        int shift = 0;
        QBENCHMARK
        {
            shift = 1 - shift;
            layout->setGeometry(QRect(shift, 0, kWidth, 600));
        }
    }

    // Measuring the items for a width after a change. The anchor measures the
    // same items for its size hint. The "cached" row asks again for the same
    // width without a change in between: the flow layout answers from memory,
    // so that row is not like for like and shows what the memory saves.
    void heightForWidth_data()
    {
        QTest::addColumn<QString>("variant");
        QTest::newRow("ours") << "ours";
        QTest::newRow("ours cached") << "cached";
        QTest::newRow("anchor") << "anchor";
    }

    void heightForWidth()
    {
        QFETCH(QString, variant);
        QLayout* layout = makeLayout(variant == "anchor");
        const auto container = filled(layout);
        int sink = 0;
        if (variant == "anchor") {
            QBENCHMARK
            {
                layout->invalidate();
                sink += layout->sizeHint().width();
            }
        } else if (variant == "ours") {
            QBENCHMARK
            {
                layout->invalidate();
                sink += layout->heightForWidth(kWidth);
            }
        } else {
            const int first = layout->heightForWidth(kWidth);
            QBENCHMARK { sink += layout->heightForWidth(kWidth); }
            QCOMPARE(layout->heightForWidth(kWidth), first);
        }
        QVERIFY(sink != 0);
    }
};

QTEST_MAIN(bench_QUxFlowLayout)
#include "bench_QUxFlowLayout.moc"
