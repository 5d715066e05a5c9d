#pragma once

#include "platform/SystemLibrary/IAlarmSchemes.h"

#include <QObject>
#include <QSharedPointer>

#include <memory>

/// Keeps the schemes for AlarmSchemeManager; supplied by the host program. User-interface thread only.
class SYSTEMLIBRARY_EXPORT IAlarmSchemeBackend
{
public:
    virtual ~IAlarmSchemeBackend();
    virtual int Load(AlarmInfoMap& map) = 0;       ///< 0 on success; the map then holds every stored scheme
    virtual int Save(const AlarmInfoMap& map) = 0; ///< 0 when the map was accepted; all or nothing
};

/// The host's scheme manager: one shared instance that answers through whatever backend the host gave it.
/// Without a backend both operations answer -1 and change nothing.
class SYSTEMLIBRARY_EXPORT AlarmSchemeManager : public QObject, public IAlarmSchemes
{
    Q_OBJECT

public:
    static QSharedPointer<AlarmSchemeManager> Instance();
    ~AlarmSchemeManager() override;

    int LoadAlarmInfo(AlarmInfoMap* pMap) override;
    int SaveAlarmInfo(const AlarmInfoMap* pMap) override;

    /// Takes the backend over; null removes the present one.
    void SetBackend(std::unique_ptr<IAlarmSchemeBackend> backend);

private:
    AlarmSchemeManager();
    std::unique_ptr<IAlarmSchemeBackend> m_backend;
};
