#include "QUxScrollBarPositionSaver.h"

QUxScrollBarPositionSaver::QUxScrollBarPositionSaver(QScrollBar* scrollBar) : m_scrollBar(scrollBar)
{
    if (scrollBar) {
        m_value = scrollBar->value();
        m_valid = true;
    }
}

QUxScrollBarPositionSaver::~QUxScrollBarPositionSaver()
{
    if (m_valid && m_scrollBar)
        m_scrollBar->setValue(m_value);
}
