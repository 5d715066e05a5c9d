#include "platform/LXPluginAPI/IAbstractUI.h"
#include "platform/LXPluginAPI/IAbstractWidget.h"
#include "platform/LXPluginAPI/IClientUIPluginAPI.h"

#include <QCoreApplication>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <stdexcept>

// A module in one file. Every call of its life is written down in the application's property "moduleCalls",
// as
// "<key>:<call>", so that a test sees the order.

#if defined(TEST_MISSING_SYMBOL)
// Declared, but defined in no library.
void OperationOfAnotherPlatform();
#endif

namespace {

const char* const ModuleKey =
#if defined(TEST_SAME_KEY)
    "good";
#elif defined(TEST_NO_KEY)
    "";
#else
    TEST_MODULE_KEY;
#endif

void Record(const QString& strCall)
{
    QStringList calls = qApp->property("moduleCalls").toStringList();
    calls.append(QLatin1String(TEST_MODULE_KEY) + QLatin1Char(':') + strCall);
    qApp->setProperty("moduleCalls", calls);
}

class TestPage : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString editedScheme READ EditedScheme NOTIFY SignalEditedSchemeChanged)

public:
    TestPage() { setObjectName(QLatin1String("page_") + QLatin1String(TEST_MODULE_KEY)); }
    ~TestPage() override { Record(QStringLiteral("page destroyed")); }
    QString EditedScheme() const { return m_strEdited; }

Q_SIGNALS:
    void SignalEditedSchemeChanged();

public Q_SLOTS:
    void OnSave() { Record(QStringLiteral("page saved")); }
    void Edit(const QString& strScheme)
    {
        m_strEdited = strScheme;
        Q_EMIT SignalEditedSchemeChanged();
    }

private:
    QString m_strEdited;
};

class TestDescriptor : public LXPluginAPI::IAbstractWidget
{
public:
    std::string GetName() const override { return ModuleKey; }
    QWidget* GetWidget() override
    {
#if !defined(TEST_NULL_PAGE)
        if (m_page.isNull()) {
            m_page = new TestPage;
        }
#endif
        return m_page;
    }
    QString GetTitle() const override
    {
        return QStringLiteral("Title of " TEST_MODULE_KEY);
    }
    QIcon GetIcon() const override
    {
        return {};
    }
    QString GetDescription() const override
    {
        return QStringLiteral("Description of " TEST_MODULE_KEY);
    }
    QString GetIconPath() const override
    {
        return QStringLiteral("./icon.png");
    }
    QString GetHoverIconPath() const override
    {
        return QStringLiteral("./hover.png");
    }
    QString GetGroupTitle() const override
    {
        return {};
    }
    QIcon GetGroupIcon() const override
    {
        return {};
    }
    QString GetTabTitle() const override
    {
        return QStringLiteral("Tab of " TEST_MODULE_KEY);
    }
    QIcon GetTabIcon() const override
    {
        return {};
    }
    QVariant GetExtra() const override
    {
        return {};
    }
    bool IsWidgetCreated() const override
    {
        return !m_page.isNull();
    }

private:
    QPointer<QWidget> m_page;
};

class TestUi : public LXPluginAPI::IAbstractUI
{
public:
    LXPluginAPI::IAbstractWidget* GetWidgetDescriptor() override
    {
#if defined(TEST_NULL_DESCRIPTOR)
        return nullptr;
#else
        return &m_descriptor;
#endif
    }
    LXPluginAPI::IAbstractWidget* FindWidget(const std::string& name) override
    {
        return name == ModuleKey ? &m_descriptor : nullptr;
    }

private:
    TestDescriptor m_descriptor;
};

} // namespace

class TestModule : public QObject, public LXPluginAPI::IClientUIPluginAPI
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.example.TestModule")
    Q_INTERFACES(LXPluginAPI::IClientUIPluginAPI)

public:
#if defined(TEST_THROWS_IN_CONSTRUCTOR)
    TestModule()
    {
        throw std::runtime_error("nothing to build on");
    }
#endif
    ~TestModule() override
    {
        Record(QStringLiteral("deleted"));
    }
    std::string GetModuleKey() const override
    {
        return ModuleKey;
    }
    std::string GetRightName() const override
    {
#if defined(TEST_ADMINISTRATORS)
        return "Administrators";
#elif defined(TEST_THROWS_RIGHT)
        throw std::logic_error("no right today");
#else
        return IPluginAPI::GetRightName();
#endif
    }
    bool AddManager(LXPluginAPI::IManager* pManager) override
    {
        Record(QStringLiteral("AddManager ") + QString::fromStdString(pManager->GetServiceName()));
        return true;
    }
    bool Load() override
    {
        Record(QStringLiteral("Load"));
#if defined(TEST_MISSING_SYMBOL)
        OperationOfAnotherPlatform();
#endif
#if defined(TEST_REFUSES_LOAD)
        return false;
#else
        return true;
#endif
    }
    bool Start() override
    {
        Record(QStringLiteral("Start"));
#if defined(TEST_REFUSES_START)
        return false;
#else
        return true;
#endif
    }
    void Stop() override
    {
        Record(QStringLiteral("Stop"));
    }
    void Initialize() override
    {
        Record(QStringLiteral("Initialize"));
#if defined(TEST_THROWS)
        throw std::runtime_error("no luck today");
#else
        m_ui = std::make_unique<TestUi>();
#endif
    }
    void Uninitialize() override
    {
        Record(QStringLiteral("Uninitialize"));
        m_ui.reset();
    }
    LXPluginAPI::IAbstractUI* GetUIObject() override
    {
        Record(QStringLiteral("GetUIObject"));
#if defined(TEST_NULL_UI)
        return nullptr;
#else
        return m_ui.get();
#endif
    }

private:
    std::unique_ptr<TestUi> m_ui;
};

#include "TestModule.moc"
