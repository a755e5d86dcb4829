#pragma once

#include "uxQt4ExtGlobal.h"

#include <QItemSelectionModel>

#include <memory>

class QUxCachedSelectionModelPrivate;

/**
 * A selection model that remembers the selected items by item id (the source
 * model's internal id) as the selection changes, and selects them again after
 * the model is reset. Items that are gone after a reset are skipped and come
 * back selected if a later reset brings them back. One level of proxy model is
 * looked through, so sorting and filtering do not lose the selection.
 * @code
 * auto* proxy = new QSortFilterProxyModel(view);
 * proxy->setSourceModel(sceneModel);          // a QUxAbstractTreeModel
 * view->setModel(proxy);
 * view->setSelectionModel(new QUxCachedSelectionModel(proxy, view));
 * sceneModel->refresh();                      // the selection survives
 * @endcode
 */
class UXQT4EXT_EXPORT QUxCachedSelectionModel : public QItemSelectionModel
{
    Q_OBJECT
public:
    explicit QUxCachedSelectionModel(QAbstractItemModel* model, QObject* parent = nullptr);
    ~QUxCachedSelectionModel() override;

    /// Clears the selection and forgets every remembered item.
    void deselectAll();
    /// The current selection in terms of the source model.
    QItemSelection sourceModelSelection() const;

protected:
    const QAbstractItemModel* sourceModel() const;
    QModelIndex getSourceIndex(const QModelIndex& index) const;

    /// The model's index of the item remembered as @p key; invalid if it is gone.
    virtual QModelIndex getSelectionModelIndex(quint64 key);
    virtual void storeSelected(const QModelIndex& sourceIndex);
    virtual void storeDeselected(const QModelIndex& sourceIndex);
    virtual void clearSelectionCache();
    /// One range per remembered item, in ascending key order.
    virtual QItemSelection getCachedSelection();

private slots:
    void storeSelection(QItemSelection selected, QItemSelection deselected);
    void restoreSelection();

private:
    void connectSelectionChanged();
    void disconnectSelectionChanged();

    std::unique_ptr<QUxCachedSelectionModelPrivate> const d;
};
