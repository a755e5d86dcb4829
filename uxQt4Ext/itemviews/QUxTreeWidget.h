#pragma once

#include "uxQt4ExtGlobal.h"

#include <QTreeWidget>

#include <memory>

class QMenu;
class QUxTreeWidgetPrivate;

/**
 * A tree widget base for the host's panels: subclasses start their own drags,
 * name the MIME types they accept and handle drops themselves (the tree never
 * moves its own items), and fill a popup menu that the owner's context-menu
 * request opens.
 * @code
 * class NodeTree : public QUxTreeWidget
 * {
 * public:
 *     explicit NodeTree(QWidget* parent) : QUxTreeWidget(parent, "NodeTree") { initWidget(parent); }
 *     void addAcceptedDropFormats() override { addAcceptedDropFormat("application/x-node-ids"); }
 *     void onDrop(QDropEvent* event, QString format) override { reparent(event->mimeData()->data(format)); }
 * };
 * @endcode
 */
class UXQT4EXT_EXPORT QUxTreeWidget : public QTreeWidget
{
    Q_OBJECT
public:
    explicit QUxTreeWidget(QWidget* parent = nullptr, const char* name = nullptr,
                           Qt::WindowFlags flags = Qt::WindowFlags());
    ~QUxTreeWidget() override;

    /// Sets the tree up for drag and drop and its popup menu; call once the subclass is built.
    void initWidget(QWidget* owner);
    void addAcceptedDropFormat(QString format);
    QMenu* popupMenu() const;

    // Hooks for subclasses, in this order on purpose: hosts derive from it.
    virtual void addAcceptedDropFormats();
    virtual void addDelegates();
    virtual void updatePopupItemVisibility();
    virtual void onStartDrag();
    virtual void onDrop(QDropEvent* event, QString format);
    virtual bool allowPopup();
    virtual void checkAcceptedDropFormats(QDragMoveEvent* event);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private slots:
    void showPopup(const QPoint& pos);

private:
    std::unique_ptr<QUxTreeWidgetPrivate> const d;
};
