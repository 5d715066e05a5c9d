#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_editor/SchemeHistory.h"
#include "scheme_editor/edits/ModifiedSchemes.h"

#include <QByteArray>
#include <QObject>

#include <optional>

/// The schemes that the page edits, and what has been done to them: which differ from the saved state, which
/// steps can be taken back, how many are switched on. Every edit of a person passes here; what browsing adds
/// to the map does not count. User-interface thread.
class SchemeBook : public QObject
{
    Q_OBJECT

public:
    /// `isKnown`: see SchemeContent.
    explicit SchemeBook(SchemeContent::KnownOutput isKnown, QObject* parent = nullptr);
    ~SchemeBook() override;

    /// For browsing and for edits that are recorded afterwards.
    AlarmInfoMap& Schemes() { return m_schemes; }
    const AlarmInfoMap& Schemes() const { return m_schemes; }

    /// The map has been filled anew: it is the saved state, and there is nothing to undo.
    void MarkLoaded();
    void MarkSaved(); ///< the map has been handed over for saving
    /// A save has ended; see ModifiedSchemes.
    void EndSave(bool bStored, bool bMore);
    void MarkUnsaved(); ///< what was handed over last did not come about
    bool IsModified() const { return !m_modified.IsEmpty(); }
    int EnabledCount() const { return m_iEnabled; }
    bool IsOn(const AlarmSourceKey& key) const; ///< present and switched on

    /// A person has edited the scheme under a key, which held `before`; the map holds the outcome. No step
    /// when both mean the same. The step's change and name are filled in.
    void RecordEdit(const AlarmSourceKey& key, const AlarmInfo& before, SchemeStep step,
                    SchemeActionText::Way way);
    /// A step that the map has gone through already.
    void RecordStep(const SchemeStep& step);
    /// Removes a device's schemes and what steps did to them.
    void RemoveDevice(int64_t iDeviceId);

    /// What differs from the saved state; see SchemeDraft.
    QByteArray Draft() const;
    /// One step that brings a draft's schemes in, but none of sources that `isKnownSource` refuses. The
    /// number of schemes that changed; nothing when the bytes are no draft.
    std::optional<int> RestoreDraft(const QByteArray& draft, const SchemeSelection& place,
                                    const std::function<bool(const QString& strSource)>& isKnownSource);

    SchemeHistory& History() { return m_history; }
    const SchemeHistory& History() const { return m_history; }

Q_SIGNALS:
    void SignalModifiedChanged(bool bModified);
    void SignalEnabledChanged();

private:
    void Make(const SchemeChange& change, SchemeChange::Side side);
    void Follow(const SchemeChange& change, SchemeChange::Side side);
    void TellModified();

    AlarmInfoMap m_schemes;
    SchemeContent::KnownOutput m_isKnown;
    ModifiedSchemes m_modified;
    SchemeHistory m_history;
    int m_iEnabled = 0;
    bool m_bTold = false; ///< what SignalModifiedChanged said last
};
