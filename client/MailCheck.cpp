#include "client/MailCheck.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int LongestHost = 253;
constexpr int LongestAddress = 254;
constexpr int LongestUser = 256;
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
        if (!server.strServer.isEmpty() || !server.strUser.isEmpty() || !server.strSender.isEmpty()) {
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
        const SystemMailServer& server = settings.servers.at(i);
        if (server.strServer.isEmpty()) {
            return Problem{i, Field::Host, tr("The server is missing.")};
        }
        if (!IsHost(server.strServer)) {
            return Problem{i, Field::Host,
                           tr("\"%1\" is no host name and no address.").arg(server.strServer)};
        }
        if (server.iPort < 1 || server.iPort > LastPort) {
            return Problem{i, Field::Port, tr("The port must be from 1 to 65535.")};
        }
        if (server.strUser.size() > LongestUser || HasControlCharacter(server.strUser)) {
            return Problem{i, Field::User, tr("The user name is too long or holds control characters.")};
        }
        if (!IsAddress(server.strSender)) {
            return Problem{i, Field::Sender,
                           tr("The sender must be one mail address, like guard@example.com.")};
        }
    }
    return std::nullopt;
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
    return IsHost(strText.section(QLatin1Char('@'), 1));
}
