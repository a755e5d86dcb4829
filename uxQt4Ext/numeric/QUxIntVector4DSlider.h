#pragma once

#include "QUxIntVector4D.h"
#include "QUxIntVectorSliderBase.h"

/**
 * Edits a 4-component integer vector with one QUxIntegerSlider per component and
 * reports the whole vector through changed().
 * @code
 * auto* v = new QUxIntVector4DSlider(panel);
 * v->setMaximum(QUxIntVector4D(4096, 4096, 4096, 4096));
 * connect(v, &QUxIntVector4DSlider::changed, this, [](const QUxIntVector4D& value) { qDebug() << value.getX(); });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxIntVector4DSlider : public QUxIntVectorSliderT<QUxIntVector4D, 4>
{
    Q_OBJECT
public:
    explicit QUxIntVector4DSlider(QWidget* parent = nullptr);
    ~QUxIntVector4DSlider() override;

signals:
    void changed(const QUxIntVector4D& value);

protected:
    void emitChanged() override;
};
