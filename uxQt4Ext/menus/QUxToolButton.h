#pragma once

#include "uxQt4ExtGlobal.h"

#include <QToolButton>

#include <memory>

class QUxToolButtonPrivate;

/**
 * The host's tool button: it follows its own process-wide switch between
 * text under the icon and icon only, cannot be triggered from the keyboard
 * (Space goes on to the parent, other keys are swallowed), and draws a small
 * grey arrow at its right edge when it has a menu.
 * @code
 * auto* shading = new QUxToolButton(panel);
 * shading->setMenu(shadingMenu);
 * QUxToolButton::showButtonText(true);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxToolButton : public QToolButton
{
    Q_OBJECT
public:
    explicit QUxToolButton(QWidget* parent = nullptr);
    ~QUxToolButton() override;

    static void showButtonText(bool on);
    static bool buttonTextShown();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<QUxToolButtonPrivate> const d;
};
