#include "platform/SystemLibrary/QRecoverSubWndBase.h"

#include <QCoreApplication>
#include <QTest>

#include <limits>

namespace {

/// A window that leaves a record when it is asked.
class RecoveringObject : public QObject
{
protected:
    void customEvent(QEvent* event) override
    {
        if (event->type() != static_cast<QEvent::Type>(1001))
            return;
        const auto recover = static_cast<LXRecoverEvent*>(event);
        if (!recover->GetResultSlot())
            return;
        *recover->GetResultSlot() = std::make_unique<QRecoverSubWndBase>(
            recover->GetWindowNumber(), eModuleIndexACSEventConfig, "QRecoverSubWndBase", true);
    }
};

class NotingRecord : public QRecoverSubWndBase
{
public:
    explicit NotingRecord(bool& destroyed)
        : QRecoverSubWndBase(0, eModuleIndexNone, QByteArray(), false)
        , m_destroyed(destroyed)
    {
    }
    ~NotingRecord() override { m_destroyed = true; }

private:
    bool& m_destroyed;
};

} // namespace

class tst_QRecoverSubWndBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRecordKeepsWhatItWasMadeOf()
    {
        const QRecoverSubWndBase record(17, 12, "QRecoverSubWndBase", true);
        QCOMPARE(record.GetWindowNumber(), 17);
        QCOMPARE(record.GetModuleIndex(), 12);
        QCOMPARE(record.GetName(), QByteArray("QRecoverSubWndBase"));
        QVERIFY(record.IsVisible());

        const QRecoverSubWndBase other(std::numeric_limits<int32_t>::min(), -1, QByteArray("a\0b", 3), false);
        QCOMPARE(other.GetWindowNumber(), std::numeric_limits<int32_t>::min());
        QCOMPARE(other.GetModuleIndex(), -1);
        QCOMPARE(other.GetName(), QByteArray("a\0b", 3));
        QVERIFY(!other.IsVisible());
    }

    void theNumbersOfModulesAndMessagesAreFixed()
    {
        QCOMPARE(static_cast<int32_t>(eModuleIndexACSEventConfig), 12);
        QCOMPARE(static_cast<int>(LXRecoverEvent::RecoverEventType), 1001);
        QCOMPARE(+LXRecoverEvent::MessageRecover, 106);
    }

    void theEventIsACustomEventOfType1001()
    {
        std::unique_ptr<QRecoverSubWndBase> result;
        const LXRecoverEvent event(106, 5, &result);
        QCOMPARE(static_cast<int>(event.type()), 1001);
        QVERIFY(event.type() >= QEvent::User && event.type() <= QEvent::MaxUser);
        QCOMPARE(event.GetMessageNumber(), 106);
        QCOMPARE(event.GetWindowNumber(), 5);
        QCOMPARE(event.GetResultSlot(), &result);
    }

    void aSentEventBringsTheRecordBack()
    {
        RecoveringObject window;
        std::unique_ptr<QRecoverSubWndBase> result;
        LXRecoverEvent event(LXRecoverEvent::MessageRecover, 31, &result);
        QCoreApplication::sendEvent(&window, &event);
        QVERIFY(result);
        QCOMPARE(result->GetWindowNumber(), 31);
    }

    void anEventWithoutAResultSlotIsPossible()
    {
        RecoveringObject window;
        LXRecoverEvent event(LXRecoverEvent::MessageRecover, 31, nullptr);
        QVERIFY(!event.GetResultSlot());
        QCoreApplication::sendEvent(&window, &event);
    }

    void theHostOwnsTheResultAndNotTheEvent()
    {
        bool destroyed = false;
        std::unique_ptr<QRecoverSubWndBase> result;
        {
            LXRecoverEvent event(106, 1, &result);
            *event.GetResultSlot() = std::make_unique<NotingRecord>(destroyed);
        }
        QVERIFY(!destroyed);
        result.reset();
        QVERIFY(destroyed); // through the base
    }
};

QTEST_GUILESS_MAIN(tst_QRecoverSubWndBase)
#include "tst_QRecoverSubWndBase.moc"
