#include "tests/AlarmCtrl_linkage/OutEditorDesk.h"

#include <QLocale>
#include <QTest>

using namespace OutEditor;

/// The time for which a linked output is switched.
class TestAlarmOutEditorTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anOverlongTimeLosesItsLastDigit_data();
    void anOverlongTimeLosesItsLastDigit();
    void aTimeBelowFiveIsNotStoredAndUndoneOnLeaving();
    void anEmptyTimeIsNotStoredAndUndoneOnLeaving();
    void theBoundsThemselvesAreStored_data();
    void theBoundsThemselvesAreStored();
    void theFieldRefusesAnythingButPlainDigits_data();
    void theFieldRefusesAnythingButPlainDigits();
    void leavingWithoutAShownOutputChangesNothing();
    void aDesktopWithGroupSeparatorsChangesNothing();
};

void TestAlarmOutEditorTime::anOverlongTimeLosesItsLastDigit_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("left");
    QTest::newRow("one more than allowed") << QByteArray("43201") << 4320;
    QTest::newRow("fifty thousand") << QByteArray("50000") << 5000;
    QTest::newRow("five nines") << QByteArray("99999") << 9999;
}

void TestAlarmOutEditorTime::anOverlongTimeLosesItsLastDigit()
{
    QFETCH(QByteArray, typed);
    QFETCH(int, left);
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.Type(typed.constData());
    QCOMPARE(desk.time->text(), QString::number(left));
    QCOMPARE(desk.Links(), QStringList(QStringLiteral("11$3$0$0 auto %1").arg(left)));
}

void TestAlarmOutEditorTime::aTimeBelowFiveIsNotStoredAndUndoneOnLeaving()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.Type("3");
    QCOMPARE(desk.time->text(), QStringLiteral("3"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    desk.Type("0");
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
}

void TestAlarmOutEditorTime::anEmptyTimeIsNotStoredAndUndoneOnLeaving()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.ClearAndLeave();
    QCOMPARE(desk.time->text(), QStringLiteral("45"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
}

void TestAlarmOutEditorTime::theBoundsThemselvesAreStored_data()
{
    QTest::addColumn<int>("seconds");
    QTest::newRow("least") << 5;
    QTest::newRow("most") << 43200;
}

void TestAlarmOutEditorTime::theBoundsThemselvesAreStored()
{
    QFETCH(int, seconds);
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.Type(QByteArray::number(seconds).constData());
    desk.Leave();
    QCOMPARE(desk.time->text(), QString::number(seconds));
    QCOMPARE(desk.Links(), QStringList(QStringLiteral("11$3$0$0 auto %1").arg(seconds)));
}

void TestAlarmOutEditorTime::theFieldRefusesAnythingButPlainDigits_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::newRow("group separator") << QStringLiteral("1,000");
    QTest::newRow("point") << QStringLiteral("1.000");
    QTest::newRow("leading blank") << QStringLiteral(" 45");
    QTest::newRow("trailing blank") << QStringLiteral("45 ");
    QTest::newRow("blank within") << QStringLiteral("4 5");
    QTest::newRow("no-break blank") << QString(QChar(0xa0)) + QStringLiteral("45");
    QTest::newRow("new line") << QStringLiteral("45\n");
    QTest::newRow("Arabic-Indic digits") << QString(QChar(0x0664)) + QChar(0x0665);
    QTest::newRow("full-width digits") << QString(QChar(0xff14)) + QChar(0xff15);
    QTest::newRow("negative") << QStringLiteral("-45");
    QTest::newRow("hexadecimal") << QStringLiteral("0x45");
    QTest::newRow("exponent") << QStringLiteral("1e3");
    QTest::newRow("letters") << QStringLiteral("soon");
    QTest::newRow("beyond 64 bits") << QStringLiteral("99999999999999999999");
}

void TestAlarmOutEditorTime::theFieldRefusesAnythingButPlainDigits()
{
    QFETCH(QString, pasted);
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 77)});
    QVERIFY(desk.hand.ClickChannel(11));
    desk.time->selectAll();
    desk.time->insert(pasted); // what pasting does
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("77"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 77"}));
    // Even where such a text stands in the field by other means, it is not taken.
    desk.time->setText(pasted);
    Q_EMIT desk.time->textEdited(desk.time->text());
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 77"}));
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("77"));
}

void TestAlarmOutEditorTime::leavingWithoutAShownOutputChangesNothing()
{
    Desk desk;
    desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 45)});
    desk.time->setText(QStringLiteral("3"));
    desk.Leave();
    QCOMPARE(desk.time->text(), QStringLiteral("3"));
    QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 45"}));
}

void TestAlarmOutEditorTime::aDesktopWithGroupSeparatorsChangesNothing()
{
    const QLocale before;
    for (const QLocale& locale :
         {QLocale(QLocale::English, QLocale::UnitedStates), QLocale(QLocale::German, QLocale::Germany),
          QLocale(QLocale::Arabic, QLocale::Egypt)}) {
        QLocale::setDefault(locale);
        Desk desk;
        desk.editor.SetAlarmOutInfo({Link("11$3$0$0", true, 12345)});
        QVERIFY(desk.hand.ClickChannel(11));
        QCOMPARE(desk.time->text(), QStringLiteral("12345"));
        desk.time->selectAll();
        desk.time->insert(QStringLiteral("1,000"));
        desk.time->insert(QStringLiteral("1.000"));
        desk.Leave();
        QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 12345"}));
        desk.Type("20000");
        QTest::keyClick(desk.time, Qt::Key_Return);
        QCOMPARE(desk.time->text(), QStringLiteral("20000"));
        QCOMPARE(desk.Links(), Lines({"11$3$0$0 auto 20000"}));
    }
    QLocale::setDefault(before);
}

QTEST_MAIN(TestAlarmOutEditorTime)
#include "tst_alarmouteditor_time.moc"
