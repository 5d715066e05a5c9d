#include "AlarmCtrl/QAlarmListItemView.h"
#include "platform/LXGUI/LXPushButton.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/UICommonMdl/LXImpPushButton.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QTest>
#include <QTranslator>
#include <QTreeWidget>

namespace {

constexpr int s_iAny = -1;

/// Translates every text into its context and itself.
class ContextTranslator : public QTranslator
{
public:
    QString translate(const char* szContext, const char* szText, const char*, int) const override
    {
        return QStringLiteral("%1/%2").arg(QLatin1String(szContext), QLatin1String(szText));
    }
    bool isEmpty() const override { return false; }
};

QStringList Names(const QList<QAbstractButton*>& buttons)
{
    QStringList names;
    for (const QAbstractButton* const pButton : buttons)
        names.append(pButton->objectName());
    return names;
}

} // namespace

/// The page as its constructor leaves it, before any host is there.
class TestPageForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageIsAsStated();
    void everyWidgetIsAsStated_data();
    void everyWidgetIsAsStated();
    void everyLayoutIsAsStated_data();
    void everyLayoutIsAsStated();
    void everyButtonIsAsStated_data();
    void everyButtonIsAsStated();
    void theGridHoldsTheColumnFromTheTop();
    void theContainerHoldsTheListsAndTheTree();
    void theButtonGroupsHoldTheirButtons();
    void theHeaderHoldsLabelSwitchAndSpacer();
    void theBottomBarHoldsSpacerCopyAndSave();
    void theTabsStandWhereTheFormPutsThem();
    void theListsTakeStrongFocus();
    void theInputTreeHasTwoColumns();
    void theCopyButtonCarriesItsStates();
    void sizePoliciesAreAsStated();
    void textsAreTranslatedInThePagesContext();
    void theSlotsStandInTheirOrder();
    void aPageIsAFrameWithoutWindowFlags();
};

void TestPageForm::thePageIsAsStated()
{
    const ACSEventSchemeEditor page(nullptr);
    QCOMPARE(page.objectName(), QStringLiteral("ACSEventSchemeEditor"));
    QCOMPARE(page.size(), QSize(1061, 820));
    QCOMPARE(page.windowTitle(), QStringLiteral("Form"));
    QVERIFY(page.parent() == nullptr);
    QVERIFY(page.GetAlarmInfoMap().isEmpty());
    QVERIFY(page.GetManagerList() == nullptr);
}

void TestPageForm::everyWidgetIsAsStated_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QSize>("minimum");
    QTest::addColumn<QSize>("maximum");
    const auto row = [](const char* szName, const char* szClass, const char* szParent, const QSize& minimum,
                        const QSize& maximum) {
        QTest::newRow(szName) << QString(QLatin1String(szClass)) << QString(QLatin1String(szParent))
                              << minimum << maximum;
    };
    const int max = QWIDGETSIZE_MAX;
    const QSize any(s_iAny, s_iAny);
    row("wndDevTree", "QWidget", "ACSEventSchemeEditor", {200, 0}, {200, max});
    row("wndOption", "QWidget", "ACSEventSchemeEditor", {200, 0}, {200, max});
    row("btnAlarm", "QPushButton", "wndOption", {s_iAny, 40}, {max, 40});
    row("btnAbnormal", "QPushButton", "wndOption", {s_iAny, 40}, {max, 40});
    row("btnNormal", "QPushButton", "wndOption", {s_iAny, 40}, {max, 40});
    row("btnExternalAlarm", "QPushButton", "wndOption", {s_iAny, 40}, {max, 40});
    row("wndContainer", "QWidget", "wndOption", any, {max, max});
    row("listAlarm", "QAlarmListItemView", "wndContainer", any, {max, max});
    row("listAbnormal", "QAlarmListItemView", "wndContainer", any, {max, max});
    row("listNormal", "QAlarmListItemView", "wndContainer", any, {max, max});
    row("treeAlarmIn", "QTreeWidget", "wndContainer", any, {max, max});
    row("wndSettings", "QWidget", "ACSEventSchemeEditor", any, {max, max});
    row("wndSetingsHeader", "QWidget", "wndSettings", {0, 40}, {max, 40});
    row("lblSettingType", "QLabel", "wndSetingsHeader", any, {max, max});
    row("btnOpenStatus", "LXGUI::LXSwitchButton", "wndSetingsHeader", {36, s_iAny}, {36, max});
    row("wndSettingDetail", "QWidget", "wndSettings", any, {max, max});
    row("wndTabContainer", "QWidget", "wndSettingDetail", {0, 38}, {max, 38});
    row("btnNotify", "QPushButton", "wndTabContainer", {120, s_iAny}, {120, max});
    row("btnAlarmOut", "QPushButton", "wndTabContainer", {120, s_iAny}, {120, max});
    row("btnDefTime", "QPushButton", "wndTabContainer", {120, s_iAny}, {120, max});
    row("wndSubSetting", "QWidget", "wndSettingDetail", any, {max, max});
    row("widget", "QWidget", "wndSettingDetail", any, {max, max});
    row("btnCopyTo", "LXGUI::LXPushButton", "widget", {70, 24}, {max, 24});
    row("btnSave", "UICommonMdl::LXImpPushButton", "widget", {70, 24}, {70, 24});
}

void TestPageForm::everyWidgetIsAsStated()
{
    QFETCH(QString, className);
    QFETCH(QString, parent);
    QFETCH(QSize, minimum);
    QFETCH(QSize, maximum);
    const ACSEventSchemeEditor page(nullptr);
    const QList<QWidget*> found = page.findChildren<QWidget*>(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(found.size(), 1);
    const QWidget* const pWidget = found.constFirst();
    QCOMPARE(QString::fromLatin1(pWidget->metaObject()->className()), className);
    QCOMPARE(pWidget->parentWidget()->objectName(), parent);
    if (minimum.width() != s_iAny)
        QCOMPARE(pWidget->minimumWidth(), minimum.width());
    if (minimum.height() != s_iAny)
        QCOMPARE(pWidget->minimumHeight(), minimum.height());
    QCOMPARE(pWidget->maximumSize(), maximum);
}

void TestPageForm::everyLayoutIsAsStated_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<int>("margin");
    const auto row = [](const char* szName, const char* szWidget, const char* szClass, int iSpacing,
                        int iMargin) {
        QTest::newRow(szName) << QString(QLatin1String(szWidget)) << QString(QLatin1String(szClass))
                              << iSpacing << iMargin;
    };
    row("horizontalLayout", "ACSEventSchemeEditor", "QHBoxLayout", 10, 10);
    row("gridLayout", "wndOption", "QGridLayout", 0, 0);
    row("verticalLayout_5", "wndContainer", "QVBoxLayout", 0, 0);
    row("verticalLayout_2", "wndSettings", "QVBoxLayout", 0, 1);
    row("horizontalLayout_2", "wndSetingsHeader", "QHBoxLayout", s_iAny, s_iAny);
    row("verticalLayout_3", "wndSettingDetail", "QVBoxLayout", 0, 0);
    row("horizontalLayout_3", "widget", "QHBoxLayout", s_iAny, s_iAny);
}

void TestPageForm::everyLayoutIsAsStated()
{
    QFETCH(QString, widget);
    QFETCH(QString, className);
    QFETCH(int, spacing);
    QFETCH(int, margin);
    const ACSEventSchemeEditor page(nullptr);
    const QWidget* const pOwner = widget == page.objectName() ? &page : page.findChild<QWidget*>(widget);
    QVERIFY(pOwner != nullptr);
    const QLayout* const pLayout = pOwner->layout();
    QVERIFY(pLayout != nullptr);
    QCOMPARE(pLayout->objectName(), QString(QLatin1String(QTest::currentDataTag())));
    QCOMPARE(QString::fromLatin1(pLayout->metaObject()->className()), className);
    if (spacing != s_iAny)
        QCOMPARE(pLayout->spacing(), spacing);
    if (margin != s_iAny)
        QCOMPARE(pLayout->contentsMargins(), QMargins(margin, margin, margin, margin));
}

void TestPageForm::everyButtonIsAsStated_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("checked");
    QTest::newRow("btnAlarm") << QStringLiteral("Alarm Event") << true << true;
    QTest::newRow("btnAbnormal") << QStringLiteral("Abnormal Event") << true << false;
    QTest::newRow("btnNormal") << QStringLiteral("Normal Event") << true << false;
    QTest::newRow("btnExternalAlarm") << QStringLiteral("External Event") << false << false;
    QTest::newRow("btnNotify") << QStringLiteral("Notify") << true << true;
    QTest::newRow("btnAlarmOut") << QStringLiteral("Alarm Out") << true << false;
    QTest::newRow("btnDefTime") << QStringLiteral("Defence Time") << true << false;
}

void TestPageForm::everyButtonIsAsStated()
{
    QFETCH(QString, text);
    QFETCH(bool, checkable);
    QFETCH(bool, checked);
    const ACSEventSchemeEditor page(nullptr);
    const auto* const pButton = page.findChild<QPushButton*>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(pButton != nullptr);
    QCOMPARE(pButton->text(), text);
    QCOMPARE(pButton->isCheckable(), checkable);
    QCOMPARE(pButton->isChecked(), checked);
    QCOMPARE(pButton->focusPolicy(), Qt::NoFocus);
}

void TestPageForm::theGridHoldsTheColumnFromTheTop()
{
    const ACSEventSchemeEditor page(nullptr);
    const auto* const pGrid = page.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    const char* const names[] = {"btnAlarm", "btnAbnormal", "btnNormal", "btnExternalAlarm", "wndContainer"};
    int row = 0;
    for (const char* const name : names) {
        QVERIFY2(pGrid->itemAtPosition(row, 0) != nullptr, name);
        QCOMPARE(pGrid->itemAtPosition(row, 0)->widget()->objectName(), QString(QLatin1String(name)));
        ++row;
    }
}

void TestPageForm::theContainerHoldsTheListsAndTheTree()
{
    const ACSEventSchemeEditor page(nullptr);
    const auto* const pLayout = page.findChild<QWidget*>(QStringLiteral("wndContainer"))->layout();
    const char* const names[] = {"listAlarm", "listAbnormal", "listNormal", "treeAlarmIn"};
    QCOMPARE(pLayout->count(), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(pLayout->itemAt(i)->widget()->objectName(), QString(QLatin1String(names[i])));
    const auto* const pPage = page.layout();
    const char* const columns[] = {"wndDevTree", "wndOption", "wndSettings"};
    QCOMPARE(pPage->count(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(pPage->itemAt(i)->widget()->objectName(), QString(QLatin1String(columns[i])));
}

void TestPageForm::theButtonGroupsHoldTheirButtons()
{
    const ACSEventSchemeEditor page(nullptr);
    const auto* const pTypes = page.findChild<QButtonGroup*>(QStringLiteral("buttonGroupType"));
    const auto* const pTabs = page.findChild<QButtonGroup*>(QStringLiteral("buttonGroupTab"));
    QCOMPARE(Names(pTypes->buttons()),
             (QStringList{QStringLiteral("btnAlarm"), QStringLiteral("btnAbnormal"),
                          QStringLiteral("btnNormal"), QStringLiteral("btnExternalAlarm")}));
    QCOMPARE(Names(pTabs->buttons()), (QStringList{QStringLiteral("btnNotify"), QStringLiteral("btnAlarmOut"),
                                                   QStringLiteral("btnDefTime")}));
    for (const QButtonGroup* const pGroup : {pTypes, pTabs}) {
        QVERIFY(pGroup->exclusive());
        QCOMPARE(pGroup->parent(), static_cast<const QObject*>(&page));
        const QList<QAbstractButton*> buttons = pGroup->buttons();
        for (QAbstractButton* const pButton : buttons)
            QVERIFY(pGroup->id(pButton) < -1); // automatic numbers run from -2 downwards
    }
}

void TestPageForm::theHeaderHoldsLabelSwitchAndSpacer()
{
    const ACSEventSchemeEditor page(nullptr);
    const auto* const pLayout = page.findChild<QWidget*>(QStringLiteral("wndSetingsHeader"))->layout();
    QCOMPARE(pLayout->count(), 3);
    const auto* const pLabel = qobject_cast<QLabel*>(pLayout->itemAt(0)->widget());
    QCOMPARE(pLabel->objectName(), QStringLiteral("lblSettingType"));
    QCOMPARE(pLabel->text(), QStringLiteral("SettingType"));
    QCOMPARE(pLayout->itemAt(1)->widget()->objectName(), QStringLiteral("btnOpenStatus"));
    QSpacerItem* const pSpacer = pLayout->itemAt(2)->spacerItem();
    QCOMPARE(pSpacer->sizeHint(), QSize(390, 19));
    QCOMPARE(pSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(pSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

void TestPageForm::theBottomBarHoldsSpacerCopyAndSave()
{
    const ACSEventSchemeEditor page(nullptr);
    const auto* const pLayout = page.findChild<QWidget*>(QStringLiteral("widget"))->layout();
    QCOMPARE(pLayout->count(), 3);
    QSpacerItem* const pSpacer = pLayout->itemAt(0)->spacerItem();
    QCOMPARE(pSpacer->sizeHint(), QSize(292, 20));
    QCOMPARE(pSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(pSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(pLayout->itemAt(1)->widget()->objectName(), QStringLiteral("btnCopyTo"));
    QCOMPARE(pLayout->itemAt(2)->widget()->objectName(), QStringLiteral("btnSave"));
    QCOMPARE(page.findChild<QPushButton*>(QStringLiteral("btnCopyTo"))->text(), QStringLiteral("Copy to"));
    QCOMPARE(page.findChild<QPushButton*>(QStringLiteral("btnSave"))->text(), QStringLiteral("Save"));
}

void TestPageForm::theTabsStandWhereTheFormPutsThem()
{
    const ACSEventSchemeEditor page(nullptr);
    const auto geometry = [&page](const char* szName) {
        return page.findChild<QWidget*>(QLatin1String(szName))->geometry();
    };
    QCOMPARE(geometry("btnNotify"), QRect(0, 10, 120, 23));
    QCOMPARE(geometry("btnAlarmOut"), QRect(130, 10, 120, 23));
    QCOMPARE(geometry("btnDefTime"), QRect(260, 10, 120, 23));
}

void TestPageForm::theListsTakeStrongFocus()
{
    const ACSEventSchemeEditor page(nullptr);
    for (const char* const name : {"listAlarm", "listAbnormal"})
        QCOMPARE(page.findChild<QWidget*>(QLatin1String(name))->focusPolicy(), Qt::StrongFocus);
}

void TestPageForm::theInputTreeHasTwoColumns()
{
    const ACSEventSchemeEditor page(nullptr);
    const auto* const pTree = page.findChild<QTreeWidget*>(QStringLiteral("treeAlarmIn"));
    QCOMPARE(pTree->columnCount(), 2);
    QCOMPARE(pTree->indentation(), 10);
    QCOMPARE(pTree->headerItem()->text(0), QStringLiteral("1"));
    QCOMPARE(pTree->headerItem()->text(1), QStringLiteral("2"));
}

void TestPageForm::theCopyButtonCarriesItsStates()
{
    const ACSEventSchemeEditor page(nullptr);
    const auto* const pCopy = page.findChild<QWidget*>(QStringLiteral("btnCopyTo"));
    for (const char* const name : {"bHover", "bPressed"}) {
        QVERIFY2(pCopy->dynamicPropertyNames().contains(name), name);
        QCOMPARE(pCopy->property(name), QVariant(false));
    }
}

void TestPageForm::sizePoliciesAreAsStated()
{
    const ACSEventSchemeEditor page(nullptr);
    const QSizePolicy external = page.findChild<QWidget*>(QStringLiteral("btnExternalAlarm"))->sizePolicy();
    QCOMPARE(external.horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(external.verticalPolicy(), QSizePolicy::Fixed);
    const QSizePolicy sub = page.findChild<QWidget*>(QStringLiteral("wndSubSetting"))->sizePolicy();
    QCOMPARE(sub.horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(sub.verticalPolicy(), QSizePolicy::Expanding);
}

void TestPageForm::textsAreTranslatedInThePagesContext()
{
    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const ACSEventSchemeEditor page(nullptr);
    const QList<QPair<const char*, const char*>> texts{{"btnAlarm", "Alarm Event"},
                                                       {"btnAbnormal", "Abnormal Event"},
                                                       {"btnNormal", "Normal Event"},
                                                       {"btnNotify", "Notify"},
                                                       {"btnExternalAlarm", "External Event"},
                                                       {"btnAlarmOut", "Alarm Out"},
                                                       {"btnDefTime", "Defence Time"},
                                                       {"btnCopyTo", "Copy to"},
                                                       {"btnSave", "Save"}};
    for (const auto& text : texts) {
        QCOMPARE(page.findChild<QPushButton*>(QLatin1String(text.first))->text(),
                 QStringLiteral("ACSEventSchemeEditor/%1").arg(QLatin1String(text.second)));
    }
    QCOMPARE(page.findChild<QLabel*>(QStringLiteral("lblSettingType"))->text(),
             QStringLiteral("SettingType"));
    QCoreApplication::removeTranslator(&translator);
}

void TestPageForm::theSlotsStandInTheirOrder()
{
    const QMetaObject& meta = ACSEventSchemeEditor::staticMetaObject;
    QList<QByteArray> slotList;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Slot)
            slotList.append(meta.method(i).methodSignature());
    }
    // Qt 6 has another name for the same list.
    const QByteArray strCopy =
        QByteArray("OnCopyToImp(") + QMetaType(qMetaTypeId<QList<QString>>()).name() + ')';
    QCOMPARE(slotList.mid(0, 10),
             (QList<QByteArray>{
                 "OnOptionBtnClicked()", "OnTabBtnClicked()", "OnGroupTreeFocusChanged()",
                 "OnTypeSelectionChanged(QString,int)", "OnAlarmInChanged(QTreeWidgetItem*,QTreeWidgetItem*)",
                 "OnOpenStatusChanged(bool)", "OnSave()", "OnCopyTo()", strCopy, "OnRemoveDevice(int64_t)"}));
}

void TestPageForm::aPageIsAFrameWithoutWindowFlags()
{
    const ACSEventSchemeEditor page(nullptr);
    QVERIFY(qobject_cast<const QFrame*>(&page) != nullptr);
    QWidget parent;
    const ACSEventSchemeEditor child(&parent);
    QVERIFY(!child.isWindow());
    QCOMPARE(child.parentWidget(), &parent);
}

QTEST_MAIN(TestPageForm)
#include "tst_page_form.moc"
