#pragma once

#include "QUxIntVector4D.h"
#include "QUxSliderVectorControl.h"

#include <QVector4D>

/**
 * Edits a 4-component value with one QUxSlider per component and reports
 * the whole vector through changed().
 * @code
 * auto* v = new QUxVec4SliderControl(panel);
 * v->setSubLabels({"R", "G", "B", "A"});
 * connect(v, &QUxVec4SliderControl::changed, this, [](const QVector4D& value) { qDebug() << value; });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxVec4SliderControl : public QUxSliderVectorControlT<QVector4D, QUxIntVector4D, 4>
{
    Q_OBJECT
public:
    explicit QUxVec4SliderControl(QWidget* parent = nullptr);
    ~QUxVec4SliderControl() override;

signals:
    void changed(const QVector4D& value);

protected:
    void emitChanged() override;
};
