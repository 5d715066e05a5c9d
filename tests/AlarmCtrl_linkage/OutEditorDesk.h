#pragma once

#include "AlarmCtrl/QAlarmOutEditor.h"
#include "platform/LXGUI/LXLineEdit.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "tests/AlarmCtrl_linkage/SiteHost.h"
#include "tests/AlarmCtrl_linkage/TestLines.h"

#include <QFocusEvent>
#include <QLabel>
#include <QTest>

/// The editor of linked outputs as its tests meet it.
namespace OutEditor {

/// Device 1 (access control): outputs 11 and 12, door 13. Device 2 (alarm host): output 21. Device 3 (type
/// 16): output 31.
inline Site TwoControllers()
{
    Site site;
    VantaLogic::DeviceInfo first = TestSite::Device(1, VantaLogic::DeviceTypeAccessControl);
    TestSite::AddChannel(first, 11, VantaLogic::ChannelTypeAlarmOutput, 1);
    TestSite::AddChannel(first, 12, VantaLogic::ChannelTypeAlarmOutput, 2);
    TestSite::AddChannel(first, 13, VantaLogic::ChannelTypeDoor, 1);
    VantaLogic::DeviceInfo second = TestSite::Device(2, VantaLogic::DeviceTypeAlarmHost);
    TestSite::AddChannel(second, 21, VantaLogic::ChannelTypeAlarmOutput, 1);
    VantaLogic::DeviceInfo third = TestSite::Device(3, VantaLogic::DeviceTypeVirtual);
    TestSite::AddChannel(third, 31, VantaLogic::ChannelTypeAlarmOutput, 1);
    site.devices = {first, second, third};
    return site;
}

inline AlarmLinkAlarmOut Link(const char* szKey, bool bAutoOpen, int iTime)
{
    return {QLatin1String(szKey), bAutoOpen, iTime};
}

/// "key auto time" of each link, for comparing whole lists.
inline QStringList Text(const QList<AlarmLinkAlarmOut>& links)
{
    QStringList texts;
    for (const AlarmLinkAlarmOut& link : links) {
        texts.append(
            QStringLiteral("%1 %2 %3")
                .arg(link.strLinkAlarmID, link.bAutoOpen ? QStringLiteral("auto") : QStringLiteral("manual"))
                .arg(link.Time));
    }
    return texts;
}

/// An editor over a site, and what a person sees and does.
struct Desk
{
    explicit Desk(const Site& site = TwoControllers())
        : host(site)
        , hand(editor)
        , panel(editor.findChild<QWidget*>(QStringLiteral("wndSetting")))
        , toggle(editor.findChild<LXGUI::LXSwitchButton*>(QStringLiteral("btnAutoOpen")))
        , time(editor.findChild<LXGUI::LXLineEdit*>(QStringLiteral("edtTime")))
        , hint(editor.findChild<QLabel*>(QStringLiteral("lblHint")))
    {
    }

    QStringList Links()
    {
        QList<AlarmLinkAlarmOut> links;
        editor.GetAlarmOutInfo(links);
        return Text(links);
    }
    bool IsPanelEmpty() const { return !toggle->isToggled() && time->text().isEmpty(); }
    void Type(const char* szText) const
    {
        time->selectAll();
        QTest::keyClicks(time, QLatin1String(szText));
    }
    void ClearAndLeave() const
    {
        time->selectAll();
        QTest::keyClick(time, Qt::Key_Delete);
        Leave();
    }
    void Leave() const
    {
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(time, &out);
    }
    void Search(const char* szText) const
    {
        hand.Tree()->findChild<QLineEdit*>(QStringLiteral("edtSearch"))->setText(QLatin1String(szText));
    }
    Qt::CheckState State(int64_t iChannelId) const { return hand.Channel(iChannelId)->checkState(); }

    SiteHost host;
    QAlarmOutEditor editor;
    TreeHand hand;
    QWidget* panel;
    LXGUI::LXSwitchButton* toggle;
    LXGUI::LXLineEdit* time;
    QLabel* hint;
};

} // namespace OutEditor
