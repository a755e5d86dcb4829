#pragma once

#include "QUxIntVector2D.h"
#include "QUxIntVectorSliderBase.h"

/**
 * Edits a 2-component integer vector with one QUxIntegerSlider per component and
 * reports the whole vector through changed().
 * @code
 * auto* v = new QUxIntVector2DSlider(panel);
 * v->setMaximum(QUxIntVector2D(4096, 4096));
 * connect(v, &QUxIntVector2DSlider::changed, this, [](const QUxIntVector2D& value) { qDebug() << value.getX(); });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxIntVector2DSlider : public QUxIntVectorSliderT<QUxIntVector2D, 2>
{
    Q_OBJECT
public:
    explicit QUxIntVector2DSlider(QWidget* parent = nullptr);
    ~QUxIntVector2DSlider() override;

signals:
    void changed(const QUxIntVector2D& value);

protected:
    void emitChanged() override;
};
