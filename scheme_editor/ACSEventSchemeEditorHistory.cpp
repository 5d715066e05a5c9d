#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaLogic/IDeviceManager.h"
#include "platform/VantaModel/NodeRoles.h"
#include "plugin/host_services/HostServices.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "scheme_editor/AlarmInputTree.h"
#include "scheme_editor/EditObserver.h"
#include "scheme_editor/EventCategories.h"
#include "scheme_editor/SchemeBook.h"
#include "scheme_editor/SchemeForm.h"
#include "scheme_editor/edits/SchemeDraft.h"
#include "ui_ACSEventSchemeEditor.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

// What the page observes of edits and offers of it to its host: undo, the modified state, drafts, keys.

void ACSEventSchemeEditor::BuildHistory()
{
    connect(m_book.get(), &SchemeBook::SignalModifiedChanged, this, &ACSEventSchemeEditor::ShowModified);
    connect(m_book.get(), &SchemeBook::SignalEnabledChanged, this,
            &ACSEventSchemeEditor::SignalEnabledSchemesChanged);
    connect(&m_book->History(), &SchemeHistory::SignalChanged, this,
            &ACSEventSchemeEditor::SignalUndoChanged);
    m_observer = std::make_unique<EditObserver>(*this, [this](bool bInDialog) { StoreEditors(bInDialog); });
    m_book->MarkLoaded();
}

// What the form holds against what it held: the difference is a person's edit.
void ACSEventSchemeEditor::StoreEditors(bool bInDialog)
{
    const std::optional<AlarmSourceKey> key = m_selection.CurrentKey();
    if (!key)
        return;
    AlarmInfo& entry = m_book->Schemes()[*key];
    m_form->Store(entry);
    if (!m_held || m_held->key != *key || m_held->info == entry)
        return;
    const AlarmInfo before = std::exchange(m_held->info, entry);
    SchemeStep step;
    step.place = m_selection;
    step.iEditor = SchemeForm::EditorOf(before, entry);
    step.iTyping = m_observer->Typing();
    m_book->RecordEdit(*key, before, step,
                       bInDialog ? SchemeActionText::Way::InDialog : SchemeActionText::Way::OnPage);
}

int ACSEventSchemeEditor::GetEnabledSchemes() const
{
    return m_book->EnabledCount();
}

QString ACSEventSchemeEditor::GetUndoText() const
{
    const SchemeStep* const pStep = m_book->History().NextUndo();
    return pStep != nullptr ? pStep->strText : QString();
}

QString ACSEventSchemeEditor::GetRedoText() const
{
    const SchemeStep* const pStep = m_book->History().NextRedo();
    return pStep != nullptr ? pStep->strText : QString();
}

bool ACSEventSchemeEditor::CanUndo() const
{
    return m_book->History().NextUndo() != nullptr;
}

bool ACSEventSchemeEditor::CanRedo() const
{
    return m_book->History().NextRedo() != nullptr;
}

bool ACSEventSchemeEditor::MayUndo()
{
    if (!m_observer || m_observer->IsBusy())
        return false;
    StoreEditors(); // what was not looked at yet is a step of its own
    return true;
}

void ACSEventSchemeEditor::Undo()
{
    if (!MayUndo() || !CanUndo())
        return;
    GoTo(*m_book->History().NextUndo());
    m_book->History().Undo();
    LoadCurrentScheme();
}

void ACSEventSchemeEditor::Redo()
{
    if (!MayUndo() || !CanRedo())
        return;
    GoTo(*m_book->History().NextRedo());
    m_book->History().Redo();
    LoadCurrentScheme();
}

// By the ways that a person takes, so that all of the page follows.
void ACSEventSchemeEditor::GoTo(const SchemeStep& step)
{
    const SchemeSelection place = step.place;
    const int iEditor = step.iEditor;
    const std::optional<EventSource::Fields> source = EventSource::Split(place.strSource);
    if (!source || m_pTree.isNull())
        return;
    const bool bDevice = place.bExternal;
    const int64_t iNode = bDevice ? source->iOwner : source->iChannel;
    const int32_t iKind = bDevice ? VantaModel::NodeKindDevice : VantaModel::NodeKindChannel;
    if (!m_pTree->SelectNode(iNode, iKind)) {
        m_pTree->ClearSearch();
        if (!m_pTree->SelectNode(iNode, iKind))
            return;
    }
    OnGroupTreeFocusChanged();
    if (bDevice)
        AlarmInputTree::GoTo(*m_ui->treeAlarmIn, place.strAlarmInput);
    else
        m_categories->GoTo(place.iAlarmType);
    if (iEditor >= 0)
        SettingsTabs().at(static_cast<std::size_t>(iEditor)).pButton->click();
}

void ACSEventSchemeEditor::MarkUnsaved()
{
    m_book->MarkUnsaved();
}

void ACSEventSchemeEditor::SaveEnded(bool bStored, bool bMore)
{
    m_book->EndSave(bStored, bMore);
}

QByteArray ACSEventSchemeEditor::Draft()
{
    if (m_observer && !m_observer->IsBusy())
        StoreEditors();
    return m_book->Draft();
}

int ACSEventSchemeEditor::RestoreDraft(const QByteArray& draft)
{
    if (!MayUndo())
        return -1;
    const VantaLogic::IDeviceManager* const pManager = HostServices::DeviceManager();
    const std::optional<int> restored =
        m_book->RestoreDraft(draft, m_selection, [pManager](const QString& strSource) {
            const std::optional<int64_t> device = EventSource::FirstField(strSource);
            VantaLogic::DeviceInfo info;
            return device && pManager != nullptr && pManager->GetDevice(*device, info) == 0;
        });
    if (restored)
        LoadCurrentScheme();
    return restored.value_or(-1);
}

int ACSEventSchemeEditor::DraftSchemes(const QByteArray& draft)
{
    const std::optional<SchemeDraft> content = SchemeDraft::Read(draft);
    if (!content)
        return -1;
    int iSchemes = 0;
    content->ForEach([&iSchemes](const AlarmSourceKey& /*key*/, const AlarmInfo* /*pInfo*/) { ++iSchemes; });
    return iSchemes;
}

// A page that stands alone has a title without the placeholder that setWindowModified() asks for.
void ACSEventSchemeEditor::ShowModified(bool bModified)
{
    setAttribute(Qt::WA_WindowModified, bModified);
    QEvent change(QEvent::ModifiedChange);
    QCoreApplication::sendEvent(this, &change);
}

// The buttons of the categories and the tabs take no focus: Alt and a digit press the visible categories from
// the top, Ctrl and a digit the tabs from the left. Null for other keys.
QAbstractButton* ACSEventSchemeEditor::ButtonOfKey(const QKeyEvent& event) const
{
    QList<QAbstractButton*> buttons;
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::AltModifier)
        buttons = m_ui->buttonGroupType->buttons();
    else if (modifiers == Qt::ControlModifier)
        buttons = m_ui->buttonGroupTab->buttons();
    buttons.erase(std::remove_if(buttons.begin(), buttons.end(),
                                 [](const QAbstractButton* pButton) {
                                     return !pButton->isVisible() || !pButton->isEnabled();
                                 }),
                  buttons.end());
    return buttons.value(event.key() - Qt::Key_1, nullptr);
}

// Only what neither the widget with the focus nor a shortcut of the host has taken arrives here.
void ACSEventSchemeEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Undo)) {
        Undo();
    } else if (event->matches(QKeySequence::Redo) ||
               (event->key() == Qt::Key_Y && event->modifiers() == Qt::ControlModifier)) {
        Redo();
    } else if (event->matches(QKeySequence::Find) && !m_pTree.isNull()) {
        m_pTree->FocusSearch();
    } else if (QAbstractButton* const pButton = ButtonOfKey(*event)) {
        pButton->click();
    } else {
        QFrame::keyPressEvent(event);
    }
}
