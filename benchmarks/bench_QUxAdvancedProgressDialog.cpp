// A long host operation of 100,000 steps that keeps its progress on screen.
// Ours: three nested rows of the shared progress dialog (whole job, part,
// step), all three set each step, then processEventsLoop(). The anchor: a
// shown QProgressDialog set to the step, then QCoreApplication::processEvents().
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
        QTest::newRow("ours") << false;
        QTest::newRow("anchor") << true;
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
