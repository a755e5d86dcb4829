#pragma once

#include <QString>

/**
 * Evaluates the arithmetic typed into numeric fields as script expressions.
 *
 * Text made only of digits, blanks, points, parentheses, "=" and the four
 * operators cannot name or change script state. Plain arithmetic among it is
 * read directly (same numbers as the engine, without its overhead); the rest
 * is evaluated in one engine kept for the process (GUI thread only). Any other
 * text gets a fresh engine so that it cannot leave state behind. The engine's
 * answer for the last stateless text is remembered, as a field asks about the
 * same text several times per keystroke and commit.
 *
 * A field takes whatever is pasted into it, so the work per text is bounded:
 * text nested deeper than maxNestingDepth is refused before either evaluator
 * sees it, which keeps both off the edge of the stack.
 */
class uxScriptEvaluator
{
public:
    /// Open brackets plus a run of prefix signs ("-(-(+1))" is 4 deep); deeper text is no number.
    static constexpr int maxNestingDepth = 100;

    /// True when @p expression yields a script number (NaN and Infinity included), stored in @p result.
    static bool evaluateNumber(const QString& expression, double& result);

    /// How stateless text is evaluated; the results never differ, only the cost.
    enum class Strategy {
        ArithmeticFirst, ///< the default: direct reading, the shared engine for what it cannot read
        SharedEngine,    ///< every text through the shared engine
        FreshEngine      ///< every text pays for an engine of its own
    };
    /// Measurement and test aid.
    static void setStrategy(Strategy strategy);
    /// Measurement aid: the next evaluation runs the engine even for the text last asked about.
    static void forgetLastAnswer();
};
