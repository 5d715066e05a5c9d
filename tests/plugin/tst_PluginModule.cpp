#include "platform/LXPluginAPI/IAbstractUI.h"
#include "platform/LXPluginAPI/IAbstractWidget.h"
#include "platform/LXPluginAPI/IClientUIPluginAPI.h"
#include "platform/SystemLibrary/AlarmSchemeManager.h"
#include "tests/plugin/FakeHub.h"
#include "tests/plugin/VtableCall.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QTest>
#include <QTranslator>
#include <QWidget>

#include <memory>

using LXPluginAPI::IAbstractUI;
using LXPluginAPI::IAbstractWidget;
using LXPluginAPI::IClientUIPluginAPI;

namespace {

QString ModuleFile()
{
    return QStringLiteral(ACS_MODULE_FILE);
}

/// As a host does that may still be inside one of the object's functions.
void Destroy(QObject* pObject)
{
    if (pObject) {
        pObject->deleteLater();
        QCoreApplication::sendPostedEvents(pObject, QEvent::DeferredDelete);
    }
}

/// Puts every text in brackets, with the context that asked for it.
class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        return QStringLiteral("[%1|%2]").arg(QLatin1String(context), QLatin1String(sourceText));
    }
};

} // namespace

class tst_PluginModule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_loader.setFileName(ModuleFile());
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
    }

    void init()
    {
        m_root = m_loader.instance();
        QVERIFY(m_root);
        m_api = qobject_cast<IClientUIPluginAPI*>(m_root.data());
        QVERIFY(m_api);
        m_hub = std::make_unique<FakeHub>(FakeHub::Answers::Null);
    }

    void cleanup()
    {
        Destroy(m_page);
        if (m_root)
            m_api->Uninitialize();
        Destroy(m_root);
        m_hub.reset();
    }

    // the file

    void theMetadataHoldsIdentifierClassAndKeys()
    {
        const QJsonObject all = m_loader.metaData();
        QCOMPARE(all.value(QLatin1String("IID")),
                 QJsonValue(QStringLiteral("org.qt-project.Qt.QStyleFactoryInterface")));
        QCOMPARE(all.value(QLatin1String("className")),
                 QJsonValue(QStringLiteral("CACSEventConfigUIPlugin")));
        const QJsonObject own = all.value(QLatin1String("MetaData")).toObject();
        QCOMPARE(own.keys(), QStringList{QStringLiteral("Keys")});
        QCOMPARE(own.value(QLatin1String("Keys")),
                 QJsonValue(QJsonArray{QStringLiteral("ACSEventConfigUI")}));
    }

    void theMetadataHoldsNothingElseOfItsOwn()
    {
        QStringList keys = m_loader.metaData().keys();
        // What Qt itself says of every plugin.
        for (const char* key : {"archlevel", "archreq", "debug", "version"})
            keys.removeAll(QLatin1String(key));
        QCOMPARE(keys, (QStringList{QStringLiteral("IID"), QStringLiteral("MetaData"),
                                    QStringLiteral("className")}));
    }

    void theMetadataCanBeReadWithoutLoading()
    {
        QPluginLoader other(ModuleFile());
        QCOMPARE(other.metaData().value(QLatin1String("className")).toString(),
                 QStringLiteral("CACSEventConfigUIPlugin"));
    }

    void bothPluginEntryPointsAreExported()
    {
        QLibrary library(ModuleFile());
        QVERIFY(library.resolve("qt_plugin_instance"));
        // Qt 6.3 gave the second one a new form under a new name.
        QVERIFY(library.resolve("qt_plugin_query_metadata") ||
                (QT_VERSION >= QT_VERSION_CHECK(6, 3, 0) && library.resolve("qt_plugin_query_metadata_v2")));
    }

    // the root object

    void theInstanceIsKeptWhileItLives()
    {
        using Instance = QObject* (*)();
        QLibrary library(ModuleFile());
        const auto instance = reinterpret_cast<Instance>(library.resolve("qt_plugin_instance"));
        QVERIFY(instance);
        QCOMPARE(instance(), m_root.data());
        QCOMPARE(instance(), m_root.data());
        QVERIFY(!m_root->parent());
    }

    void aNewInstanceIsMadeAfterTheOldOneDied()
    {
        m_api->Initialize();
        m_api->Uninitialize();
        Destroy(m_root);
        QVERIFY(!m_root);
        m_root = m_loader.instance();
        QVERIFY(m_root);
        m_api = qobject_cast<IClientUIPluginAPI*>(m_root.data());
        QVERIFY(m_api);
        // Whatever the old one went through, this one is fresh.
        QVERIFY(!m_api->GetUIObject());
        QVERIFY(m_api->AddManager(m_hub.get()));
        m_api->Initialize();
        QVERIFY(m_api->GetUIObject());
    }

    void theRootIsCastByInterfaceIdAndByName()
    {
        const auto byId =
            static_cast<IClientUIPluginAPI*>(m_root->qt_metacast("com.LXPluginAPI.IClientUIPluginAPI(1.0)"));
        const auto byName =
            static_cast<IClientUIPluginAPI*>(m_root->qt_metacast("LXPluginAPI::IClientUIPluginAPI"));
        QVERIFY(byId);
        QCOMPARE(byName, byId);
        QCOMPARE(byId->GetModuleKey(), std::string("ACSEventConfigUI"));
        QCOMPARE(dynamic_cast<QObject*>(byId), m_root.data());
        QVERIFY(!m_root->qt_metacast("com.LXPluginAPI.IClientUIPluginAPI(2.0)"));
        QVERIFY(!m_root->qt_metacast("IClientUIPluginAPI"));
    }

    void theClassNameStandsInItsNamespace()
    {
        QCOMPARE(m_root->metaObject()->className(), "ACSEventConfigUI::CACSEventConfigUIPlugin");
    }

    void theObjectComesBeforeTheInterface()
    {
        const auto object = reinterpret_cast<const char*>(m_root.data());
        const auto interface_ = reinterpret_cast<const char*>(m_api);
        QCOMPARE(object, static_cast<const char*>(dynamic_cast<const void*>(m_root.data())));
        QVERIFY(interface_ >= object + sizeof(QObject));
    }

    void theModuleSaysItsKeyAndTheDefaultRight()
    {
        QCOMPARE(m_api->GetModuleKey(), std::string("ACSEventConfigUI"));
        QCOMPARE(m_api->GetRightName(), std::string("Default Right"));
    }

    void theModuleAgreesToEveryStepOfTheHost()
    {
        QVERIFY(m_api->Load());
        QVERIFY(m_api->Start());
        m_api->Stop();
        QVERIFY(!m_api->GetUIObject());
        m_api->Initialize();
        IAbstractUI* const ui = m_api->GetUIObject();
        m_api->Stop();
        QCOMPARE(m_api->GetUIObject(), ui);
    }

    // managers

    void aManagerIsTakenOnce()
    {
        NamedManager other("HubPluginManager");
        QVERIFY(m_api->AddManager(m_hub.get()));
        QVERIFY(!m_api->AddManager(m_hub.get()));
        QVERIFY(m_api->AddManager(&other)); // another object of the same name is no duplicate
        QVERIFY(!m_api->AddManager(&other));
        QVERIFY(!m_api->AddManager(m_hub.get()));
    }

    void aNullManagerIsAnEntryLikeAnyOther()
    {
        QVERIFY(m_api->AddManager(nullptr));
        QVERIFY(!m_api->AddManager(nullptr));
        QVERIFY(m_api->AddManager(m_hub.get()));
        IAbstractWidget* const descriptor = Descriptor();
        QVERIFY(descriptor);
        QCOMPARE(m_hub->Calls(), HubSlots::FillOrder());
    }

    void managersKeepTheOrderInWhichTheyCame()
    {
        FakeHub second(FakeHub::Answers::Null);
        NamedManager first("Something else");
        QVERIFY(m_api->AddManager(&first));
        QVERIFY(m_api->AddManager(m_hub.get()));
        QVERIFY(m_api->AddManager(&second));
        QVERIFY(!m_api->AddManager(m_hub.get())); // a refused duplicate moves nothing
        QVERIFY(Descriptor());
        QCOMPARE(m_hub->Calls().size(), std::size_t(48));
        QVERIFY(second.Calls().empty());
    }

    void managersThatComeAfterInitialisingAreUsedToo()
    {
        m_api->Initialize();
        QVERIFY(m_api->AddManager(m_hub.get()));
        QVERIFY(m_api->GetUIObject()->GetWidgetDescriptor());
        QCOMPARE(m_hub->Calls(), HubSlots::FillOrder());
    }

    // the user-interface object

    void theUserInterfaceObjectLivesFromInitialisingToUninitialising()
    {
        QVERIFY(!m_api->GetUIObject());
        m_api->Initialize();
        IAbstractUI* const ui = m_api->GetUIObject();
        QVERIFY(ui);
        QCOMPARE(m_api->GetUIObject(), ui);
        m_api->Uninitialize();
        QVERIFY(!m_api->GetUIObject());
    }

    void initialisingTwiceMakesOneUserInterfaceObject()
    {
        m_api->Initialize();
        IAbstractUI* const ui = m_api->GetUIObject();
        IAbstractWidget* const descriptor = ui->GetWidgetDescriptor();
        m_api->Initialize();
        QCOMPARE(m_api->GetUIObject(), ui);
        QCOMPARE(ui->GetWidgetDescriptor(), descriptor);
    }

    void theDescriptorIsMadeOnce()
    {
        m_api->AddManager(m_hub.get());
        IAbstractWidget* const descriptor = Descriptor();
        QVERIFY(descriptor);
        QCOMPARE(Descriptor(), descriptor);
        QCOMPARE(m_api->GetUIObject()->GetWidgetDescriptor(), descriptor);
        // One fetch of the services for the one descriptor that was made.
        QCOMPARE(m_hub->Calls(), HubSlots::FillOrder());
    }

    void theDescriptorIsFoundByNameOnceItExists()
    {
        m_api->Initialize();
        IAbstractUI* const ui = m_api->GetUIObject();
        QVERIFY(!ui->FindWidget("ACSEventConfigUI"));
        IAbstractWidget* const descriptor = ui->GetWidgetDescriptor();
        QCOMPARE(ui->FindWidget("ACSEventConfigUI"), descriptor);
    }

    void descriptorNamesAreComparedByteForByte()
    {
        QVERIFY(Descriptor());
        IAbstractUI* const ui = m_api->GetUIObject();
        for (const std::string& name :
             {std::string(), std::string("acseventconfigui"), std::string("ACSEventConfigU"),
              std::string("ACSEventConfigUI "), std::string("ACSEventConfigUI\0", 17),
              std::string("ACSEventSchemeEditor")})
            QVERIFY2(!ui->FindWidget(name), name.c_str());
    }

    // the descriptor

    void theDescriptorAnswersInSourceTextsWithoutACatalogue()
    {
        IAbstractWidget* const descriptor = Descriptor();
        QVERIFY(descriptor);
        QCOMPARE(descriptor->GetName(), std::string("ACSEventConfigUI"));
        QCOMPARE(descriptor->GetTitle(), QStringLiteral("EVENT_CFG-MODULE"));
        QVERIFY(descriptor->GetIcon().isNull());
        QCOMPARE(descriptor->GetDescription(), QStringLiteral("alarm cfg details"));
        QCOMPARE(descriptor->GetIconPath(), QStringLiteral("./Skin/theme1/homepage/alarmcfg.png"));
        QCOMPARE(descriptor->GetHoverIconPath(), QStringLiteral("./Skin/theme1/homepage/alarmcfg.png"));
        QCOMPARE(descriptor->GetGroupTitle(), QString());
        QVERIFY(descriptor->GetGroupIcon().isNull());
        QCOMPARE(descriptor->GetTabTitle(), QStringLiteral("EVENT_CFG-MODULE"));
        QVERIFY(descriptor->GetTabIcon().isNull());
        QVERIFY(!descriptor->GetExtra().isValid());
        QVERIFY(!descriptor->IsWidgetCreated());
    }

    void theDescriptorTranslatesInItsOwnContext()
    {
        IAbstractWidget* const descriptor = Descriptor();
        QVERIFY(descriptor);
        BracketTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        const QString frame = QStringLiteral("[ACSEventConfigUI::CACSEventConfigWidget|%1]");
        QCOMPARE(descriptor->GetTitle(), frame.arg(QLatin1String("EVENT_CFG-MODULE")));
        QCOMPARE(descriptor->GetTabTitle(), frame.arg(QLatin1String("EVENT_CFG-MODULE")));
        QCOMPARE(descriptor->GetDescription(), frame.arg(QLatin1String("alarm cfg details")));
        QCOMPARE(descriptor->GetGroupTitle(), frame.arg(QString()));
        // What names files and pages is no text for people.
        QCOMPARE(descriptor->GetName(), std::string("ACSEventConfigUI"));
        QCOMPARE(descriptor->GetIconPath(), QStringLiteral("./Skin/theme1/homepage/alarmcfg.png"));
        QCOMPARE(descriptor->GetHoverIconPath(), QStringLiteral("./Skin/theme1/homepage/alarmcfg.png"));
        QCoreApplication::removeTranslator(&translator);
    }

    void theImageOfTheTileIsInTheSkin() { QVERIFY(!QImage(Descriptor()->GetIconPath()).isNull()); }

    // the page

    void thePageIsMadeOnFirstUseWithoutAParent()
    {
        IAbstractWidget* const descriptor = Descriptor();
        QVERIFY(!descriptor->IsWidgetCreated());
        m_page = descriptor->GetWidget();
        QVERIFY(m_page);
        QVERIFY(descriptor->IsWidgetCreated());
        QVERIFY(!m_page->parent());
        QCOMPARE(m_page->metaObject()->className(), "ACSEventSchemeEditor");
        QCOMPARE(m_page->objectName(), QStringLiteral("ACSEventSchemeEditor"));
    }

    void thePageStaysTheSameWhileItLives()
    {
        IAbstractWidget* const descriptor = Descriptor();
        m_page = descriptor->GetWidget();
        QVERIFY(m_page);
        QCOMPARE(descriptor->GetWidget(), m_page.data());
        QWidget window;
        m_page->setParent(&window);
        QCOMPARE(descriptor->GetWidget(), m_page.data());
        QCOMPARE(m_page->parentWidget(), &window);
    }

    void aDestroyedPageIsBuiltAfresh()
    {
        IAbstractWidget* const descriptor = Descriptor();
        auto window = std::make_unique<QWidget>();
        const QPointer<QWidget> first = descriptor->GetWidget();
        first->setParent(window.get());
        window.reset();
        QVERIFY(!first);
        QVERIFY(!descriptor->IsWidgetCreated());
        m_page = descriptor->GetWidget();
        QVERIFY(m_page);
        QVERIFY(descriptor->IsWidgetCreated());
        QVERIFY(!m_page->parent());
    }

    void theServicesAreFetchedAtEveryRequestForThePage()
    {
        m_api->AddManager(m_hub.get());
        IAbstractWidget* const descriptor = Descriptor();
        QCOMPARE(m_hub->Calls(), HubSlots::FillOrder());

        m_hub->ForgetCalls();
        m_page = descriptor->GetWidget();
        const std::vector<int> fill = HubSlots::FillOrder();
        QVERIFY(m_hub->Calls().size() >= fill.size());
        QVERIFY(std::equal(fill.begin(), fill.end(), m_hub->Calls().begin()));

        for (int request = 0; request < 3; ++request) {
            m_hub->ForgetCalls();
            QCOMPARE(descriptor->GetWidget(), m_page.data());
            QCOMPARE(m_hub->Calls(), fill);
        }
    }

    void questionsAboutThePageFetchNothing()
    {
        m_api->AddManager(m_hub.get());
        IAbstractWidget* const descriptor = Descriptor();
        m_hub->ForgetCalls();
        descriptor->IsWidgetCreated();
        descriptor->GetTitle();
        m_api->GetUIObject()->FindWidget("ACSEventConfigUI");
        QVERIFY(m_hub->Calls().empty());
        QCOMPARE(m_hub->NameCalls(), 0);
    }

    void thePageBuildsWithoutAnyManager()
    {
        m_page = Descriptor()->GetWidget();
        QVERIFY(m_page);
    }

    void thePageBuildsWithAManagerOfTheWrongType()
    {
        NamedManager impostor("HubPluginManager");
        m_api->AddManager(&impostor);
        m_page = Descriptor()->GetWidget();
        QVERIFY(m_page);
    }

    // the end

    void uninitialisingLeavesTheHostItsPage()
    {
        m_api->AddManager(m_hub.get());
        m_page = Descriptor()->GetWidget();
        QVERIFY(m_page);
        m_api->Uninitialize();
        QVERIFY(m_page);
        Destroy(m_root);
        QVERIFY(m_page);
        QCOMPARE(m_page->objectName(), QStringLiteral("ACSEventSchemeEditor"));
        m_hub.reset(); // the host's managers go before the page does
        Destroy(m_page);
    }

    void uninitialisingAfterThePageIsGoneIsFine()
    {
        m_api->AddManager(m_hub.get());
        IAbstractWidget* const descriptor = Descriptor();
        Destroy(descriptor->GetWidget());
        QVERIFY(!descriptor->IsWidgetCreated());
        m_api->Uninitialize();
        QVERIFY(!m_api->GetUIObject());
    }

    void uninitialisingAgainIsHarmless()
    {
        m_api->AddManager(m_hub.get());
        QVERIFY(Descriptor());
        m_api->Uninitialize();
        m_api->Uninitialize();
        QVERIFY(!m_api->GetUIObject());
    }

    void uninitialisingWhatWasNeverInitialisedIsHarmless()
    {
        m_api->AddManager(m_hub.get());
        m_api->Uninitialize();
        QVERIFY(!m_api->GetUIObject());
        QVERIFY(m_hub->Calls().empty());
    }

    void anUninitialisedModuleTakesNoManager()
    {
        m_api->Initialize();
        m_api->Uninitialize();
        QVERIFY(!m_api->AddManager(m_hub.get()));
        QVERIFY(!m_api->AddManager(nullptr));
    }

    void anUninitialisedModuleGivesNoUserInterfaceObjectAgain()
    {
        m_api->Initialize();
        m_api->Uninitialize();
        m_api->Initialize();
        QVERIFY(!m_api->GetUIObject());
    }

    void theRootMayDieWithoutBeingUninitialised()
    {
        m_api->AddManager(m_hub.get());
        QVERIFY(Descriptor());
        Destroy(m_root);
        QVERIFY(!m_root);
    }

#if defined(__GNUC__)
    void aHostThatKnowsOnlyTheSlotsGetsThrough()
    {
        constexpr Destructor first = Destructor::AtSlot0;
        LXPluginAPI::IManager* const manager = m_hub.get();
        QCOMPARE(CallSlot<std::string>(m_api, 1, first), std::string("ACSEventConfigUI"));
        QCOMPARE(CallSlot<std::string>(m_api, 2, first), std::string("Default Right"));
        QVERIFY(CallSlot<bool>(m_api, 3, first, manager));
        QVERIFY(!CallSlot<bool>(m_api, 3, first, manager));
        QVERIFY(CallSlot<bool>(m_api, 4, first));
        QVERIFY(CallSlot<bool>(m_api, 5, first));
        CallSlot<void>(m_api, 6, first);
        QVERIFY(!CallSlot<IAbstractUI*>(m_api, 9, first));
        CallSlot<void>(m_api, 7, first);
        IAbstractUI* const ui = CallSlot<IAbstractUI*>(m_api, 9, first);
        QVERIFY(ui);

        const std::string name = "ACSEventConfigUI";
        const auto find = [&] {
            return CallSlot<IAbstractWidget*, const std::string&>(ui, 2, Destructor::AtSlot0, name);
        };
        QVERIFY(!find());
        IAbstractWidget* const descriptor = CallSlot<IAbstractWidget*>(ui, 1, first);
        QVERIFY(descriptor);
        QCOMPARE(find(), descriptor);

        QCOMPARE(CallSlot<std::string>(descriptor, 1, first), name);
        QVERIFY(!CallSlot<bool>(descriptor, 13, first));
        m_page = CallSlot<QWidget*>(descriptor, 2, first);
        QVERIFY(m_page);
        QVERIFY(CallSlot<bool>(descriptor, 13, first));
        QCOMPARE(CallSlot<QString>(descriptor, 3, first), QStringLiteral("EVENT_CFG-MODULE"));
        QVERIFY(CallSlot<QIcon>(descriptor, 4, first).isNull());
        QCOMPARE(CallSlot<QString>(descriptor, 5, first), QStringLiteral("alarm cfg details"));
        const QString image = QStringLiteral("./Skin/theme1/homepage/alarmcfg.png");
        QCOMPARE(CallSlot<QString>(descriptor, 6, first), image);
        QCOMPARE(CallSlot<QString>(descriptor, 7, first), image);
        QCOMPARE(CallSlot<QString>(descriptor, 8, first), QString());
        QVERIFY(CallSlot<QIcon>(descriptor, 9, first).isNull());
        QCOMPARE(CallSlot<QString>(descriptor, 10, first), QStringLiteral("EVENT_CFG-MODULE"));
        QVERIFY(CallSlot<QIcon>(descriptor, 11, first).isNull());
        QVERIFY(!CallSlot<QVariant>(descriptor, 12, first).isValid());

        CallSlot<void>(m_api, 8, first);
        QVERIFY(!CallSlot<IAbstractUI*>(m_api, 9, first));
        QVERIFY(m_page);
        DeleteThroughTable(m_api, 0);
        QVERIFY(!m_root);
    }
#endif

private:
    IAbstractWidget* Descriptor()
    {
        m_api->Initialize();
        return m_api->GetUIObject()->GetWidgetDescriptor();
    }

    QPluginLoader m_loader;
    QPointer<QObject> m_root;
    IClientUIPluginAPI* m_api = nullptr;
    std::unique_ptr<FakeHub> m_hub;
    QPointer<QWidget> m_page;
};

QTEST_MAIN(tst_PluginModule)
#include "tst_PluginModule.moc"
