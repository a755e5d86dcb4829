#pragma once

#include "uxQt4ExtGlobal.h"

#include <QStyledItemDelegate>

/**
 * A delegate that never opens an editor, for read-only columns of editable models.
 * @code
 * view->setItemDelegateForColumn(2, new QUxNoEditDelegate(view));
 * @endcode
 */
class UXQT4EXT_EXPORT QUxNoEditDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit QUxNoEditDelegate(QObject* parent = nullptr);
    ~QUxNoEditDelegate() override;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
