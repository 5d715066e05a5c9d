#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <functional>
#include <memory>

class SchemeJson;

/// Writes schemes as a JSON text of one scheme a line, in UTF-8, so that texts can be compared by line. The
/// same schemes give the same text, byte for byte.
class SchemeTextWriter
{
    Q_DECLARE_TR_FUNCTIONS(SchemeTextWriter)

public:
    /// Takes the next piece of the text, whole characters; false ends the writing.
    using Sink = std::function<bool(const QByteArray&)>;
    /// So many of so many schemes are written.
    using Progress = std::function<void(int iDone, int iAll)>;

    SchemeTextWriter();
    ~SchemeTextWriter();
    SchemeTextWriter(const SchemeTextWriter&) = delete;
    SchemeTextWriter& operator=(const SchemeTextWriter&) = delete;

    void SetProgress(Progress progress);

    /// False when the sink has refused a piece or a scheme holds what the text cannot; then Failure tells.
    bool Write(const AlarmInfoMap& map, const Sink& sink);
    /// Translated; empty when it was the sink.
    QString Failure() const { return m_strFailure; }

    /// The line of one scheme, without an end.
    QByteArray Line(const AlarmSourceKey& key, const AlarmInfo& info);

private:
    std::unique_ptr<SchemeJson> m_json;
    Progress m_progress;
    QString m_strFailure;
};
