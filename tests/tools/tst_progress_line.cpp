#include "tools/ProgressLine.h"

#include <QTest>
#include <QTextStream>

namespace {

/// A terminal and a clock that stands still until it is moved.
struct Terminal
{
    QString shown;
    QTextStream err{&shown};
    QString nothing;
    QTextStream out{&nothing};
    qint64 iNow = 5000;
    CommandEnvironment environment{out, err, {}, true, [this]() { return iNow; }};
};

} // namespace

class TestProgressLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsShownDuringTheFirstSecond();
    void theLineIsRewrittenInPlaceAndWipedOut();
    void theLineIsNotRewrittenAllTheTime();
    void aShorterLineCoversALongerOne();
    void strangeAmountsStayWithinBounds();
    void nothingIsShownWithoutATerminalOrAClock();
};

void TestProgressLine::nothingIsShownDuringTheFirstSecond()
{
    Terminal terminal;
    {
        ProgressLine line(terminal.environment, QStringLiteral("Checking"));
        for (int done = 0; done < 1000; ++done) {
            ++terminal.iNow;
            if (done < 999)
                line.Show(done, 1000);
        }
    }
    QVERIFY(terminal.shown.isEmpty());
}

void TestProgressLine::theLineIsRewrittenInPlaceAndWipedOut()
{
    Terminal terminal;
    {
        ProgressLine line(terminal.environment, QStringLiteral("Checking"));
        terminal.iNow += 1000;
        line.Show(1, 4);
        QCOMPARE(terminal.shown, QStringLiteral("\rChecking: 25 %"));
        terminal.iNow += 200;
        line.Show(2, 4);
    }
    QCOMPARE(terminal.shown, QStringLiteral("\rChecking: 25 %\rChecking: 50 %\r") +
                                 QString(14, QLatin1Char(' ')) + QLatin1Char('\r'));
}

void TestProgressLine::theLineIsNotRewrittenAllTheTime()
{
    Terminal terminal;
    ProgressLine line(terminal.environment, QStringLiteral("Checking"));
    terminal.iNow += 2000;
    for (int done = 0; done < 1000; ++done)
        line.Show(done, 1000);
    QCOMPARE(terminal.shown.count(QLatin1Char('\r')), 1);
}

void TestProgressLine::aShorterLineCoversALongerOne()
{
    Terminal terminal;
    ProgressLine line(terminal.environment, QStringLiteral("Checking"));
    terminal.iNow += 1000;
    line.Show(4, 4);
    terminal.iNow += 1000;
    line.Show();
    QCOMPARE(terminal.shown, QStringLiteral("\rChecking: 100 %\rChecking: 2 s  "));
}

void TestProgressLine::strangeAmountsStayWithinBounds()
{
    for (const auto& [done, all] : {std::pair<qint64, qint64>(5, 0), {5, -1}, {50, 4}, {-5, 4}}) {
        Terminal terminal;
        ProgressLine line(terminal.environment, QStringLiteral("Checking"));
        terminal.iNow += 1000;
        line.Show(done, all);
        QCOMPARE(terminal.shown,
                 done < 0 ? QStringLiteral("\rChecking: 0 %") : QStringLiteral("\rChecking: 100 %"));
    }
}

void TestProgressLine::nothingIsShownWithoutATerminalOrAClock()
{
    Terminal redirected;
    redirected.environment.bTerminal = false;
    Terminal timeless;
    timeless.environment.milliseconds = {};
    for (Terminal* const pTerminal : {&redirected, &timeless}) {
        ProgressLine line(pTerminal->environment, QStringLiteral("Checking"));
        pTerminal->iNow += 10000;
        line.Show(1, 2);
        line.Show();
        QVERIFY(pTerminal->shown.isEmpty());
    }
}

QTEST_APPLESS_MAIN(TestProgressLine)
#include "tst_progress_line.moc"
