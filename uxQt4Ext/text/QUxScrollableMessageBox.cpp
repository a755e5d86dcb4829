#include "QUxScrollableMessageBox.h"

#include <uxLog.h>

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>

QUxScrollableMessageBox::QUxScrollableMessageBox(QWidget* parent) : QMessageBox(parent) {}

QUxScrollableMessageBox::QUxScrollableMessageBox(QMessageBox::Icon icon, const QString& title, const QString& text,
                                                 QMessageBox::StandardButtons buttons, QWidget* parent,
                                                 Qt::WindowFlags flags)
    : QMessageBox(icon, title, text, buttons, parent, flags)
{}

QUxScrollableMessageBox::~QUxScrollableMessageBox() = default;

void QUxScrollableMessageBox::makeScrollable()
{
    // Nothing is created before both the label and the grid are found, so a
    // box that cannot be rearranged keeps no stray children.
    auto* oldLabel = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (!oldLabel) {
        uxLog::warning("QUxScrollableMessageBox: can't find text label.");
        return;
    }
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (!grid)
        grid = findChild<QGridLayout*>();
    if (!grid) {
        uxLog::warning("QUxScrollableMessageBox: can't find grid layout.");
        return;
    }
    auto* area = new QScrollArea(this);
    area->setWidgetResizable(true);
    auto* label = new QLabel(oldLabel->text(), this);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setWordWrap(false);
    area->setWidget(label);
    area->setMinimumSize(600, 600);
    area->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    grid->addWidget(area, 0, 1);
    oldLabel->setText(QStringLiteral(""));
}
