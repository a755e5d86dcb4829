#pragma once

#include "QUxIntVector2D.h"
#include "QUxIntVectorSpinerBase.h"

/**
 * Edits a 2-component integer vector with one QUxSpiner per component and
 * reports the whole vector through changed().
 * @code
 * auto* v = new QUxIntVector2DSpiner(panel);
 * v->setMaximum(QUxIntVector2D(4096, 4096));
 * connect(v, &QUxIntVector2DSpiner::changed, this, [](const QUxIntVector2D& value) { qDebug() << value.getX(); });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxIntVector2DSpiner : public QUxIntVectorControlT<QUxIntVectorSpinerBase, QUxIntVector2D, 2>
{
    Q_OBJECT
public:
    explicit QUxIntVector2DSpiner(QWidget* parent = nullptr);
    ~QUxIntVector2DSpiner() override;

signals:
    void changed(const QUxIntVector2D& value);

protected:
    void emitChanged() override;
};
