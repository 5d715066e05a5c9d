#include "client/mail/MailMessage.h"

#include <QtTest>

#include <vector>

namespace {

std::vector<QByteArray> Lines(const QByteArray& bytes)
{
    std::vector<QByteArray> lines;
    int iAt = 0;
    for (int iEnd = static_cast<int>(bytes.indexOf("\r\n")); iEnd >= 0;
         iEnd = static_cast<int>(bytes.indexOf("\r\n", iAt))) {
        lines.push_back(bytes.mid(iAt, iEnd - iAt));
        iAt = iEnd + 2;
    }
    lines.push_back(bytes.mid(iAt));
    return lines;
}

/// The reverse of encoded words, as a reader of mail does it: the fold between two words is nothing.
QString Decoded(const QByteArray& header)
{
    QString strText;
    for (const QByteArray& line : Lines(header)) {
        const QByteArray word = line.trimmed();
        if (!word.startsWith("=?UTF-8?B?") || !word.endsWith("?=")) {
            return QStringLiteral("no encoded word: ") + QString::fromLatin1(word);
        }
        const QByteArray bytes = QByteArray::fromBase64(word.mid(10, word.size() - 12));
        const QString strPart = QString::fromUtf8(bytes);
        if (strPart.toUtf8() != bytes || strPart.contains(QChar::ReplacementCharacter)) {
            return QStringLiteral("a character is torn");
        }
        strText += strPart;
    }
    return strText;
}

MailMessage Message()
{
    MailMessage message;
    message.strSender = QStringLiteral("guard@example.com");
    message.recipients = QStringList{QStringLiteral("desk@example.com")};
    message.strSubject = QStringLiteral("Test");
    message.strBody = QStringLiteral("Hello\n");
    message.time = QDateTime(QDate(2024, 2, 29), QTime(23, 5, 9), Qt::OffsetFromUTC, 3600);
    return message;
}

QByteArray HeadersOf(const MailMessage& message)
{
    const QByteArray bytes = message.ToBytes();
    return bytes.left(bytes.indexOf("\r\n\r\n") + 2);
}

} // namespace

class TestMailMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHeadersSayWhoAndWhen();
    void plainSubjectsStayAsTheyAre();
    void otherSubjectsAreEncodedWordsThatReadBack_data();
    void otherSubjectsAreEncodedWordsThatReadBack();
    void noFieldAddsAHeader_data();
    void noFieldAddsAHeader();
    void aNameStandsInQuotes();
    void aNameThatIsNotAsciiIsEncoded();
    void theBodyKeepsItsTextWithMailsLineEnds();
    void everyLineIsAsciiAndShort();
    void addressesAreWrittenInAscii_data();
    void addressesAreWrittenInAscii();
    void twoMessagesAreToldApart();
};

void TestMailMessage::theHeadersSayWhoAndWhen()
{
    MailMessage message = Message();
    message.recipients.append(QStringLiteral("chief@example.org"));
    const QByteArray headers = HeadersOf(message);
    QVERIFY(headers.contains("Date: 29 Feb 2024 23:05:09 +0100\r\n"));
    QVERIFY(headers.contains("From: <guard@example.com>\r\n"));
    QVERIFY(headers.contains("To: <desk@example.com>,\r\n <chief@example.org>\r\n"));
    QVERIFY(headers.contains("Subject: Test\r\n"));
    QVERIFY(headers.contains("@example.com>\r\nMIME-Version: 1.0\r\n"));
}

void TestMailMessage::plainSubjectsStayAsTheyAre()
{
    QCOMPARE(MailMessage::HeaderText(QStringLiteral("Door 3: forced!")), QByteArray("Door 3: forced!"));
    QCOMPARE(MailMessage::HeaderText(QString()), QByteArray());
}

void TestMailMessage::otherSubjectsAreEncodedWordsThatReadBack_data()
{
    QTest::addColumn<QString>("strSubject");
    QTest::newRow("an umlaut") << QString::fromUtf8("Tür offen");
    QTest::newRow("Chinese") << QString::fromUtf8("门禁报警：三号门被强行打开");
    QTest::newRow("four bytes each") << QString::fromUtf8("🔥").repeated(200);
    QTest::newRow("a long plain text") << QString(997, QLatin1Char('x'));
    QTest::newRow("looks encoded") << QStringLiteral("=?UTF-8?B?QUJD?=");
    QTest::newRow("mixed widths") << QString::fromUtf8("aä门🔥").repeated(50);
}

void TestMailMessage::otherSubjectsAreEncodedWordsThatReadBack()
{
    QFETCH(QString, strSubject);
    const QByteArray header = MailMessage::HeaderText(strSubject);
    QCOMPARE(Decoded(header), strSubject);
    for (const QByteArray& line : Lines("Subject: " + header)) {
        QVERIFY2(line.size() <= 76, line.constData());
    }
}

void TestMailMessage::noFieldAddsAHeader_data()
{
    QTest::addColumn<QString>("strBreak");
    QTest::newRow("CR LF") << QStringLiteral("\r\n");
    QTest::newRow("LF") << QStringLiteral("\n");
    QTest::newRow("CR") << QStringLiteral("\r");
    QTest::newRow("NUL") << QString(1, QChar(u'\0'));
    QTest::newRow("next line") << QString(QChar(0x85));
    QTest::newRow("line separator") << QString(QChar(0x2028));
    QTest::newRow("end of headers") << QStringLiteral("\r\n\r\n.\r\n");
}

void TestMailMessage::noFieldAddsAHeader()
{
    QFETCH(QString, strBreak);
    const auto names = [](const MailMessage& message) {
        QList<QByteArray> found;
        for (const QByteArray& line : Lines(HeadersOf(message))) {
            if (!line.startsWith(' ')) {
                found.append(line.left(line.indexOf(':')));
            }
        }
        return found;
    };
    const QString strAttack = QStringLiteral("a%1Bcc: all@example.com").arg(strBreak);
    MailMessage message = Message();
    const QList<QByteArray> expected = names(message);
    message.strSubject = strAttack;
    message.strSenderName = strAttack;
    message.strSender = strAttack;
    message.recipients.append(strAttack);
    QCOMPARE(names(message), expected);
    QVERIFY(!message.ToBytes().contains("all@example.com>"));
    QCOMPARE(message.ToBytes().count("\r\n\r\n"), Message().ToBytes().count("\r\n\r\n"));
}

void TestMailMessage::aNameStandsInQuotes()
{
    MailMessage message = Message();
    message.strSenderName = QStringLiteral("Gate \"3\" \\ <x@y.z>, ");
    QVERIFY(HeadersOf(message).contains("From: \"Gate \\\"3\\\" \\\\ <x@y.z>,\" <guard@example.com>\r\n"));
}

void TestMailMessage::aNameThatIsNotAsciiIsEncoded()
{
    MailMessage message = Message();
    message.strSenderName = QString::fromUtf8("门卫");
    const QByteArray headers = HeadersOf(message);
    QVERIFY(headers.contains("From: =?UTF-8?B?" + QString::fromUtf8("门卫").toUtf8().toBase64() +
                             "?= <guard@example.com>\r\n"));
}

void TestMailMessage::theBodyKeepsItsTextWithMailsLineEnds()
{
    MailMessage message = Message();
    message.strBody = QString::fromUtf8("one\ntwo\r\n.\r\nzwölf\rend");
    const QByteArray bytes = message.ToBytes();
    const QByteArray body = QByteArray::fromBase64(bytes.mid(bytes.indexOf("\r\n\r\n") + 4));
    QCOMPARE(body, QString::fromUtf8("one\r\ntwo\r\n.\r\nzwölf\r\nend").toUtf8());
}

void TestMailMessage::everyLineIsAsciiAndShort()
{
    MailMessage message = Message();
    message.strSenderName = QString::fromUtf8("夜班门卫").repeated(30);
    message.strSubject = QString::fromUtf8("ö").repeated(500);
    message.strBody = QString::fromUtf8("ß").repeated(5000);
    for (const QByteArray& line : Lines(message.ToBytes())) {
        QVERIFY(line.size() <= 100);
        for (const char c : line) {
            QVERIFY(c >= 0x20 && c < 0x7F);
        }
    }
}

void TestMailMessage::addressesAreWrittenInAscii_data()
{
    QTest::addColumn<QString>("strAddress");
    QTest::addColumn<QByteArray>("wire");
    const auto row = [](const char* szAddress, const char* szWire) {
        QTest::newRow(szAddress) << QString::fromUtf8(szAddress) << QByteArray(szWire);
    };
    row("guard@example.com", "guard@example.com");
    row("g.u+a_r-d@host", "g.u+a_r-d@host");
    row("guard@bücher.example", "guard@xn--bcher-kva.example");
    row("门卫@example.com", "");
    row("guard", "");
    row("@example.com", "");
    row("guard@", "");
    row("", "");
    row("guard@exa mple.com", "");
    row("gu ard@example.com", "");
    row("guard@example.com>", "");
    row("<guard@example.com", "");
    row("guard@example.com\r\nRCPT TO:<x@y.z>", "");
    row("gu\r\nard@example.com", "");
    row("a@b@c", "");
}

void TestMailMessage::addressesAreWrittenInAscii()
{
    QFETCH(QString, strAddress);
    QFETCH(QByteArray, wire);
    QCOMPARE(MailMessage::WireAddress(strAddress), wire);
}

void TestMailMessage::twoMessagesAreToldApart()
{
    QVERIFY(HeadersOf(Message()) != HeadersOf(Message()));
}

QTEST_GUILESS_MAIN(TestMailMessage)
#include "tst_mail_message.moc"
