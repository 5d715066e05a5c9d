#include "client/MailCheck.h"

#include "client/mail/MailMessage.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int LongestHost = 253;
constexpr int LongestAddress = 254;
constexpr int LongestUser = 256;
constexpr int LongestPassword = 256;
constexpr int LongestPath = 4096;
constexpr int MostRecipients = 100;
constexpr int32_t LastPort = 65535;

bool HasControlCharacter(const QString& strText)
{
    return std::any_of(strText.cbegin(), strText.cend(),
                       [](QChar c) { return c.category() == QChar::Other_Control; });
}

} // namespace

SystemMailSettings MailCheck::Tidied(const SystemMailSettings& settings)
{
    SystemMailSettings tidied;
    tidied.bEnable = settings.bEnable;
    for (SystemMailServer server : settings.servers) {
        server.strServer = server.strServer.trimmed();
        server.strUser = server.strUser.trimmed();
        server.strSender = server.strSender.trimmed();
        server.strCertificateFile = server.strCertificateFile.trimmed();
        server.recipients = SplitRecipients(server.recipients.join(QLatin1Char(',')));
        if (server.strUser.isEmpty()) {
            server.strPassword.clear();
        }
        if (!server.strServer.isEmpty() || !server.strUser.isEmpty() || !server.strSender.isEmpty() ||
            !server.recipients.isEmpty()) {
            tidied.servers.append(server);
        }
    }
    return tidied;
}

std::optional<MailCheck::Problem> MailCheck::FirstProblem(const SystemMailSettings& settings)
{
    if (settings.bEnable && settings.servers.isEmpty()) {
        return Problem{-1, Field::List, tr("Enter a mail server, or switch mail off.")};
    }
    for (int i = 0; i < settings.servers.size(); ++i) {
        std::optional<Problem> problem = ProblemOf(settings.servers.at(i), settings.bEnable);
        if (problem) {
            problem->iServer = i;
            return problem;
        }
    }
    return std::nullopt;
}

std::optional<MailCheck::Problem> MailCheck::ProblemOf(const SystemMailServer& server, bool bEnable)
{
    const auto problem = [](Field field, const QString& strText) { return Problem{-1, field, strText}; };
    if (server.strServer.isEmpty()) {
        return problem(Field::Host, tr("The server is missing."));
    }
    if (!IsHost(server.strServer)) {
        return problem(Field::Host, tr("\"%1\" is no host name and no address.").arg(server.strServer));
    }
    if (server.iPort < 1 || server.iPort > LastPort) {
        return problem(Field::Port, tr("The port must be from 1 to 65535."));
    }
    if (server.strUser.size() > LongestUser || HasControlCharacter(server.strUser)) {
        return problem(Field::User, tr("The user name is too long or holds control characters."));
    }
    if (server.strPassword.size() > LongestPassword || HasControlCharacter(server.strPassword)) {
        return problem(Field::Password, tr("The password is too long or holds control characters."));
    }
    if (bEnable && !server.strUser.isEmpty() && server.strPassword.isEmpty()) {
        return problem(Field::Password, tr("Enter the password of the user, or leave the user empty."));
    }
    if (!IsAddress(server.strSender)) {
        return problem(Field::Sender, tr("The sender must be one mail address, like guard@example.com."));
    }
    if (bEnable && server.recipients.isEmpty()) {
        return problem(Field::Recipients, tr("Enter at least one address that gets the mail."));
    }
    if (server.recipients.size() > MostRecipients) {
        return problem(Field::Recipients, tr("A server takes %1 recipients at most.").arg(MostRecipients));
    }
    for (const QString& strRecipient : server.recipients) {
        if (!IsAddress(strRecipient)) {
            return problem(Field::Recipients,
                           tr("\"%1\" is no mail address like guard@example.com.").arg(strRecipient));
        }
    }
    if (server.strCertificateFile.size() > LongestPath || HasControlCharacter(server.strCertificateFile)) {
        return problem(Field::CertificateFile,
                       tr("The name of the certificate file is too long or holds control characters."));
    }
    return std::nullopt;
}

QStringList MailCheck::SplitRecipients(const QString& strText)
{
    static const QRegularExpression gap(QStringLiteral("[\\s,;]+"));
    QStringList recipients = strText.split(gap, Qt::SkipEmptyParts);
    recipients.removeDuplicates();
    return recipients;
}

int32_t MailCheck::UsualPort(SystemMailEncryption eEncryption)
{
    switch (eEncryption) {
    case SystemMailEncryption::StartTls:
        return 587;
    case SystemMailEncryption::Tls:
        return 465;
    case SystemMailEncryption::None:
        break;
    }
    return 25;
}

bool MailCheck::IsHost(const QString& strText)
{
    static const QRegularExpression name(
        QStringLiteral("\\A(?:[\\p{L}\\p{N}](?:[\\p{L}\\p{N}-]{0,61}[\\p{L}\\p{N}])?\\.)*"
                       "[\\p{L}\\p{N}](?:[\\p{L}\\p{N}-]{0,61}[\\p{L}\\p{N}])?\\.?\\z"));
    static const QRegularExpression colons(QStringLiteral("\\A(?=.*:.*:)[0-9A-Fa-f:.]{2,45}\\z"));
    return strText.size() <= LongestHost &&
           (name.match(strText).hasMatch() || colons.match(strText).hasMatch());
}

bool MailCheck::IsAddress(const QString& strText)
{
    static const QRegularExpression address(QStringLiteral("\\A[^\\s@<>,;:\"]+@[^\\s@<>,;:\"]+\\z"));
    if (strText.size() > LongestAddress || HasControlCharacter(strText) ||
        !address.match(strText).hasMatch()) {
        return false;
    }
    return IsHost(strText.section(QLatin1Char('@'), 1)) && !MailMessage::WireAddress(strText).isEmpty();
}
