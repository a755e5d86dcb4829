#include <QUxAdvancedProgressDialog.h>
#include <QUxProgressDialogGUII.h>
#include <QUxProgressIndicator.h>
#include <QUxRemoveSubProgressAnimation.h>
#include <QUxSubProgress.h>

#include "uxTestSupport.h"

#include <QAccessibleValueInterface>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <climits>
#include <cmath>
#include <functional>

namespace {

QProgressBar* bar(QUxSubProgress* row) { return row->findChild<QProgressBar*>(); }
QLabel* percentLabel(QUxSubProgress* row) { return row->findChildren<QLabel*>().at(1); }
enum { Increase = 100, NoCount = 200, TenSteps = 300 }; // operations besides setting a step

/// Angle (a multiple of 30, clockwise from the top) of the darkest capsule of a black 100-pixel ring.
int darkestCapsuleAngle(QUxProgressIndicator& indicator)
{
    const QImage image = uxTest::grab(&indicator);
    QMap<int, int> angleByGray;
    for (int angle = 330; angle >= 0; angle -= 30) { // mid-capsule, 33 pixels out
        const double radians = angle * M_PI / 180.0;
        angleByGray[qGray(image.pixel(50 + int(std::lround(33 * std::sin(radians))),
                                      50 - int(std::lround(33 * std::cos(radians)))))] = angle;
    }
    return angleByGray.first();
}

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

    // Expected: step, percentage (also the label's), finished() count, bar and percentage shown.
    void shouldCountStepsOfSevenIntoTruncatedPercentages_data()
    {
        QTest::addColumn<QList<int>>("operations");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("three of seven") << QList<int>{3} << QList<int>{3, 42, 0, 1};
        QTest::newRow("above the count ignored") << QList<int>{3, 8} << QList<int>{3, 42, 0, 1};
        QTest::newRow("below zero ignored") << QList<int>{5, INT_MIN} << QList<int>{5, 71, 0, 1};
        QTest::newRow("finished twice") << QList<int>{7, 7} << QList<int>{7, 100, 2, 1};
        QTest::newRow("increase stops at the count") << QVector<int>(9, Increase).toList() << QList<int>{7, 100, 1, 1};
        QTest::newRow("no count: min equals max") << QList<int>{NoCount, 0, 1, Increase} << QList<int>{0, 0, 0, 0};
        QTest::newRow("a count again starts at zero") << QList<int>{4, NoCount, TenSteps} << QList<int>{0, 0, 0, 1};
    }

    void shouldCountStepsOfSevenIntoTruncatedPercentages()
    {
        QUxSubProgress row;
        QVERIFY(row.description() == "Loading Shader References" && row.width() == 350 && bar(&row)->isHidden());
        row.setRefreshInterval(0);
        row.setSteps(7);
        QSignalSpy finished(&row, &QUxSubProgress::finished);
        QFETCH(QList<int>, operations);
        for (int operation : operations) {
            if (operation == Increase)
                row.increaseStep();
            else if (operation >= NoCount)
                row.setSteps(operation == NoCount ? 0 : 10);
            else
                row.setStep(operation);
        }
        QTEST((QList<int>{row.step(), percentLabel(&row)->text().toInt(), int(finished.count()),
                          bar(&row)->isVisibleTo(&row)}),
              "expected");
        QVERIFY(percentLabel(&row)->text().toInt() == row.percentage()
                && percentLabel(&row)->isHidden() == bar(&row)->isHidden());
        QVERIFY(finished.isEmpty() || finished.first().first().value<QUxSubProgress*>() == &row);
    }

    void shouldShowStepsAtMostOncePerRefreshIntervalAndTellAccessibility()
    {
        QUxSubProgress row;
        row.setDescription(QStringLiteral("Reading scene"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&row);
        QVERIFY(iface->state().busy);
        row.setSteps(7);
        row.setRefreshInterval(INT_MAX);
        row.setStep(3);
        QCOMPARE(percentLabel(&row)->text(), QStringLiteral("0")); // shown when the interval is over
        QAccessibleValueInterface* value = iface->valueInterface();
        QCOMPARE((QVariantList{iface->text(QAccessible::Name), iface->text(QAccessible::Value), value->currentValue(),
                               value->minimumValue(), value->maximumValue(), iface->role()}),
                 (QVariantList{"Reading scene", "42%", 3, 0, 7, QAccessible::ProgressBar}));
        row.setStep(7); // the last step at once
        QCOMPARE((QList<int>{percentLabel(&row)->text().toInt(), bar(&row)->value(), int(iface->state().busy)}),
                 (QList<int>{100, 7, false}));
    }

    // Closing orders of three nested rows and one unregistered: indices, -1 for destroyLastProgress().
    void shouldStackRowsAndGoAwayWithTheLastOne_data()
    {
        QTest::addColumn<QList<int>>("order");
        QTest::newRow("innermost first") << QList<int>{2, 1, 0};
        QTest::newRow("out of order") << QList<int>{0, 2, 1};
        QTest::newRow("last ones") << QList<int>{-1, -1, -1};
        QTest::newRow("twice and unregistered ignored") << QList<int>{1, 1, 3, 0, 0, 2};
    }

    void shouldStackRowsAndGoAwayWithTheLastOne()
    {
        QWidget window;
        QList<QPointer<QUxSubProgress>> rows;
        for (const char* text : {"Scene", "Model", "Textures"})
            rows << QUxAdvancedProgressDialog::addProgress(text, 10, &window);
        QUxSubProgress unregistered;
        rows << &unregistered;
        const QPointer<QUxAdvancedProgressDialog> dialog = QUxAdvancedProgressDialog::the();
        QVERIFY(dialog->isVisible() && dialog->isModal() && dialog->objectName() == "FileIOProgressDialog");
        QCOMPARE(bar(rows[0])->maximumHeight(), QWIDGETSIZE_MAX);
        QVERIFY(bar(rows[1])->maximumHeight() == 15 && bar(rows[2])->maximumHeight() == 15);
        QUxAdvancedProgressDialog::increaseLastProgress();
        QCOMPARE((QList<int>{QUxAdvancedProgressDialog::progressCount(), rows[2]->step()}), (QList<int>{3, 1}));
        QFETCH(QList<int>, order);
        for (int index : order) {
            if (index < 0)
                QUxAdvancedProgressDialog::destroyLastProgress();
            else
                QUxAdvancedProgressDialog::destroyProgress(rows[index]);
        }
        QVERIFY(!dialog && !rows[0] && !rows[1] && !rows[2] && QUxAdvancedProgressDialog::progressCount() == 0);
        QVERIFY(QUxAdvancedProgressDialog::addProgress("Again", 0, &window) && QUxAdvancedProgressDialog::the());
    }

    void shouldForgetRowsAndDialogsDeletedElsewhereEvenDuringProcessEventsLoop()
    {
        delete QUxAdvancedProgressDialog::addProgress("Scene", 5, nullptr);
        QVERIFY(!QUxAdvancedProgressDialog::the());
        QUxAdvancedProgressDialog::addProgress("Scene", 5, nullptr);
        QTimer::singleShot(0, this, [] { delete QUxAdvancedProgressDialog::the(); });
        const QPointer<QUxAdvancedProgressDialog> dialog = QUxAdvancedProgressDialog::the();
        for (int i = 0; i < 100 && dialog; ++i)
            dialog->processEventsLoop();
        QVERIFY(!dialog && QUxAdvancedProgressDialog::progressCount() == 0);
        QUxSubProgress::setProgress(3); // the most recent row went with its dialog
    }

    void shouldRemoveFinishedRowsOnlyWhenAsked()
    {
        QUxAdvancedProgressDialog dialog;
        const QPointer<QUxSubProgress> kept = dialog.addSubProgress("Kept", 2, false);
        const QPointer<QUxSubProgress> removed = dialog.addSubProgress("Removed", 2, true);
        QUxSubProgress::setProgress(2); // the most recent row
        kept->setStep(2);
        QVERIFY(kept && !removed && QUxAdvancedProgressDialog::progressCount() == 0);
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
        QVERIFY(animation->parent() == &dialog && animation->duration() == 200);
        QCOMPARE(animation->endValue().toRect(), QRect(geometry.topLeft(), QSize(geometry.width(), 0)));
        animation->start();
        animation->setCurrentTime(200);
        QVERIFY(!row);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!animation);
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

    void shouldRoundTheCornersOfTheMask()
    {
        const QRect rect(10, 20, 20, 10);
        const QRegion three = QUxAdvancedProgressDialog::roundedRect(rect, 3);
        QVERIFY(three.contains(QPoint(13, 20)) && three.contains(QPoint(10, 23)) && three.contains(QPoint(26, 29)));
        for (const QPoint& p : {rect.topLeft(), rect.topRight(), rect.bottomLeft(), rect.bottomRight()})
            QVERIFY(!three.contains(p) && QUxAdvancedProgressDialog::roundedRect(rect, -4).contains(p));
        QVERIFY(!QUxAdvancedProgressDialog::roundedRect(rect, 100).contains(QPoint(10, 21))); // radius 5 at most
        QVERIFY(QUxAdvancedProgressDialog::roundedRect(QRect(QPoint(INT_MIN, 0), QPoint(INT_MAX, 9)), 3).isEmpty());

        QUxAdvancedProgressDialog dialog;
        dialog.addSubProgress("Row", 3, false);
        dialog.show();
        const QColor panel = uxTest::grab(&dialog).pixelColor(dialog.width() / 2, 4); // above the row
        QVERIFY2(qAbs(panel.alpha() - 75) <= 2 && panel.red() == 0, qPrintable(panel.name(QColor::HexArgb)));
        QVERIFY(!dialog.mask().contains(QPoint(0, 0)) && dialog.mask().contains(QPoint(6, 0)));
    }

    void shouldTurnThirtyDegreesPerTickAndReportBusyState_data()
    {
        QTest::addColumn<int>("ticks");
        QTest::addColumn<int>("angle");
        QTest::newRow("one") << 1 << 30;
        QTest::newRow("full turn") << 12 << 0;
        QTest::newRow("past a turn") << 14 << 60;
    }

    void shouldTurnThirtyDegreesPerTickAndReportBusyState()
    {
        QUxProgressIndicator indicator;
        indicator.resize(100, 100);
        const QImage stopped = uxTest::grab(&indicator);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&indicator);
        indicator.setAnimationDelay(INT_MAX); // ticks come from the test
        indicator.startAnimation();
        QVERIFY(iface->state().busy);
        QFETCH(int, ticks);
        for (int i = 0; i < ticks; ++i) {
            QTimerEvent tick(0);
            QCoreApplication::sendEvent(&indicator, &tick);
        }
        indicator.startAnimation(); // already turning: keeps its angle
        QTEST(darkestCapsuleAngle(indicator), "angle");
        indicator.stopAnimation();
        QVERIFY(!iface->state().busy && !indicator.isAnimated());
        QCOMPARE(uxTest::grab(&indicator), stopped); // nothing painted
        indicator.setDisplayedWhenStopped(true);
        QCOMPARE(darkestCapsuleAngle(indicator), 0);
    }

    void shouldCoverTheWorkspaceWithABusyOverlay()
    {
        QWidget workspace;
        workspace.setGeometry(40, 30, 200, 120);
        QUxProgressDialogGUII::setWorkspace(&workspace);
        QUxProgressDialogGUII::start(QStringLiteral("Hidden"), &workspace); // not visible: nothing at all
        QVERIFY(!QUxProgressDialogGUII::the());
        workspace.show();
        QUxProgressDialogGUII::start(QStringLiteral("Preparing"));
        const QPointer<QUxProgressDialogGUII> overlay = QUxProgressDialogGUII::the();
        QCOMPARE((QStringList{overlay->objectName(), overlay->windowTitle()}),
                 (QStringList{"QUxProgressDialogGUI", "Dialog"}));
        QCOMPARE(overlay->geometry(), QRect(workspace.mapToGlobal(QPoint(0, 0)), workspace.frameSize()));
        auto* indicator = overlay->findChild<QUxProgressIndicator*>(QStringLiteral("_progress"));
        QVERIFY(overlay->isVisible() && indicator->isVisible() && indicator->isAnimated());
        QUxProgressDialogGUII::setProgressVisible(false);
        QVERIFY(indicator->isHidden());
        QUxProgressDialogGUII::start(QStringLiteral("Loading"), &workspace);
        QCOMPARE(QUxProgressDialogGUII::the(), overlay.data());
        QCOMPARE(overlay->findChild<QLabel*>(QStringLiteral("_status"))->text(), QStringLiteral("Loading"));
        const QColor veil = uxTest::grab(overlay).pixelColor(3, 3);
        QVERIFY2(veil.red() == 0 && qAbs(veil.alpha() - 125) <= 1, qPrintable(veil.name(QColor::HexArgb)));
        QUxProgressDialogGUII::stop();
        QVERIFY(!overlay && !QUxProgressDialogGUII::the());
    }
};

QTEST_MAIN(tst_QUxAdvancedProgressDialog)
#include "tst_QUxAdvancedProgressDialog.moc"
