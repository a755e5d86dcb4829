#include "GalleryWindow.h"

#include "GalleryPage.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>

GalleryWindow::GalleryWindow(QWidget* parent) : QMainWindow(parent)
{
    setWindowTitle(tr("uxQt4Ext Gallery"));
    auto* central = new QWidget(this);
    auto* layout = new QHBoxLayout(central);
    m_list = new QListWidget(central);
    m_list->setObjectName(QStringLiteral("GalleryPageList"));
    m_list->setFixedWidth(150);
    m_stack = new QStackedWidget(central);
    layout->addWidget(m_list);
    layout->addWidget(m_stack, 1);
    setCentralWidget(central);

    for (const GalleryPage& page : GalleryPages::all()) {
        auto* scroll = new QScrollArea(m_stack);
        scroll->setWidgetResizable(true);
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidget(page.create());
        m_stack->addWidget(scroll);
        m_list->addItem(page.title);
        m_fileNames << page.fileName;
    }
    connect(m_list, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
    m_list->setCurrentRow(0);
    resize(1180, 820);
}

QStringList GalleryWindow::saveScreenshots(const QString& directory)
{
    QDir().mkpath(directory);
    QStringList written;
    for (int row = 0; row < m_list->count(); ++row) {
        m_list->setCurrentRow(row);
        QApplication::processEvents();
        const QString path = QDir(directory).filePath(m_fileNames.at(row) + QStringLiteral(".png"));
        if (grab().save(path))
            written << path;
    }
    return written;
}
