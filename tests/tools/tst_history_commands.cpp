#include "tests/tools/ExchangeKit.h"

#include <QTest>

namespace {

/// Imports the schemes in the place of all others; the number of the step.
qint64 Import(Data& data, const AlarmInfoMap& schemes)
{
    const QString text = data->Write("step.json", SchemeTexts::Write(schemes));
    const Run run = data.Do({Text("import"), Text("--replace"), text});
    return run.code == 0 ? data.History().value(0).iId : 0;
}

} // namespace

class TestHistoryCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHistoryTellsEveryStep();
    void aStepIsToldByFields();
    void aStepIsTakenBack();
    void whatHasChangedSinceIsLeftAlone();
    void withoutAHistoryNothingIsTakenBack();
};

void TestHistoryCommands::theHistoryTellsEveryStep()
{
    Data data(Doors(3));
    const qint64 first = Import(data, Doors(2));
    const qint64 second = Import(data, Doors(5));
    QVERIFY(first > 0 && second > first);
    Run run = data.Do(Words("history"));
    QCOMPARE(run.code, 0);
    QStringList lines = run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(lines.size() >= 2);
    QVERIFY2(lines[0].startsWith(QString::number(second) + Text("  20")), qPrintable(lines[0]));
    QVERIFY2(lines[0].endsWith(Text(", imported, schemes: 3 (step.json)")), qPrintable(lines[0]));
    QVERIFY2(lines[1].endsWith(Text(", imported, schemes: 1 (step.json)")), qPrintable(lines[1]));
    run = data.Do(Words("history --limit 1 --format json"));
    const QJsonArray steps = Json(run.out).value(Text("steps")).toArray();
    QCOMPARE(steps.size(), 1);
    QCOMPARE(steps.at(0).toObject().value(Text("what")).toString(), Text("import"));
    QCOMPARE(steps.at(0).toObject().value(Text("count")).toInt(), 3);
    for (const char* const wrong : {"history --limit 0", "history --limit x", "history x", "history 1 2",
                                    "history -1", "history 99999", "history 9223372036854775807"})
        QCOMPARE(data.Do(Words(wrong)).code, 2);
}

void TestHistoryCommands::aStepIsToldByFields()
{
    Data data(Doors(2));
    AlarmInfoMap listed = Doors(3);
    listed.remove(Key(1));
    listed[Key(2)].bOpen = false;
    const qint64 step = Import(data, listed);
    Run run = data.Do({Text("history"), QString::number(step)});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out.mid(run.out.indexOf(QLatin1Char('\n')) + 1),
             Text("removed  7$1$0$1, Door Forced Open [7$1$0$1, 101]\n"
                  "changed  7$1$0$2, Door Forced Open [7$1$0$2, 101]\n"
                  "  bOpen: yes -> no\n"
                  "added    7$1$0$3, Door Forced Open [7$1$0$3, 101]\n"));
    run = data.Do({Text("history"), QString::number(step), Text("--format"), Text("json")});
    QCOMPARE(Json(run.out).value(Text("schemes")).toArray().size(), 3);
    QCOMPARE(Json(run.out).value(Text("count")).toInt(), 3);
}

void TestHistoryCommands::aStepIsTakenBack()
{
    Data data(Doors(4));
    const qint64 step = Import(data, Doors(2));
    QCOMPARE(data.Schemes().size(), 2);
    const Run run = data.Do({Text("revert"), QString::number(step)});
    QCOMPARE(run.err, QString());
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, Text("Schemes taken back: 2\n"));
    QVERIFY(data.Schemes() == Doors(4));
    QCOMPARE(int(data.History().value(0).eKind), int(SchemeHistoryKind::Revert));
}

void TestHistoryCommands::whatHasChangedSinceIsLeftAlone()
{
    Data data(Doors(4));
    AlarmInfoMap schemes = Doors(4);
    schemes[Key(1)].bOpenSound = true;
    schemes[Key(2)].bOpenSound = true;
    const qint64 step = Import(data, schemes);
    schemes[Key(2)].bSendEmail = true;
    Import(data, schemes);
    Run run = data.Do({Text("revert"), QString::number(step)});
    QCOMPARE(run.code, 1);
    QCOMPARE(run.out, Text("Schemes taken back: 1\n"
                           "Changed since, and left as they are: 1\n"
                           "  7$1$0$2, Door Forced Open [7$1$0$2, 101]\n"));
    schemes[Key(1)].bOpenSound = false;
    QVERIFY(data.Schemes() == schemes);
    run = data.Do({Text("revert"), QString::number(step), Text("--format"), Text("json")});
    QCOMPARE(run.code, 1);
    QCOMPARE(Json(run.out).value(Text("takenBack")).toInt(-1), 0);
    QCOMPARE(Json(run.out).value(Text("changedSince")).toArray().size(), 2);
}

void TestHistoryCommands::withoutAHistoryNothingIsTakenBack()
{
    Data data(Doors(2));
    QCOMPARE(data.Do(Words("history")).code, 3);
    Run run = data.Do(Words("revert 1"));
    QCOMPARE(run.code, 3);
    QVERIFY(!run.err.isEmpty());
    QCOMPARE(data.Do(Words("revert")).code, 2);
    QCOMPARE(data.Do(Words("revert x")).code, 2);
    const qint64 step = Import(data, Doors(3));
    QCOMPARE(data.Do({Text("revert"), QString::number(step + 7)}).code, 2);
    QVERIFY(data.Schemes() == Doors(3));
}

QTEST_MAIN(TestHistoryCommands)
#include "tst_history_commands.moc"
