#include "client/SessionEnd.h"

#include <QtTest>

namespace {

/// The part of a session manager that a program answers to.
struct Manager
{
    bool bInteraction = true;
    QStringList calls;

    bool allowsInteraction() const { return bInteraction; }
    void release() { calls.append(QStringLiteral("release")); }
    void cancel() { calls.append(QStringLiteral("cancel")); }
};

} // namespace

class TestSessionEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSessionThatMayEndIsRemembered()
    {
        const SessionEnd end([this](bool bMayAsk) { return Answer(bMayAsk); }, [this] { ++m_iRemembered; });
        Manager manager;
        m_bMayEnd = true;
        end.OnCommitData(manager);
        QCOMPARE(manager.calls, QStringList{QStringLiteral("release")});
        QCOMPARE(m_asked, QList<bool>{true});
        QCOMPARE(m_iRemembered, 1);
    }
    void theOperatorCanStopIt()
    {
        m_asked.clear();
        m_iRemembered = 0;
        const SessionEnd end([this](bool bMayAsk) { return Answer(bMayAsk); }, [this] { ++m_iRemembered; });
        Manager manager;
        m_bMayEnd = false;
        end.OnCommitData(manager);
        // The manager lets the others ask only when this program has said that it is done.
        QCOMPARE(manager.calls, (QStringList{QStringLiteral("release"), QStringLiteral("cancel")}));
        QCOMPARE(m_iRemembered, 0);
    }
    void whereNobodyMayBeAskedNobodyIs()
    {
        m_asked.clear();
        const SessionEnd end([this](bool bMayAsk) { return Answer(bMayAsk); }, [this] { ++m_iRemembered; });
        Manager manager;
        manager.bInteraction = false;
        m_bMayEnd = true;
        end.OnCommitData(manager);
        QCOMPARE(manager.calls, QStringList());
        QCOMPARE(m_asked, QList<bool>{false});
    }
    void theToolkitClosesNoWindowsByItself()
    {
        const SessionEnd end([](bool) { return true; }, [] {});
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        QVERIFY(!QGuiApplication::isFallbackSessionManagementEnabled());
#endif
    }

private:
    bool Answer(bool bMayAsk)
    {
        m_asked.append(bMayAsk);
        return m_bMayEnd;
    }

    QList<bool> m_asked;
    int m_iRemembered = 0;
    bool m_bMayEnd = true;
};

QTEST_MAIN(TestSessionEnd)
#include "tst_session_end.moc"
