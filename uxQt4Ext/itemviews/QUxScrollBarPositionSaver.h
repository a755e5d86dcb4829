#pragma once

#include "uxQt4ExtGlobal.h"

#include <QPointer>
#include <QScrollBar>

/**
 * Keeps a scroll bar's position for the length of a scope: what the scroll
 * bar showed when the saver was made, it shows again when the saver goes.
 * @code
 * {
 *     QUxScrollBarPositionSaver keep(listView->verticalScrollBar());
 *     model->rebuild(); // resets the model, which scrolls the list to the top
 * }
 * @endcode
 */
class UXQT4EXT_EXPORT QUxScrollBarPositionSaver
{
public:
    explicit QUxScrollBarPositionSaver(QScrollBar* scrollBar);
    ~QUxScrollBarPositionSaver();
    QUxScrollBarPositionSaver(const QUxScrollBarPositionSaver&) = default;
    QUxScrollBarPositionSaver& operator=(const QUxScrollBarPositionSaver&) = default;

    bool isValid() const { return m_valid; }
    int value() const { return m_value; }

private:
    bool m_valid = false;
    int m_value = -1;
    // Guarded: a scroll bar deleted inside the scope is simply not restored.
    QPointer<QScrollBar> m_scrollBar;
};
