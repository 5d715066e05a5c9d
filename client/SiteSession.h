#pragma once

#include "platform/SiteLibrary/SiteDeviceManager.h"

#include <QByteArray>
#include <QObject>
#include <QString>

/// The site that the client works on: its file and the device manager over it. A device that a person removes
/// is taken out of the file too, but only out of a file that was read soundly and that nobody else has
/// changed since. User-interface thread only.
class SiteSession : public QObject, private VantaLogic::IDeviceObserver
{
    Q_OBJECT

public:
    enum class Outcome
    {
        None,          ///< nothing opened yet
        Loaded,        ///< the file was read
        SampleWritten, ///< there was no file; the sample site was written
        SampleUnsaved, ///< there was no file and none could be written; the sample site in memory only
        Broken         ///< the file could not be used and is left alone; no devices
    };

    explicit SiteSession(QObject* parent = nullptr);
    ~SiteSession() override;

    /// Opens the file. When it does not exist and `bWriteSample` is set, the sample site is written to it.
    Outcome Open(const QString& strFile, bool bWriteSample);
    /// Puts another site into the file and then, as a difference by id, into the devices; what the file held
    /// is kept beside it, `strBackup` says where. False with the reason, and nothing changed, when the file
    /// cannot be written or was changed by somebody else since this session read it.
    bool Replace(const Site& site, QString& strBackup, QString& strReason);
    /// From here on changes are no longer followed; called before everything is taken down.
    void StopFollowing();

    SiteDeviceManager& Devices() { return m_devices; }
    Outcome GetOutcome() const { return m_outcome; }
    QString ErrorText() const { return m_strError; } ///< for people; empty when all is well
    QString FileName() const { return m_strFile; }
    int DeviceCount() const { return m_devices.GetDeviceIds().size(); }

Q_SIGNALS:
    void SignalDevicesChanged();
    void SignalWriteFailed(const QString& strReason);

private:
    void OnDeviceAdded(int64_t iDeviceId) override;
    void OnDeviceRemoved(int64_t iDeviceId) override;
    void OnDeviceChanged(int64_t iDeviceId) override;
    void OnDeviceOnline(int64_t iDeviceId, bool bOnline) override;
    void OnGroupsChanged() override;
    bool ReadBytes(QByteArray& bytes) const;
    void WriteBack();

    SiteDeviceManager m_devices;
    Outcome m_outcome = Outcome::None;
    QString m_strFile;
    QString m_strError;
    QByteArray m_lastBytes; ///< the file as this session last read or wrote it
    bool m_bFollowing = false;
    bool m_bReplacing = false; ///< the file has been written already; told once, at the end
};
