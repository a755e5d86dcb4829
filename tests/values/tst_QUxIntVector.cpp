#include <QUxIntVector2D.h>
#include <QUxIntVector3D.h>
#include <QUxIntVector4D.h>

#include <QtTest>

using Ints = QVector<int>;

// Equal to its copy until any one component of the copy is changed through the subscript.
template<class Vector>
bool comparesComponentWise(const Vector& a, size_t components)
{
    for (size_t i = 0; i < components; ++i) {
        Vector b(a);
        b[i] += 1;
        if (!(a == Vector(a)) || a != Vector(a) || a == b || !(a != b))
            return false;
    }
    return true;
}

class tst_QUxIntVector : public QObject
{
    Q_OBJECT

private slots:
    void shouldDefaultToZeroAndStoreComponentsInOrder()
    {
        QCOMPARE(QUxIntVector2D(), QUxIntVector2D(0, 0));
        QCOMPARE(QUxIntVector3D(), QUxIntVector3D(0, 0, 0));
        QCOMPARE(QUxIntVector4D(), QUxIntVector4D(0, 0, 0, 0));
        const QUxIntVector2D v2(1, -2);
        const QUxIntVector3D v3(1, -2, 3);
        const QUxIntVector4D v4(1, -2, 3, INT_MIN);
        QCOMPARE(Ints({v2.getX(), v2.getY(), v2[0], v2[1]}), Ints({1, -2, 1, -2}));
        QCOMPARE(Ints({v3.getX(), v3.getY(), v3.getZ(), v3[0], v3[2]}), Ints({1, -2, 3, 1, 3}));
        QCOMPARE(Ints({v4.getX(), v4.getY(), v4.getZ(), v4.getW(), v4[0], v4[3]}),
                 Ints({1, -2, 3, INT_MIN, 1, INT_MIN}));
        QUxIntVector3D w(7, 8, 9);
        w[1] = 80;
        QCOMPARE(w, QUxIntVector3D(7, 80, 9));
        QCOMPARE(sizeof(QUxIntVector3D), 3 * sizeof(qint32));
    }

    void shouldChainSettersOnTheSameObject()
    {
        QUxIntVector2D v2;
        QUxIntVector3D v3;
        QUxIntVector4D v4;
        v2.setY(9); // x untouched
        v3.setZ(3).setY(2).setX(1);
        v4.setX(1).setY(2).setZ(3).setW(4);
        QCOMPARE(v2, QUxIntVector2D(0, 9));
        QCOMPARE(v3, QUxIntVector3D(1, 2, 3));
        QCOMPARE(v4, QUxIntVector4D(1, 2, 3, 4));
        QVERIFY(&v2.setValue({7, 8}) == &v2 && v2 == QUxIntVector2D(7, 8));
        QVERIFY(&v3.setValue({7, 8, 9}) == &v3 && v3 == QUxIntVector3D(7, 8, 9));
        QVERIFY(&v4.setValue({7, 8, 9, 10}) == &v4 && v4 == QUxIntVector4D(7, 8, 9, 10));
    }

    void shouldConvertBetweenSizesAndCompareComponentWise()
    {
        const QUxIntVector4D v4(1, 2, 3, 4);
        QCOMPARE(QUxIntVector2D(v4), QUxIntVector2D(1, 2));
        QCOMPARE(QUxIntVector3D(v4), QUxIntVector3D(1, 2, 3));
        QCOMPARE(QUxIntVector2D(QUxIntVector3D(5, 6, 7)), QUxIntVector2D(5, 6));
        QCOMPARE(QUxIntVector3D(QUxIntVector2D(5, 6)), QUxIntVector3D(5, 6, 0));
        QVERIFY(comparesComponentWise(QUxIntVector2D(1, 2), 2));
        QVERIFY(comparesComponentWise(QUxIntVector3D(1, 2, 3), 3));
        QVERIFY(comparesComponentWise(QUxIntVector4D(1, 2, 3, 4), 4));
    }
};

QTEST_GUILESS_MAIN(tst_QUxIntVector)
#include "tst_QUxIntVector.moc"
