#pragma once

#include "QUxIntVector2D.h"
#include "QUxSliderVectorControl.h"

#include <QVector2D>

/**
 * Edits a 2-component value with one QUxSlider per component and reports
 * the whole vector through changed().
 * @code
 * auto* v = new QUxVec2SliderControl(panel);
 * v->setSubLabels({"R", "G", "B", "A"});
 * connect(v, &QUxVec2SliderControl::changed, this, [](const QVector2D& value) { qDebug() << value; });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxVec2SliderControl : public QUxSliderVectorControlT<QVector2D, QUxIntVector2D, 2>
{
    Q_OBJECT
public:
    explicit QUxVec2SliderControl(QWidget* parent = nullptr);
    ~QUxVec2SliderControl() override;

signals:
    void changed(const QVector2D& value);

protected:
    void emitChanged() override;
};
