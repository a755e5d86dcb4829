#include <QUxAdvancedProgressDialog.h>
#include <QUxRemoveSubProgressAnimation.h>
#include <QUxSubProgress.h>

#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <climits>
#include <functional>

namespace {

QProgressBar* bar(QUxSubProgress* row) { return row->findChild<QProgressBar*>(); }
QLabel* percentLabel(QUxSubProgress* row) { return row->findChildren<QLabel*>().at(1); }

} // namespace

class tst_QUxAdvancedProgressDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        while (QUxAdvancedProgressDialog::progressCount() > 0)
            QUxAdvancedProgressDialog::destroyLastProgress();
    }

    // Operations: 100 increases the step, 200 sets no count, 300 a count of 10, anything else is a step.
    void shouldCountStepsIntoTruncatedPercentages_data()
    {
        QTest::addColumn<QList<int>>("operations");
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("percentage");
        QTest::addColumn<int>("finished");
        QTest::addColumn<bool>("barShown");
        QTest::newRow("three of seven") << QList<int>{3} << 3 << 42 << 0 << true;
        QTest::newRow("above the count ignored") << QList<int>{3, 8} << 3 << 42 << 0 << true;
        QTest::newRow("below zero ignored") << QList<int>{5, INT_MIN} << 5 << 71 << 0 << true;
        QTest::newRow("finished twice") << QList<int>{7, 7} << 7 << 100 << 2 << true;
        QTest::newRow("increase stops at the count")
            << QList<int>{100, 100, 100, 100, 100, 100, 100, 100, 100} << 7 << 100 << 1 << true;
        QTest::newRow("no count: min equals max") << QList<int>{200, 0, 1, 100} << 0 << 0 << 0 << false;
        QTest::newRow("count again starts at zero") << QList<int>{4, 200, 300} << 0 << 0 << 0 << true;
    }

    void shouldCountStepsIntoTruncatedPercentages()
    {
        QFETCH(QList<int>, operations);
        QUxSubProgress row;
        QCOMPARE(row.description(), QStringLiteral("Loading Shader References"));
        QCOMPARE(row.width(), 350);
        QVERIFY(bar(&row)->isHidden());
        row.setRefreshInterval(0);
        row.setSteps(7);
        QSignalSpy finished(&row, &QUxSubProgress::finished);
        for (int operation : operations) {
            if (operation == 100)
                row.increaseStep();
            else if (operation >= 200)
                row.setSteps(operation == 200 ? 0 : 10);
            else
                row.setStep(operation);
        }
        QTEST(row.step(), "step");
        QTEST(row.percentage(), "percentage");
        QTEST(int(finished.count()), "finished");
        QTEST(!bar(&row)->isHidden(), "barShown");
        QCOMPARE(percentLabel(&row)->isHidden(), bar(&row)->isHidden());
        if (!bar(&row)->isHidden())
            QCOMPARE(percentLabel(&row)->text(), QString::number(row.percentage()));
        if (!finished.isEmpty())
            QCOMPARE(finished.first().first().value<QUxSubProgress*>(), &row);
    }

    void shouldShowTheBarAtMostOncePerRefreshIntervalButTheLastStepAtOnce()
    {
        QUxSubProgress row;
        row.setSteps(7);
        row.setRefreshInterval(INT_MAX);
        row.setStep(1); // the first change since setSteps shows at once only once the interval passed
        row.setStep(3);
        QCOMPARE(row.percentage(), 42);
        QCOMPARE(percentLabel(&row)->text(), QStringLiteral("0"));
        row.setStep(7);
        QCOMPARE(percentLabel(&row)->text(), QStringLiteral("100"));
        QCOMPARE(bar(&row)->value(), 7);
    }

    void shouldReportRowValueToAccessibility()
    {
        QUxSubProgress row;
        row.setDescription(QStringLiteral("Reading scene"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&row);
        QVERIFY(iface->state().busy);
        row.setSteps(7);
        row.setStep(3);
        QAccessibleValueInterface* value = iface->valueInterface();
        QCOMPARE(iface->role(), QAccessible::ProgressBar);
        QCOMPARE((QStringList{iface->text(QAccessible::Name), iface->text(QAccessible::Value)}),
                 (QStringList{"Reading scene", "42%"}));
        QCOMPARE((QVariantList{value->currentValue(), value->minimumValue(), value->maximumValue()}),
                 (QVariantList{3, 0, 7}));
        QVERIFY(!iface->state().busy);
    }

    // Closing orders of three nested rows: indices into the rows, -1 for destroyLastProgress().
    void shouldStackRowsAndGoAwayWithTheLastOne_data()
    {
        QTest::addColumn<QList<int>>("order");
        QTest::newRow("innermost first") << QList<int>{2, 1, 0};
        QTest::newRow("out of order") << QList<int>{0, 2, 1};
        QTest::newRow("last ones") << QList<int>{-1, -1, -1};
        QTest::newRow("twice and unknown rows ignored") << QList<int>{1, 1, 3, 0, 0, 2};
    }

    void shouldStackRowsAndGoAwayWithTheLastOne()
    {
        QFETCH(QList<int>, order);
        QWidget window;
        QList<QPointer<QUxSubProgress>> rows;
        for (const char* text : {"Scene", "Model", "Textures"})
            rows << QUxAdvancedProgressDialog::addProgress(text, 10, &window);
        QUxSubProgress stranger;
        rows << &stranger;
        const QPointer<QUxAdvancedProgressDialog> dialog = QUxAdvancedProgressDialog::the();
        QVERIFY(dialog && dialog->isVisible() && dialog->isModal());
        QCOMPARE(dialog->objectName(), QStringLiteral("FileIOProgressDialog"));
        QCOMPARE(
            (QList<int>{bar(rows[0])->maximumHeight(), bar(rows[1])->maximumHeight(), bar(rows[2])->maximumHeight()}),
            (QList<int>{QWIDGETSIZE_MAX, 15, 15}));
        QCOMPARE(QUxAdvancedProgressDialog::progressCount(), 3);
        QUxAdvancedProgressDialog::increaseLastProgress();
        QCOMPARE(rows[2]->step(), 1);
        for (int index : order) {
            QVERIFY(dialog);
            if (index < 0)
                QUxAdvancedProgressDialog::destroyLastProgress();
            else
                QUxAdvancedProgressDialog::destroyProgress(rows[index]);
        }
        QVERIFY(!dialog && !rows[0] && !rows[1] && !rows[2]);
        QCOMPARE(QUxAdvancedProgressDialog::progressCount(), 0);
        QVERIFY(QUxAdvancedProgressDialog::addProgress("Again", 0, &window));
        QCOMPARE(QUxAdvancedProgressDialog::progressCount(), 1);
    }

    void shouldForgetRowsDeletedElsewhereAndCloseWhenNoneIsLeft()
    {
        delete QUxAdvancedProgressDialog::addProgress("Scene", 5, nullptr);
        QCOMPARE(QUxAdvancedProgressDialog::progressCount(), 0);
        QVERIFY(!QUxAdvancedProgressDialog::the());
        QUxAdvancedProgressDialog::addProgress("Scene", 5, nullptr);
        delete QUxAdvancedProgressDialog::the();
        QCOMPARE(QUxAdvancedProgressDialog::progressCount(), 0);
        QUxSubProgress::setProgress(3); // the last row went with its dialog
    }

    void shouldRemoveFinishedRowsOnlyWhenAsked()
    {
        QUxAdvancedProgressDialog dialog;
        const QPointer<QUxSubProgress> kept = dialog.addSubProgress("Kept", 2, false);
        const QPointer<QUxSubProgress> removed = dialog.addSubProgress("Removed", 2, true);
        QCOMPARE(removed->description(), QStringLiteral("Removed"));
        QUxSubProgress::setProgress(2); // the most recent row
        kept->setStep(2);
        QVERIFY(kept && !removed);
        QCOMPARE(QUxAdvancedProgressDialog::progressCount(), 0);
        dialog.removeSubProgress(nullptr);
        dialog.removeSubProgress(kept);
        QVERIFY(!kept);
    }

    void shouldCollapseARowThenDeleteItAndItself()
    {
        QUxAdvancedProgressDialog dialog;
        const QPointer<QUxSubProgress> row = dialog.addSubProgress("Row", 0, false);
        dialog.show();
        const QRect geometry = row->geometry();
        const QPointer<QUxRemoveSubProgressAnimation> animation = new QUxRemoveSubProgressAnimation(row, &dialog);
        QCOMPARE(animation->parent(), &dialog);
        QCOMPARE(animation->duration(), 200);
        QCOMPARE(animation->endValue().toRect(), QRect(geometry.topLeft(), QSize(geometry.width(), 0)));
        animation->start();
        animation->setCurrentTime(200);
        QVERIFY(!row);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!animation);
    }

    void shouldNotCrashWhenTheDialogIsDeletedDuringProcessEventsLoop()
    {
        QUxSubProgress* row = QUxAdvancedProgressDialog::addProgress("Scene", 5, nullptr);
        QTimer::singleShot(0, this, [row] { QUxAdvancedProgressDialog::destroyProgress(row); });
        const QPointer<QUxAdvancedProgressDialog> dialog = QUxAdvancedProgressDialog::the();
        for (int i = 0; i < 100 && dialog; ++i)
            dialog->processEventsLoop();
        QVERIFY(!dialog);
        QCOMPARE(QUxAdvancedProgressDialog::progressCount(), 0);
    }

    void shouldNotOverflowTheStackWhenProcessEventsLoopRecurses()
    {
        QUxAdvancedProgressDialog dialog;
        int depth = 0, deepest = 0, calls = 0;
        std::function<void()> again = [&] {
            if (++calls > 1000)
                return;
            QMetaObject::invokeMethod(&dialog, again, Qt::QueuedConnection);
            deepest = qMax(deepest, ++depth);
            dialog.processEventsLoop();
            --depth;
        };
        QMetaObject::invokeMethod(&dialog, again, Qt::QueuedConnection);
        dialog.processEventsLoop();
        QVERIFY2(deepest >= 1 && deepest <= 4 && calls < 1000, qPrintable(QString::number(deepest)));
    }

    void shouldRoundTheCornersOfARegion_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<int>("radius");
        QTest::addColumn<QList<QPoint>>("inside");
        QTest::addColumn<QList<QPoint>>("outside");
        const QRect r(10, 20, 20, 10);
        QTest::newRow("radius 3") << r << 3 << QList<QPoint>{{13, 20}, {10, 23}, {20, 25}, {26, 29}}
                                  << QList<QPoint>{{10, 20}, {29, 20}, {10, 29}, {29, 29}, {9, 25}, {30, 25}};
        QTest::newRow("radius beyond half the height")
            << r << 100 << QList<QPoint>{{20, 20}, {20, 29}, {15, 25}} << QList<QPoint>{{10, 20}, {10, 21}, {29, 29}};
        QTest::newRow("negative radius: square corners")
            << r << -4 << QList<QPoint>{{10, 20}, {29, 29}} << QList<QPoint>{{9, 20}, {30, 29}};
        QTest::newRow("empty") << QRect(5, 5, 0, 7) << 3 << QList<QPoint>{} << QList<QPoint>{{5, 5}};
        QTest::newRow("wider than int") << QRect(QPoint(INT_MIN, 0), QPoint(INT_MAX, 10)) << 3 << QList<QPoint>{}
                                        << QList<QPoint>{{0, 5}};
    }

    void shouldRoundTheCornersOfARegion()
    {
        QFETCH(QRect, rect);
        QFETCH(int, radius);
        QFETCH(QList<QPoint>, inside);
        QFETCH(QList<QPoint>, outside);
        const QRegion region = QUxAdvancedProgressDialog::roundedRect(rect, radius);
        for (const QPoint& p : inside)
            QVERIFY2(region.contains(p), qPrintable(QStringLiteral("%1,%2").arg(p.x()).arg(p.y())));
        for (const QPoint& p : outside)
            QVERIFY2(!region.contains(p), qPrintable(QStringLiteral("%1,%2").arg(p.x()).arg(p.y())));
    }

    void shouldPaintADarkTranslucentPanel()
    {
        QUxAdvancedProgressDialog dialog;
        dialog.addSubProgress("Row", 3, false);
        dialog.show();
        const QImage image = dialog.grab().toImage().convertToFormat(QImage::Format_ARGB32);
        const QColor inside = image.pixelColor(image.width() / 2, 4); // between the border and the row
        QVERIFY2(qAbs(inside.alpha() - 75) <= 2 && inside.red() == 0, qPrintable(inside.name(QColor::HexArgb)));
        QVERIFY(!dialog.mask().contains(QPoint(0, 0)) && dialog.mask().contains(QPoint(6, 0)));
    }
};

QTEST_MAIN(tst_QUxAdvancedProgressDialog)
#include "tst_QUxAdvancedProgressDialog.moc"
