#include <QUxTextureControls.h>
#include <QUxVec2Control.h>
#include <QUxVec3Control.h>
#include <QUxWheelPrec.h>
#include <uxUIStyle.h>

#include <uxTestSupport.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

#include <limits>
#include <memory>
#include <vector>

/// Every signal the panel emits, as "name(arg, ...)" strings grouped by signal in declaration order.
class SignalLog
{
public:
    explicit SignalLog(QObject* object)
    {
        const QMetaObject* meta = object->metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                spies.push_back(std::make_unique<QSignalSpy>(object, meta->method(i)));
        }
    }
    QStringList take()
    {
        QStringList entries;
        for (auto& spy : spies) {
            for (const QVariantList& arguments : qAsConst(*spy)) {
                QStringList texts;
                for (const QVariant& argument : arguments)
                    texts << argument.toString();
                entries << QStringLiteral("%1(%2)").arg(QString::fromLatin1(spy->signal()).section('(', 0, 0),
                                                        texts.join(QStringLiteral(", ")));
            }
            spy->clear();
        }
        return entries;
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> spies;
};

class tst_QUxTextureControls : public QObject
{
    Q_OBJECT

    std::unique_ptr<QUxTextureControls> panel;

    template<typename T = QWidget>
    T* child(const char* name) const
    {
        return panel->findChild<T*>(QLatin1String(name));
    }
    QString repeatText(int axis) const
    {
        return child<QUxVec2Control>("textureRepeat")->wheelPrec(axis)->spiner()->cleanText();
    }

private slots:
    void init()
    {
        panel = std::make_unique<QUxTextureControls>();
        panel->show();
    }

    void shouldCopyUToVAndDisableVWhenLinkingRepeatModes()
    {
        SignalLog log(panel.get());
        panel->setRepeatModeU(QUxTextureControls::Decal);
        QTest::mouseClick(child("linkRepeatModes"), Qt::LeftButton);
        QCOMPARE(log.take(), QStringList{"changedConnectRepeatModes(true)"});
        QCOMPARE(panel->getRepeatModeV(), 2);
        QVERIFY(!child("repeatModeV")->isEnabled());
        // U edited by the user carries V along
        child<QComboBox>("repeatModeU")->setCurrentIndex(3);
        QCOMPARE(log.take(), (QStringList{"changedRepeatModeU(3)", "changedRepeatModeV(3)"}));
        panel->setConnectRepeatModes(false);
        QCOMPARE(log.take(), QStringList{"changedConnectRepeatModes(false)"});
        QVERIFY(child("repeatModeV")->isEnabled());
        QCOMPARE(panel->getRepeatModeV(), 3);
    }

    void shouldEmitProjectionTypeAlsoWithoutEntry_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("mappingText");
        QTest::addColumn<bool>("planarShown");
        QTest::addColumn<bool>("triplanarShown");
        QTest::addColumn<bool>("repeatEnabled");
        QTest::addColumn<bool>("textureSizeEnabled");
        QTest::newRow("UV") << 0 << "UV" << false << false << true << true;
        QTest::newRow("planar") << 1 << "Planar" << true << false << true << false;
        QTest::newRow("triplanar") << 2 << "Triplanar" << false << true << false << false;
        QTest::newRow("third, no entry") << 3 << "Planar" << false << false << true << true;
        QTest::newRow("unknown 5 changes nothing") << 5 << "Planar" << true << false << true << false;
        QTest::newRow("negative") << -7 << "Planar" << true << false << true << false;
    }

    void shouldEmitProjectionTypeAlsoWithoutEntry()
    {
        QFETCH(int, type);
        QFETCH(QString, mappingText);
        QFETCH(bool, planarShown);
        QFETCH(bool, triplanarShown);
        QFETCH(bool, repeatEnabled);
        QFETCH(bool, textureSizeEnabled);
        panel->setProjectionType(1);
        SignalLog log(panel.get());
        panel->setProjectionType(type);
        QCOMPARE(log.take(), QStringList{QStringLiteral("changedProjectionType(%1)").arg(type)});
        QCOMPARE(child<QComboBox>("mappingType")->currentText(), mappingText);
        QCOMPARE(child("planarProjection")->isVisible(), planarShown);
        QCOMPARE(child("triplanarProjection")->isVisible(), triplanarShown);
        QCOMPARE(child("textureRepeat")->isEnabled(), repeatEnabled);
        QCOMPARE(child("useRealWorldScale")->isEnabled(), textureSizeEnabled);
    }

    void shouldShowRepeatWithTwoDecimalsInTextureSizeMode()
    {
        panel->setTextureRepeatU(1.234567);
        QCOMPARE(repeatText(0), QStringLiteral("1.234567"));
        SignalLog log(panel.get());
        QTest::mouseClick(child("useRealWorldScale"), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(log.take(), QStringList{"changedUseRealWorldScale(1)"});
        QCOMPARE(repeatText(0), QStringLiteral("1.23"));
        panel->setUseRealWorldScale(false); // this setter reports too
        QCOMPARE(log.take(), QStringList{"changedUseRealWorldScale(0)"});
        QCOMPARE(repeatText(0), QStringLiteral("1.234567"));
        QCOMPARE(panel->getTextureRepeatU(), 1.234567);
    }

    void shouldNotEchoSilentSetters()
    {
        SignalLog log(panel.get());
        panel->setTexture(QStringLiteral("/maps/wood.png"));
        panel->setUseImageSequence(true);
        panel->setFrameOffset(12);
        panel->setInlineImageSequence(true);
        panel->setLinkTextureSettings(true);
        panel->setRepeatModeU(1);
        panel->setRepeatModeV(3);
        panel->setTextureRepeatU(4.0);
        panel->setTextureOffsetV(-0.25);
        panel->setTextureRotate(45.0);
        panel->setAnisotropy(0.5);
        panel->setGamma(2.2);
        panel->setUseICCProfile(true);
        panel->setPlanarProjectionCenter(1.0, 2.0, 3.0);
        panel->setPlanarProjectionScaleZ(5.0);
        panel->setTriplanarTextureRepeatU(1.0, 2.0, 3.0);
        panel->setTriplanarTextureRotation(10.0, 20.0, 30.0);
        panel->setManipulatePlanarProjection(true);
        panel->setUseTexture(false);
        QCOMPARE(log.take(), QStringList());
        const QVariantList values{panel->getTexture(),        panel->getUseImageSequence(), panel->getFrameOffset(),
                                  panel->getRepeatModeU(),    panel->getRepeatModeV(),      panel->getTextureRepeatU(),
                                  panel->getTextureOffsetV(), panel->getTextureRotate(),    panel->getGamma(),
                                  panel->getUseTexture()};
        QCOMPARE(values, (QVariantList{"/maps/wood.png", true, 12, 1, 3, 4.0, -0.25, 45.0, 2.2, false}));
        QVERIFY(!child("textureRepeat")->isEnabled());
        QVERIFY(child("useTexture")->isEnabled());
    }

    void shouldReportUserEdits_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("alpha") << "useAlpha" << QString() << QStringList{"changedUseAlpha(1)"};
        QTest::newRow("cutout") << "useCutout" << QString() << QStringList{"changedUseCutout(1)"};
        QTest::newRow("link") << "linkTextureSettings" << QString() << QStringList{"changedLinkTextureSettings(1)"};
        QTest::newRow("use texture") << "useTexture" << QString() << QStringList{"changedUseTexture(false)"};
        QTest::newRow("load") << "loadTexture" << QString() << QStringList{"clickedLoadTexture()"};
        QTest::newRow("fit") << "fitSize" << QString() << QStringList{"clickedFitPlanarProjection()"};
        QTest::newRow("repeat U") << "textureRepeat"
                                  << "2*3" << QStringList{"changedTextureRepeatU(6)"};
        QTest::newRow("repeat far out") << "textureRepeat"
                                        << "1000*1000*1000" << QStringList{"changedTextureRepeatU(1e+06)"};
        QTest::newRow("center X") << "projectionCenter"
                                  << "2.5" << QStringList{"changedPlanarProjectionCenter(2.5, 0, 0)"};
        QTest::newRow("size Z limits depth") << "projectionSize"
                                             << "4" << QStringList{"toggledPlanarProjectionClampZ(true)"};
        QTest::newRow("triplanar rotation") << "triplanarRotateY"
                                            << "30" << QStringList{"changedTriplanarTextureRotation(0, 30, 0)"};
        QTest::newRow("frame offset") << "frameOffset"
                                      << "-99999999" << QStringList{"changedFrameOffset(-999999)"};
    }

    void shouldReportUserEdits()
    {
        QFETCH(QString, control);
        QFETCH(QString, typed);
        QFETCH(QStringList, expected);
        panel->setProjectionType(control.startsWith("triplanar") ? 2 : 1);
        panel->setUseImageSequence(true);
        SignalLog log(panel.get());
        QWidget* target = panel->findChild<QWidget*>(control);
        if (typed.isEmpty()) {
            QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(5, 5));
        } else {
            auto* vector = qobject_cast<QUxWheelVectorControl*>(target);
            // the depth is the third component; the others take the first
            uxTest::typeAndCommit(vector ? vector->wheelPrec(control == "projectionSize" ? 2 : 0) : target, typed);
        }
        const QStringList entries = log.take();
        for (const QString& entry : expected)
            QVERIFY2(entries.count(entry) == 1, qPrintable(entries.join(" ")));
    }

    void shouldMakeYAndZRepeatFollowXWhenUniform()
    {
        panel->setProjectionType(2);
        panel->setTriplanarTextureRepeatU(1.0, 2.0, 3.0);
        SignalLog log(panel.get());
        QTest::mouseClick(child("uniformRepeat"), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(log.take(), QStringList{"changedTriplanarTextureRepeatU(1, 1, 1)"});
        QVERIFY(!child("triplanarRepeatZ")->isEnabled());
        uxTest::typeAndCommit(child<QUxVec2Control>("triplanarRepeatX")->wheelPrec(1), QStringLiteral("4"));
        QCOMPARE(log.take(), QStringList{"changedTriplanarTextureRepeatV(4, 4, 4)"});
    }

    void shouldHideGroupsAndOfferTwoRepeatModes()
    {
        panel->setShowRepeatControls(false);
        panel->setShowImageSequenceControls(false);
        QVERIFY(!panel->getShowRepeatControls());
        QVERIFY(!child("textureRepeat")->isVisible());
        QVERIFY(!child("frameOffset")->isVisible());
        QVERIFY(child("textureOffset")->isVisible());
        panel->setRepeatModeU(QUxTextureControls::Clamp);
        panel->setShowAllRepeatModes(false);
        QCOMPARE(child<QComboBox>("repeatModeU")->count(), 2);
        QCOMPARE(panel->getRepeatModeU(), 0);
        panel->setRepeatModeU(QUxTextureControls::Decal); // no such entry now
        QCOMPARE(panel->getRepeatModeU(), 0);
    }

    void shouldIgnoreNaNAndClampInfinities_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("repeat");
        QTest::addColumn<double>("gamma");
        const double inf = std::numeric_limits<double>::infinity();
        QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << 1.0 << 1.0;
        QTest::newRow("+inf") << inf << 1.0e6 << 4.0;
        QTest::newRow("-inf") << -inf << -1.0e6 << 0.0;
        QTest::newRow("huge") << 1.0e308 << 1.0e6 << 4.0;
    }

    void shouldIgnoreNaNAndClampInfinities()
    {
        QFETCH(double, value);
        QFETCH(double, repeat);
        QFETCH(double, gamma);
        SignalLog log(panel.get());
        for (const char* setter : {"setTextureRepeatU", "setTextureOffsetU", "setTextureRotate", "setAnisotropy",
                                   "setGamma", "setTriplanarEdgeBlend", "setPlanarProjectionScaleX"})
            QVERIFY(QMetaObject::invokeMethod(panel.get(), setter, Q_ARG(double, value)));
        panel->setPlanarProjectionCenter(value, value, value);
        panel->setPlanarProjectionRotation(value, value);
        panel->setTriplanarTextureSize(value, value);
        panel->setTriplanarTextureOffsetV(value, value, value);
        panel->setTriplanarTextureRotation(value, value, value);
        panel->setRepeatModeV(-1);
        panel->setRepeatModeU(99);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(panel->getTextureRepeatU(), repeat);
        QCOMPARE(panel->getGamma(), gamma);
        QCOMPARE(panel->getRepeatModeU(), 0);
        QVERIFY(!uxTest::grab(panel.get()).isNull());
    }

    void shouldHandMultiselectHighlightToValueFields()
    {
        QSignalSpy spy(panel.get(), &QUxTextureControls::propagateMultiselectProperty);
        uxUIStyle::setMultiSelectHighlight(panel.get(), true);
        QCOMPARE(spy.count(), 1);
        auto* field = child<QUxVec2Control>("textureOffset")->wheelPrec(1)->spiner();
        QCOMPARE(field->property("multiselect"), QVariant(true));
        uxUIStyle::setMultiSelectHighlight(panel.get(), false);
        QVERIFY(!field->property("multiselect").isValid());
    }
};

QTEST_MAIN(tst_QUxTextureControls)
#include "tst_QUxTextureControls.moc"
