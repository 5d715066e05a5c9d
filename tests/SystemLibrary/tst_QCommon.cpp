#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

#include <limits>

namespace {

struct Message
{
    int iMessage;
    quintptr wParam;
    quintptr lParam;
};

/// Stands for the host's main window.
class Receiver : public QObject
{
public:
    explicit Receiver(bool bAccept)
        : m_bAccept(bAccept)
    {
    }
    QList<Message> m_messages;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != LXHostMessageEvent::EventType())
            return QObject::event(event);
        const auto message = static_cast<LXHostMessageEvent*>(event);
        m_messages.append({message->GetMessageNumber(), message->GetWParam(), message->GetLParam()});
        event->setAccepted(m_bAccept);
        return m_bAccept;
    }

private:
    bool m_bAccept;
};

class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        return qstrcmp(context, "QCommon") == 0 ? QStringLiteral("[%1]").arg(QLatin1String(sourceText))
                                                : QString();
    }
};

int UnknownType()
{
    int type = 1;
    for (const QList<int>& list : {AlarmSchemeCommon::ACSAlarmEvent(), AlarmSchemeCommon::ACSAbnormalEvent(),
                                   AlarmSchemeCommon::ACSNormalEvent()}) {
        for (int known : list)
            type = qMax(type, known + 1);
    }
    return type + 100000;
}

} // namespace

class tst_QCommon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCommon::SetMenuRights(QCommon::RightOperator); }

    void theOperatorHasNoRightAtFirst()
    {
        // The first test to run, before anything set a right.
        QVERIFY(!QCommon::CheckMenuRight(QCommon::RightAdministrator));
        QVERIFY(!QCommon::CheckMenuRight(QCommon::RightSystemConfig));
    }

    void everyEventHasAName()
    {
        for (const QList<int>& list :
             {AlarmSchemeCommon::ACSAlarmEvent(), AlarmSchemeCommon::ACSAbnormalEvent(),
              AlarmSchemeCommon::ACSNormalEvent(), QList<int>{2, 22}}) {
            for (int type : list) {
                const QString name = QCommon::GetAlarmNameByType(type);
                QVERIFY(!name.isEmpty());
                QVERIFY2(name != QStringLiteral("Event %1").arg(type), qPrintable(name));
            }
        }
    }

    void anUnknownEventIsNamedByItsNumber()
    {
        const int type = UnknownType();
        QCOMPARE(QCommon::GetAlarmNameByType(type), QStringLiteral("Event %1").arg(type));
        const int last = std::numeric_limits<int>::max();
        QCOMPARE(QCommon::GetAlarmNameByType(last), QStringLiteral("Event %1").arg(last));
    }

    void noTypeFromZeroUpIsNameless()
    {
        for (int type = 0; type < 1000; ++type)
            QVERIFY2(!QCommon::GetAlarmNameByType(type).isEmpty(), qPrintable(QString::number(type)));
    }

    void aTypeBelowZeroHasNoName()
    {
        QCOMPARE(QCommon::GetAlarmNameByType(-1), QString());
        QCOMPARE(QCommon::GetAlarmNameByType(std::numeric_limits<int>::min()), QString());
    }

    void namesAreTranslated()
    {
        const QString source = QCommon::GetAlarmNameByType(22);
        BracketTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        const QString translated = QCommon::GetAlarmNameByType(22);
        const QString unknown = QCommon::GetAlarmNameByType(UnknownType());
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(translated, QStringLiteral("[%1]").arg(source));
        QCOMPARE(unknown, QStringLiteral("[Event %1]").arg(UnknownType()));
        QCOMPARE(QCommon::GetAlarmNameByType(22), source);
    }

    void aRightIsHeldOnlyWithAllItsBits()
    {
        QCommon::SetMenuRights(QCommon::RightSystemConfig);
        QVERIFY(QCommon::CheckMenuRight(QCommon::RightSystemConfig));
        QVERIFY(QCommon::CheckMenuRight(32768));
        QVERIFY(!QCommon::CheckMenuRight(QCommon::RightAdministrator));
        QVERIFY(!QCommon::CheckMenuRight(QCommon::RightSystemConfig | QCommon::RightAdministrator));
        QVERIFY(!QCommon::CheckMenuRight(QCommon::RightAll));

        QCommon::SetMenuRights(QCommon::RightSystemConfig | QCommon::RightAdministrator);
        QVERIFY(QCommon::CheckMenuRight(QCommon::RightSystemConfig | QCommon::RightAdministrator));
        QVERIFY(!QCommon::CheckMenuRight(QCommon::RightAll));

        QCommon::SetMenuRights(QCommon::RightAll);
        QVERIFY(QCommon::CheckMenuRight(QCommon::RightAll));
        QVERIFY(QCommon::CheckMenuRight(0x80000000U));
    }

    void newRightsReplaceTheOldOnes()
    {
        QCommon::SetMenuRights(QCommon::RightAll);
        QCommon::SetMenuRights(QCommon::RightAdministrator);
        QVERIFY(QCommon::CheckMenuRight(QCommon::RightAdministrator));
        QVERIFY(!QCommon::CheckMenuRight(QCommon::RightSystemConfig));
    }

    void aMessageToNobodyIsNotHandled() { QVERIFY(!QCommon::QtSendMessage(nullptr, 22, 0, 0)); }

    void anObjectThatKnowsNoMessagesDoesNotHandleThem()
    {
        QObject plain;
        QVERIFY(!QCommon::QtSendMessage(&plain, 22, 0, 0));
    }

    void aRefusedMessageIsNotHandled()
    {
        Receiver receiver(false);
        QVERIFY(!QCommon::QtSendMessage(&receiver, 22, 0, 0));
        QCOMPARE(receiver.m_messages.size(), 1);
    }

    void anAcceptedMessageIsDeliveredAtOnceWithItsParameters()
    {
        Receiver receiver(true);
        const quintptr big = std::numeric_limits<quintptr>::max();
        QVERIFY(QCommon::QtSendMessage(&receiver, QCommon::MessageOpenMailSettings, 7, big));
        QCOMPARE(receiver.m_messages.size(), 1);
        QCOMPARE(receiver.m_messages[0].iMessage, 22);
        QCOMPARE(receiver.m_messages[0].wParam, quintptr(7));
        QCOMPARE(receiver.m_messages[0].lParam, big);
        QVERIFY(QCommon::QtSendMessage(&receiver, -3, 0, 0));
        QCOMPARE(receiver.m_messages.size(), 2);
        QCOMPARE(receiver.m_messages[1].iMessage, -3);
    }

    void messagesHaveAnEventTypeOfTheirOwn()
    {
        const QEvent::Type type = LXHostMessageEvent::EventType();
        QCOMPARE(LXHostMessageEvent::EventType(), type);
        QVERIFY(type > QEvent::User && type <= QEvent::MaxUser);
        QVERIFY(type != 1001);
        QCOMPARE(LXHostMessageEvent(22, 1, 2).type(), type);
    }
};

QTEST_GUILESS_MAIN(tst_QCommon)
#include "tst_QCommon.moc"
