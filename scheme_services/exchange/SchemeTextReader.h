#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/exchange/SchemeTextProblem.h"

#include <QCoreApplication>
#include <QVector>

#include <functional>

class QIODevice;

/// Reads schemes from a JSON text as SchemeTextWriter makes it. A missing field takes the value of a fresh
/// record; a field that does not belong there, a number that is none of 32 bits and whatever the database
/// would not give back as it stands in the text are problems.
class SchemeTextReader
{
    Q_DECLARE_TR_FUNCTIONS(SchemeTextReader)

public:
    /// So many bytes are read.
    using Progress = std::function<void(qint64 iDone)>;

    void SetProgress(Progress progress);

    /// The device is open for reading; it is read once, piece by piece. False with at least one problem, in
    /// the order of the text, and then the map is empty.
    bool Read(QIODevice& device, AlarmInfoMap& map);
    const QVector<SchemeTextProblem>& Problems() const { return m_problems; }

private:
    void Parse(QIODevice& device, AlarmInfoMap& map);

    Progress m_progress;
    QVector<SchemeTextProblem> m_problems;
};
