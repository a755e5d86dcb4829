#pragma once

#include "uxQt4ExtGlobal.h"

#include <QLabel>

#include <memory>

class QUxDockWidget;
class QUxDragModuleLabelPrivate;

/**
 * A picture label that can be dragged elsewhere in the application (onto the
 * quick access bar, say) to hand over its module window. The drag carries the
 * module under "application/corva-module-icon"; a receiver turns it back into
 * a dock with QUxDockWidget::fromPayload(), which is null for a label without
 * a module or whose module has since been deleted.
 * @code
 * auto* handle = new QUxDragModuleLabel(dock->icon().pixmap(16, 16), header);
 * handle->setModule(dock);
 * // receiver:
 * QUxDockWidget* module = QUxDockWidget::fromPayload(mime->data("application/corva-module-icon"));
 * @endcode
 */
class UXQT4EXT_EXPORT QUxDragModuleLabel : public QLabel
{
    Q_OBJECT

public:
    explicit QUxDragModuleLabel(QWidget* parent = nullptr);
    explicit QUxDragModuleLabel(const QPixmap& pixmap, QWidget* parent = nullptr);
    ~QUxDragModuleLabel() override;

    /// The module a drag carries; not owned, forgotten when it is deleted.
    void setModule(QUxDockWidget* module);
    QUxDockWidget* module() const;

    /// MIME type of the drag: "application/corva-module-icon".
    static QString mimeType();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<QUxDragModuleLabelPrivate> const d;
};
