#include "uxScriptEvaluator_p.h"

#include <QCoreApplication>
#include <QScriptEngine>
#include <QScriptValue>

namespace {

bool s_freshEnginePerEvaluation = false;
QScriptEngine* s_sharedEngine = nullptr;

// A field asks about the same text several times in a row (line-edit
// validator, input check, commit); stateless text always gives the same answer.
struct LastAnswer
{
    QString expression;
    bool isNumber = false;
    double value = 0.0;
    bool known = false;
};
LastAnswer s_lastAnswer;

void deleteSharedEngine()
{
    delete s_sharedEngine;
    s_sharedEngine = nullptr;
}

// Creating an engine costs far more than an evaluation; keep one until the
// application goes away.
QScriptEngine& sharedEngine()
{
    if (!s_sharedEngine) {
        s_sharedEngine = new QScriptEngine;
        qAddPostRoutine(deleteSharedEngine);
    }
    return *s_sharedEngine;
}

bool isStatelessArithmetic(const QString& text)
{
    for (const QChar c : text) {
        const ushort u = c.unicode();
        const bool admitted = (u >= '0' && u <= '9') || u == ' ' || u == '.' || u == '(' || u == ')' || u == '='
                              || u == '+' || u == '-' || u == '*' || u == '/';
        if (!admitted)
            return false;
    }
    return true;
}

bool readNumber(const QScriptValue& value, double& result)
{
    if (!value.isValid() || !value.isNumber())
        return false;
    result = value.toNumber();
    return true;
}

} // namespace

bool uxScriptEvaluator::evaluateNumber(const QString& expression, double& result)
{
    if (!isStatelessArithmetic(expression)) {
        QScriptEngine engine;
        return readNumber(engine.evaluate(expression, QString(), 1), result);
    }
    if (!s_lastAnswer.known || s_lastAnswer.expression != expression) {
        double value = 0.0;
        bool isNumber = false;
        if (s_freshEnginePerEvaluation) {
            QScriptEngine engine;
            isNumber = readNumber(engine.evaluate(expression, QString(), 1), value);
        } else {
            QScriptEngine& engine = sharedEngine();
            isNumber = readNumber(engine.evaluate(expression, QString(), 1), value);
            engine.clearExceptions();
        }
        s_lastAnswer = LastAnswer{expression, isNumber, value, true};
    }
    if (s_lastAnswer.isNumber)
        result = s_lastAnswer.value;
    return s_lastAnswer.isNumber;
}

void uxScriptEvaluator::setFreshEnginePerEvaluation(bool fresh) { s_freshEnginePerEvaluation = fresh; }

void uxScriptEvaluator::forgetLastAnswer() { s_lastAnswer = LastAnswer(); }
