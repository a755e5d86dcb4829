#include "QUxClickableLabel.h"

#include <QMouseEvent>

QUxClickableLabel::QUxClickableLabel(QWidget* parent) : QLabel(parent) {}

QUxClickableLabel::~QUxClickableLabel() = default;

void QUxClickableLabel::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    emit clicked();
}
