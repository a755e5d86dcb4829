#include "uxScriptEvaluator_p.h"

#include <QCoreApplication>
#include <QScriptEngine>
#include <QScriptValue>
#include <QVarLengthArray>

#include <charconv>
#include <cstring>

namespace {

uxScriptEvaluator::Strategy s_strategy = uxScriptEvaluator::Strategy::ArithmeticFirst;
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

/// Whether @p text nests deeper than the evaluators are allowed to recurse; linear, stops at the first excess.
bool nestsTooDeep(const QString& text)
{
    int brackets = 0;
    int signs = 0;
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '(':
        case '[':
        case '{':
            ++brackets;
            signs = 0;
            break;
        case ')':
        case ']':
        case '}':
            brackets = qMax(0, brackets - 1);
            signs = 0;
            break;
        case '+':
        case '-':
        case '!':
        case '~':
            ++signs; // a chain of prefix operators nests like brackets in any parser
            break;
        case ' ':
            break;
        default:
            signs = 0;
            break;
        }
        if (brackets + signs > uxScriptEvaluator::maxNestingDepth)
            return true;
    }
    return false;
}

bool readNumber(const QScriptValue& value, double& result)
{
    if (!value.isValid() || !value.isNumber())
        return false;
    result = value.toNumber();
    return true;
}

/**
 * Reads the everyday subset of script arithmetic: decimal literals, unary and
 * binary + - * /, parentheses and blanks. Script numbers are IEEE doubles and
 * literals round to nearest, so a text read here has exactly the value the
 * engine gives it. Whatever falls outside the subset (octal-looking literals,
 * "--", a "/" where an operand belongs, which the engine reads as a regular
 * expression, any syntax error) is refused and left to the engine.
 */
class ArithmeticReader
{
public:
    explicit ArithmeticReader(const QString& text) : m_text(text) {}

    bool read(double& result)
    {
        if (!expression(result))
            return false;
        skipBlanks();
        return m_pos == m_text.size();
    }

private:
    bool expression(double& result) { return leftToRight("+-", &ArithmeticReader::term, result); }

    bool term(double& result) { return leftToRight("*/", &ArithmeticReader::unary, result); }

    /// One precedence level: operands read by @p operand, joined by @p ops from left to right.
    bool leftToRight(const char* ops, bool (ArithmeticReader::*operand)(double&), double& result)
    {
        if (!(this->*operand)(result))
            return false;
        for (QChar op; takeOperator(ops, op);) {
            double right = 0.0;
            if (!(this->*operand)(right))
                return false;
            switch (op.toLatin1()) {
            case '+':
                result += right;
                break;
            case '-':
                result -= right;
                break;
            case '*':
                result *= right;
                break;
            default:
                result /= right;
                break;
            }
        }
        return true;
    }

    bool unary(double& result)
    {
        bool negate = false;
        for (QChar sign; takeOperator("+-", sign);)
            negate ^= sign == QLatin1Char('-');
        if (!primary(result))
            return false;
        if (negate)
            result = -result;
        return true;
    }

    bool primary(double& result)
    {
        skipBlanks();
        if (m_pos < m_text.size() && m_text.at(m_pos) == QLatin1Char('(')) {
            ++m_pos;
            if (!expression(result))
                return false;
            skipBlanks();
            if (m_pos == m_text.size() || m_text.at(m_pos) != QLatin1Char(')'))
                return false;
            ++m_pos;
            return true;
        }
        return number(result);
    }

    bool number(double& result)
    {
        const int start = m_pos;
        const int integerDigits = skipDigits();
        const bool point = m_pos < m_text.size() && m_text.at(m_pos) == QLatin1Char('.');
        if (point)
            ++m_pos;
        const int fractionDigits = point ? skipDigits() : 0;
        if (integerDigits + fractionDigits == 0)
            return false;
        // The engine reads a leading zero followed by digits as octal.
        if (integerDigits > 1 && m_text.at(start) == QLatin1Char('0'))
            return false;
        // from_chars rounds to nearest like the engine and, unlike strtod, ignores the C locale.
        QVarLengthArray<char, 32> digits;
        for (int i = start; i < m_pos; ++i)
            digits.append(char(m_text.at(i).unicode()));
        const char* end = digits.constData() + digits.size();
        const std::from_chars_result read = std::from_chars(digits.constData(), end, result);
        return read.ec == std::errc() && read.ptr == end; // out of range is left to the engine
    }

    /// Takes one of @p ops after blanks, refusing "++" and "--", which the engine reads as one token.
    bool takeOperator(const char* ops, QChar& op)
    {
        skipBlanks();
        const char c = m_pos < m_text.size() ? m_text.at(m_pos).toLatin1() : '\0';
        if (c == '\0' || !std::strchr(ops, c))
            return false;
        const bool doubled = (c == '+' || c == '-') && m_pos + 1 < m_text.size() && m_text.at(m_pos + 1) == c;
        if (doubled)
            return false;
        op = QLatin1Char(c);
        ++m_pos;
        return true;
    }

    int skipDigits()
    {
        const int start = m_pos;
        while (m_pos < m_text.size() && m_text.at(m_pos).isDigit())
            ++m_pos;
        return m_pos - start;
    }

    void skipBlanks()
    {
        while (m_pos < m_text.size() && m_text.at(m_pos) == QLatin1Char(' '))
            ++m_pos;
    }

    const QString& m_text;
    int m_pos = 0;
};

bool evaluateWithEngine(const QString& expression, double& result, bool fresh)
{
    if (fresh) {
        QScriptEngine engine;
        return readNumber(engine.evaluate(expression, QString(), 1), result);
    }
    QScriptEngine& engine = sharedEngine();
    const bool isNumber = readNumber(engine.evaluate(expression, QString(), 1), result);
    engine.clearExceptions();
    return isNumber;
}

} // namespace

bool uxScriptEvaluator::evaluateNumber(const QString& expression, double& result)
{
    if (nestsTooDeep(expression))
        return false;
    if (!isStatelessArithmetic(expression))
        return evaluateWithEngine(expression, result, true);
    if (s_strategy == Strategy::ArithmeticFirst && ArithmeticReader(expression).read(result))
        return true;
    if (!s_lastAnswer.known || s_lastAnswer.expression != expression) {
        double value = 0.0;
        const bool isNumber = evaluateWithEngine(expression, value, s_strategy == Strategy::FreshEngine);
        s_lastAnswer = LastAnswer{expression, isNumber, value, true};
    }
    if (s_lastAnswer.isNumber)
        result = s_lastAnswer.value;
    return s_lastAnswer.isNumber;
}

void uxScriptEvaluator::setStrategy(Strategy strategy) { s_strategy = strategy; }

void uxScriptEvaluator::forgetLastAnswer() { s_lastAnswer = LastAnswer(); }
