#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "client/insight/BackgroundJob.h"

#include <QObject>
#include <QString>

/// The schemes as they are stored, for pages that only look: read beside the window, without touching the
/// file or what the editors know of it. User-interface thread only.
class StoredSchemeView : public QObject
{
    Q_OBJECT

public:
    /// The database file; it need not exist.
    explicit StoredSchemeView(const QString& strPath, QObject* parent = nullptr);
    ~StoredSchemeView() override;

    /// Reads anew; the signal follows. What was read before stays in sight until then.
    void Refresh();
    bool IsReading() const { return m_job.IsRunning(); }

    const AlarmInfoMap& Schemes() const { return m_schemes; }
    QString Problem() const { return m_strProblem; } ///< why they could not be read; empty when they were

Q_SIGNALS:
    void SignalRead();

private:
    QString m_strPath;
    AlarmInfoMap m_schemes;
    QString m_strProblem;
    BackgroundJob m_job; // last: its end waits for the reading
};
