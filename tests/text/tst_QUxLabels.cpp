#include <QUxClickableLabel.h>
#include <QUxElidedLabel.h>
#include <QUxFileDropLineEdit.h>
#include <QUxScrollableMessageBox.h>
#include <uxLog.h>
#include <uxTestSupport.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QMimeData>
#include <QScrollArea>
#include <QtTest>

struct PaintCounter : QObject
{
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

class tst_QUxLabels : public QObject
{
    Q_OBJECT
    QStringList warnings, expectedWarnings;

private slots:
    void init()
    {
        warnings.clear();
        expectedWarnings.clear();
        uxLog::setHandler([this](const std::string& m) { warnings << QString::fromStdString(m); });
    }

    void cleanup()
    {
        uxLog::setHandler({});
        QCOMPARE(warnings, expectedWarnings);
    }

    void shouldPaintLikeALabelShowingTheElidedText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("width"); // 1: as narrow as it goes
        const QString text = QStringLiteral("Tessellation settings of the selected parts");
        QTest::newRow("one character") << text << int(Qt::ElideRight) << 1;
        QTest::newRow("wider") << text << int(Qt::ElideRight) << 120;
        QTest::newRow("left") << text << int(Qt::ElideLeft) << 90;
        QTest::newRow("none as a label") << text << int(Qt::ElideNone) << 40;
        QTest::newRow("empty") << QString() << int(Qt::ElideRight) << 0;
        QTest::newRow("megabyte") << "begin" + QString(1 << 20, 'w') + "end" << int(Qt::ElideMiddle) << 150;
    }

    void shouldPaintLikeALabelShowingTheElidedText()
    {
        QFETCH(QString, text);
        QFETCH(int, mode);
        QFETCH(int, width);
        QUxElidedLabel label(text);
        label.setElideMode(Qt::TextElideMode(mode));
        label.updateCachedTexts(); // sets the minimum width
        label.resize(width, 20);
        const QString shown = label.fontMetrics().elidedText(text, Qt::TextElideMode(mode), label.width());
        QLabel plain(mode == Qt::ElideNone ? text : shown);
        plain.resize(label.size());
        QCOMPARE(uxTest::grab(&label), uxTest::grab(&plain));
        QCOMPARE(label.text(), text);
        if (width == 1)
            QCOMPARE(shown.left(1) + shown.right(1), text.left(1) + QChar(0x2026));
    }

    void shouldLetALayoutShrinkItBeforeItEverPainted()
    {
        QWidget box;
        auto* label = new QUxElidedLabel(QString(200, 'w'), &box); // well over 1000 pixels whole
        (new QHBoxLayout(&box))->addWidget(label);
        QVERIFY(box.minimumSizeHint().width() < 100);
        label->setElideMode(Qt::ElideNone);
        QVERIFY(box.minimumSizeHint().width() > 1000);
    }

    void shouldNotRepaintForeverWhileElided()
    {
        QUxElidedLabel label(QStringLiteral("A long label text that does not fit"));
        label.resize(60, 20);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        PaintCounter counter;
        label.installEventFilter(&counter);
        label.update();
        for (int i = 0; i < 10; ++i)
            QCoreApplication::processEvents();
        QCOMPARE(counter.paints, 1);
    }

    void shouldEmitClickedOnEveryPressWithoutPassingItOn()
    {
        QUxClickableLabel outer;
        auto* inner = new QUxClickableLabel(&outer);
        QSignalSpy innerClicks(inner, &QUxClickableLabel::clicked), outerClicks(&outer, &QUxClickableLabel::clicked);
        for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
            QTest::mousePress(inner, button);
        QCOMPARE(innerClicks.count(), 3);
        QCOMPARE(outerClicks.count(), 0);
    }

    void shouldReportOnlyTheFirstDroppedLocalFile_data()
    {
        QTest::addColumn<QList<QUrl>>("urls");
        QTest::addColumn<QString>("dropped");
        const QUrl file = QUrl::fromLocalFile("/data/scene one.obj"), web("https://example.org/scene.obj");
        QTest::newRow("three files") << QList<QUrl>{file, QUrl::fromLocalFile("/b"), QUrl::fromLocalFile("/c")}
                                     << "/data/scene one.obj";
        QTest::newRow("web first") << QList<QUrl>{web, file} << QString();
        QTest::newRow("no urls") << QList<QUrl>() << QString();
        QTest::newRow("hundreds") << QVector<QUrl>(500, file).toList() << "/data/scene one.obj";
    }

    void shouldReportOnlyTheFirstDroppedLocalFile()
    {
        QFETCH(QList<QUrl>, urls);
        QFETCH(QString, dropped);
        QUxFileDropLineEdit edit(QStringLiteral("kept"));
        QSignalSpy spy(&edit, &QUxFileDropLineEdit::fileDropped);
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        for (QDropEvent* event : {static_cast<QDropEvent*>(&enter), &drop}) {
            static_cast<QObject&>(edit).event(event); // not through the application's drag machinery
            QVERIFY(event->isAccepted() && event->dropAction() == Qt::CopyAction);
        }
        QCOMPARE(spy.count(), dropped.isEmpty() ? 0 : 1);
        QCOMPARE(spy.value(0).value(0).toString(), dropped);
        QCOMPARE(edit.text(), QStringLiteral("kept"));
    }

    void shouldMoveTheTextIntoAScrollAreaOrWarn_data()
    {
        QTest::addColumn<int>("damage"); // 1: label renamed, 2: layout deleted
        QTest::addColumn<QStringList>("warnings");
        QTest::newRow("intact") << 0 << QStringList();
        QTest::newRow("no label") << 1 << QStringList{"QUxScrollableMessageBox: can't find text label."};
        QTest::newRow("no grid") << 2 << QStringList{"QUxScrollableMessageBox: can't find grid layout."};
    }

    void shouldMoveTheTextIntoAScrollAreaOrWarn()
    {
        QFETCH(int, damage);
        const QString text = QStringLiteral("line\n").repeated(200);
        QUxScrollableMessageBox box(QMessageBox::Warning, "Import", text, QMessageBox::Ok);
        auto* label = box.findChild<QLabel*>("qt_msgbox_label");
        if (damage == 1)
            label->setObjectName("renamed");
        if (damage == 2)
            delete box.layout();
        box.makeScrollable();
        QFETCH(QStringList, warnings);
        expectedWarnings = warnings;
        auto* area = box.findChild<QScrollArea*>();
        QCOMPARE(area != nullptr, damage == 0);
        QCOMPARE(label->text(), area ? QString() : text);
        if (!area)
            return;
        QCOMPARE(qobject_cast<QLabel*>(area->widget())->text(), text);
        QCOMPARE(area->minimumSize(), QSize(600, 600));
        int row, column, rowSpan, columnSpan;
        auto* grid = qobject_cast<QGridLayout*>(box.layout());
        grid->getItemPosition(grid->indexOf(area), &row, &column, &rowSpan, &columnSpan);
        QCOMPARE(QPoint(column, row), QPoint(1, 0));
    }
};

QTEST_MAIN(tst_QUxLabels)
#include "tst_QUxLabels.moc"
