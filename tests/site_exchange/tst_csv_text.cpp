#include "scheme_services/site/CsvText.h"

#include <QtTest>

#include <random>

namespace {

/// Rows as "line:cell|cell", or the problem as "line!".
QStringList Read(const QByteArray& text, char cSeparator = ',')
{
    QStringList rows;
    SiteProblem problem;
    const bool bRead = CsvText::Read(
        text, cSeparator,
        [&rows](const CsvText::Row& row) {
            const QByteArray cells = row.cells.join('|');
            rows.append(QStringLiteral("%1:").arg(row.iLine) +
                        QString::fromUtf8(cells.constData(), static_cast<int>(cells.size())));
            return true;
        },
        problem);
    if (!bRead) {
        rows.append(QStringLiteral("%1!").arg(problem.iLine));
    }
    return rows;
}

} // namespace

class TestCsvText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsKnowTheirLine_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("rows");
        const auto row = [](const char* szName, const QByteArray& text, const QStringList& rows) {
            QTest::newRow(szName) << text << rows;
        };
        row("empty", "", {});
        row("one cell", "a", {QStringLiteral("1:a")});
        row("unix ends", "a,b\nc,d\n", {QStringLiteral("1:a|b"), QStringLiteral("2:c|d")});
        row("windows ends", "a,b\r\nc,d\r\n", {QStringLiteral("1:a|b"), QStringLiteral("2:c|d")});
        row("old ends", "a,b\rc,d", {QStringLiteral("1:a|b"), QStringLiteral("2:c|d")});
        row("blank lines", "\n\r\n  \na\n\n\nb\n", {QStringLiteral("4:a"), QStringLiteral("7:b")});
        row("empty cells", ",,\n", {QStringLiteral("1:||")});
        row("a quoted separator", "\"a,b\",c\n", {QStringLiteral("1:a,b|c")});
        row("a quoted quote", "\"a\"\"b\"\n", {QStringLiteral("1:a\"b")});
        row("a quoted line end", "\"a\nb\",c\nd\n", {QStringLiteral("1:a\nb|c"), QStringLiteral("3:d")});
        row("a quoted blank line", "\"a\n\n\nb\"\nd\n",
            {QStringLiteral("1:a\n\n\nb"), QStringLiteral("5:d")});
        row("blanks around", "  a  ,\"  b  \"\n", {QStringLiteral("1:a|  b  ")});
        row("no end of the last line", "a\n\"b\"", {QStringLiteral("1:a"), QStringLiteral("2:b")});
        row("a quote within", "a\nb\"c\n", {QStringLiteral("1:a"), QStringLiteral("2!")});
        row("text behind a quote", "\"a\"b\n", {QStringLiteral("1!")});
        row("a quote left open", "a\n\"b\nc\n", {QStringLiteral("1:a"), QStringLiteral("2!")});
        row("a NUL", QByteArray("a\0b,c\n", 6),
            {QStringLiteral("1:a") + QChar(u'\0') + QStringLiteral("b|c")});
    }
    void rowsKnowTheirLine()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, rows);
        QCOMPARE(Read(text), rows);
    }
    void everySeparatorSeparates()
    {
        QCOMPARE(Read("a;b,c", ';'), QStringList{QStringLiteral("1:a|b,c")});
        QCOMPARE(Read("a\tb c\t\t\"d\te\"", '\t'), QStringList{QStringLiteral("1:a|b c||d\te")});
    }
    void theReaderStopsWhenItIsTold()
    {
        int iRows = 0;
        SiteProblem problem;
        QVERIFY(CsvText::Read(
            "a\nb\nc\n\"", ',', [&iRows](const CsvText::Row&) { return ++iRows < 2; }, problem));
        QCOMPARE(iRows, 2);
    }
    void cellsBeyondTheMostAreCountedOnly()
    {
        const QByteArray text(1000000, ',');
        int iCells = 0;
        int iKept = 0;
        SiteProblem problem;
        QVERIFY(CsvText::Read(
            text, ',',
            [&](const CsvText::Row& row) {
                iCells = row.iCells;
                iKept = static_cast<int>(row.cells.size());
                return true;
            },
            problem));
        QCOMPARE(iCells, 1000001);
        QCOMPARE(iKept, CsvText::MostCells);
    }
    void whateverIsQuotedReadsBack()
    {
        const unsigned uSeed = 20240229;
        std::mt19937 random(uSeed);
        const QByteArray letters("\",;\t\r\n ab\0\xC3", 11);
        for (int i = 0; i < 2000; ++i) {
            QByteArray cell;
            for (int n = static_cast<int>(random() % 12); n > 0; --n) {
                cell += letters.at(static_cast<int>(random() % 11));
            }
            QList<QByteArray> cells;
            SiteProblem problem;
            const QByteArray text = CsvText::Quoted(cell) + ',' + CsvText::Quoted("x") + '\n';
            const bool bRead = CsvText::Read(
                text, ',',
                [&cells](const CsvText::Row& row) {
                    cells += row.cells;
                    return true;
                },
                problem);
            QVERIFY2(bRead, qPrintable(QStringLiteral("seed %1").arg(uSeed)));
            QCOMPARE(cells, (QList<QByteArray>{cell, "x"}));
        }
    }
};

QTEST_GUILESS_MAIN(TestCsvText)
#include "tst_csv_text.moc"
