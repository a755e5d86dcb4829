#pragma once

#include "uxQt4ExtGlobal.h"

#include <QColor>
#include <QWidget>

#include <memory>

class QUxProgressIndicatorPrivate;

/**
 * A busy indicator: a ring of twelve capsules fading from the brightest one,
 * which turns 30 degrees each animation tick. Stopped, it paints nothing
 * unless it is displayed when stopped.
 * @code
 * auto* busy = new QUxProgressIndicator(statusBar);
 * busy->setColor(Qt::white);
 * busy->startAnimation();
 * // ... later
 * busy->stopAnimation();
 * @endcode
 * Screen readers see an animation whose busy state follows isAnimated().
 */
class UXQT4EXT_EXPORT QUxProgressIndicator : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int animationDelay READ animationDelay WRITE setAnimationDelay)
    Q_PROPERTY(bool displayedWhenStopped READ isDisplayedWhenStopped WRITE setDisplayedWhenStopped)
    Q_PROPERTY(QColor color READ color WRITE setColor)
    Q_PROPERTY(bool animated READ isAnimated)
public:
    explicit QUxProgressIndicator(QWidget* parent = nullptr);
    ~QUxProgressIndicator() override;

    bool isAnimated() const;
    /// Milliseconds between two ticks (default 40; at least 1).
    int animationDelay() const;
    bool isDisplayedWhenStopped() const;
    QColor color() const;

    QSize sizeHint() const override;
    int heightForWidth(int w) const override;

public slots:
    void startAnimation();
    void stopAnimation();
    void setAnimationDelay(int delay);
    void setDisplayedWhenStopped(bool state);
    void setColor(const QColor& color);

protected:
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<QUxProgressIndicatorPrivate> const d;
};
