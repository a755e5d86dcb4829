#pragma once

#include "uxQt4ExtGlobal.h"

#include <QDialog>
#include <QRegion>

#include <memory>

class QUxProgressDialogGUIIPrivate;

/**
 * The busy overlay: one translucent window at a time that darkens a
 * workspace widget and shows a status text over a spinning indicator,
 * laid out by the "QUxProgressDialogGUI" form ("_status", "_progress").
 * @code
 * QUxProgressDialogGUII::setWorkspace(viewport);
 * QUxProgressDialogGUII::start(tr("Preparing the scene"), nullptr);
 * buildScene();
 * QUxProgressDialogGUII::stop();
 * @endcode
 * start() with a parent that is not visible does nothing.
 */
class UXQT4EXT_EXPORT QUxProgressDialogGUII : public QDialog
{
    Q_OBJECT
public:
    explicit QUxProgressDialogGUII(QWidget* parent = nullptr);
    ~QUxProgressDialogGUII() override;

    /// Shows the overlay (created on first use) with @p text over @p parent, or else the workspace.
    static void start(const QString& text, QWidget* parent = nullptr);
    /// Hides and deletes the overlay.
    static void stop();
    /// Deletes the overlay, if any: for shutdown.
    static void destroy();
    static void setProgressVisible(bool visible);
    /// The widget the overlay covers when start() is given none.
    static void setWorkspace(QWidget* workspace);
    /// The overlay, null when none is shown.
    static QUxProgressDialogGUII* the();

    /// @p rect with its corners rounded by @p radius (clamped to half the shorter side).
    static QRegion roundedRect(const QRect& rect, int radius);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<QUxProgressDialogGUIIPrivate> const d;
};
