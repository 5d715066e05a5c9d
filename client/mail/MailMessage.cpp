#include "client/mail/MailMessage.h"

#include <QUrl>
#include <QUuid>

#include <algorithm>

namespace {

constexpr int LongestPlainHeader = 60;
constexpr int BytesPerWord = 39;   // 52 letters and 12 of frame: fits beside any of our header names
constexpr int LettersPerLine = 76; // of an encoded body
constexpr char LineEnd[] = "\r\n";

bool IsControl(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
           c.category() == QChar::Separator_Paragraph;
}

/// One line without control characters, as a header is.
QString OneLine(QString strText)
{
    std::replace_if(strText.begin(), strText.end(), IsControl, QLatin1Char(' '));
    return strText.simplified();
}

bool IsPlain(const QString& strText)
{
    return strText.size() <= LongestPlainHeader && !strText.contains(QLatin1String("=?")) &&
           std::all_of(strText.cbegin(), strText.cend(),
                       [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7F; });
}

QByteArray EncodedWords(const QString& strText)
{
    QByteArray words;
    QByteArray part;
    const auto flush = [&] {
        if (!part.isEmpty()) {
            words += words.isEmpty() ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?";
            words += part.toBase64() + "?=";
            part.clear();
        }
    };
    const QVector<uint> points = strText.toUcs4();
    for (const uint point : points) {
        // A character must not be torn between two words.
        const QByteArray bytes = QString::fromUcs4(&point, 1).toUtf8();
        if (part.size() + bytes.size() > BytesPerWord) {
            flush();
        }
        part += bytes;
    }
    flush();
    return words;
}

/// A display name in front of an address.
QByteArray Phrase(const QString& strName)
{
    const QString strLine = OneLine(strName);
    if (!IsPlain(strLine)) {
        return EncodedWords(strLine);
    }
    QByteArray quoted = strLine.toLatin1();
    quoted.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + quoted + '"';
}

QByteArray EncodedBody(QString strBody)
{
    strBody.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    strBody.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    const QByteArray letters = strBody.toUtf8().toBase64();
    QByteArray lines;
    for (int iAt = 0; iAt < letters.size(); iAt += LettersPerLine) {
        lines += letters.mid(iAt, LettersPerLine) + LineEnd;
    }
    return lines;
}

} // namespace

QByteArray MailMessage::HeaderText(const QString& strText)
{
    const QString strLine = OneLine(strText);
    return IsPlain(strLine) ? strLine.toLatin1() : EncodedWords(strLine);
}

QByteArray MailMessage::WireAddress(const QString& strAddress)
{
    const int iAt = static_cast<int>(strAddress.indexOf(QLatin1Char('@')));
    const QString strName = strAddress.left(iAt);
    const bool bName =
        iAt > 0 && std::all_of(strName.cbegin(), strName.cend(), [](QChar c) {
            return c.unicode() > 0x20 && c.unicode() < 0x7F && !QStringLiteral("<>()[],;:\\\"").contains(c);
        });
    if (!bName) {
        return QByteArray();
    }
    const QString strPlace = strAddress.mid(iAt + 1);
    const bool bPlace = !strPlace.isEmpty() && std::all_of(strPlace.cbegin(), strPlace.cend(), [](QChar c) {
        return c.isLetterOrNumber() || c.isMark() || c == QLatin1Char('.') || c == QLatin1Char('-') ||
               c.isSurrogate();
    });
    const QByteArray place = bPlace ? QUrl::toAce(strPlace) : QByteArray();
    return place.isEmpty() ? QByteArray() : strName.toLatin1() + '@' + place;
}

QByteArray MailMessage::ToBytes() const
{
    const QByteArray sender = WireAddress(strSender);
    QByteArray to;
    for (const QString& strRecipient : recipients) {
        to += (to.isEmpty() ? "<" : ",\r\n <") + WireAddress(strRecipient) + '>';
    }
    const QString strName = OneLine(strSenderName);
    QByteArray bytes;
    bytes += "Date: " + time.toString(Qt::RFC2822Date).toLatin1() + LineEnd;
    bytes +=
        "From: " + (strName.isEmpty() ? QByteArray() : Phrase(strName) + ' ') + '<' + sender + '>' + LineEnd;
    bytes += "To: " + to + LineEnd;
    bytes += "Subject: " + HeaderText(strSubject) + LineEnd;
    bytes += "Message-ID: <" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces) + '@' +
             sender.mid(sender.indexOf('@') + 1) + '>' + LineEnd;
    bytes += "MIME-Version: 1.0\r\n"
             "Content-Type: text/plain; charset=utf-8\r\n"
             "Content-Transfer-Encoding: base64\r\n"
             "Auto-Submitted: auto-generated\r\n"
             "\r\n";
    bytes += EncodedBody(strBody);
    return bytes;
}
