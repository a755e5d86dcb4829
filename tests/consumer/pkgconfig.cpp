// Built with nothing but the flags pkg-config gives for uxQt4Ext.
#include <QUxDoubleSpiner.h>

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QUxDoubleSpiner spin;
    spin.setValue(spin.valueFromText("1.5*2"));
    return spin.value() == 3.0 ? 0 : 1;
}
