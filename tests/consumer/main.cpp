// A program built against the installed package, as a host builds. It exits 0
// only when the widgets behave, so a package that links but misbehaves (a
// missing resource, an unexported symbol, a broken run path) fails here.
#include <QUxColorField.h>
#include <QUxDoubleSpiner.h>
#include <QUxVec3Control.h>
#include <uxPlatform.h>
#include <uxSignalBlocker.h>

#include <QApplication>
#include <QImage>
#include <QSet>

#include <cmath>
#include <cstdio>

namespace {

int failures = 0;

void check(bool ok, const char* what)
{
    if (!ok) {
        std::fprintf(stderr, "consumer: %s\n", what);
        ++failures;
    }
}

bool near(double a, double b) { return std::abs(a - b) < 1e-4; }

int coloursOnDiagonal(const QImage& image)
{
    QSet<QRgb> colours;
    for (int i = 0; i < qMin(image.width(), image.height()); ++i)
        colours.insert(image.pixel(i, i));
    return colours.size();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);

    QUxDoubleSpiner distance;
    distance.setRange(0.0, 100.0);
    distance.setValue(distance.valueFromText("2*(3+4)")); // arithmetic, as a user types it

    QUxVec3Control position;
    position.setXYZ(1.0, 2.5, -3.0);

    QUxColorField field;
    field.setRGB(1.0f, 0.5f, 0.0f); // linear RGB in, HSV kept
    const QUxColor orange = field.getColor();

    int echoes = 0;
    QObject::connect(&distance, qOverload<double>(&QDoubleSpinBox::valueChanged), &app, [&echoes] { ++echoes; });
    {
        uxSignalBlocker quiet{&distance, &position}; // push values without echoes
        distance.setValue(250.0);                    // clamped to 100
        position.setX(0.5);
    } // both as they were before

    check(distance.valueFromText("2*(3+4)") == 14.0, "the spin box did not evaluate 2*(3+4) to 14");
    check(distance.value() == 100.0, "the spin box did not clamp to its maximum");
    check(echoes == 0 && !distance.signalsBlocked(), "the blocker let a signal through or kept blocking");
    distance.setValue(14.0);
    check(echoes == 1, "the spin box did not report a change after the blocker");

    check(position.getX() == 0.5 && position.getY() == 2.5 && position.getZ() == -3.0,
          "the vector control did not keep x, y and z");

    check(near(orange.getRed(), 1.0) && near(orange.getGreen(), 0.5) && near(orange.getBlue(), 0.0),
          "the colour field did not keep its colour");
    field.resize(64, 64);
    const QImage plane = field.grab().toImage();
    check(plane.size() == QSize(64, 64), "the colour field grabbed at the wrong size");
    check(coloursOnDiagonal(plane) > 8, "the colour field painted no picking plane");

    // The host modules come with ux::uxQt4Ext; a 20-pixel small icon at scale 2.
    uxPlatform::setDpiScale(2.0, 2.0);
    check(uxPlatform::getSmallIconSizeX() == 40, "the platform module did not scale its icon size");

    return failures == 0 ? 0 : 1;
}
