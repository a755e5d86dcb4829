#include <QUxIntVector2D.h>
#include <QUxIntVector3D.h>
#include <QUxIntVector4D.h>

#include <QtTest>

class tst_QUxIntVector : public QObject
{
    Q_OBJECT

private slots:
    void shouldDefaultToZero();
    void shouldStoreComponentsInOrder();
    void shouldChainSetters();
    void shouldConvertBetweenSizes();
    void shouldCompareComponentWise_data();
    void shouldCompareComponentWise();
};

void tst_QUxIntVector::shouldDefaultToZero()
{
    QCOMPARE(QUxIntVector2D(), QUxIntVector2D(0, 0));
    QCOMPARE(QUxIntVector3D(), QUxIntVector3D(0, 0, 0));
    QCOMPARE(QUxIntVector4D(), QUxIntVector4D(0, 0, 0, 0));
}

void tst_QUxIntVector::shouldStoreComponentsInOrder()
{
    const QUxIntVector4D v(1, -2, 3, INT_MIN);
    QCOMPARE(v.getX(), 1);
    QCOMPARE(v.getY(), -2);
    QCOMPARE(v.getZ(), 3);
    QCOMPARE(v.getW(), INT_MIN);
    QCOMPARE(v[0], 1);
    QCOMPARE(v[3], INT_MIN);

    QUxIntVector3D w(7, 8, 9);
    w[1] = 80;
    QCOMPARE(w.getY(), 80);
    QCOMPARE(sizeof(QUxIntVector3D), 3 * sizeof(qint32));
}

void tst_QUxIntVector::shouldChainSetters()
{
    QUxIntVector4D v;
    v.setX(1).setY(2).setZ(3).setW(4);
    QCOMPARE(v, QUxIntVector4D(1, 2, 3, 4));
    QUxIntVector2D p;
    QCOMPARE(p.setValue(QUxIntVector2D(5, 6)), QUxIntVector2D(5, 6));
    QCOMPARE(p.setY(9).getY(), 9);
    QUxIntVector3D t;
    t.setZ(3).setX(1);
    QCOMPARE(t, QUxIntVector3D(1, 0, 3));
}

void tst_QUxIntVector::shouldConvertBetweenSizes()
{
    const QUxIntVector4D v4(1, 2, 3, 4);
    QCOMPARE(QUxIntVector2D(v4), QUxIntVector2D(1, 2));
    QCOMPARE(QUxIntVector3D(v4), QUxIntVector3D(1, 2, 3));
    QCOMPARE(QUxIntVector2D(QUxIntVector3D(5, 6, 7)), QUxIntVector2D(5, 6));
    QCOMPARE(QUxIntVector3D(QUxIntVector2D(5, 6)), QUxIntVector3D(5, 6, 0));
}

void tst_QUxIntVector::shouldCompareComponentWise_data()
{
    QTest::addColumn<int>("component");
    for (int i = 0; i < 4; ++i)
        QTest::newRow(qPrintable(QStringLiteral("component %1").arg(i))) << i;
}

void tst_QUxIntVector::shouldCompareComponentWise()
{
    QFETCH(int, component);
    QUxIntVector4D a(1, 2, 3, 4), b(a);
    QVERIFY(a == b);
    b[size_t(component)] += 1;
    QVERIFY(a != b);
    QVERIFY(!(a == b));
    if (component < 3) {
        QUxIntVector3D a3(QUxIntVector3D(1, 2, 3)), b3(a3);
        b3[size_t(component)] = -1;
        QVERIFY(a3 != b3);
    }
}

QTEST_GUILESS_MAIN(tst_QUxIntVector)
#include "tst_QUxIntVector.moc"
