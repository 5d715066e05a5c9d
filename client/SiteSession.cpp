#include "client/SiteSession.h"

#include "client/ClientLog.h"
#include "client/SampleSite.h"
#include "platform/SiteLibrary/SiteFile.h"
#include "scheme_services/site/SiteImport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

SiteSession::SiteSession(QObject* parent)
    : QObject(parent)
{
}

SiteSession::~SiteSession()
{
    StopFollowing();
}

SiteSession::Outcome SiteSession::Open(const QString& strFile, bool bWriteSample)
{
    StopFollowing();
    m_strFile = strFile;
    m_strError.clear();
    m_lastBytes.clear();
    Site site;
    SiteFileError error;
    // A dangling link is no missing file: writing "through" it would land somewhere unexpected.
    const QFileInfo info(strFile);
    if (bWriteSample && !info.exists() && !info.isSymLink()) {
        site = MakeSampleSite();
        if (SiteFile::Write(strFile, site, error)) {
            m_outcome = Outcome::SampleWritten;
        } else {
            m_outcome = Outcome::SampleUnsaved;
            m_strError = error.Text();
        }
    } else if (SiteFile::Read(strFile, site, error)) {
        m_outcome = Outcome::Loaded;
    } else {
        m_outcome = Outcome::Broken;
        m_strError = error.Text();
        site = Site();
    }
    if (m_outcome == Outcome::Loaded || m_outcome == Outcome::SampleWritten) {
        ReadBytes(m_lastBytes);
    }
    if (!m_strError.isEmpty()) {
        CLIENT_LOG(lxl::LogError, "site: %s", qUtf8Printable(m_strError));
    }
    m_devices.ApplySite(site);
    m_devices.AddObserver(this);
    m_bFollowing = true;
    return m_outcome;
}

bool SiteSession::Replace(const Site& site, QString& strBackup, QString& strReason)
{
    QByteArray expected = m_lastBytes;
    if (m_outcome == Outcome::Broken) {
        // A file that could not be used is replaced too; what it holds goes into the backup like any other.
        expected.clear();
        ReadBytes(expected);
    }
    if (!SiteImport::ReplaceSiteFile(m_strFile, site, expected, strBackup, strReason)) {
        return false;
    }
    ReadBytes(m_lastBytes);
    m_outcome = Outcome::Loaded;
    m_strError.clear();
    m_bReplacing = true;
    m_devices.ApplySite(site);
    m_bReplacing = false;
    Q_EMIT SignalDevicesChanged();
    return true;
}

void SiteSession::StopFollowing()
{
    if (m_bFollowing) {
        m_devices.RemoveObserver(this);
        m_bFollowing = false;
    }
}

void SiteSession::OnDeviceAdded(int64_t /*iDeviceId*/)
{
    if (m_bReplacing) {
        return;
    }
    Q_EMIT SignalDevicesChanged();
}

void SiteSession::OnDeviceRemoved(int64_t /*iDeviceId*/)
{
    if (m_bReplacing) {
        return;
    }
    WriteBack();
    Q_EMIT SignalDevicesChanged();
}

void SiteSession::OnDeviceChanged(int64_t /*iDeviceId*/)
{
}

void SiteSession::OnDeviceOnline(int64_t /*iDeviceId*/, bool /*bOnline*/)
{
}

void SiteSession::OnGroupsChanged()
{
}

bool SiteSession::ReadBytes(QByteArray& bytes) const
{
    QFile file(m_strFile);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    bytes = file.readAll();
    return file.error() == QFileDevice::NoError;
}

void SiteSession::WriteBack()
{
    if (m_outcome != Outcome::Loaded && m_outcome != Outcome::SampleWritten) {
        return;
    }
    QByteArray bytes;
    QString strReason;
    SiteFileError error;
    if (!ReadBytes(bytes) || bytes != m_lastBytes) {
        strReason = tr("%1 was changed by somebody else and is left as it is; the removal holds until the "
                       "client ends.")
                        .arg(QDir::toNativeSeparators(m_strFile));
    } else if (!SiteFile::Write(m_strFile, m_devices.GetSite(), error)) {
        strReason = error.Text();
    } else {
        ReadBytes(m_lastBytes);
    }
    if (!strReason.isEmpty()) {
        CLIENT_LOG(lxl::LogError, "site not written: %s", qUtf8Printable(strReason));
        Q_EMIT SignalWriteFailed(strReason);
    }
}
