#include "plugin/CACSEventConfigUI.h"
#include "plugin/CACSEventConfigWidget.h"
#include "plugin/host_services/HostServices.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/plugin/FakeHub.h"

#include <QPointer>
#include <QTest>

#include <memory>

using ACSEventConfigUI::CACSEventConfigUI;
using ACSEventConfigUI::CACSEventConfigWidget;
using LXPluginAPI::ManagerList;

class tst_PageDescriptor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { HostServices::FillTable({}); }

    void theObjectComesBeforeTheInterface()
    {
        const ManagerList managers;
        CACSEventConfigWidget descriptor(&managers);
        const auto object = reinterpret_cast<const char*>(static_cast<QObject*>(&descriptor));
        const auto interface_ =
            reinterpret_cast<const char*>(static_cast<LXPluginAPI::IAbstractWidget*>(&descriptor));
        QCOMPARE(object, reinterpret_cast<const char*>(&descriptor));
        QVERIFY(interface_ >= object + sizeof(QObject));
        QVERIFY(!descriptor.parent());
    }

    void thePageIsHandedTheListOfManagers()
    {
        FakeHub hub(FakeHub::Answers::Null);
        const ManagerList managers = {&hub};
        CACSEventConfigWidget descriptor(&managers);
        const std::unique_ptr<QWidget> widget(descriptor.GetWidget());
        const auto page = qobject_cast<ACSEventSchemeEditor*>(widget.get());
        QVERIFY(page);
        QCOMPARE(page->GetManagerList(), &managers);
        descriptor.GetWidget();
        QCOMPARE(page->GetManagerList(), &managers);
    }

    void aRebuiltPageIsHandedTheListToo()
    {
        const ManagerList managers;
        CACSEventConfigWidget descriptor(&managers);
        delete descriptor.GetWidget();
        QVERIFY(!descriptor.IsWidgetCreated());
        const std::unique_ptr<QWidget> widget(descriptor.GetWidget());
        const auto page = qobject_cast<ACSEventSchemeEditor*>(widget.get());
        QVERIFY(page);
        QCOMPARE(page->GetManagerList(), &managers);
    }

    void theServicesAreFetchedByConstructionAndByEveryRequest()
    {
        FakeHub hub(FakeHub::Answers::Null);
        char service = 0;
        ManagerList managers = {&hub};
        hub.SetAnswer(41, &service); // a service that the page never touches
        CACSEventConfigWidget descriptor(&managers);
        QCOMPARE(HostServices::Table().arrServices[29], static_cast<void*>(&service));

        hub.SetAnswer(41, nullptr);
        const std::unique_ptr<QWidget> page(descriptor.GetWidget());
        QVERIFY(!HostServices::Table().arrServices[29]);

        FakeHub replaced(FakeHub::Answers::Null);
        replaced.SetAnswer(41, &service);
        managers[0] = &replaced;
        QCOMPARE(descriptor.GetWidget(), page.get());
        QCOMPARE(HostServices::Table().arrServices[29], static_cast<void*>(&service));
    }

    void theEndOfTheUserInterfaceObjectTakesTheListFromThePage()
    {
        FakeHub hub(FakeHub::Answers::Null);
        const ManagerList managers = {&hub};
        auto ui = std::make_unique<CACSEventConfigUI>(&managers);
        const QPointer<QWidget> widget = ui->GetWidgetDescriptor()->GetWidget();
        const auto page = qobject_cast<ACSEventSchemeEditor*>(widget.data());
        QVERIFY(page);
        QCOMPARE(page->GetManagerList(), &managers);
        ui.reset();
        QVERIFY(widget);
        QVERIFY(!page->GetManagerList());
        delete widget.data();
    }

    void theEndOfTheUserInterfaceObjectIsFineWithoutAPage()
    {
        const ManagerList managers;
        auto ui = std::make_unique<CACSEventConfigUI>(&managers);
        const auto descriptor = QPointer<QObject>(dynamic_cast<QObject*>(ui->GetWidgetDescriptor()));
        QVERIFY(descriptor);
        ui.reset();
        QVERIFY(!descriptor);

        ui = std::make_unique<CACSEventConfigUI>(&managers);
        delete ui->GetWidgetDescriptor()->GetWidget();
        ui.reset();

        std::make_unique<CACSEventConfigUI>(&managers).reset();
    }
};

QTEST_MAIN(tst_PageDescriptor)
#include "tst_PageDescriptor.moc"
