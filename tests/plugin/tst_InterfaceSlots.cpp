#include "platform/LXPluginAPI/IAbstractUI.h"
#include "platform/LXPluginAPI/IAbstractWidget.h"
#include "platform/LXPluginAPI/IClientUIPluginAPI.h"
#include "platform/SystemLibrary/AlarmSchemeManager.h"
#include "tests/plugin/FakeHub.h"
#include "tests/plugin/VtableCall.h"

#include <QTest>

// Modules and hosts are built apart from each other: an operation that moves breaks every module in the field
// without a word from a compiler. So these tests never call an operation by its name.

namespace {

/// A module that notes which operation ran.
class RecordingPlugin : public LXPluginAPI::IClientUIPluginAPI
{
public:
    ~RecordingPlugin() override { s_iDestroyed += 1; }
    std::string GetModuleKey() const override { return "key"; }
    bool AddManager(LXPluginAPI::IManager* pManager) override
    {
        m_pAdded = pManager;
        return Note("AddManager");
    }
    bool Load() override { return Note("Load"); }
    bool Start() override { return Note("Start"); }
    void Stop() override { Note("Stop"); }
    void Initialize() override { Note("Initialize"); }
    void Uninitialize() override { Note("Uninitialize"); }
    LXPluginAPI::IAbstractUI* GetUIObject() override
    {
        Note("GetUIObject");
        return nullptr;
    }

    std::string m_last;
    LXPluginAPI::IManager* m_pAdded = nullptr;
    static inline int s_iDestroyed = 0;

private:
    bool Note(const char* strOperation)
    {
        m_last = strOperation;
        return true;
    }
};

class RecordingUI : public LXPluginAPI::IAbstractUI
{
public:
    ~RecordingUI() override { s_iDestroyed += 1; }
    LXPluginAPI::IAbstractWidget* GetWidgetDescriptor() override
    {
        m_last = "GetWidgetDescriptor";
        return nullptr;
    }
    LXPluginAPI::IAbstractWidget* FindWidget(const std::string& name) override
    {
        m_last = "FindWidget " + name;
        return nullptr;
    }

    std::string m_last;
    static inline int s_iDestroyed = 0;
};

/// A descriptor whose answers name their operation.
class TellingWidget : public LXPluginAPI::IAbstractWidget
{
public:
    ~TellingWidget() override { s_iDestroyed += 1; }
    std::string GetName() const override { return "name"; }
    QWidget* GetWidget() override { return reinterpret_cast<QWidget*>(&m_mark); }
    QString GetTitle() const override { return QStringLiteral("title"); }
    QIcon GetIcon() const override { return Icon(1); }
    QString GetDescription() const override { return QStringLiteral("description"); }
    QString GetIconPath() const override { return QStringLiteral("icon path"); }
    QString GetHoverIconPath() const override { return QStringLiteral("hover icon path"); }
    QString GetGroupTitle() const override { return QStringLiteral("group title"); }
    QIcon GetGroupIcon() const override { return Icon(2); }
    QString GetTabTitle() const override { return QStringLiteral("tab title"); }
    QIcon GetTabIcon() const override { return Icon(3); }
    QVariant GetExtra() const override { return 12; }
    bool IsWidgetCreated() const override { return true; }

    static int Size(const QIcon& icon) { return icon.availableSizes().value(0).width(); }
    alignas(16) char m_mark = 0;
    static inline int s_iDestroyed = 0;

private:
    static QIcon Icon(int iSize)
    {
        QPixmap pixmap(iSize, iSize);
        pixmap.fill(Qt::black);
        return QIcon(pixmap);
    }
};

class DyingManager : public NamedManager
{
public:
    using NamedManager::NamedManager;
    ~DyingManager() override { s_iDestroyed += 1; }
    static inline int s_iDestroyed = 0;
};

class NotingBackend : public IAlarmSchemeBackend
{
public:
    explicit NotingBackend(std::string& last)
        : m_last(last)
    {
    }
    int Load(AlarmInfoMap&) override
    {
        m_last = "Load";
        return 0;
    }
    int Save(const AlarmInfoMap&) override
    {
        m_last = "Save";
        return 0;
    }

private:
    std::string& m_last;
};

} // namespace

class tst_InterfaceSlots : public QObject
{
    Q_OBJECT

#if defined(__GNUC__)

private Q_SLOTS:
    void theModuleInterfaceKeepsItsSlots()
    {
        RecordingPlugin plugin;
        LXPluginAPI::IClientUIPluginAPI* api = &plugin;
        constexpr Destructor first = Destructor::AtSlot0;
        QCOMPARE(CallSlot<std::string>(api, 1, first), std::string("key"));
        QCOMPARE(CallSlot<std::string>(api, 2, first), std::string("Default Right"));

        NamedManager manager("any");
        LXPluginAPI::IManager* given = &manager;
        QVERIFY(CallSlot<bool>(api, 3, first, given));
        QCOMPARE(plugin.m_last, std::string("AddManager"));
        QCOMPARE(plugin.m_pAdded, given);
        QVERIFY(CallSlot<bool>(api, 4, first));
        QCOMPARE(plugin.m_last, std::string("Load"));
        QVERIFY(CallSlot<bool>(api, 5, first));
        QCOMPARE(plugin.m_last, std::string("Start"));
        CallSlot<void>(api, 6, first);
        QCOMPARE(plugin.m_last, std::string("Stop"));
        CallSlot<void>(api, 7, first);
        QCOMPARE(plugin.m_last, std::string("Initialize"));
        CallSlot<void>(api, 8, first);
        QCOMPARE(plugin.m_last, std::string("Uninitialize"));
        QVERIFY(!CallSlot<LXPluginAPI::IAbstractUI*>(api, 9, first));
        QCOMPARE(plugin.m_last, std::string("GetUIObject"));
    }

    void theBaseOfTheModuleInterfaceLiesAtItsBeginning()
    {
        RecordingPlugin plugin;
        LXPluginAPI::IPluginAPI* base = &plugin;
        LXPluginAPI::IClientUIPluginAPI* derived = &plugin;
        QCOMPARE(static_cast<void*>(base), static_cast<void*>(derived));
        CallSlot<bool>(base, 4, Destructor::AtSlot0);
        QCOMPARE(plugin.m_last, std::string("Load"));
    }

    void theUserInterfaceObjectKeepsItsSlots()
    {
        RecordingUI ui;
        LXPluginAPI::IAbstractUI* api = &ui;
        CallSlot<LXPluginAPI::IAbstractWidget*>(api, 1, Destructor::AtSlot0);
        QCOMPARE(ui.m_last, std::string("GetWidgetDescriptor"));
        const std::string name = "page";
        CallSlot<LXPluginAPI::IAbstractWidget*, const std::string&>(api, 2, Destructor::AtSlot0, name);
        QCOMPARE(ui.m_last, std::string("FindWidget page"));
    }

    void thePageDescriptorKeepsItsSlots()
    {
        TellingWidget widget;
        LXPluginAPI::IAbstractWidget* api = &widget;
        constexpr Destructor first = Destructor::AtSlot0;
        QCOMPARE(CallSlot<std::string>(api, 1, first), std::string("name"));
        QCOMPARE(static_cast<void*>(CallSlot<QWidget*>(api, 2, first)), static_cast<void*>(&widget.m_mark));
        QCOMPARE(CallSlot<QString>(api, 3, first), QStringLiteral("title"));
        QCOMPARE(TellingWidget::Size(CallSlot<QIcon>(api, 4, first)), 1);
        QCOMPARE(CallSlot<QString>(api, 5, first), QStringLiteral("description"));
        QCOMPARE(CallSlot<QString>(api, 6, first), QStringLiteral("icon path"));
        QCOMPARE(CallSlot<QString>(api, 7, first), QStringLiteral("hover icon path"));
        QCOMPARE(CallSlot<QString>(api, 8, first), QStringLiteral("group title"));
        QCOMPARE(TellingWidget::Size(CallSlot<QIcon>(api, 9, first)), 2);
        QCOMPARE(CallSlot<QString>(api, 10, first), QStringLiteral("tab title"));
        QCOMPARE(TellingWidget::Size(CallSlot<QIcon>(api, 11, first)), 3);
        QCOMPARE(CallSlot<QVariant>(api, 12, first), QVariant(12));
        QVERIFY(CallSlot<bool>(api, 13, first));
    }

    void everyManagerAnswersItsNameAtSlotZero()
    {
        NamedManager manager("a service");
        LXPluginAPI::IManager* api = &manager;
        QCOMPARE(CallSlot<std::string>(api, 0, Destructor::AtSlot1), std::string("a service"));
        FakeHub hub;
        LXPluginAPI::IHubManager* hubApi = &hub;
        QCOMPARE(CallSlot<std::string>(hubApi, 0, Destructor::AtSlot1), std::string("HubPluginManager"));
    }

    void everyOperationOfTheHubKeepsItsSlot()
    {
        FakeHub hub;
        LXPluginAPI::IHubManager* api = &hub;
        for (int slot = 2; slot <= FakeHub::LastSlot; ++slot) {
            hub.ForgetCalls();
            QCOMPARE(CallSlot<void*>(api, slot, Destructor::AtSlot1), hub.Mark(slot));
            QCOMPARE(hub.Calls(), std::vector<int>{slot});
        }
    }

    void theSchemeInterfaceLoadsAtSlotOneAndSavesAtSlotSeven()
    {
        const QSharedPointer<AlarmSchemeManager> manager = AlarmSchemeManager::Instance();
        std::string last;
        manager->SetBackend(std::make_unique<NotingBackend>(last));
        IAlarmSchemes* api = manager.data();
        AlarmInfoMap map;
        AlarmInfoMap* given = &map;
        QCOMPARE(CallSlot<int>(api, 1, Destructor::AtSlot0, given), 0);
        QCOMPARE(last, std::string("Load"));
        QCOMPARE(CallSlot<int>(api, 7, Destructor::AtSlot0, given), 0);
        QCOMPARE(last, std::string("Save"));
        manager->SetBackend(nullptr);
    }

    void destructorsStandAtTheirSlots()
    {
        LXPluginAPI::IClientUIPluginAPI* plugin = new RecordingPlugin;
        DeleteThroughTable(plugin, 0);
        QCOMPARE(RecordingPlugin::s_iDestroyed - m_iPlugins, 1);
        LXPluginAPI::IAbstractUI* ui = new RecordingUI;
        DeleteThroughTable(ui, 0);
        QCOMPARE(RecordingUI::s_iDestroyed - m_iUIs, 1);
        LXPluginAPI::IAbstractWidget* widget = new TellingWidget;
        DeleteThroughTable(widget, 0);
        QCOMPARE(TellingWidget::s_iDestroyed - m_iWidgets, 1);
        LXPluginAPI::IManager* manager = new DyingManager("any");
        DeleteThroughTable(manager, 1);
        QCOMPARE(DyingManager::s_iDestroyed - m_iManagers, 1);
    }

    void init()
    {
        m_iPlugins = RecordingPlugin::s_iDestroyed;
        m_iUIs = RecordingUI::s_iDestroyed;
        m_iWidgets = TellingWidget::s_iDestroyed;
        m_iManagers = DyingManager::s_iDestroyed;
    }

private:
    int m_iPlugins = 0;
    int m_iUIs = 0;
    int m_iWidgets = 0;
    int m_iManagers = 0;

#endif // the C++ ABI whose tables these tests read
};

QTEST_MAIN(tst_InterfaceSlots)
#include "tst_InterfaceSlots.moc"
