#pragma once

#include "uxQt4ExtGlobal.h"

#include <QDockWidget>
#include <QIcon>

#include <memory>

class QUxDockWidgetPrivate;
class QUxTitleBarGUIW;

/**
 * The frame of a module window: a dock widget with a compact title bar
 * (module icon, title, allow-docking, dock/undock and close buttons), a
 * per-window switch that keeps a floating module from docking back, and a
 * rounded grey outline while floating.
 * @code
 * auto* dock = new QUxDockWidget(tr("Materials"), "Materials", materialsIcon, mainWindow);
 * dock->setWidget(new MaterialsPanel);
 * dock->setNickName(tr("Mat"));
 * mainWindow->addDockWidget(Qt::RightDockWidgetArea, dock);
 * dock->setDockingEnabled(false); // stays where it is; may float, may not dock back
 * @endcode
 * A module dragged by its title icon carries the dock as payload();
 * fromPayload() turns such bytes back into a live dock or null.
 */
class UXQT4EXT_EXPORT QUxDockWidget : public QDockWidget
{
    Q_OBJECT

public:
    QUxDockWidget(const QString& title, const QString& name, const QIcon& icon = QIcon(), QWidget* parent = nullptr,
                  Qt::WindowFlags flags = Qt::WindowFlags());
    explicit QUxDockWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~QUxDockWidget() override;

    /// Builds (or rebuilds) the title bar; @p name prefixes its label's object name.
    void init(const QString& title, const QString& name);

    void setIcon(const QIcon& icon);
    QIcon icon() const;
    void setTitle(const QString& title);
    void setNickName(const QString& nickName);
    QString nickName() const;
    void setIntName(const QString& name);
    const QString& getIntName() const;
    void setToolclipKey(const QString& key);
    QString getToolclipKey() const;
    bool dockingEnabled() const;
    void showDockingButtons(bool show);
    /// The title bar, null only while init() has not run.
    QUxTitleBarGUIW* titleBar() const;

    /// Refuses to dock back while docking is disabled.
    virtual void setFloating(bool floating);

    /// @p dock's address as in-process drag data ("%p").
    static QByteArray payload(const QUxDockWidget* dock);
    /// The live dock that @p data names, or null for anything else.
    static QUxDockWidget* fromPayload(const QByteArray& data);

public slots:
    void setDockingEnabled(bool value);
    void toggleDock();
    void changedTopLevel(bool topLevel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<QUxDockWidgetPrivate> const d;
};
