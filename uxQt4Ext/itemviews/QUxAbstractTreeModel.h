#pragma once

#include "uxQt4ExtGlobal.h"

#include <QAbstractItemModel>

#include <memory>
#include <vector>

class QUxAbstractTreeModelPrivate;

/**
 * An item model over the host's own hierarchy, in which every item is named by
 * a 32-bit unsigned id carried in QModelIndex::internalId(). A subclass answers
 * a few questions about ids (children, parent, row, text); this class turns them
 * into the item-model protocol, including drag and drop of ids between rows.
 *
 * The id 0 never names an item; while the root id is 0 the model is empty. An
 * invalid index stands for the root item. Structural change is announced only
 * by a full reset (refresh(), setRootId(), or any drop), never row by row.
 * @code
 * class SceneModel : public QUxAbstractTreeModel
 * {
 * public:
 *     QString getMimeType() override { return QStringLiteral("application/x-scene-node"); }
 *     unsigned int getChildId(unsigned int parentId, int row) override { return scene.child(parentId, row); }
 *     // ... getText, getRow, getParentId, getChildCount, ...
 * };
 * model->setRootId(scene.rootId());
 * @endcode
 */
class UXQT4EXT_EXPORT QUxAbstractTreeModel : public QAbstractItemModel
{
    Q_OBJECT
public:
    explicit QUxAbstractTreeModel(QObject* parent = nullptr);
    ~QUxAbstractTreeModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QModelIndex>& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::DropActions supportedDropActions() const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Shows the items under @p id; resets the model.
    virtual void setRootId(unsigned int id);
    virtual unsigned int getRootId() const;
    /// Announces a structural change by a full reset, unless signals are blocked.
    virtual void refresh();

    /// The one MIME type under which ids are dragged.
    virtual QString getMimeType() = 0;
    virtual QString getText(unsigned int id) = 0;
    /// Renames an item; false refuses the edit.
    virtual bool setText(unsigned int id, const QString& text) = 0;
    virtual QVariant getDecoration(unsigned int id) = 0;
    /// False paints the item in the host style's inactive colour.
    virtual bool isActive(unsigned int id) = 0;
    /// Id of the row-th child of @p parentId, 0 if there is none.
    virtual unsigned int getChildId(unsigned int parentId, int row) = 0;
    /// Row of the item under its parent, negative if unknown.
    virtual int getRow(unsigned int id) = 0;
    virtual int getChildCount(unsigned int id) = 0;
    /// Id of the parent, 0 if there is none.
    virtual unsigned int getParentId(unsigned int id) = 0;

    /// The id of @p index, or the root id for an invalid index.
    unsigned int getItemId(const QModelIndex& index) const;
    /// The index of item @p id; invalid for 0, the root and items of unknown row.
    QModelIndex getModelIndex(unsigned int id);

protected:
    virtual QString getEditText(unsigned int id);
    virtual bool isCheckable(unsigned int id) const;
    virtual bool isEditable(unsigned int id) const;
    virtual bool isDraggable(unsigned int id) const;
    virtual bool isDroppable(unsigned int id) const;
    /// Drop onto item @p parentId.
    virtual void moveTo(unsigned int parentId, const std::vector<unsigned int>& ids);
    /// Drop between rows: before @p row of @p parentId.
    virtual void moveBefore(unsigned int parentId, unsigned int row, const std::vector<unsigned int>& ids);

    /// The ids a drag carries; empty when the payload is not ours or is malformed.
    std::vector<unsigned int> getIds(const QMimeData* mime);

private:
    std::unique_ptr<QUxAbstractTreeModelPrivate> const d;
};
