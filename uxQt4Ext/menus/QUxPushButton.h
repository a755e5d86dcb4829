#pragma once

#include "uxQt4ExtGlobal.h"

#include <QPushButton>

#include <memory>

class QUxPushButtonPrivate;

/**
 * A push button that a right-button release clicks as well. Which button
 * released last is recorded class-wide by whoever needs to tell the two
 * apart (an event filter, say), before the click is handled.
 * @code
 * auto* reset = new QUxPushButton(panel);
 * connect(reset, &QPushButton::clicked, panel, [] {
 *     if (QUxPushButton::getLastMouseReleaseButton() == Qt::RightButton)
 *         showResetOptions();
 * });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxPushButton : public QPushButton
{
    Q_OBJECT
public:
    explicit QUxPushButton(QWidget* parent = nullptr);
    ~QUxPushButton() override;

    static void setLastMouseReleaseButton(Qt::MouseButton button);
    static Qt::MouseButton getLastMouseReleaseButton();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<QUxPushButtonPrivate> const d;
};
