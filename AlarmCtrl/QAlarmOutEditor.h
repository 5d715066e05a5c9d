#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <memory>

class DeviceTreePicker;
class PanelHint;
class QIntValidator;
class QModelIndex;
class QStandardItem;

namespace VantaComponent {
class GroupTreeCtrl;
}

namespace Ui {
class QAlarmOutEditor;
}

/// Picks the alarm outputs that a scheme drives from the host's device tree, and for each whether it opens
/// automatically and how many seconds it stays on (5 to 43200). Keeps the picked outputs in memory; the page
/// sets and reads them. Takes the host's device manager from HostServices. User-interface thread only.
class QAlarmOutEditor : public QWidget
{
    Q_OBJECT

public:
    explicit QAlarmOutEditor(QWidget* parent = nullptr);
    ~QAlarmOutEditor() override;

    /// The picked outputs that are still alarm outputs of the site, in the order of their keys. Always 0.
    int GetAlarmOutInfo(QList<AlarmLinkAlarmOut>& listAlarmOut);
    /// Replaces the picked outputs; of several links with one key the last wins. The output shown stays the
    /// one shown.
    void SetAlarmOutInfo(const QList<AlarmLinkAlarmOut>& listAlarmOut);
    /// False also empties the settings panel.
    void SetSettingEnabled(bool bEnable);

    /// The output channel of a link's key; -1 for anything but "<channel>$3$<any>$<any>".
    static int64_t GetChannelIdFromKey(const QString& strKey);
    /// Whether a link's key names an alarm output that the site has.
    static bool IsKeyOfSite(const QString& strKey);

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void OnGroupTreeChkChanged(const QModelIndex& iIndex, bool bCheck);
    void OnGroupTreeClicked(const QModelIndex& index, int iNodeKind);
    void OnSearchChanged();
    void OnToolBtnClicked();
    void OnTimeEdited();

private:
    VantaComponent::GroupTreeCtrl* Tree() const;
    AlarmLinkAlarmOut* CurrentEntry();
    void ShowEntry(const AlarmLinkAlarmOut& entry);
    void RefreshCheckStates();
    bool IsTimeAcceptable() const;

    std::unique_ptr<Ui::QAlarmOutEditor> m_ui;
    DeviceTreePicker* m_pPicker;
    QIntValidator* m_pTimeValidator;
    PanelHint* m_pHint;
    QMap<QString, AlarmLinkAlarmOut> m_mapLinks; ///< by output key
    QString m_strCurrentKey;                     ///< of the output that the panel shows; empty for none
};
