#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

/// A text mail, and how it looks on the wire. Whatever the fields hold, none of them can add a header, a
/// recipient or a command.
struct MailMessage
{
    QString strSender;     ///< address
    QString strSenderName; ///< may be empty
    QStringList recipients;
    QString strSubject;
    QString strBody;
    QDateTime time;

    /// The whole message with CR LF at the end of every line, ASCII only.
    QByteArray ToBytes() const;

    /// An address as servers take it: the place in its ASCII form. Empty when it is no address, or has
    /// anything but ASCII before the "@".
    static QByteArray WireAddress(const QString& strAddress);
    /// The value of a header that is free text: as it is where that is safe, else as encoded words, folded.
    static QByteArray HeaderText(const QString& strText);
};
