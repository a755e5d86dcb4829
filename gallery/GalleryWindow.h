#pragma once

#include <QMainWindow>

class QUxDockWidget;
class QUxDockWindowManager;
class QUxQuickAccessBar;

/// The showcase, run the way a host runs its main window: every page is a
/// module of a dock window manager, filed in its group menu, on the quick
/// access bar and in a search menu. The layout and the bar are kept between runs.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// @p keepLayout restores the last session's layout now and saves it on close.
    explicit GalleryWindow(bool keepLayout = true, QWidget* parent = nullptr);

    /// Renders every page to DIR/<page>.png and the whole window to DIR/gallery.png; returns the written paths.
    QStringList saveScreenshots(const QString& directory);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addPages();
    void addMenus();
    void addGalleryToolBar();
    void fillQuickAccess(const QStringList& names);
    void restoreLayout();
    void saveLayout() const;

    QUxDockWindowManager* m_manager = nullptr;
    QUxQuickAccessBar* m_bar = nullptr;
    QList<QUxDockWidget*> m_docks;
    QStringList m_names; ///< untranslated page titles, the modules' names
    QStringList m_fileNames;
    QByteArray m_defaultLayout;
    bool m_keepLayout = true;
};
