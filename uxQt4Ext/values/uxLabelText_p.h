#pragma once

#include <QString>

/// What a label shows of the text a host gives it. Laying out text costs time
/// and memory in proportion to its length: a megabyte froze the window for
/// seconds on every layout and paint. Getters still answer the whole text.
namespace uxLabelText {

constexpr int maxShownLength = 1024;

inline QString shown(const QString& text)
{
    if (text.size() <= maxShownLength)
        return text;
    // never split a surrogate pair
    return text.left(text.at(maxShownLength - 1).isHighSurrogate() ? maxShownLength - 1 : maxShownLength);
}

} // namespace uxLabelText
