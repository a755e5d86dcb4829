// Typing into a numeric field: the validator runs on the text, then the
// commit (Enter) interprets it. Ours evaluates arithmetic and relative
// entries; the anchor is a stock QDoubleSpinBox taking a plain number.
// "ours plain 14" commits that same plain number: the like-for-like row.
// "ours shared engine" sends every text through the one kept script engine,
// "ours fresh engine" pays for a script engine per commit.
#include <QUxDoubleSpiner.h>
#include <uxScriptEvaluator_p.h>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>

#include <memory>

Q_DECLARE_METATYPE(uxScriptEvaluator::Strategy)

namespace {

void validateAndCommit(QDoubleSpinBox& spin, const QString& typed)
{
    QString text = typed;
    int pos = text.size();
    const QValidator::State state = spin.validate(text, pos);
    Q_UNUSED(state)
    spin.findChild<QLineEdit*>()->setText(text);
    spin.interpretText();
}

} // namespace

class bench_QUxDoubleSpiner : public QObject
{
    Q_OBJECT

private slots:
    void validateAndCommitExpression_data();
    void validateAndCommitExpression();
    void validateAndCommitRelative_data();
    void validateAndCommitRelative();

private:
    void addRows(const QString& oursText, bool withPlainRow);
    void run();
};

void bench_QUxDoubleSpiner::addRows(const QString& oursText, bool withPlainRow)
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("stock");
    QTest::addColumn<uxScriptEvaluator::Strategy>("strategy");
    using S = uxScriptEvaluator::Strategy;
    QTest::newRow("ours") << oursText << false << S::ArithmeticFirst;
    QTest::newRow("ours shared engine") << oursText << false << S::SharedEngine;
    QTest::newRow("ours fresh engine") << oursText << false << S::FreshEngine;
    if (withPlainRow)
        QTest::newRow("ours plain 14") << QStringLiteral("14") << false << S::ArithmeticFirst;
    QTest::newRow("anchor") << QStringLiteral("14") << true << S::ArithmeticFirst;
}

void bench_QUxDoubleSpiner::run()
{
    QFETCH(QString, text);
    QFETCH(bool, stock);
    QFETCH(uxScriptEvaluator::Strategy, strategy);

    std::unique_ptr<QDoubleSpinBox> spin;
    if (stock) {
        spin = std::make_unique<QDoubleSpinBox>();
        spin->setRange(-2147483647.0, 2147483647.0);
        spin->setKeyboardTracking(false);
    } else {
        spin = std::make_unique<QUxDoubleSpiner>();
    }
    uxScriptEvaluator::setStrategy(strategy);
    validateAndCommit(*spin, text); // warm-up: the shared engine is made on first use
    QBENCHMARK
    {
        // as after typing a new text: the evaluator has not seen it yet
        uxScriptEvaluator::forgetLastAnswer();
        validateAndCommit(*spin, text);
    }
    uxScriptEvaluator::setStrategy(uxScriptEvaluator::Strategy::ArithmeticFirst);
}

void bench_QUxDoubleSpiner::validateAndCommitExpression_data() { addRows(QStringLiteral("2*(3+4)"), true); }

void bench_QUxDoubleSpiner::validateAndCommitExpression() { run(); }

void bench_QUxDoubleSpiner::validateAndCommitRelative_data() { addRows(QStringLiteral("+=1.5"), false); }

void bench_QUxDoubleSpiner::validateAndCommitRelative() { run(); }

QTEST_MAIN(bench_QUxDoubleSpiner)
#include "bench_QUxDoubleSpiner.moc"
