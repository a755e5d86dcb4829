#pragma once

#include "uxQt4ExtGlobal.h"

#include <QPropertyAnimation>

#include <memory>

class QDialog;
class QUxRemoveSubProgressAnimationPrivate;

/**
 * Collapses a row of a progress dialog to zero height in 200 ms, then takes
 * it out of the dialog's layout, deletes it and deletes itself.
 * @code
 * auto* collapse = new QUxRemoveSubProgressAnimation(row, dialog);
 * collapse->start();
 * @endcode
 * The animation belongs to the dialog; a target or dialog deleted meanwhile is
 * left alone.
 */
class UXQT4EXT_EXPORT QUxRemoveSubProgressAnimation : public QPropertyAnimation
{
    Q_OBJECT
public:
    QUxRemoveSubProgressAnimation(QWidget* target, QDialog* dialog);
    ~QUxRemoveSubProgressAnimation() override;

public slots:
    void removeTargetFromParentAndDestroyAnimation();

private:
    std::unique_ptr<QUxRemoveSubProgressAnimationPrivate> const d;
};
