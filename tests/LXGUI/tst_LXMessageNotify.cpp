#include "platform/LXGUI/LXMessageNotify.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QtTest>

#include <memory>

using LXGUI::LXMessageNotify;

namespace {

LXMessageNotify* Notify()
{
    return LXGUI::LXSingleton<LXMessageNotify>::Instance();
}

} // namespace

class tst_LXMessageNotify : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(600, 500);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        Notify()->Clear();
        Notify()->SetAnchor(m_window.get());
    }
    void cleanup()
    {
        Notify()->SetAnchor(nullptr);
        m_window.reset();
    }

    void thereIsOneInstance() { QCOMPARE(Notify(), Notify()); }

    void nothingHasBeenShownAtFirst()
    {
        QVERIFY(Notify()->GetLastText().isEmpty());
        QVERIFY(Notify()->GetVisibleTexts().isEmpty());
    }

    void aNoteIsShownRememberedAndTold()
    {
        QSignalSpy added(Notify(), &LXMessageNotify::SignalNotificationAdded);
        Notify()->AddTextNotification(QStringLiteral("Saved."));
        QCOMPARE(Notify()->GetLastText(), QStringLiteral("Saved."));
        QCOMPARE(Notify()->GetVisibleTexts(), QStringList{QStringLiteral("Saved.")});
        QCOMPARE(added.size(), 1);
        QCOMPARE(added.at(0).at(0).toString(), QStringLiteral("Saved."));
        QCOMPARE(added.at(0).at(1).toInt(), int(LXMessageNotify::Information));
        QCOMPARE(Panels().size(), 1);
        QVERIFY(Panels().constFirst()->isVisible());
    }

    void notesStackOverTheLowerRightCorner()
    {
        Notify()->AddTextNotification(QStringLiteral("one"));
        Notify()->AddTextNotification(QStringLiteral("two"), LXMessageNotify::Success);
        Notify()->AddTextNotification(QStringLiteral("three"), LXMessageNotify::Warning);
        const QList<QFrame*> panels = Panels();
        QCOMPARE(panels.size(), 3);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(m_window->rect().contains(panels.at(i)->geometry()));
            QCOMPARE(panels.at(i)->geometry().right(), panels.at(0)->geometry().right());
            if (i > 0) { // the newest lowest, none over another
                QVERIFY(panels.at(i)->y() > panels.at(i - 1)->geometry().bottom());
            }
        }
        QVERIFY(panels.at(2)->geometry().center().x() > m_window->width() / 2);
        QVERIFY(panels.at(2)->geometry().center().y() > m_window->height() / 2);
    }

    void notesFollowTheWindowsSize()
    {
        Notify()->AddTextNotification(QStringLiteral("one"));
        const QPoint gap = m_window->rect().bottomRight() - Panels().constFirst()->geometry().bottomRight();
        m_window->resize(900, 700);
        QTRY_COMPARE(m_window->rect().bottomRight() - Panels().constFirst()->geometry().bottomRight(), gap);
        m_window->resize(200, 300);
        QTRY_VERIFY(m_window->rect().contains(Panels().constFirst()->geometry()));
    }

    void notesStayClearOfAStatusBar()
    {
        auto* const pBar = new QStatusBar(m_window.get());
        pBar->setGeometry(0, 470, 600, 30);
        pBar->show();
        Notify()->AddTextNotification(QStringLiteral("one"));
        QVERIFY(!Panels().constFirst()->geometry().intersects(pBar->geometry()));
    }

    void theFifthNoteMakesTheOldestLeave()
    {
        for (int i = 1; i <= 5; ++i) {
            Notify()->AddTextNotification(QString::number(i));
        }
        QCOMPARE(Notify()->GetVisibleTexts().join(QLatin1Char(' ')), QStringLiteral("2 3 4 5"));
    }

    void aNoteThatHoldsNoMoreIsWithdrawnAlone()
    {
        Notify()->Withdraw(QStringLiteral("nobody said so"));
        Notify()->AddTextNotification(QStringLiteral("one"), LXMessageNotify::Error);
        Notify()->AddTextNotification(QStringLiteral("two"), LXMessageNotify::Error);
        Notify()->Withdraw(QStringLiteral("one"));
        QCOMPARE(Notify()->GetVisibleTexts(), QStringList{QStringLiteral("two")});
        Notify()->Withdraw(QStringLiteral("one"));
        QCOMPARE(Notify()->GetVisibleTexts(), QStringList{QStringLiteral("two")});
    }

    void errorsLeaveLast()
    {
        Notify()->AddTextNotification(QStringLiteral("error"), LXMessageNotify::Error);
        for (int i = 1; i <= 6; ++i) {
            Notify()->AddTextNotification(QString::number(i));
        }
        QCOMPARE(Notify()->GetVisibleTexts().join(QLatin1Char(' ')), QStringLiteral("error 4 5 6"));
        for (int i = 1; i <= 4; ++i) {
            Notify()->AddTextNotification(QStringLiteral("error%1").arg(i), LXMessageNotify::Error);
        }
        QCOMPARE(Notify()->GetVisibleTexts().join(QLatin1Char(' ')),
                 QStringLiteral("error1 error2 error3 error4"));
    }

    void sayingItAgainReplacesTheElderNote()
    {
        QSignalSpy added(Notify(), &LXMessageNotify::SignalNotificationAdded);
        Notify()->AddTextNotification(QStringLiteral("same"));
        Notify()->AddTextNotification(QStringLiteral("other"));
        Notify()->AddTextNotification(QStringLiteral("same"));
        QCOMPARE(Notify()->GetVisibleTexts().join(QLatin1Char(' ')), QStringLiteral("other same"));
        QCOMPARE(added.size(), 3);
    }

    void aClickSendsANoteAway()
    {
        Notify()->AddTextNotification(QStringLiteral("one"), LXMessageNotify::Error);
        Notify()->AddTextNotification(QStringLiteral("two"), LXMessageNotify::Error);
        const QRect lowest = Panels().at(1)->geometry();
        QTest::mouseClick(Panels().at(1), Qt::LeftButton);
        QCOMPARE(Notify()->GetVisibleTexts(), QStringList{QStringLiteral("one")});
        QCOMPARE(Notify()->GetLastText(), QStringLiteral("two"));
        QTRY_COMPARE(Panels().size(), 1);
        QCOMPARE(Panels().constFirst()->geometry().bottom(), lowest.bottom());
    }

    void twoClicksAreOneFarewell()
    {
        Notify()->AddTextNotification(QStringLiteral("one"));
        QFrame* const pPanel = Panels().constFirst();
        QTest::mouseClick(pPanel, Qt::LeftButton);
        QTest::mouseClick(pPanel, Qt::LeftButton);
        QTRY_VERIFY(Panels().isEmpty());
    }

    void aNoteTakesNeitherFocusNorActivation()
    {
        QLineEdit edit(m_window.get());
        edit.show();
        m_window->activateWindow();
        edit.setFocus();
        QTRY_VERIFY(edit.hasFocus());
        QWidget* const pActive = QApplication::activeWindow();
        Notify()->AddTextNotification(QStringLiteral("one"), LXMessageNotify::Error);
        QVERIFY(edit.hasFocus());
        QTest::mouseClick(Panels().constFirst(), Qt::LeftButton);
        QVERIFY(edit.hasFocus());
        QCOMPARE(QApplication::activeWindow(), pActive);
    }

    void withoutAnAnchorANoteIsOnlyRemembered()
    {
        Notify()->SetAnchor(nullptr);
        QSignalSpy added(Notify(), &LXMessageNotify::SignalNotificationAdded);
        Notify()->AddTextNotification(QStringLiteral("unseen"));
        QCOMPARE(Notify()->GetLastText(), QStringLiteral("unseen"));
        QVERIFY(Notify()->GetVisibleTexts().isEmpty());
        QCOMPARE(added.size(), 1);
        QVERIFY(Panels().isEmpty());
    }

    void aWindowThatDiesTakesItsNotesWithIt()
    {
        Notify()->AddTextNotification(QStringLiteral("one"));
        m_window.reset();
        QVERIFY(Notify()->GetVisibleTexts().isEmpty());
        Notify()->AddTextNotification(QStringLiteral("two"));
        QCOMPARE(Notify()->GetLastText(), QStringLiteral("two"));
        QVERIFY(Notify()->GetVisibleTexts().isEmpty());
    }

    void notesMoveOutWithTheirWindow()
    {
        Notify()->AddTextNotification(QStringLiteral("one"));
        QWidget other;
        other.resize(500, 400);
        Notify()->SetAnchor(&other);
        QVERIFY(Notify()->GetVisibleTexts().isEmpty());
        QVERIFY(Panels().isEmpty());
        Notify()->AddTextNotification(QStringLiteral("two"));
        QCOMPARE(other.findChildren<QFrame*>(QStringLiteral("notePanel")).size(), 1);
        Notify()->SetAnchor(nullptr);
    }

    void anEmptyTextIsNoNote()
    {
        QSignalSpy added(Notify(), &LXMessageNotify::SignalNotificationAdded);
        Notify()->AddTextNotification(QString());
        QCOMPARE(added.size(), 0);
        QVERIFY(Panels().isEmpty());
    }

    void markupIsShownAsItIsWritten()
    {
        Notify()->AddTextNotification(QStringLiteral("<b>x</b>"));
        const QList<QLabel*> labels = Panels().constFirst()->findChildren<QLabel*>();
        const auto isText = [](const QLabel* pLabel) {
            return pLabel->text() == QStringLiteral("<b>x</b>") && pLabel->textFormat() == Qt::PlainText;
        };
        QVERIFY(std::any_of(labels.cbegin(), labels.cend(), isText));
    }

    void aLongWordIsNotCutOff_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("the name of a file") << QStringLiteral("AlarmScheme.damaged-20261121-230215.db");
        QTest::newRow("without any sign") << QString(60, QLatin1Char('W'));
        QTest::newRow("beyond the first plane") << QStringLiteral("\U0001F514").repeated(40);
    }

    void aLongWordIsNotCutOff()
    {
        QFETCH(QString, word);
        const QString strText = QStringLiteral("The damaged file was kept as %1.").arg(word);
        Notify()->AddTextNotification(strText);
        QCOMPARE(Notify()->GetLastText(), strText);
        const QList<QLabel*> labels = Panels().constFirst()->findChildren<QLabel*>();
        const auto found = std::find_if(labels.cbegin(), labels.cend(),
                                        [](const QLabel* pLabel) { return !pLabel->text().isEmpty(); });
        QVERIFY(found != labels.cend());
        const QLabel& label = **found;
        const QRect needed = label.fontMetrics().boundingRect(QRect(0, 0, label.width(), 10000),
                                                              Qt::TextWordWrap, label.text());
        QVERIFY2(needed.width() <= label.width(), qPrintable(QString::number(needed.width())));
        QVERIFY(needed.height() <= label.height());
        QCOMPARE(label.text().remove(QChar(0x200B)), strText); // not a sign is lost or changed
        QVERIFY(label.text().toUcs4().size() >= strText.toUcs4().size());
        QVERIFY(!label.text().contains(QChar::ReplacementCharacter));
    }

    void aShortTextIsShownAsItIs()
    {
        const QString strText = QStringLiteral(" two  blanks, a-sign.and /a/path ");
        Notify()->AddTextNotification(strText);
        const QList<QLabel*> labels = Panels().constFirst()->findChildren<QLabel*>();
        QVERIFY(std::any_of(labels.cbegin(), labels.cend(),
                            [&strText](const QLabel* pLabel) { return pLabel->text() == strText; }));
    }

    void aHugeTextStaysInTheWindowAndIsRememberedWhole()
    {
        const QString strHuge = QStringLiteral("word ").repeated(20000);
        Notify()->AddTextNotification(strHuge);
        QCOMPARE(Notify()->GetLastText(), strHuge);
        QVERIFY(m_window->rect().contains(Panels().constFirst()->geometry()));
    }

    void clearForgetsEverything()
    {
        Notify()->AddTextNotification(QStringLiteral("one"), LXMessageNotify::Error);
        Notify()->Clear();
        QVERIFY(Notify()->GetLastText().isEmpty());
        QVERIFY(Panels().isEmpty());
    }

    void orderSurvivesManyNotes()
    {
        for (int i = 0; i < 500; ++i) {
            Notify()->AddTextNotification(QString::number(i));
        }
        QCOMPARE(Notify()->GetVisibleTexts().join(QLatin1Char(' ')), QStringLiteral("496 497 498 499"));
        QTRY_COMPARE(Panels().size(), 4);
    }

    void aNoteFadesByItselfAndAnErrorStays()
    {
        Notify()->AddTextNotification(QStringLiteral("stays"), LXMessageNotify::Error);
        Notify()->AddTextNotification(QStringLiteral("goes"));
        QCOMPARE(Notify()->GetVisibleTexts().size(), 2);
        QTRY_COMPARE_WITH_TIMEOUT(Notify()->GetVisibleTexts(), QStringList{QStringLiteral("stays")}, 9000);
    }

private:
    QList<QFrame*> Panels() const
    {
        return m_window ? m_window->findChildren<QFrame*>(QStringLiteral("notePanel")) : QList<QFrame*>();
    }

    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(tst_LXMessageNotify)
#include "tst_LXMessageNotify.moc"
