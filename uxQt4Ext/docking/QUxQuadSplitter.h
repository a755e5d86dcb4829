#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <functional>
#include <memory>

class QUxQuadSplitterPrivate;

/**
 * Tiles one to four views around one movable cross point: one view fills the
 * area, two stand side by side, a third spans the whole bottom, four make a
 * 2 x 2 grid. Dragging a bar (or the crossing) shows a rubber band line and
 * applies the new cross point on release; Escape drops the drag. The cross
 * point is kept as a fraction of the size, so resizing scales the panes.
 * @code
 * auto* views = new QUxQuadSplitter(mainWindow);
 * for (int i = 0; i < 4; ++i)
 *     views->insertWidget(new RenderView, -1);
 * views->setCurrentWidgetCallback([this](int) { return activeRenderView(); });
 * connect(views, &QUxQuadSplitter::focusChanged, this, &MainWindow::syncToolBars);
 * @endcode
 * Each view sits in a uxHighlightWidget frame; insertWidget() returns that
 * frame, which is also what removeWidget() and hasWidget() take. A fifth view,
 * a null widget or an unknown frame is ignored; a view inserted twice keeps
 * its first frame.
 */
class UXQT4EXT_EXPORT QUxQuadSplitter : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double ratioX READ ratioX)
    Q_PROPERTY(double ratioY READ ratioY)
    Q_PROPERTY(int count READ count)

public:
    /// Which bar the mouse holds or hovers.
    enum Orientation { NoSplit = 0, BothSplit = 1, VerticalSplit = 2, HorizontalSplit = 3 };
    Q_ENUM(Orientation)

    explicit QUxQuadSplitter(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~QUxQuadSplitter() override;

    /// Wraps @p widget in a new frame at @p index (appended when negative) and returns the frame;
    /// null for a null widget, the splitter or one of its ancestors, or when four panes exist already.
    QWidget* insertWidget(QWidget* widget, int index = -1);
    /// Deletes @p frame (as returned by insertWidget()) with its view; anything else is ignored.
    void removeWidget(QWidget* frame);
    bool hasWidget(int index) const;
    bool hasWidget(QWidget* frame) const;
    int count() const;

    /// The size in device pixels of a lone view, centred; applies while both are positive.
    void setChildFixedSize(int width, int height);
    void getChildFixedSize(int& width, int& height) const;

    /// Moves the pending cross point of the current drag by (@p dx, @p dy).
    void setPosition(int dx, int dy);

    using QWidget::setFocus;
    /// Remembers @p widget as the focus widget; nothing else.
    void setFocus(QWidget* widget);
    void updateFocus(QWidget* widget);
    /// The host's answer to "which view is current"; called with -1.
    void setCurrentWidgetCallback(std::function<QWidget*(int)> callback);
    /// The view the callback named at the last updateFocus().
    QWidget* currentWidget() const;

    Orientation getOrientation(int x, int y) const;
    double ratioX() const;
    double ratioY() const;

    using QWidget::update;

public slots:
    /// Lays the panes out again, then repaints.
    void update();
    /// Takes the applied cross point as the new fractions of the size.
    void updateRatios();
    void setCursorSplit(QUxQuadSplitter::Orientation orientation);

signals:
    void focusChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::unique_ptr<QUxQuadSplitterPrivate> const d;
};
