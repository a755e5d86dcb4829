#include "QUxAnimatedMenu.h"

#include <QTimer>

namespace {
constexpr int kFadeSteps = 300;
constexpr int kFadeIntervalMs = 1;
} // namespace

class QUxAnimatedMenuPrivate
{
public:
    explicit QUxAnimatedMenuPrivate(QUxAnimatedMenu* menu) : timer(new QTimer(menu)) {}

    QTimer* timer;
    int step = 0;
};

QUxAnimatedMenu::QUxAnimatedMenu(QWidget* parent) : QMenu(parent), d(new QUxAnimatedMenuPrivate(this))
{
    connect(d->timer, &QTimer::timeout, this, &QUxAnimatedMenu::fadeIn);
    connect(this, &QMenu::aboutToShow, this, &QUxAnimatedMenu::makeTransparent);
}

QUxAnimatedMenu::QUxAnimatedMenu(const QString& title, QWidget* parent)
    : QMenu(title, parent), d(new QUxAnimatedMenuPrivate(this))
{
    connect(d->timer, &QTimer::timeout, this, &QUxAnimatedMenu::fadeIn);
    connect(this, &QMenu::aboutToShow, this, &QUxAnimatedMenu::makeTransparent);
}

QUxAnimatedMenu::~QUxAnimatedMenu() = default;

void QUxAnimatedMenu::makeTransparent() { setWindowOpacity(0.0); }

void QUxAnimatedMenu::fadeIn()
{
    if (d->step == kFadeSteps)
        d->timer->stop();
    setWindowOpacity(float(d->step) / float(kFadeSteps));
    // A host calling the slot after the fade is over keeps the menu opaque.
    if (d->step < kFadeSteps)
        ++d->step;
}

void QUxAnimatedMenu::showEvent(QShowEvent*)
{
    d->step = 0;
    d->timer->start(kFadeIntervalMs);
}
