#include "platform/SystemLibrary/AlarmSchemeManager.h"

IAlarmSchemes::~IAlarmSchemes() = default;
IAlarmSchemeBackend::~IAlarmSchemeBackend() = default;

AlarmSchemeManager::AlarmSchemeManager() = default;
AlarmSchemeManager::~AlarmSchemeManager() = default;

QSharedPointer<AlarmSchemeManager> AlarmSchemeManager::Instance()
{
    static const QSharedPointer<AlarmSchemeManager> instance(new AlarmSchemeManager);
    return instance;
}

int AlarmSchemeManager::LoadAlarmInfo(AlarmInfoMap* pMap)
{
    if (pMap == nullptr || m_backend == nullptr)
        return -1;
    return m_backend->Load(*pMap);
}

int AlarmSchemeManager::SaveAlarmInfo(const AlarmInfoMap* pMap)
{
    if (pMap == nullptr || m_backend == nullptr)
        return -1;
    return m_backend->Save(*pMap);
}

void AlarmSchemeManager::SetBackend(std::unique_ptr<IAlarmSchemeBackend> backend)
{
    m_backend = std::move(backend);
}
