#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>
#include <string>

class QUxTimeLineRangePrivate;

/**
 * A horizontal range bar inside a frame interval, with a grip at each end.
 * Dragging a grip moves that end of the range; dragging the bar moves the
 * whole range while it fits inside the interval.
 * @code
 * auto* range = new QUxTimeLineRange(panel);
 * range->setEndFrame(500);
 * range->setRangeStartFrame(100);
 * range->setRangeEndFrame(200);
 * connect(range, &QUxTimeLineRange::rangeStartChanged, timeLine, &QUxTimeLine::setStartFrame);
 * connect(range, &QUxTimeLineRange::rangeEndChanged, timeLine, &QUxTimeLine::setEndFrame);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxTimeLineRange : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int rangeStartFrame READ rangeStartFrame WRITE setRangeStartFrame NOTIFY rangeStartChanged)
    Q_PROPERTY(int rangeEndFrame READ rangeEndFrame WRITE setRangeEndFrame NOTIFY rangeEndChanged)
    Q_PROPERTY(int startFrame READ startFrame WRITE setStartFrame)
    Q_PROPERTY(int endFrame READ endFrame WRITE setEndFrame)

public:
    explicit QUxTimeLineRange(QWidget* parent = nullptr);
    ~QUxTimeLineRange() override;

    int rangeStartFrame() const;
    int rangeEndFrame() const;
    int startFrame() const;
    int endFrame() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void rangeStartChanged(int frame);
    void rangeEndChanged(int frame);

public slots:
    /// Emits rangeStartChanged on every call, changed or not.
    void setRangeStartFrame(int frame);
    /// Emits rangeEndChanged on every call, changed or not.
    void setRangeEndFrame(int frame);
    /// An interval of zero or fewer frames paints as one frame wide.
    void setStartFrame(int frame);
    void setEndFrame(int frame);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// Whether (@p x, @p y) lies on the "left" or "right" grip.
    bool hasHitStretchControl(int x, int y, const std::string& side) const;
    bool hasHitRangeControl(int x, int y) const;
    int d2i(double value) const;
    int toLocal(int x) const;
    int toPixel(double frame) const;

    std::unique_ptr<QUxTimeLineRangePrivate> const d;
};
