#include <QUxColor.h>

#include <QColor>
#include <QtTest>

#include <vector>

// One million HSV colours spread over the whole hue circle and the
// saturation/value square, shared by every row so both sides do equal work.
class bench_QUxColor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void hsvToRgb8_data();
    void hsvToRgb8();
    void hsvToLab_data();
    void hsvToLab();

private:
    struct Hsv
    {
        float h, s, v;
    };
    std::vector<Hsv> m_colors;
};

void bench_QUxColor::initTestCase()
{
    const int count = 1000 * 1000;
    m_colors.reserve(count);
    for (int i = 0; i < count; ++i)
        m_colors.push_back({float(i % 3600) / 10.0f, float(i % 101) / 100.0f, float(i % 97) / 96.0f});
}

void bench_QUxColor::hsvToRgb8_data()
{
    QTest::addColumn<bool>("ours");
    QTest::newRow("ours") << true;
    QTest::newRow("anchor") << false;
}

void bench_QUxColor::hsvToRgb8()
{
    QFETCH(bool, ours);
    quint64 checksum = 0;
    if (ours) {
        QBENCHMARK
        {
            for (const Hsv& c : m_colors) {
                QUxColor color;
                color.setHSV(c.h, c.s, c.v);
                checksum += color.getQColor().rgb();
            }
        }
    } else {
        QBENCHMARK
        {
            for (const Hsv& c : m_colors)
                checksum += QColor::fromHsvF(c.h / 360.0f, c.s, c.v).rgb();
        }
    }
    QVERIFY(checksum != 0);
}

void bench_QUxColor::hsvToLab_data()
{
    QTest::addColumn<bool>("ours");
    QTest::newRow("ours") << true; // Qt has no L*a*b* conversion to compare with
}

void bench_QUxColor::hsvToLab()
{
    float sum = 0.0f;
    QBENCHMARK
    {
        for (const Hsv& c : m_colors) {
            float L, a, b;
            QUxColor::HSVtoLAB(c.h, c.s, c.v, L, a, b);
            sum += L + a + b;
        }
    }
    QVERIFY(sum == sum);
}

QTEST_GUILESS_MAIN(bench_QUxColor)
#include "bench_QUxColor.moc"
