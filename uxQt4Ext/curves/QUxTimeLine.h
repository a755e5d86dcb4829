#pragma once

#include "uxQt4ExtGlobal.h"

#include <QColor>
#include <QWidget>

#include <map>
#include <memory>

class QAction;
class QUxTimeLinePrivate;

/**
 * A horizontal frame ruler with a current-frame cursor. Scrubbing with the
 * left or middle mouse button moves the cursor; the right button opens an
 * "Options" menu that switches the labels between frame numbers, seconds
 * (frame / fps) or both. Coloured key-frame markers can be laid over it.
 * Labels are spaced by a decade rule, so painting costs the same for any
 * number of frames.
 * @code
 * auto* timeLine = new QUxTimeLine(panel);
 * timeLine->setEndFrame(250);
 * timeLine->setFps(30.0);
 * timeLine->setKeyFrames({{12.0f, Qt::red}, {100.0f, Qt::yellow}});
 * connect(timeLine, &QUxTimeLine::currentFrameChanged, player, &Player::seek);
 * @endcode
 */
class UXQT4EXT_EXPORT QUxTimeLine : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int currentFrame READ currentFrame WRITE setCurrentFrame NOTIFY currentFrameChanged)
    Q_PROPERTY(int startFrame READ startFrame WRITE setStartFrame)
    Q_PROPERTY(int endFrame READ endFrame WRITE setEndFrame)
    Q_PROPERTY(double fps READ fps WRITE setFps)
    Q_PROPERTY(QColor foregroundColor READ foregroundColor WRITE setForegroundColor)
    Q_PROPERTY(QColor highlightColor READ highlightColor WRITE setHighlightColor)
    Q_PROPERTY(QColor backGradientColor1 READ backGradientColor1 WRITE setBackGradientColor1)
    Q_PROPERTY(QColor backGradientColor2 READ backGradientColor2 WRITE setBackGradientColor2)

public:
    explicit QUxTimeLine(QWidget* parent = nullptr);
    ~QUxTimeLine() override;

    int currentFrame() const;
    int startFrame() const;
    int endFrame() const;
    double fps() const;
    QColor foregroundColor() const;
    QColor highlightColor() const;
    QColor backGradientColor1() const;
    QColor backGradientColor2() const;

    /// Replaces the key-frame markers; keys that are not finite are left out.
    void setKeyFrames(const std::map<float, QColor>& keyFrames);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void currentFrameChanged(int frame);
    /// A scrub with the mouse ended.
    void finishedSliding();

public slots:
    /// Emits currentFrameChanged only when @p frame differs from the last one reported.
    void setCurrentFrame(int frame);
    /// With @p force, reports and repaints even an unchanged frame.
    void setCurrentFrame(int frame, bool force);
    /// No validation: an end before the start paints as a one-frame ruler.
    void setStartFrame(int frame);
    void setEndFrame(int frame);
    /// Frames per second for the seconds labels; zero, negative or non-finite values are ignored.
    void setFps(double fps);
    void setForegroundColor(const QColor& color);
    void setHighlightColor(const QColor& color);
    void setBackGradientColor1(const QColor& color);
    void setBackGradientColor2(const QColor& color);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private slots:
    void activateMenuEntry(QAction* action);

private:
    int d2i(double value) const;
    int toLocal(int x) const;
    int toPixel(double frame) const;
    /// Frames between two labelled ticks.
    int getFrameOffset() const;

    std::unique_ptr<QUxTimeLinePrivate> const d;
};
