#include "client/insight/StoredSchemeView.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStoreReader.h"

StoredSchemeView::StoredSchemeView(const QString& strPath, QObject* parent)
    : QObject(parent)
    , m_strPath(strPath)
{
}

StoredSchemeView::~StoredSchemeView() = default;

void StoredSchemeView::Refresh()
{
    m_job.Start([this, strPath = m_strPath](const BackgroundJob::Stop& stop) -> BackgroundJob::Result {
        AlarmSchemeStoreReader reader(strPath);
        reader.SetPulse([&stop] { return !stop; });
        AlarmInfoMap schemes;
        const AlarmSchemeReadOutcome outcome = reader.Read(schemes);
        return [this, schemes, outcome] {
            m_schemes = schemes;
            m_strProblem = outcome.IsSuccess() ? QString() : outcome.Text();
            Q_EMIT SignalRead();
        };
    });
}
