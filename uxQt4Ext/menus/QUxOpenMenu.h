#pragma once

#include "uxQt4ExtGlobal.h"

#include <QMenu>

#include <memory>

class QUxOpenMenuPrivate;

/**
 * A menu that stays open when an entry is triggered, so that several entries
 * can be toggled in a row. It closes when it loses the focus, when the mouse
 * leaves it, or through setVisibleNow(false).
 * @code
 * auto* layers = new QUxOpenMenu(tr("Layers"), window);
 * for (QAction* layer : layerActions)
 *     layers->addAction(layer);
 * connect(doneButton, &QPushButton::clicked, layers, [layers] { layers->setVisibleNow(false); });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxOpenMenu : public QMenu
{
    Q_OBJECT
public:
    explicit QUxOpenMenu(const QString& title, QWidget* parent = nullptr);
    ~QUxOpenMenu() override;

    /// Shows the menu; requests to hide it, Qt's own included, are ignored.
    void setVisible(bool visible) override;
    /// Shows or hides the menu unconditionally.
    void setVisibleNow(bool visible);

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    std::unique_ptr<QUxOpenMenuPrivate> const d;
};
