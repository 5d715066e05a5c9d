#include "platform/LXGUI/LXCustomDialog.h"

#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

using LXGUI::LXCustomDialog;

namespace {

constexpr int OkAndCancel = 0x400400;

void Press(LXCustomDialog& dialog, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(dialog.GetButton(button), Qt::LeftButton);
}

// What the window system sends when a person closes the window there.
void CloseByWindowSystem(LXCustomDialog& dialog)
{
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&dialog, &event);
}

} // namespace

class tst_LXCustomDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsEmitAndNothingElse()
    {
        LXCustomDialog dialog(OkAndCancel);
        QSignalSpy ok(&dialog, &LXCustomDialog::SignalOkButtonClicked);
        QSignalSpy cancel(&dialog, &LXCustomDialog::SignalCancelButtonClicked);
        dialog.show();
        Press(dialog, QDialogButtonBox::Ok);
        QCOMPARE(ok.size(), 1);
        QCOMPARE(cancel.size(), 0);
        QVERIFY(dialog.isVisible());
        Press(dialog, QDialogButtonBox::Cancel);
        QCOMPARE(ok.size(), 1);
        QCOMPARE(cancel.size(), 1);
        QVERIFY(dialog.isVisible());
    }

    void escapeMeansCancel()
    {
        LXCustomDialog dialog(OkAndCancel);
        QSignalSpy cancel(&dialog, &LXCustomDialog::SignalCancelButtonClicked);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(cancel.size(), 1);
        QVERIFY(dialog.isVisible());
    }

    void theCloseButtonMeansCancel()
    {
        LXCustomDialog dialog(OkAndCancel);
        QSignalSpy cancel(&dialog, &LXCustomDialog::SignalCancelButtonClicked);
        dialog.show();
        auto* const pClose = dialog.findChild<QToolButton*>(QStringLiteral("btnDialogClose"));
        QVERIFY(pClose);
        QTest::mouseClick(pClose, Qt::LeftButton);
        QCOMPARE(cancel.size(), 1);
        QVERIFY(dialog.isVisible());
    }

    void closingByTheWindowSystemMeansCancel()
    {
        LXCustomDialog dialog(OkAndCancel);
        QSignalSpy cancel(&dialog, &LXCustomDialog::SignalCancelButtonClicked);
        connect(&dialog, &LXCustomDialog::SignalCancelButtonClicked, &dialog, &QWidget::close);
        dialog.show();
        CloseByWindowSystem(dialog);
        QTRY_VERIFY(!dialog.isVisible());
        QCOMPARE(cancel.size(), 1);
    }

    void returnPressesOk()
    {
        LXCustomDialog dialog(OkAndCancel);
        QSignalSpy ok(&dialog, &LXCustomDialog::SignalOkButtonClicked);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(ok.size(), 1);
    }

    void whoeverNobodyListensToCanStillBeClosed()
    {
        LXCustomDialog dialog(OkAndCancel);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

    void aSlotEndsTheLoop_data()
    {
        QTest::addColumn<bool>("pressOk");
        QTest::addColumn<QByteArray>("slotName");
        QTest::addColumn<int>("result");
        QTest::newRow("cancel closes") << false << QByteArray("close") << 0;
        QTest::newRow("cancel rejects") << false << QByteArray("reject") << 0;
        QTest::newRow("ok accepts") << true << QByteArray("accept") << 1;
        QTest::newRow("ok rejects") << true << QByteArray("reject") << 0;
        QTest::newRow("ok closes") << true << QByteArray("close") << 0;
    }
    void aSlotEndsTheLoop()
    {
        QFETCH(bool, pressOk);
        QFETCH(QByteArray, slotName);
        QFETCH(int, result);
        LXCustomDialog dialog(OkAndCancel);
        int iCancelled = 0;
        const auto end = [&dialog, slotName] { QMetaObject::invokeMethod(&dialog, slotName.constData()); };
        connect(&dialog, &LXCustomDialog::SignalOkButtonClicked, &dialog, end);
        connect(&dialog, &LXCustomDialog::SignalCancelButtonClicked, &dialog, [&iCancelled, pressOk, end] {
            ++iCancelled;
            if (!pressOk) {
                end();
            }
        });
        QTimer::singleShot(0, &dialog, [&dialog, pressOk] {
            Press(dialog, pressOk ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
        });
        QCOMPARE(dialog.exec(), result);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(iCancelled, pressOk ? 0 : 1);
    }

    void aProgramThatClosesHasDecided()
    {
        LXCustomDialog dialog(OkAndCancel);
        QSignalSpy cancel(&dialog, &LXCustomDialog::SignalCancelButtonClicked);
        dialog.show();
        QVERIFY(dialog.close());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(cancel.size(), 0);
    }

    void aDialogThatDeletesItselfOnCloseDoesSoOnCancel()
    {
        auto* const pDialog = new LXCustomDialog(OkAndCancel, nullptr, true);
        const QPointer<LXCustomDialog> guard(pDialog);
        pDialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(pDialog, &LXCustomDialog::SignalCancelButtonClicked, pDialog, &QWidget::close);
        pDialog->show();
        QTest::keyClick(pDialog, Qt::Key_Escape);
        QTRY_VERIFY(guard.isNull());
    }

    void aSlotMayDeleteTheDialog()
    {
        auto* const pDialog = new LXCustomDialog(OkAndCancel);
        const QPointer<LXCustomDialog> guard(pDialog);
        connect(pDialog, &LXCustomDialog::SignalCancelButtonClicked, this, [pDialog] { delete pDialog; });
        pDialog->show();
        pDialog->reject();
        QVERIFY(guard.isNull());
    }

    void aDialogCanBeShownAgain()
    {
        LXCustomDialog dialog(OkAndCancel);
        connect(&dialog, &LXCustomDialog::SignalCancelButtonClicked, &dialog, &QWidget::close);
        QSignalSpy cancel(&dialog, &LXCustomDialog::SignalCancelButtonClicked);
        for (int i = 1; i <= 3; ++i) {
            dialog.show();
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QVERIFY(!dialog.isVisible());
            QCOMPARE(cancel.size(), i);
        }
    }

    void onlyTheButtonsAskedForExist()
    {
        const LXCustomDialog onlyOk(0x400);
        QVERIFY(onlyOk.GetButton(QDialogButtonBox::Ok));
        QVERIFY(!onlyOk.GetButton(QDialogButtonBox::Cancel));
        const LXCustomDialog none(0);
        QVERIFY(!none.GetButton(QDialogButtonBox::Ok));
        const LXCustomDialog both(OkAndCancel);
        QCOMPARE(both.GetButton(QDialogButtonBox::Ok)->text(), QStringLiteral("OK"));
        QCOMPARE(both.GetButton(QDialogButtonBox::Cancel)->text(), QStringLiteral("Cancel"));
    }

    void theTitleIsTheWindowTitleToo()
    {
        LXCustomDialog dialog(OkAndCancel);
        dialog.SetTitle(QStringLiteral("Time Editor"));
        QCOMPARE(dialog.GetTitle(), QStringLiteral("Time Editor"));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Time Editor"));
    }

    void theFormLiesBetweenTitleAndButtons()
    {
        LXCustomDialog dialog(OkAndCancel);
        dialog.resize(300, 300);
        dialog.show();
        const QRect form = dialog.GetCentralWidget()->geometry();
        const QWidget* const pTitle = dialog.findChild<QToolButton*>()->parentWidget();
        const QPushButton* const pOk = dialog.GetButton(QDialogButtonBox::Ok);
        QVERIFY(form.top() > pTitle->geometry().bottom());
        QVERIFY(form.bottom() < pOk->mapTo(&dialog, QPoint(0, 0)).y());
        QVERIFY(form.width() > 280);
        QVERIFY(dialog.GetCentralWidget()->layout() == nullptr);
    }

    void aPopupIsSlimmer()
    {
        LXCustomDialog dialog(OkAndCancel);
        LXCustomDialog popup(OkAndCancel, nullptr, true);
        for (LXCustomDialog* pDialog : {&dialog, &popup}) {
            pDialog->setFixedSize(222, 500);
            pDialog->show();
        }
        QVERIFY(popup.GetCentralWidget()->height() > dialog.GetCentralWidget()->height());
        QVERIFY(popup.rect().contains(popup.GetCentralWidget()->geometry()));
    }

    void theTitleBarMovesTheDialog()
    {
        LXCustomDialog dialog(OkAndCancel);
        dialog.resize(300, 200);
        dialog.move(50, 60);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const QPoint before = dialog.pos();
        QWidget* const pTitle = dialog.findChild<QToolButton*>()->parentWidget();
        const QPoint grip(20, 10);
        QTest::mousePress(pTitle, Qt::LeftButton, Qt::NoModifier, grip);
        QMouseEvent move(QEvent::MouseMove, grip, pTitle->mapToGlobal(grip) + QPoint(30, 40), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(pTitle, &move);
        QCOMPARE(dialog.pos(), before + QPoint(30, 40));
        QTest::mouseRelease(pTitle, Qt::LeftButton, Qt::NoModifier, grip);
        QMouseEvent later(QEvent::MouseMove, grip, QPoint(500, 500), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(pTitle, &later);
        QCOMPARE(dialog.pos(), before + QPoint(30, 40));
    }

    void aLongTitleIsCutWithDotsAndToldByTheToolTip()
    {
        LXCustomDialog dialog(OkAndCancel, nullptr, true);
        const QString strLong = QString(300, QLatin1Char('W'));
        dialog.SetTitle(strLong);
        dialog.setFixedSize(222, 500);
        dialog.show();
        QCOMPARE(dialog.GetTitle(), strLong);
        QCOMPARE(dialog.width(), 222);
    }
};

QTEST_MAIN(tst_LXCustomDialog)
#include "tst_LXCustomDialog.moc"
