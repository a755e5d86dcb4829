// A long host operation of 100,000 steps that keeps its progress on screen.
// Ours: three nested rows of the shared progress dialog (whole job, part,
// step), all three set each step, then processEventsLoop(). The anchor: a
// shown QProgressDialog set to the step, then QCoreApplication::processEvents().
// "ours every step" repaints the rows on each step, as the anchor does: the
// ratio between the two rows of ours is what the refresh interval saves.
#include <QUxAdvancedProgressDialog.h>
#include <QUxSubProgress.h>

#include <QProgressDialog>
#include <QtTest>

namespace {

constexpr int kSteps = 100000;

} // namespace

class bench_QUxAdvancedProgressDialog : public QObject
{
    Q_OBJECT

private slots:
    void stepWithEventProcessing_data()
    {
        QTest::addColumn<bool>("anchor");
        QTest::addColumn<int>("refreshInterval");
        QTest::newRow("ours") << false << 16;
        QTest::newRow("ours every step") << false << 0;
        QTest::newRow("anchor") << true << 0;
    }

    void stepWithEventProcessing()
    {
        QFETCH(bool, anchor);
        if (anchor) {
            QProgressDialog dialog(QStringLiteral("Loading"), QStringLiteral("Cancel"), 0, kSteps);
            dialog.setAutoReset(false);
            dialog.setAutoClose(false);
            dialog.show();
            QBENCHMARK
            {
                for (int i = 1; i <= kSteps; ++i) {
                    dialog.setValue(i);
                    QCoreApplication::processEvents();
                }
            }
            return;
        }
        QUxSubProgress* job = QUxAdvancedProgressDialog::addProgress(QStringLiteral("Loading"), 10, nullptr);
        QUxSubProgress* part = QUxAdvancedProgressDialog::addProgress(QStringLiteral("Part"), 1000, nullptr);
        QUxSubProgress* step = QUxAdvancedProgressDialog::addProgress(QStringLiteral("Step"), kSteps, nullptr);
        QUxAdvancedProgressDialog* dialog = QUxAdvancedProgressDialog::the();
        QFETCH(int, refreshInterval);
        for (QUxSubProgress* row : {job, part, step})
            row->setRefreshInterval(refreshInterval);
        QBENCHMARK
        {
            for (int i = 1; i <= kSteps; ++i) {
                job->setStep(i / 10000);
                part->setStep(i / 100);
                step->setStep(i);
                dialog->processEventsLoop();
            }
        }
        while (QUxAdvancedProgressDialog::progressCount() > 0)
            QUxAdvancedProgressDialog::destroyLastProgress();
    }
};

QTEST_MAIN(bench_QUxAdvancedProgressDialog)
#include "bench_QUxAdvancedProgressDialog.moc"
