#pragma once

#include "uxQt4ExtGlobal.h"

#include <QWidget>

#include <memory>

class QUxQuadSplitter;
class uxHighlightWidgetPrivate;

/**
 * The thin frame around one view of a QUxQuadSplitter. Its outline takes the
 * palette's highlight colour while a child named "Render" has keyboard focus
 * or is the splitter's current widget, and the window colour otherwise.
 * @code
 * auto* view = new RenderView;
 * view->setObjectName("Render");
 * QWidget* frame = splitter->insertWidget(view, -1); // a uxHighlightWidget
 * @endcode
 * Frames are made by the splitter; a host rarely creates one itself.
 */
class UXQT4EXT_EXPORT uxHighlightWidget : public QWidget
{
    Q_OBJECT

public:
    explicit uxHighlightWidget(QUxQuadSplitter* splitter, QWidget* parent = nullptr);
    ~uxHighlightWidget() override;

    QUxQuadSplitter* splitter() const;
    /// The view inside the frame, null once it is gone.
    QWidget* widget() const;
    void setWidget(QWidget* widget);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<uxHighlightWidgetPrivate> const d;
};
