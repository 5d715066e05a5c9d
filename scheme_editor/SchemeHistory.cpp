#include "scheme_editor/SchemeHistory.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QUndoCommand>

#include <utility>

class SchemeHistory::Command : public QUndoCommand
{
public:
    Command(SchemeHistory& history, SchemeStep step)
        : QUndoCommand(step.strText)
        , m_history(history)
        , m_step(std::move(step))
        , m_iCost(m_step.change.Cost())
    {
    }

    const SchemeStep& Step() const { return m_step; }
    int64_t Cost() const { return m_iCost; }

    void undo() override { MakeSide(SchemeChange::Side::Before); }
    void redo() override { MakeSide(SchemeChange::Side::After); }
    int id() const override { return m_step.iTyping > 0 && !m_history.m_bStill ? m_step.iTyping : -1; }

    bool mergeWith(const QUndoCommand* pOther) override
    {
        const auto* const pNext = dynamic_cast<const Command*>(pOther);
        if (pNext == nullptr || m_step.change.Count() != 1 || pNext->m_step.change.Count() != 1)
            return false;
        const Ends first = EndsOf(m_step.change);
        const Ends next = EndsOf(pNext->m_step.change);
        if (first.key != next.key)
            return false;
        SchemeChange::Builder builder;
        builder.Add(first.key, &first.before, &next.after);
        m_step.change = builder.Take();
        m_iCost = m_step.change.Cost();
        if (m_step.change.IsEmpty() ||
            SchemeContent::AreSame(first.before, next.after, m_history.m_isKnown)) {
            setObsolete(true); // typed back to where it began
        } else {
            m_step.strText =
                SchemeActionText::OfEdit(first.before, next.after, SchemeActionText::Way::OnPage);
            setText(m_step.strText);
        }
        return true;
    }

private:
    struct Ends
    {
        AlarmSourceKey key;
        AlarmInfo before;
        AlarmInfo after;
    };

    static Ends EndsOf(const SchemeChange& change)
    {
        Ends ends;
        change.ForEach([&](const AlarmSourceKey& key, const AlarmInfo* pBefore, const AlarmInfo* pAfter) {
            ends = {key, SchemeContent::OrDefault(pBefore), SchemeContent::OrDefault(pAfter)};
        });
        return ends;
    }

    void MakeSide(SchemeChange::Side side)
    {
        if (!m_history.m_bStill && !m_history.m_bMade)
            m_history.m_make(m_step.change, side);
    }

    SchemeHistory& m_history;
    SchemeStep m_step;
    int64_t m_iCost;
};

SchemeHistory::SchemeHistory(Make make, SchemeContent::KnownOutput isKnown, int64_t iMaxCost)
    : m_make(std::move(make))
    , m_isKnown(std::move(isKnown))
    , m_iMaxCost(iMaxCost)
{
    m_stack.setUndoLimit(MaxSteps);
}

SchemeHistory::~SchemeHistory() = default;

void SchemeHistory::Push(const SchemeStep& step)
{
    if (step.change.IsEmpty())
        return;
    {
        const QScopedValueRollback<bool> guard(m_bMade, true);
        m_stack.push(new Command(*this, step));
    }
    Trim();
    Q_EMIT SignalChanged();
}

void SchemeHistory::Undo()
{
    if (!m_stack.canUndo())
        return;
    m_stack.undo();
    Q_EMIT SignalChanged();
}

void SchemeHistory::Redo()
{
    if (!m_stack.canRedo())
        return;
    m_stack.redo();
    Q_EMIT SignalChanged();
}

void SchemeHistory::Clear()
{
    m_stack.clear();
    Q_EMIT SignalChanged();
}

void SchemeHistory::ForgetDevice(int64_t iDeviceId)
{
    QVector<SchemeStep> steps;
    int iIndex = 0;
    for (int i = 0; i < m_stack.count(); ++i) {
        SchemeStep step = At(i)->Step();
        step.change = step.change.WithoutDevice(iDeviceId);
        if (step.change.IsEmpty())
            continue;
        if (EventSource::FirstField(step.place.strSource) == iDeviceId)
            step.place = SchemeSelection();
        steps.append(step);
        iIndex += i < m_stack.index() ? 1 : 0;
    }
    Rebuild(steps, iIndex);
    Q_EMIT SignalChanged();
}

const SchemeStep* SchemeHistory::NextUndo() const
{
    return m_stack.canUndo() ? &At(m_stack.index() - 1)->Step() : nullptr;
}

const SchemeStep* SchemeHistory::NextRedo() const
{
    return m_stack.canRedo() ? &At(m_stack.index())->Step() : nullptr;
}

int64_t SchemeHistory::Cost() const
{
    int64_t iCost = 0;
    for (int i = 0; i < m_stack.count(); ++i)
        iCost += At(i)->Cost();
    return iCost;
}

const SchemeHistory::Command* SchemeHistory::At(int iIndex) const
{
    return static_cast<const Command*>(m_stack.command(iIndex));
}

// The stack can only be cut at its ends, so what stays is put on it again.
void SchemeHistory::Rebuild(const QVector<SchemeStep>& steps, int iIndex)
{
    const QScopedValueRollback<bool> guard(m_bStill, true);
    m_stack.clear();
    for (const SchemeStep& step : steps)
        m_stack.push(new Command(*this, step));
    m_stack.setIndex(iIndex);
}

// Only after a push, when there is nothing to make again. The newest step stays whatever it costs.
void SchemeHistory::Trim()
{
    int64_t iCost = 0;
    int iFirst = m_stack.count();
    while (iFirst > 0) {
        iCost += At(iFirst - 1)->Cost();
        if (iCost > m_iMaxCost && iFirst < m_stack.count())
            break;
        --iFirst;
    }
    if (iFirst == 0)
        return;
    QVector<SchemeStep> steps;
    for (int i = iFirst; i < m_stack.count(); ++i)
        steps.append(At(i)->Step());
    Rebuild(steps, steps.size());
}
