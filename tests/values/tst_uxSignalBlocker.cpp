#include <uxSignalBlocker.h>

#include <QtTest>

namespace {
// Exposes the protected transfer so that it can be checked like the public ones.
class TransferringBlocker : public uxSignalBlocker
{
public:
    using uxSignalBlocker::move;
};
} // namespace

class tst_uxSignalBlocker : public QObject
{
    Q_OBJECT

private slots:
    void shouldBlockWhileAliveAndRestoreAfter_data();
    void shouldBlockWhileAliveAndRestoreAfter();
    void shouldKeepPreviouslyBlockedObjectBlocked();
    void shouldRecordTheSameObjectTwice();
    void shouldUnblockFirstEntryOnly();
    void shouldRefuseToUnblockUnknownOrNull();
    void shouldIgnoreNullObjects();
    void shouldTransferEntriesOnCopy();
    void shouldPrependTransferredEntriesOnAssignment();
    void shouldPrependTransferredEntriesOnMove();
    void shouldSuppressSignalsOfBlockedObject();
    void shouldForgetObjectDestroyedWhileBlocked();
};

void tst_uxSignalBlocker::shouldBlockWhileAliveAndRestoreAfter_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("constructor") << 0;
    QTest::newRow("initializer list") << 1;
    QTest::newRow("vector") << 2;
    QTest::newRow("block()") << 3;
    QTest::newRow("operator<<") << 4;
    QTest::newRow("operator+=") << 5;
}

void tst_uxSignalBlocker::shouldBlockWhileAliveAndRestoreAfter()
{
    QFETCH(int, how);
    QObject a, b;
    {
        std::unique_ptr<uxSignalBlocker> blocker;
        switch (how) {
        case 0:
            blocker.reset(new uxSignalBlocker(&a));
            *blocker << &b;
            break;
        case 1:
            blocker.reset(new uxSignalBlocker({&a, &b}));
            break;
        case 2:
            blocker.reset(new uxSignalBlocker(std::vector<QObject*>{&a, &b}));
            break;
        case 3:
            blocker.reset(new uxSignalBlocker);
            blocker->block(&a).block(&b);
            break;
        case 4:
            blocker.reset(new uxSignalBlocker);
            *blocker << &a << &b;
            break;
        default:
            blocker.reset(new uxSignalBlocker);
            *blocker += &a;
            *blocker += &b;
            break;
        }
        QVERIFY(a.signalsBlocked());
        QVERIFY(b.signalsBlocked());
        QVERIFY(blocker->isAssigned(&a));
        QVERIFY(blocker->isAssigned(&b));
        QVERIFY(!blocker->parent());
    }
    QVERIFY(!a.signalsBlocked());
    QVERIFY(!b.signalsBlocked());
}

void tst_uxSignalBlocker::shouldKeepPreviouslyBlockedObjectBlocked()
{
    QObject o;
    o.blockSignals(true);
    {
        uxSignalBlocker blocker(&o);
    }
    QVERIFY(o.signalsBlocked());
}

void tst_uxSignalBlocker::shouldRecordTheSameObjectTwice()
{
    QObject o;
    {
        uxSignalBlocker blocker(&o);
        blocker << &o;
    }
    // The second entry remembered "blocked", and it is restored last.
    QVERIFY(o.signalsBlocked());
}

void tst_uxSignalBlocker::shouldUnblockFirstEntryOnly()
{
    QObject o;
    uxSignalBlocker blocker(&o);
    blocker << &o;
    QVERIFY(blocker.unblock(&o));
    QVERIFY(!o.signalsBlocked()); // first entry held "unblocked"
    QVERIFY(blocker.isAssigned(&o));
    QVERIFY(blocker.unblock(&o));
    QVERIFY(o.signalsBlocked()); // second entry held "blocked"
    QVERIFY(!blocker.isAssigned(&o));
}

void tst_uxSignalBlocker::shouldRefuseToUnblockUnknownOrNull()
{
    QObject held, other;
    uxSignalBlocker blocker(&held);
    QVERIFY(!blocker.unblock(&other));
    QVERIFY(!blocker.unblock(nullptr));
    QVERIFY(held.signalsBlocked());
    QVERIFY(!other.signalsBlocked());
    QVERIFY(!blocker.isAssigned(nullptr));
    QVERIFY(!blocker.isAssigned(&other));
}

void tst_uxSignalBlocker::shouldIgnoreNullObjects()
{
    QObject o;
    uxSignalBlocker blocker({nullptr, &o, nullptr});
    blocker << nullptr;
    blocker += nullptr;
    QVERIFY(o.signalsBlocked());
    QVERIFY(blocker.unblock(&o));
    QVERIFY(!blocker.unblock(&o));
    uxSignalBlocker fromNull(static_cast<QObject*>(nullptr));
    QVERIFY(!fromNull.isAssigned(nullptr));
}

void tst_uxSignalBlocker::shouldTransferEntriesOnCopy()
{
    QObject o;
    auto source = std::make_unique<uxSignalBlocker>(&o);
    {
        uxSignalBlocker taker(*source);
        QVERIFY(taker.isAssigned(&o));
        QVERIFY(!source->isAssigned(&o));
        source.reset(); // the emptied source restores nothing
        QVERIFY(o.signalsBlocked());
    }
    QVERIFY(!o.signalsBlocked());
}

void tst_uxSignalBlocker::shouldPrependTransferredEntriesOnAssignment()
{
    QObject o;
    uxSignalBlocker first(&o); // remembers "unblocked"
    {
        uxSignalBlocker target;
        target << &o; // remembers "blocked"
        target = first;
        QVERIFY(!first.isAssigned(&o));
        // Entries now: (o, unblocked) from first, then (o, blocked).
        QVERIFY(target.unblock(&o));
        QVERIFY(!o.signalsBlocked());
        o.blockSignals(true);
    }
    QVERIFY(o.signalsBlocked());
}

void tst_uxSignalBlocker::shouldPrependTransferredEntriesOnMove()
{
    QObject a, b;
    TransferringBlocker source;
    source << &a;
    {
        TransferringBlocker target;
        target << &b;
        target.move(source);
        QVERIFY(target.isAssigned(&a));
        QVERIFY(target.isAssigned(&b));
        QVERIFY(!source.isAssigned(&a));
    }
    QVERIFY(!a.signalsBlocked());
    QVERIFY(!b.signalsBlocked());
}

void tst_uxSignalBlocker::shouldSuppressSignalsOfBlockedObject()
{
    QObject o;
    QSignalSpy spy(&o, &QObject::objectNameChanged);
    {
        uxSignalBlocker blocker(&o);
        o.setObjectName(QStringLiteral("quiet"));
    }
    QCOMPARE(spy.count(), 0);
    o.setObjectName(QStringLiteral("loud"));
    QCOMPARE(spy.count(), 1);
}

void tst_uxSignalBlocker::shouldForgetObjectDestroyedWhileBlocked()
{
    QObject survivor;
    auto* doomed = new QObject;
    {
        uxSignalBlocker blocker{doomed, &survivor};
        delete doomed;
        QVERIFY(!blocker.isAssigned(doomed));
        QVERIFY(!blocker.unblock(doomed)); // must not touch the dead object
        QVERIFY(survivor.signalsBlocked());
    }
    QVERIFY(!survivor.signalsBlocked());
}

QTEST_GUILESS_MAIN(tst_uxSignalBlocker)
#include "tst_uxSignalBlocker.moc"
