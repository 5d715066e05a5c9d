#include "platform/SystemLibrary/AlarmSchemeManager.h"

#include <QTest>

#include <type_traits>

namespace {

struct Journal
{
    int iLoads = 0;
    int iSaves = 0;
    int iDestroyed = 0;
    AlarmInfoMap saved;
    const AlarmInfoMap* pLoadedInto = nullptr;
};

/// Answers what it is told to and writes down what it was given.
class FakeBackend : public IAlarmSchemeBackend
{
public:
    FakeBackend(Journal& journal, AlarmInfoMap content, int iStatus = 0)
        : m_journal(journal)
        , m_content(std::move(content))
        , m_iStatus(iStatus)
    {
    }
    ~FakeBackend() override { ++m_journal.iDestroyed; }
    int Load(AlarmInfoMap& map) override
    {
        ++m_journal.iLoads;
        m_journal.pLoadedInto = &map;
        map = m_content;
        return m_iStatus;
    }
    int Save(const AlarmInfoMap& map) override
    {
        ++m_journal.iSaves;
        m_journal.saved = map;
        return m_iStatus;
    }

private:
    Journal& m_journal;
    AlarmInfoMap m_content;
    int m_iStatus;
};

AlarmInfoMap MapOf(const QString& strSource, int32_t iType)
{
    AlarmInfo info;
    info.bOpen = true;
    info.defenceTime[3] = {{60, 120}};
    return {{AlarmSourceKey{strSource, iType}, info}};
}

} // namespace

class tst_AlarmSchemeManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { AlarmSchemeManager::Instance()->SetBackend(nullptr); }

    void thereIsOneSharedInstance()
    {
        const auto one = AlarmSchemeManager::Instance();
        QVERIFY(one);
        QCOMPARE(AlarmSchemeManager::Instance().data(), one.data());
    }

    void theInstanceOutlivesItsUsers()
    {
        Journal journal;
        AlarmSchemeManager::Instance()->SetBackend(std::make_unique<FakeBackend>(journal, AlarmInfoMap()));
        // Nobody holds the instance here.
        QCOMPARE(journal.iDestroyed, 0);
        AlarmInfoMap map;
        QCOMPARE(AlarmSchemeManager::Instance()->LoadAlarmInfo(&map), 0);
        QCOMPARE(journal.iLoads, 1);
    }

    void theSchemeInterfaceIsTheSecondBase()
    {
        static_assert(std::is_base_of_v<QObject, AlarmSchemeManager>);
        static_assert(std::is_base_of_v<IAlarmSchemes, AlarmSchemeManager>);
        const auto manager = AlarmSchemeManager::Instance();
        const auto whole = reinterpret_cast<const char*>(manager.data());
        const auto object = reinterpret_cast<const char*>(static_cast<QObject*>(manager.data()));
        const auto schemes = reinterpret_cast<const char*>(static_cast<IAlarmSchemes*>(manager.data()));
        QCOMPARE(object, whole);
        QVERIFY(schemes >= object + sizeof(QObject));
    }

    void withoutABackendNothingIsLoaded()
    {
        AlarmInfoMap map = MapOf(QStringLiteral("1$1$0$2"), 5);
        const AlarmInfoMap before = map;
        QCOMPARE(AlarmSchemeManager::Instance()->LoadAlarmInfo(&map), -1);
        QVERIFY(map == before);
    }

    void withoutABackendNothingIsSaved()
    {
        const AlarmInfoMap map = MapOf(QStringLiteral("1$1$0$2"), 5);
        QCOMPARE(AlarmSchemeManager::Instance()->SaveAlarmInfo(&map), -1);
    }

    void noMapIsAFailureThatNeverReachesTheBackend()
    {
        const auto manager = AlarmSchemeManager::Instance();
        QVERIFY(manager->LoadAlarmInfo(nullptr) != 0);
        QVERIFY(manager->SaveAlarmInfo(nullptr) != 0);
        Journal journal;
        manager->SetBackend(std::make_unique<FakeBackend>(journal, AlarmInfoMap()));
        QVERIFY(manager->LoadAlarmInfo(nullptr) != 0);
        QVERIFY(manager->SaveAlarmInfo(nullptr) != 0);
        QCOMPARE(journal.iLoads, 0);
        QCOMPARE(journal.iSaves, 0);
    }

    void loadingPassesThrough()
    {
        Journal journal;
        const AlarmInfoMap content = MapOf(QStringLiteral("7$1$0$8"), 4);
        const auto manager = AlarmSchemeManager::Instance();
        manager->SetBackend(std::make_unique<FakeBackend>(journal, content));
        AlarmInfoMap map;
        QCOMPARE(manager->LoadAlarmInfo(&map), 0);
        QCOMPARE(journal.iLoads, 1);
        QCOMPARE(journal.pLoadedInto, &map);
        QVERIFY(map == content);
        QCOMPARE(journal.iSaves, 0);
    }

    void savingPassesThrough()
    {
        Journal journal;
        const auto manager = AlarmSchemeManager::Instance();
        manager->SetBackend(std::make_unique<FakeBackend>(journal, AlarmInfoMap()));
        const AlarmInfoMap map = MapOf(QStringLiteral("7$1$0$8"), 4);
        QCOMPARE(manager->SaveAlarmInfo(&map), 0);
        QCOMPARE(journal.iSaves, 1);
        QVERIFY(journal.saved == map);
        const AlarmInfoMap empty;
        QCOMPARE(manager->SaveAlarmInfo(&empty), 0); // nothing to keep is something to say
        QCOMPARE(journal.iSaves, 2);
        QVERIFY(journal.saved.isEmpty());
    }

    void theBackendsStatusIsTheManagersAnswer()
    {
        Journal journal;
        const auto manager = AlarmSchemeManager::Instance();
        for (int status : {-1, -7, 0}) {
            manager->SetBackend(std::make_unique<FakeBackend>(journal, AlarmInfoMap(), status));
            AlarmInfoMap map;
            QCOMPARE(manager->LoadAlarmInfo(&map), status);
            QCOMPARE(manager->SaveAlarmInfo(&map), status);
        }
    }

    void aNewBackendReplacesAndDestroysTheOldOne()
    {
        Journal first;
        Journal second;
        const auto manager = AlarmSchemeManager::Instance();
        manager->SetBackend(std::make_unique<FakeBackend>(first, MapOf(QStringLiteral("1"), 1)));
        manager->SetBackend(std::make_unique<FakeBackend>(second, MapOf(QStringLiteral("2"), 2)));
        QCOMPARE(first.iDestroyed, 1);
        AlarmInfoMap map;
        QCOMPARE(manager->LoadAlarmInfo(&map), 0);
        QVERIFY(map == MapOf(QStringLiteral("2"), 2));
        QCOMPARE(first.iLoads, 0);
        QCOMPARE(second.iLoads, 1);
    }

    void noBackendAtAllRemovesThePresentOne()
    {
        Journal journal;
        const auto manager = AlarmSchemeManager::Instance();
        manager->SetBackend(std::make_unique<FakeBackend>(journal, AlarmInfoMap()));
        manager->SetBackend(nullptr);
        QCOMPARE(journal.iDestroyed, 1);
        AlarmInfoMap map;
        QCOMPARE(manager->LoadAlarmInfo(&map), -1);
        QCOMPARE(manager->SaveAlarmInfo(&map), -1);
        manager->SetBackend(nullptr);
        QCOMPARE(journal.iDestroyed, 1);
    }
};

QTEST_GUILESS_MAIN(tst_AlarmSchemeManager)
#include "tst_AlarmSchemeManager.moc"
