#include "platform/LXGUI/LXMessageBox.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QtTest>

#include <functional>

using LXGUI::LXMessageBox;

namespace {

constexpr int YesOrNo = 0x2400;

// Does something to the box once it is open.
void Then(const std::function<void(LXMessageBox*)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* const pBox = qobject_cast<LXMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(pBox);
        act(pBox);
    });
}

QPushButton* Button(const LXMessageBox* pBox, const char* szName)
{
    return pBox->findChild<QPushButton*>(QLatin1String(szName));
}

int Ask(int iButtons)
{
    return LXMessageBox::ShowInformation(nullptr, QStringLiteral("Prompt"), QStringLiteral("Really?"),
                                         iButtons);
}

} // namespace

class tst_LXMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void yesAnswers0x400()
    {
        Then([](LXMessageBox* pBox) {
            QCOMPARE(Button(pBox, "btnAccept")->text(), QStringLiteral("Yes"));
            QCOMPARE(Button(pBox, "btnRefuse")->text(), QStringLiteral("No"));
            QTest::mouseClick(Button(pBox, "btnAccept"), Qt::LeftButton);
        });
        QCOMPARE(Ask(YesOrNo), 0x400);
    }

    void noAnswers0x2000()
    {
        Then([](LXMessageBox* pBox) { QTest::mouseClick(Button(pBox, "btnRefuse"), Qt::LeftButton); });
        QCOMPARE(Ask(YesOrNo), 0x2000);
    }

    void escapeRefuses()
    {
        Then([](LXMessageBox* pBox) { QTest::keyClick(pBox, Qt::Key_Escape); });
        QCOMPARE(Ask(YesOrNo), 0x2000);
    }

    void closingRefuses()
    {
        Then([](LXMessageBox* pBox) { pBox->close(); });
        QCOMPARE(Ask(YesOrNo), 0x2000);
        Then([](LXMessageBox* pBox) {
            QTest::mouseClick(pBox->findChild<QToolButton*>(QStringLiteral("btnDialogClose")),
                              Qt::LeftButton);
        });
        QCOMPARE(Ask(YesOrNo), 0x2000);
    }

    void returnAccepts()
    {
        Then([](LXMessageBox* pBox) { QTest::keyClick(pBox, Qt::Key_Return); });
        QCOMPARE(Ask(YesOrNo), 0x400);
    }

    void theAcceptingButtonHasTheFocus()
    {
        Then([](LXMessageBox* pBox) {
            QCOMPARE(pBox->focusWidget(), Button(pBox, "btnAccept"));
            QVERIFY(Button(pBox, "btnAccept")->isDefault());
            pBox->reject();
        });
        Ask(YesOrNo);
    }

    void aStatementHasOneButtonThatReadsOk()
    {
        Then([](LXMessageBox* pBox) {
            QCOMPARE(pBox->findChildren<QPushButton*>().size(), 1);
            QCOMPARE(Button(pBox, "btnAccept")->text(), QStringLiteral("OK"));
            QTest::keyClick(pBox, Qt::Key_Escape);
        });
        QCOMPARE(Ask(0x400), 0x400);
    }

    void aMaskWithoutKnownButtonsStillOffersAWayOut_data()
    {
        QTest::addColumn<int>("mask");
        QTest::newRow("nothing") << 0;
        QTest::newRow("unknown") << 0x10000;
        QTest::newRow("negative") << int(0x80000000U);
    }
    void aMaskWithoutKnownButtonsStillOffersAWayOut()
    {
        QFETCH(int, mask);
        Then([](LXMessageBox* pBox) { QTest::mouseClick(Button(pBox, "btnAccept"), Qt::LeftButton); });
        QCOMPARE(Ask(mask), 0x400);
    }

    void iconAndWordsSayWhatKindItIs()
    {
        QImage information;
        Then([&information](LXMessageBox* pBox) {
            auto* const pIcon = pBox->findChild<QLabel*>(QStringLiteral("lblMessageIcon"));
            QCOMPARE(pIcon->accessibleName(), QStringLiteral("Information"));
            information = pIcon->pixmap(Qt::ReturnByValue).toImage();
            pBox->reject();
        });
        Ask(0x400);
        Then([&information](LXMessageBox* pBox) {
            auto* const pIcon = pBox->findChild<QLabel*>(QStringLiteral("lblMessageIcon"));
            QCOMPARE(pIcon->accessibleName(), QStringLiteral("Warning"));
            QVERIFY(!pIcon->pixmap(Qt::ReturnByValue).isNull());
            QVERIFY(pIcon->pixmap(Qt::ReturnByValue).toImage() != information);
            QCOMPARE(pBox->windowTitle(), QStringLiteral("Prompt"));
            pBox->reject();
        });
        LXMessageBox::ShowWarning(nullptr, QStringLiteral("Prompt"), QStringLiteral("Careful."), 0x400);
        QVERIFY(!information.isNull());
    }

    void markupIsShownAsItIsWritten()
    {
        const QString strText = QStringLiteral("<b>Door</b> & <img src=x>");
        Then([strText](LXMessageBox* pBox) {
            auto* const pText = pBox->findChild<QLabel*>(QStringLiteral("lblMessageText"));
            QCOMPARE(pText->text(), strText);
            QCOMPARE(pText->textFormat(), Qt::PlainText);
            pBox->reject();
        });
        LXMessageBox::ShowInformation(nullptr, QString(), strText, 0x400);
    }

    void aHugeTextStaysOnTheScreen()
    {
        Then([](LXMessageBox* pBox) {
            const QSize screen = QGuiApplication::primaryScreen()->availableSize();
            QVERIFY(pBox->height() <= screen.height());
            QVERIFY(pBox->width() <= screen.width());
            QVERIFY(pBox->rect().contains(
                Button(pBox, "btnAccept")->mapTo(pBox, Button(pBox, "btnAccept")->rect().bottomRight())));
            pBox->reject();
        });
        LXMessageBox::ShowInformation(nullptr, QStringLiteral("Long"),
                                      QStringLiteral("A line that says little.\n").repeated(2000), 0x400);
    }

    void theParentMayDieMeanwhile()
    {
        auto* const pParent = new QWidget;
        pParent->show();
        Then([pParent](LXMessageBox*) { delete pParent; });
        QCOMPARE(LXMessageBox::ShowInformation(pParent, QString(), QStringLiteral("Still there?"), YesOrNo),
                 0x2000);
    }

    void aBoxMayAskWhileAnotherWaits()
    {
        int iInner = 0;
        Then([&iInner](LXMessageBox* pOuter) {
            Then([](LXMessageBox* pInner) { QTest::keyClick(pInner, Qt::Key_Escape); });
            iInner = Ask(YesOrNo);
            QTest::keyClick(pOuter, Qt::Key_Return);
        });
        QCOMPARE(Ask(YesOrNo), 0x400);
        QCOMPARE(iInner, 0x2000);
    }

    void noBoxIsLeftBehind()
    {
        Then([](LXMessageBox* pBox) { pBox->reject(); });
        Ask(YesOrNo);
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (const QWidget* pWidget : widgets) {
            QVERIFY(!qobject_cast<const LXMessageBox*>(pWidget));
        }
    }
};

QTEST_MAIN(tst_LXMessageBox)
#include "tst_LXMessageBox.moc"
