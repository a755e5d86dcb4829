#pragma once

#include "uxQt4ExtGlobal.h"

#include <QObject>

/**
 * Shows the wait cursor over the whole application while it lives.
 * @code
 * uxWaitCursor wait;
 * loadScene();
 * @endcode
 * Nested wait cursors stack through Qt's override-cursor stack.
 */
class UXQT4EXT_EXPORT uxWaitCursor : public QObject
{
    Q_OBJECT
public:
    explicit uxWaitCursor(QObject* parent = nullptr);
    ~uxWaitCursor() override;

private:
    qint32 m_count = 1;
};
