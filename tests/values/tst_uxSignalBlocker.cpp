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
    void shouldBlockWhileAliveAndRestoreAfter_data()
    {
        QTest::addColumn<int>("how");
        int how = 0;
        for (const char* name : {"constructor", "initializer list", "vector", "block()", "operator<<", "operator+="})
            QTest::newRow(name) << how++;
    }

    void shouldBlockWhileAliveAndRestoreAfter()
    {
        QFETCH(int, how);
        QObject a, b;
        QSignalSpy spy(&a, &QObject::objectNameChanged);
        {
            auto blocker = how == 0   ? std::make_unique<uxSignalBlocker>(&a)
                           : how == 1 ? std::make_unique<uxSignalBlocker>(std::initializer_list<QObject*>{&a, &b})
                           : how == 2 ? std::make_unique<uxSignalBlocker>(std::vector<QObject*>{&a, &b})
                                      : std::make_unique<uxSignalBlocker>();
            if (how == 0)
                *blocker << &b;
            else if (how == 3)
                blocker->block(&a).block(&b);
            else if (how == 4)
                *blocker << &a << &b;
            else if (how == 5)
                (*blocker += &a) += &b;
            QVERIFY(a.signalsBlocked() && b.signalsBlocked());
            QVERIFY(blocker->isAssigned(&a) && blocker->isAssigned(&b));
            QVERIFY(!blocker->parent());
            a.setObjectName(QStringLiteral("quiet"));
        }
        QVERIFY(!a.signalsBlocked() && !b.signalsBlocked());
        QCOMPARE(spy.count(), 0);
    }

    void shouldRestoreDuplicateEntriesInOrderAndIgnoreOthers()
    {
        QObject preBlocked, twice, o, other;
        preBlocked.blockSignals(true);
        {
            uxSignalBlocker blocker(&preBlocked);
            blocker << &twice << &twice;
        }
        QVERIFY(preBlocked.signalsBlocked());
        // The second entry remembered "blocked", and it is restored last.
        QVERIFY(twice.signalsBlocked());

        // unblock() restores and forgets the first entry only.
        uxSignalBlocker blocker(&o);
        blocker << &o;
        QVERIFY(!blocker.unblock(&other) && !blocker.isAssigned(&other) && !other.signalsBlocked());
        QVERIFY(blocker.unblock(&o));
        QVERIFY(!o.signalsBlocked() && blocker.isAssigned(&o)); // first entry held "unblocked"
        QVERIFY(blocker.unblock(&o));
        QVERIFY(o.signalsBlocked() && !blocker.isAssigned(&o)); // second entry held "blocked"
        QVERIFY(!blocker.unblock(&o));
    }

    void shouldTransferEntriesOnCopy()
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

    void shouldPrependTransferredEntries_data()
    {
        QTest::addColumn<bool>("viaMove");
        QTest::newRow("assignment") << false;
        QTest::newRow("move") << true;
    }

    void shouldPrependTransferredEntries()
    {
        QFETCH(bool, viaMove);
        QObject o;
        TransferringBlocker source;
        source << &o; // remembers "unblocked"
        {
            TransferringBlocker target;
            target << &o; // remembers "blocked"
            if (viaMove)
                target.move(source);
            else
                static_cast<uxSignalBlocker&>(target) = source;
            QVERIFY(!source.isAssigned(&o));
            // Entries now: (o, unblocked) from the source, then (o, blocked).
            QVERIFY(target.unblock(&o));
            QVERIFY(!o.signalsBlocked());
            QVERIFY(target.isAssigned(&o));
            o.blockSignals(true);
        }
        QVERIFY(o.signalsBlocked());
    }

    void shouldForgetObjectDestroyedWhileBlocked()
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
};

QTEST_GUILESS_MAIN(tst_uxSignalBlocker)
#include "tst_uxSignalBlocker.moc"
