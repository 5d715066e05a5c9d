#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "platform/LXPluginAPI/IManager.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>

class ACSEventSchemeEditor;
class QAbstractButton;
class QAlarmListItem;
class QAlarmListItemView;
class QLabel;
class QModelIndex;
class QTreeView;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

namespace LXGUI {
class LXSwitchButton;
}

namespace VantaComponent {
class GroupTreeCtrl;
}

/// A person in front of the page: sees what is shown and acts by mouse and keys only. Actions answer false
/// when a person could not have done them (hidden, disabled, not there).
class PageHands
{
public:
    explicit PageHands(ACSEventSchemeEditor& page);

    // The device tree.
    bool ClickNode(int64_t iNodeId, int32_t iNodeKind) const;
    bool ClickDoor(int64_t iChannelId) const;
    bool ClickDevice(int64_t iDeviceId) const;
    bool SeesNode(int64_t iNodeId, int32_t iNodeKind) const;
    bool Search(const QString& strText) const;

    // The category column.
    bool ClickCategory(const char* szButton) const;
    bool ClickEvent(int32_t iType) const;
    bool ClickInput(const QString& strKey) const;
    bool ClickInputDevice() const;

    // The settings.
    bool ClickTab(const char* szButton) const;
    bool ToggleOpen() const;
    bool ToggleSound() const;
    bool ToggleMail() const;
    bool ToggleOutput(int64_t iChannelId) const; ///< shows the output tab first
    bool ToggleDay(int iDay) const; ///< shows the week plan first; a whole day becomes empty and back
    bool Save() const;

    static bool Click(QWidget* pWidget);

    // What is shown.
    bool IsColumnEnabled() const;
    bool AreSettingsEnabled() const;
    bool IsOpenShown() const;
    bool IsSoundShown() const;
    bool IsMailShown() const;
    QString SettingType() const;
    QStringList VisibleCategories() const; ///< object names, from the top
    QAlarmListItemView* VisibleList() const;
    bool HasMark(const char* szList, int32_t iType) const;
    QStringList InputKeys() const;
    QString CurrentInputKey() const;
    bool HasInputMark(const QString& strKey) const;
    QLabel* InputMark(const QString& strKey) const;

    // The widgets.
    QWidget* Widget(const char* szName) const;
    QAbstractButton* Button(const char* szName) const;
    LXGUI::LXSwitchButton* Switch(const char* szName) const;
    QAlarmListItemView* List(const char* szName) const;
    VantaComponent::GroupTreeCtrl* Tree() const;
    QTreeView* TreeView() const;
    QTreeWidget* InputTree() const;

private:
    bool Toggle(const char* szName) const;
    QTreeWidgetItem* InputItem(const QString& strKey) const;
    bool ClickInputItem(const QTreeWidgetItem* pItem) const;

    ACSEventSchemeEditor& m_page;
};

/// A page over the services that are offered at the moment, shown at its own size, and a person before it.
class OpenPage
{
public:
    explicit OpenPage(const LXPluginAPI::ManagerList* pManagers);
    ~OpenPage();
    OpenPage(const OpenPage&) = delete;
    OpenPage& operator=(const OpenPage&) = delete;

    ACSEventSchemeEditor& Page() const { return *m_page; }
    const AlarmInfoMap& Schemes() const;
    AlarmInfo Scheme(const QString& strSource, int32_t iType) const; ///< a fresh record when there is none
    bool Holds(const QString& strSource, int32_t iType) const;
    void Close(); ///< destroys the page

private:
    std::unique_ptr<ACSEventSchemeEditor> m_page;

public:
    PageHands hands;
};
