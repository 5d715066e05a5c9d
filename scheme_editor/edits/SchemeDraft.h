#pragma once

#include "scheme_editor/edits/SchemeChange.h"

#include <QByteArray>

#include <optional>

/// Edits that are not saved, in a form that outlives the program: what each edited scheme holds now. The
/// bytes carry a version and a checksum; what is read is bounded and checked besides, so that no bytes do
/// harm. Records, and rows that sources have in common, are written once. A value; pure.
class SchemeDraft
{
public:
    /// The after side of a change; no bytes for an empty one.
    static QByteArray Write(const SchemeChange& change);
    /// Nothing when the bytes are no draft of this version, damaged, or hold what no draft can hold.
    static std::optional<SchemeDraft> Read(const QByteArray& bytes);

    /// Calls `visit(const AlarmSourceKey&, const AlarmInfo*)` in ascending order of the keys; null means that
    /// the scheme is to be absent.
    template <typename Visit>
    void ForEach(Visit visit) const
    {
        for (const SchemeChange::Source& source : m_content.m_sources) {
            for (const SchemeChange::Cell& cell : m_content.m_rows[source.iRow])
                visit(AlarmSourceKey{source.strText, cell.iType}, m_content.Record(cell.iAfter));
        }
    }

private:
    SchemeChange m_content; ///< without a before side
};
