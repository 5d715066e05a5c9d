#include "client/mail/MailPasswords.h"

#include "platform/SystemLibrary/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr qint64 LargestFile = 1024LL * 1024;

QString KeyOf(const SystemMailServer& server)
{
    // A slash stands in no host, so that no two servers share a key.
    return server.strServer.toLower() + QLatin1Char('/') + QString::number(server.iPort) + QLatin1Char('/') +
           server.strUser;
}

} // namespace

MailPasswords::MailPasswords(const QString& strFile)
    : m_strFile(strFile)
{
}

void MailPasswords::Fill(SystemMailSettings& settings) const
{
    QJsonObject passwords;
    QFile file(m_strFile);
    if (QFileInfo(m_strFile).isFile() && file.open(QIODevice::ReadOnly)) {
        passwords = QJsonDocument::fromJson(file.read(LargestFile)).object();
    }
    for (SystemMailServer& server : settings.servers) {
        server.strPassword = server.strUser.isEmpty() ? QString() : passwords.value(KeyOf(server)).toString();
    }
}

bool MailPasswords::Keep(const SystemMailSettings& settings, QString& strReason) const
{
    QJsonObject passwords;
    for (const SystemMailServer& server : settings.servers) {
        if (!server.strUser.isEmpty() && !server.strPassword.isEmpty()) {
            passwords.insert(KeyOf(server), server.strPassword);
        }
    }
    if (passwords.isEmpty()) {
        QFile file(m_strFile);
        const bool bGone = !file.exists() || file.remove();
        strReason = bGone ? QString() : file.errorString();
        return bGone;
    }
    const QByteArray text = QJsonDocument(passwords).toJson();
    WholeFile file(m_strFile);
    // The rights are set before the first byte is there to be read.
    const bool bWritten = file.open(QIODevice::WriteOnly) &&
                          file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                          file.write(text) == text.size() && file.commit();
    strReason = bWritten ? QString() : file.errorString();
    return bWritten;
}
