#pragma once

#include "QUxIntVector3D.h"
#include "QUxSliderVectorControl.h"

#include <QVector3D>

/**
 * Edits a 3-component value with one QUxSlider per component and reports
 * the whole vector through changed().
 * @code
 * auto* v = new QUxVec3SliderControl(panel);
 * v->setSubLabels({"R", "G", "B", "A"});
 * connect(v, &QUxVec3SliderControl::changed, this, [](const QVector3D& value) { qDebug() << value; });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxVec3SliderControl : public QUxSliderVectorControlT<QVector3D, QUxIntVector3D, 3>
{
    Q_OBJECT
public:
    explicit QUxVec3SliderControl(QWidget* parent = nullptr);
    ~QUxVec3SliderControl() override;

signals:
    void changed(const QVector3D& value);

protected:
    void emitChanged() override;
};
