#pragma once

#include "uxQt4ExtGlobal.h"

#include <QItemDelegate>

/**
 * The item delegate of QUxDataWidgetMapper: a combo box shows the entry whose
 * Qt::UserRole data equals the model's value, and writes that data back, so
 * that the model holds ids while the user reads names. Other editors behave
 * as with QItemDelegate.
 * @code
 * combo->addItem(tr("Phong"), QStringLiteral("phong"));
 * mapper->setItemDelegate(new QUxDataWidgetMapperItemDelegate(mapper));
 * @endcode
 */
class UXQT4EXT_EXPORT QUxDataWidgetMapperItemDelegate : public QItemDelegate
{
    Q_OBJECT
public:
    explicit QUxDataWidgetMapperItemDelegate(QObject* parent = nullptr);
    ~QUxDataWidgetMapperItemDelegate() override;

    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
};
