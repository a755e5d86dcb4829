#pragma once

#include <QMainWindow>

class QListWidget;
class QStackedWidget;

/// The showcase: a list of pages on the left, the chosen page on the right.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit GalleryWindow(QWidget* parent = nullptr);

    /// Renders every page to DIR/<page>.png; returns the written paths.
    QStringList saveScreenshots(const QString& directory);

private:
    QListWidget* m_list = nullptr;
    QStackedWidget* m_stack = nullptr;
    QStringList m_fileNames;
};
