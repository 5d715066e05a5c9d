#pragma once

#include "platform/SystemLibrary/QSystem.h"

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>

/// What the client remembers from one start to the next, in an ini file of the data directory. Whatever the
/// file holds, the answers are sound: an unknown language, theme or port is answered as if it were not there.
class ClientSettings
{
public:
    static constexpr int MaximumMailServers = 32;
    static constexpr int DefaultHistoryDays = 2 * 365;
    static constexpr int MaximumHistoryDays = 100 * 365;

    explicit ClientSettings(const QString& strFile);

    QString Language() const; ///< "en", "zh_cn" or empty for "as the system has it"
    void SetLanguage(const QString& strCode);
    QString Theme() const; ///< "dark" or "light"
    void SetTheme(const QString& strName);
    QByteArray WindowGeometry() const;
    void SetWindowGeometry(const QByteArray& geometry);
    QStringList OpenPages() const; ///< keys of the modules whose pages were open when the client ended
    void SetOpenPages(const QStringList& keys);
    SystemMailSettings Mail() const;
    /// The passwords go into a file of their own beside this one, see MailPasswords.
    void SetMail(const SystemMailSettings& settings);
    int HistoryDays() const;           ///< how long the history of the schemes keeps its steps
    QStringList TreeExpansion() const; ///< see TreeExpansion::ToTexts()
    void SetTreeExpansion(const QStringList& texts);

    bool Write(); ///< false when the file, or the one with the passwords, could not be written
    QString FileName() const { return m_settings.fileName(); }

private:
    QString PasswordFile() const;

    QSettings m_settings;
    bool m_bPasswordsKept = true;
};
