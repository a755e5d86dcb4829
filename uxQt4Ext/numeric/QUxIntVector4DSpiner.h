#pragma once

#include "QUxIntVector4D.h"
#include "QUxIntVectorSpinerBase.h"

/**
 * Edits a 4-component integer vector with one QUxSpiner per component and
 * reports the whole vector through changed().
 * @code
 * auto* v = new QUxIntVector4DSpiner(panel);
 * v->setMaximum(QUxIntVector4D(4096, 4096, 4096, 4096));
 * connect(v, &QUxIntVector4DSpiner::changed, this, [](const QUxIntVector4D& value) { qDebug() << value.getX(); });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxIntVector4DSpiner : public QUxIntVectorControlT<QUxIntVectorSpinerBase, QUxIntVector4D, 4>
{
    Q_OBJECT
public:
    explicit QUxIntVector4DSpiner(QWidget* parent = nullptr);
    ~QUxIntVector4DSpiner() override;

signals:
    void changed(const QUxIntVector4D& value);

protected:
    void emitChanged() override;
};
