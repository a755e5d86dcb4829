#pragma once

#include <QString>

/**
 * Evaluates the arithmetic typed into numeric fields as script expressions.
 *
 * Text made only of digits, blanks, points, parentheses, "=" and the four
 * operators cannot name or change script state, so it is evaluated in one
 * engine kept for the process (GUI thread only); any other text gets a fresh
 * engine so that it cannot leave state behind. The answer for the last
 * stateless text is remembered, as a field asks about the same text several
 * times per keystroke and commit.
 */
class uxScriptEvaluator
{
public:
    /// True when @p expression yields a script number (NaN and Infinity included), stored in @p result.
    static bool evaluateNumber(const QString& expression, double& result);

    /// Measurement aid: when on, every evaluation pays for its own engine. Off by default.
    static void setFreshEnginePerEvaluation(bool fresh);
    /// Measurement aid: the next evaluation runs the engine even for the text last asked about.
    static void forgetLastAnswer();
};
