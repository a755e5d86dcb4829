#pragma once

#include "QUxIntVector3D.h"
#include "QUxIntVectorSliderBase.h"

/**
 * Edits a 3-component integer vector with one QUxIntegerSlider per component and
 * reports the whole vector through changed().
 * @code
 * auto* v = new QUxIntVector3DSlider(panel);
 * v->setMaximum(QUxIntVector3D(4096, 4096, 4096));
 * connect(v, &QUxIntVector3DSlider::changed, this, [](const QUxIntVector3D& value) { qDebug() << value.getX(); });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxIntVector3DSlider : public QUxIntVectorSliderT<QUxIntVector3D, 3>
{
    Q_OBJECT
public:
    explicit QUxIntVector3DSlider(QWidget* parent = nullptr);
    ~QUxIntVector3DSlider() override;

signals:
    void changed(const QUxIntVector3D& value);

protected:
    void emitChanged() override;
};
