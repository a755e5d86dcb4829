#pragma once

#include "uxQt4ExtGlobal.h"

#include <QTreeView>

#include <memory>

class QUxCachedTreeViewPrivate;

/**
 * A tree view that remembers which items are expanded, by item id (the source
 * model's internal id), and expands them again after the model is reset. One
 * level of proxy model is looked through. Pair it with QUxCachedSelectionModel
 * to keep the selection as well.
 * @code
 * auto* view = new QUxCachedTreeView(panel);
 * view->setModel(sceneModel);                 // a QUxAbstractTreeModel
 * view->setSelectionModel(new QUxCachedSelectionModel(sceneModel, view));
 * view->setParentsExpanded(sceneModel->getModelIndex(nodeId), true);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxCachedTreeView : public QTreeView
{
    Q_OBJECT
public:
    explicit QUxCachedTreeView(QWidget* parent = nullptr);
    ~QUxCachedTreeView() override;

    void setModel(QAbstractItemModel* model) override;
    /// Expands or collapses every ancestor of @p index, not @p index itself.
    void setParentsExpanded(const QModelIndex& index, bool expand);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void clearExpandedCache();

private slots:
    void storeExpanded(QModelIndex index);
    void storeCollapsed(QModelIndex index);
    void restoreExpanded();

private:
    std::unique_ptr<QUxCachedTreeViewPrivate> const d;
};
