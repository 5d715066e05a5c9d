#include "platform/LXGUI/LXTimeEdit.h"

#include <QLineEdit>
#include <QtTest>

using LXGUI::LXTimeEdit;

class LXTimeEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aDigitTypedAfterAClickReplacesTheClickedPart_data();
    void aDigitTypedAfterAClickReplacesTheClickedPart();
    void aTimeIsTypedAsOnPaper_data();
    void aTimeIsTypedAsOnPaper();
    void aColonLeadsOnWhereADigitHasNot();
    void aColonAfterAClickLeadsOn();
    void aSelectionThatWasDraggedStays();
    void theOtherMouseButtonsSelectNothing();

private:
    QLineEdit& Line();
    /// The place before the sign of the given number, in pixels of the line.
    QPoint PlaceBefore(int iSign);

    LXTimeEdit m_edit;
};

QLineEdit& LXTimeEditTest::Line()
{
    return *m_edit.findChild<QLineEdit*>();
}

QPoint LXTimeEditTest::PlaceBefore(int iSign)
{
    for (int iX = 0; iX < Line().width(); ++iX) {
        const QPoint place(iX, Line().height() / 2);
        if (Line().cursorPositionAt(place) == iSign) {
            return place;
        }
    }
    return {};
}

void LXTimeEditTest::init()
{
    m_edit.setDisplayFormat(QStringLiteral("H:mm:ss"));
    m_edit.setTime(QTime(7, 45, 0));
    m_edit.resize(150, 30);
    m_edit.show();
    Line().deselect();
    QVERIFY(QTest::qWaitForWindowExposed(&m_edit));
}

void LXTimeEditTest::aDigitTypedAfterAClickReplacesTheClickedPart_data()
{
    QTest::addColumn<int>("sign");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QTime>("expected");
    QTest::newRow("hours") << 0 << QStringLiteral("8") << QTime(8, 45, 0);
    QTest::newRow("behind the hours") << 1 << QStringLiteral("9") << QTime(9, 45, 0);
    QTest::newRow("minutes") << 3 << QStringLiteral("30") << QTime(7, 30, 0);
    QTest::newRow("seconds") << 6 << QStringLiteral("59") << QTime(7, 45, 59);
}

void LXTimeEditTest::aDigitTypedAfterAClickReplacesTheClickedPart()
{
    QFETCH(int, sign);
    QFETCH(QString, typed);
    QFETCH(QTime, expected);

    QTest::mouseClick(&Line(), Qt::LeftButton, Qt::NoModifier, PlaceBefore(sign));
    QTRY_VERIFY(Line().hasSelectedText());
    QTest::keyClicks(&Line(), typed);

    QCOMPARE(m_edit.time(), expected);
}

void LXTimeEditTest::aTimeIsTypedAsOnPaper_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QTime>("expected");
    QTest::newRow("one digit leaves no choice") << QStringLiteral("8:31:11") << QTime(8, 31, 11);
    QTest::newRow("two digits") << QStringLiteral("17:45:09") << QTime(17, 45, 9);
    QTest::newRow("a nought before it") << QStringLiteral("06:00:07") << QTime(6, 0, 7);
    QTest::newRow("one digit leaves a choice") << QStringLiteral("1:02:03") << QTime(1, 2, 3);
    QTest::newRow("digits alone") << QStringLiteral("083111") << QTime(8, 31, 11);
    QTest::newRow("digits alone, short") << QStringLiteral("83111") << QTime(8, 31, 11);
    QTest::newRow("no seconds") << QStringLiteral("9:15") << QTime(9, 15, 0);
    QTest::newRow("midnight's last second") << QStringLiteral("23:59:59") << QTime(23, 59, 59);
}

void LXTimeEditTest::aTimeIsTypedAsOnPaper()
{
    QFETCH(QString, typed);
    QFETCH(QTime, expected);

    m_edit.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&m_edit, typed);

    QCOMPARE(m_edit.time(), expected);
}

void LXTimeEditTest::aColonLeadsOnWhereADigitHasNot()
{
    m_edit.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&m_edit, QStringLiteral("::"));

    QVERIFY(m_edit.currentSection() == QDateTimeEdit::SecondSection);
    QCOMPARE(m_edit.time(), QTime(7, 45, 0));
}

void LXTimeEditTest::aColonAfterAClickLeadsOn()
{
    m_edit.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&m_edit, QStringLiteral("8")); // leads on to the minutes
    QTest::mouseClick(&Line(), Qt::LeftButton, Qt::NoModifier, PlaceBefore(3));
    QTRY_COMPARE(Line().selectedText(), QStringLiteral("45"));
    QTest::keyClicks(&m_edit, QStringLiteral(":"));

    QVERIFY(m_edit.currentSection() == QDateTimeEdit::SecondSection);
}

void LXTimeEditTest::aSelectionThatWasDraggedStays()
{
    QTest::mousePress(&Line(), Qt::LeftButton, Qt::NoModifier, PlaceBefore(2));
    QTest::mouseMove(&Line(), PlaceBefore(7));
    Line().setSelection(2, 5);
    QTest::mouseRelease(&Line(), Qt::LeftButton, Qt::NoModifier, PlaceBefore(7));
    QCoreApplication::sendPostedEvents();

    QCOMPARE(Line().selectedText(), QStringLiteral("45:00"));
}

void LXTimeEditTest::theOtherMouseButtonsSelectNothing()
{
    QTest::mouseClick(&Line(), Qt::MiddleButton, Qt::NoModifier, PlaceBefore(3));
    QCoreApplication::sendPostedEvents();

    QVERIFY(!Line().hasSelectedText());
}

QTEST_MAIN(LXTimeEditTest)
#include "tst_LXTimeEdit.moc"
