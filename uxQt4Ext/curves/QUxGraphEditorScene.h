#pragma once

#include "uxQt4ExtGlobal.h"

#include <QGraphicsScene>

/**
 * The scene of a QUxGraphEditor: a dark grey ground (52, 52, 52) under a black
 * grid at 0, 0.25, 0.5, 0.75 and 1 in x and y, one pixel wide at any zoom.
 * @code
 * auto* scene = new QUxGraphEditorScene(view);
 * scene->setSceneRect(0.0, 0.0, 1.0, 1.0);
 * view->setScene(scene);
 * @endcode
 * It keeps no index of its items: the few curves and points move on every
 * drag, and a linear search over them beats keeping a tree up to date.
 */
class UXQT4EXT_EXPORT QUxGraphEditorScene : public QGraphicsScene
{
    Q_OBJECT
public:
    explicit QUxGraphEditorScene(QObject* parent = nullptr);
    ~QUxGraphEditorScene() override;

protected:
    void drawBackground(QPainter* painter, const QRectF& rect) override;
};
