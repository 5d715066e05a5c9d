#include "scheme_editor/SchemeBook.h"

#include "scheme_editor/DeviceSchemes.h"
#include "scheme_editor/edits/SchemeDraft.h"

#include <algorithm>
#include <utility>

SchemeBook::SchemeBook(SchemeContent::KnownOutput isKnown, QObject* parent)
    : QObject(parent)
    , m_isKnown(std::move(isKnown))
    , m_modified(m_isKnown)
    , m_history([this](const SchemeChange& change, SchemeChange::Side side) { Make(change, side); },
                m_isKnown)
{
}

SchemeBook::~SchemeBook() = default;

void SchemeBook::MarkLoaded()
{
    m_modified = ModifiedSchemes(m_isKnown);
    m_history.Clear();
    m_iEnabled = static_cast<int>(std::count_if(m_schemes.cbegin(), m_schemes.cend(),
                                                [](const AlarmInfo& info) { return info.bOpen; }));
    TellModified();
    Q_EMIT SignalEnabledChanged();
}

void SchemeBook::MarkSaved()
{
    m_modified.MarkSaved();
    TellModified();
}

void SchemeBook::EndSave(bool bStored, bool bMore)
{
    m_modified.EndSave(bStored, bMore, m_schemes);
    TellModified();
}

void SchemeBook::MarkUnsaved()
{
    m_modified.MarkUnsaved(m_schemes);
    TellModified();
}

bool SchemeBook::IsOn(const AlarmSourceKey& key) const
{
    const auto found = m_schemes.constFind(key);
    return found != m_schemes.cend() && found->bOpen;
}

void SchemeBook::RecordEdit(const AlarmSourceKey& key, const AlarmInfo& before, SchemeStep step,
                            SchemeActionText::Way way)
{
    const AlarmInfo after = m_schemes.value(key);
    if (SchemeContent::AreSame(before, after, m_isKnown))
        return;
    SchemeChange::Builder builder;
    builder.Add(key, &before, &after);
    step.change = builder.Take();
    step.strText = SchemeActionText::OfEdit(before, after, way);
    RecordStep(step);
}

void SchemeBook::RecordStep(const SchemeStep& step)
{
    Follow(step.change, SchemeChange::Side::After);
    m_history.Push(step);
}

void SchemeBook::RemoveDevice(int64_t iDeviceId)
{
    m_history.ForgetDevice(iDeviceId);
    Follow(DeviceSchemes::Remove(m_schemes, iDeviceId), SchemeChange::Side::After);
}

QByteArray SchemeBook::Draft() const
{
    return SchemeDraft::Write(m_modified.Difference(m_schemes));
}

std::optional<int> SchemeBook::RestoreDraft(const QByteArray& draft, const SchemeSelection& place,
                                            const std::function<bool(const QString&)>& isKnownSource)
{
    const std::optional<SchemeDraft> content = SchemeDraft::Read(draft);
    if (!content)
        return std::nullopt;
    SchemeChange::Builder builder;
    content->ForEach([&](const AlarmSourceKey& key, const AlarmInfo* pInfo) {
        const auto present = m_schemes.constFind(key);
        const AlarmInfo* const pBefore = present == m_schemes.cend() ? nullptr : &present.value();
        const bool bKept = pInfo == nullptr || isKnownSource(key.strEventSource);
        if (bKept && !SchemeContent::AreSame(SchemeContent::OrDefault(pBefore),
                                             SchemeContent::OrDefault(pInfo), m_isKnown)) {
            builder.Add(key, pBefore, pInfo);
        }
    });
    const SchemeChange change = builder.Take();
    change.Apply(m_schemes, SchemeChange::Side::After);
    if (!change.IsEmpty())
        RecordStep({SchemeActionText::OfDraft(), place, -1, change, 0});
    return change.Count();
}

void SchemeBook::Make(const SchemeChange& change, SchemeChange::Side side)
{
    change.Apply(m_schemes, side);
    Follow(change, side);
}

void SchemeBook::Follow(const SchemeChange& change, SchemeChange::Side side)
{
    const bool bForward = side == SchemeChange::Side::After;
    if (bForward)
        m_modified.Follow(change);
    else
        m_modified.FollowBack(change);
    int iMore = 0;
    change.ForEach([&iMore](const AlarmSourceKey& /*key*/, const AlarmInfo* pBefore,
                            const AlarmInfo* pAfter) {
        iMore += int{SchemeContent::OrDefault(pAfter).bOpen} - int{SchemeContent::OrDefault(pBefore).bOpen};
    });
    TellModified();
    if (iMore != 0) {
        m_iEnabled += bForward ? iMore : -iMore;
        Q_EMIT SignalEnabledChanged();
    }
}

void SchemeBook::TellModified()
{
    if (std::exchange(m_bTold, IsModified()) != IsModified())
        Q_EMIT SignalModifiedChanged(IsModified());
}
