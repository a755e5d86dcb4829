#include "QUxDataWidgetMapperItemDelegate.h"

#include <QComboBox>

QUxDataWidgetMapperItemDelegate::QUxDataWidgetMapperItemDelegate(QObject* parent) : QItemDelegate(parent) {}

QUxDataWidgetMapperItemDelegate::~QUxDataWidgetMapperItemDelegate() = default;

void QUxDataWidgetMapperItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(combo->findData(index.data(Qt::EditRole), Qt::UserRole, Qt::MatchCaseSensitive));
        return;
    }
    QItemDelegate::setEditorData(editor, index);
}

void QUxDataWidgetMapperItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                                   const QModelIndex& index) const
{
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        if (model)
            model->setData(index, combo->currentData(Qt::UserRole), Qt::EditRole);
        return;
    }
    QItemDelegate::setModelData(editor, model, index);
}
