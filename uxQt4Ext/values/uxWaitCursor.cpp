#include "uxWaitCursor.h"

#include <QApplication>
#include <QCursor>

uxWaitCursor::uxWaitCursor(QObject* parent) : QObject(parent)
{
    QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
}

uxWaitCursor::~uxWaitCursor()
{
    if (--m_count == 0)
        QApplication::restoreOverrideCursor();
}
