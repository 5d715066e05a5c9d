#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "platform/LXPluginAPI/IManager.h"
#include "scheme_editor/SchemeSelection.h"

#include <QByteArray>
#include <QFrame>
#include <QList>
#include <QPointer>
#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

class EditObserver;
class QAbstractButton;
class QPushButton;
class EventCategories;
class PanelHint;
class QTreeWidgetItem;
class SchemeBook;
class SchemeForm;
struct SchemeStep;

namespace Ui {
class ACSEventSchemeEditor;
}

namespace VantaComponent {
class GroupTreeCtrl;
}

namespace VantaModel {
class ACSGroupTreeModel;
}

/// The page on which an operator says what happens on every event of every door and alarm input.
///
/// All editing happens in one map of schemes, filled once by Init() and handed back whole on Save. What the
/// sub-editors show belongs to the current selection; every change of selection first reads them back into
/// the map, and so does the end of a person's action. Whether the map differs from what was last loaded or
/// saved is the page's window-modified state. User-interface thread; owned by the host's widget tree.
class ACSEventSchemeEditor : public QFrame
{
    Q_OBJECT
    /// The edited source and event in words, for a host's status bar.
    Q_PROPERTY(QString editedScheme READ GetEditedScheme NOTIFY SignalEditedSchemeChanged)
    /// How many schemes are switched on.
    Q_PROPERTY(int enabledSchemes READ GetEnabledSchemes NOTIFY SignalEnabledSchemesChanged)
    /// The last edit in words, as a host's menu names it after "Undo": "Paint Monday". Empty when there is
    /// none.
    Q_PROPERTY(QString undoText READ GetUndoText NOTIFY SignalUndoChanged)
    Q_PROPERTY(QString redoText READ GetRedoText NOTIFY SignalUndoChanged)
    Q_PROPERTY(bool canUndo READ CanUndo NOTIFY SignalUndoChanged)
    Q_PROPERTY(bool canRedo READ CanRedo NOTIFY SignalUndoChanged)

public:
    explicit ACSEventSchemeEditor(QWidget* parent = nullptr);
    ~ACSEventSchemeEditor() override;

    /// Builds the page over the host's services; only the first call does anything. The list is not owned.
    void Init(const LXPluginAPI::ManagerList* pManagers);
    const LXPluginAPI::ManagerList* GetManagerList() const;
    /// The host is about to take its managers away; the page stays, but no longer refers to the list.
    void ClearManagerList();

    const AlarmInfoMap& GetAlarmInfoMap() const;
    QString GetEditedScheme() const;
    int GetEnabledSchemes() const;
    QString GetUndoText() const;
    QString GetRedoText() const;
    bool CanUndo() const;
    bool CanRedo() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void SignalEditedSchemeChanged(const QString& strText);
    void SignalEnabledSchemesChanged();
    void SignalUndoChanged(); ///< one of the four properties of undo and redo has changed

public Q_SLOTS:
    void OnOptionBtnClicked();
    void OnTabBtnClicked();
    void OnGroupTreeFocusChanged();
    void OnTypeSelectionChanged(QString strName, int iType);
    void OnAlarmInChanged(QTreeWidgetItem* pCurrent, QTreeWidgetItem* pPrevious);
    void OnOpenStatusChanged(bool bOpen);
    void OnSave();
    void OnCopyTo();
    void OnCopyToImp(QList<QString> keys);
    void OnRemoveDevice(int64_t iDevUniqueId);

public:
    /// Takes back the last edit, or makes the one taken back again, and shows where it happened. Does nothing
    /// when there is none and while the mouse drags.
    Q_INVOKABLE void Undo();
    Q_INVOKABLE void Redo();
    /// The host says that the last save did not reach the disk: the page counts as unsaved again against the
    /// state before that save.
    Q_INVOKABLE void MarkUnsaved();
    /// The host says that a save has ended, with or without reaching the disk, and whether another one
    /// follows that holds everything handed over since. The state before the saves counts until the page is
    /// told.
    Q_INVOKABLE void SaveEnded(bool bStored, bool bMore);
    /// The edits that are not saved, for a file that outlives a crash: the schemes that differ from what was
    /// last loaded or saved. Empty when nothing differs.
    Q_INVOKABLE QByteArray Draft();
    /// Makes the edits of a draft again, as one edit that can be undone. How many schemes changed by it, -1
    /// when the bytes are no usable draft.
    Q_INVOKABLE int RestoreDraft(const QByteArray& draft);
    /// How many schemes a draft holds, -1 when the bytes are no draft.
    Q_INVOKABLE static int DraftSchemes(const QByteArray& draft);

protected:
    void customEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// One settings tab: its button and the sub-editor behind it.
    struct SettingsTab
    {
        QPushButton* pButton;
        QWidget* pEditor;
    };
    /// What the form held when it was last shown or read.
    struct HeldScheme
    {
        AlarmSourceKey key;
        AlarmInfo info;
    };

    std::array<SettingsTab, 3> SettingsTabs() const;

    void BuildDeviceTree();
    void BuildHistory();
    void SelectSource(const QString& strKey, int32_t iCategory);
    void RebuildAlarmInputs(const QString& strKey);
    void SwitchCategory(int32_t iCategory);
    void ChooseAlarmInput(const QString& strKey);
    void LoadCurrentScheme();
    void ShowScheme(const AlarmInfo& info);
    void StoreEditors(bool bInDialog = false);
    void RefreshMarks();
    void UpdateSettingsEnabled();
    QString HintText() const;
    bool IsSchemeOn(const QString& strSource, int32_t iType) const;
    void GoTo(const SchemeStep& step);
    bool MayUndo();
    void ShowModified(bool bModified);
    QAbstractButton* ButtonOfKey(const QKeyEvent& event) const;

    std::unique_ptr<Ui::ACSEventSchemeEditor> m_ui;
    bool m_bInitialized = false;
    const LXPluginAPI::ManagerList* m_pManagers = nullptr;
    std::unique_ptr<EventCategories> m_categories;
    std::unique_ptr<SchemeForm> m_form;
    PanelHint* m_pHint = nullptr;                    ///< says what to do when there is nothing to edit
    QPointer<VantaComponent::GroupTreeCtrl> m_pTree; ///< a host may take the widget tree apart piece by piece
    VantaModel::ACSGroupTreeModel* m_pTreeModel = nullptr;
    SchemeSelection m_selection;
    std::unique_ptr<SchemeBook> m_book;
    std::unique_ptr<EditObserver> m_observer;
    std::optional<HeldScheme> m_held;
    QString m_strEditedScheme;
};
