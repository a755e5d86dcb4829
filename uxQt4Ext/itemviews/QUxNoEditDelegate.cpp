#include "QUxNoEditDelegate.h"

QUxNoEditDelegate::QUxNoEditDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

QUxNoEditDelegate::~QUxNoEditDelegate() = default;

QWidget* QUxNoEditDelegate::createEditor(QWidget*, const QStyleOptionViewItem&, const QModelIndex&) const
{
    return nullptr;
}
