#pragma once

#include "QUxIntVector3D.h"
#include "QUxIntVectorSpinerBase.h"

/**
 * Edits a 3-component integer vector with one QUxSpiner per component and
 * reports the whole vector through changed().
 * @code
 * auto* v = new QUxIntVector3DSpiner(panel);
 * v->setMaximum(QUxIntVector3D(4096, 4096, 4096));
 * connect(v, &QUxIntVector3DSpiner::changed, this, [](const QUxIntVector3D& value) { qDebug() << value.getX(); });
 * @endcode
 */
class UXQT4EXT_EXPORT QUxIntVector3DSpiner : public QUxIntVectorControlT<QUxIntVectorSpinerBase, QUxIntVector3D, 3>
{
    Q_OBJECT
public:
    explicit QUxIntVector3DSpiner(QWidget* parent = nullptr);
    ~QUxIntVector3DSpiner() override;

signals:
    void changed(const QUxIntVector3D& value);

protected:
    void emitChanged() override;
};
