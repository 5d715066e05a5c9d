#include "platform/SystemLibrary/ShownText.h"

#include <QtTest>

namespace {

QString Text(const char* szUtf8)
{
    return QString::fromUtf8(szUtf8);
}

const QChar Mark(QChar::ReplacementCharacter);

} // namespace

class TestShownText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatCanBeSeenStays();
    void whatCannotBeSeenIsReplaced_data();
    void whatCannotBeSeenIsReplaced();
    void halvesOfCharactersAreReplaced();
    void aLongTextIsCut();
    void theCutLeavesNoHalfCharacter();
    void theWholeTextNamesWhatItLeavesOut();
    void theWholeTextKeepsWhatOnlyCannotBeSeen();
};

void TestShownText::whatCanBeSeenStays()
{
    // Letters, signs of other scripts, and a door beyond the first 65,536 characters.
    for (const char* const szText : {"", "Front door 1/2", "\xE5\x8C\x97\xE9\x97\xA8", "\xF0\x9F\x9A\xAA"}) {
        QCOMPARE(ShownText::Visible(Text(szText), Mark), Text(szText));
        QCOMPARE(ShownText::Short(Text(szText)), Text(szText));
        QCOMPARE(ShownText::Whole(Text(szText)), Text(szText));
    }
}

void TestShownText::whatCannotBeSeenIsReplaced_data()
{
    QTest::addColumn<QString>("strText");
    QTest::newRow("escape") << Text("a\x1b");
    QTest::newRow("line feed") << Text("a\n");
    QTest::newRow("tab") << Text("a\t");
    QTest::newRow("delete") << Text("a\x7f");
    QTest::newRow("C1 control") << Text("a\xC2\x9B");
    QTest::newRow("line separator") << Text("a\xE2\x80\xA8");
    QTest::newRow("paragraph separator") << Text("a\xE2\x80\xA9");
    QTest::newRow("right to left override") << Text("a\xE2\x80\xAE");
    QTest::newRow("zero width space") << Text("a\xE2\x80\x8B");
    QTest::newRow("null") << QString(QStringLiteral("a") + QChar(0));
    QTest::newRow("tag beyond the first 65,536") << Text("a\xF3\xA0\x80\x81");
}

void TestShownText::whatCannotBeSeenIsReplaced()
{
    QFETCH(QString, strText);
    QCOMPARE(ShownText::Visible(strText, Mark), QStringLiteral("a") + Mark);
    QCOMPARE(ShownText::Visible(strText, QLatin1Char(' ')), QStringLiteral("a "));
    QCOMPARE(ShownText::Short(strText), QStringLiteral("a") + Mark);
}

void TestShownText::halvesOfCharactersAreReplaced()
{
    const QString door = Text("\xF0\x9F\x9A\xAA");
    const QString high(door.at(0));
    const QString low(door.at(1));
    QCOMPARE(ShownText::Visible(high, Mark), QString(Mark));
    QCOMPARE(ShownText::Visible(low + high, Mark), QString(2, Mark));
    QCOMPARE(ShownText::Visible(high + door, Mark), Mark + door);
}

void TestShownText::aLongTextIsCut()
{
    const QString ellipsis(QChar(0x2026));
    QCOMPARE(ShownText::Short(QString(80, QLatin1Char('x'))), QString(80, QLatin1Char('x')));
    QCOMPARE(ShownText::Short(QString(81, QLatin1Char('x'))), QString(80, QLatin1Char('x')) + ellipsis);
    QCOMPARE(ShownText::Short(QStringLiteral("a\nbc"), 3, QLatin1Char(' ')),
             QStringLiteral("a b") + ellipsis);
    QCOMPARE(ShownText::Short(QStringLiteral("ab"), 0), ellipsis);
    QCOMPARE(ShownText::Short(QString(), 0), QString());
}

void TestShownText::theCutLeavesNoHalfCharacter()
{
    const QString door = Text("\xF0\x9F\x9A\xAA");
    const QString ellipsis(QChar(0x2026));
    QCOMPARE(ShownText::Short(QStringLiteral("a") + door + door, 2), QStringLiteral("a") + ellipsis);
    QCOMPARE(ShownText::Short(QStringLiteral("a") + door + door, 3), QStringLiteral("a") + door + ellipsis);
}

void TestShownText::theWholeTextNamesWhatItLeavesOut()
{
    QCOMPARE(ShownText::Whole(Text("a\x1b[2J\nb\xC2\x9B\xE2\x80\xA8\xE2\x80\xA9\xE2\x80\xAE\xE2\x81\xA6")),
             QStringLiteral("a\\u001b[2J\\u000ab\\u009b\\u2028\\u2029\\u202e\\u2066"));
    QCOMPARE(ShownText::Whole(QString(5000, QLatin1Char('x'))).size(), 5000);
}

void TestShownText::theWholeTextKeepsWhatOnlyCannotBeSeen()
{
    // Joiners are part of names in some scripts.
    const QString joined = Text("\xD9\x86\xE2\x80\x8C\xD9\x87");
    QCOMPARE(ShownText::Whole(joined), joined);
}

QTEST_GUILESS_MAIN(TestShownText)
#include "tst_ShownText.moc"
