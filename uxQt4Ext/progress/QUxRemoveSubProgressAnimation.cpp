#include "QUxRemoveSubProgressAnimation.h"

#include <QDialog>
#include <QLayout>
#include <QPointer>

class QUxRemoveSubProgressAnimationPrivate
{
public:
    QPointer<QWidget> target;
    QPointer<QDialog> dialog;
};

QUxRemoveSubProgressAnimation::QUxRemoveSubProgressAnimation(QWidget* target, QDialog* dialog)
    : QPropertyAnimation(target, QByteArrayLiteral("geometry"), dialog), d(new QUxRemoveSubProgressAnimationPrivate)
{
    d->target = target;
    d->dialog = dialog;
    setDuration(200);
    if (target) {
        QRect collapsed = target->geometry();
        collapsed.setBottom(collapsed.top() - 1);
        setEndValue(collapsed);
    }
    connect(this, &QAbstractAnimation::finished, this,
            &QUxRemoveSubProgressAnimation::removeTargetFromParentAndDestroyAnimation);
}

QUxRemoveSubProgressAnimation::~QUxRemoveSubProgressAnimation() = default;

void QUxRemoveSubProgressAnimation::removeTargetFromParentAndDestroyAnimation()
{
    if (d->target && d->dialog && d->dialog->layout()) {
        d->dialog->layout()->removeWidget(d->target);
        delete d->target.data();
    }
    // Later: this may run inside the animation's own finished() emission.
    deleteLater();
}
