#pragma once

#include "uxQt4ExtGlobal.h"

#include <QUxToolButton.h>

#include <memory>

class QUxDockWidget;
class QUxQuickAccessButtonPrivate;

/**
 * One module button of a quick access bar. It is checked while its module's
 * dock widget is visible, and toggling it shows (and raises) or hides the
 * dock. A long left press puts every bar of the process into edit mode, in
 * which buttons carry a remove badge and can be dragged to a new place.
 * @code
 * auto* button = new QUxQuickAccessButton(bar);
 * button->setCheckable(true);
 * button->setDockWidget(materialsDock);
 * connect(materialsDock, &QDockWidget::visibilityChanged, button, &QUxQuickAccessButton::changedWidgetVisibility);
 * @endcode
 * A button dragged in edit mode carries itself as payload(); fromPayload()
 * turns such bytes back into a live button or null.
 */
class UXQT4EXT_EXPORT QUxQuickAccessButton : public QUxToolButton
{
    Q_OBJECT
    Q_PROPERTY(bool editMode READ editMode)

public:
    explicit QUxQuickAccessButton(QWidget* parent = nullptr);
    ~QUxQuickAccessButton() override;

    void setDockWidget(QUxDockWidget* widget);
    /// Null for buttons that trigger a plain action, and once the dock is gone.
    QUxDockWidget* dockWidget() const;

    /// Leaves edit mode for every bar of the process.
    static void finishEditing();
    static bool editMode();
    /// The most recently constructed live button, or null.
    static QUxQuickAccessButton* lastCreated();

    /// How long a left press must be held to enter edit mode (1500 ms unless changed; values below 0 read as 0).
    static void setLongPressInterval(int milliseconds);
    static int longPressInterval();

    /// @p button's address as in-process drag data ("%p").
    static QByteArray payload(const QUxQuickAccessButton* button);
    /// The live button that @p data names, or null for anything else.
    static QUxQuickAccessButton* fromPayload(const QByteArray& data);

signals:
    void startedEditing();
    void removeButton(QUxQuickAccessButton* button);

public slots:
    void changedWidgetVisibility(bool value);

private slots:
    void activateEditMode();
    void toggleWidgetVisibility(bool value);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    static void startAnimations();
    static void stopAnimations();
    bool mouseInRemoveRange(const QPoint& pos) const;

    std::unique_ptr<QUxQuickAccessButtonPrivate> const d;
};
