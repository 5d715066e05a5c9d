#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

class ACSEventSchemeEditor;
class QAlarmDayDetailEditor;
class QAbstractButton;
class QAlarmListItem;
class QAlarmListItemView;
class QLabel;
class QLineEdit;
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
    /// Opens the day's dialog and acts in it until it closes.
    bool OpenDay(int iDay, const std::function<void(QAlarmDayDetailEditor&)>& act) const;
    /// Links an output, and once the page knows of it, puts the keyboard into the field of its time.
    bool LinkAndGoToTime(int64_t iChannelId) const;
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
    static QStringList DoorCategories();   ///< those that belong to a door
    static QStringList DeviceCategories();
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
    QWidget* DayBar(int iDay) const;
    QLineEdit* TimeField() const;
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
