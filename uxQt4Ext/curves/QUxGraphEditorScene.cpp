#include "QUxGraphEditorScene.h"

#include <QPainter>

QUxGraphEditorScene::QUxGraphEditorScene(QObject* parent) : QGraphicsScene(parent)
{
    setBackgroundBrush(QColor(52, 52, 52));
    setItemIndexMethod(NoIndex);
}

QUxGraphEditorScene::~QUxGraphEditorScene() = default;

void QUxGraphEditorScene::drawBackground(QPainter* painter, const QRectF& rect)
{
    QGraphicsScene::drawBackground(painter, rect);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setRenderHint(QPainter::TextAntialiasing, true);
    QPen pen(Qt::black, 0, Qt::SolidLine);
    pen.setCosmetic(true);
    painter->setPen(pen);
    for (const double at : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        painter->drawLine(QLineF(rect.left(), at, rect.right(), at));
        painter->drawLine(QLineF(at, rect.top(), at, rect.bottom()));
    }
    painter->restore();
}
