#include "AlarmCtrl/QAlarmListItem.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <limits>

class tst_QAlarmListItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewEntryIsACheckableButtonWithoutFocus()
    {
        const QAlarmListItem item;
        QVERIFY(qobject_cast<const QPushButton*>(&item));
        QCOMPARE(item.objectName(), QStringLiteral("QAlarmListItem"));
        QCOMPARE(item.windowTitle(), QStringLiteral("Form"));
        QCOMPARE(item.size(), QSize(115, 24));
        QCOMPARE(item.minimumSize(), QSize(0, 24));
        QCOMPARE(item.maximumSize(), QSize(16777215, 24));
        QCOMPARE(item.focusPolicy(), Qt::NoFocus);
        QVERIFY(item.isCheckable());
        QVERIFY(!item.isChecked());
        QCOMPARE(item.text(), QString());
    }

    void theFormHoldsASpacerAndThenTheMark()
    {
        const QAlarmListItem item;
        const auto layout = qobject_cast<QHBoxLayout*>(item.layout());
        QVERIFY(layout);
        QCOMPARE(layout->objectName(), QStringLiteral("horizontalLayout"));
        QCOMPARE(layout->spacing(), 10);
        QCOMPARE(layout->contentsMargins(), QMargins(10, 0, 10, 0));
        QCOMPARE(layout->count(), 2);
        const QSpacerItem* const spacer = layout->itemAt(0)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(0, 20));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        const auto mark = qobject_cast<QLabel*>(layout->itemAt(1)->widget());
        QVERIFY(mark);
        QCOMPARE(mark->objectName(), QStringLiteral("lblPix"));
        QCOMPARE(mark->minimumSize(), QSize(16, 16));
        QCOMPARE(mark->maximumSize(), QSize(16, 16));
    }

    void theTypeIsMinusOneUntilItIsSet()
    {
        QAlarmListItem item;
        QCOMPARE(item.GetType(), -1);
        for (int32_t type :
             {0, 22, -1, std::numeric_limits<int32_t>::max(), std::numeric_limits<int32_t>::min()}) {
            item.SetType(type);
            QCOMPARE(item.GetType(), type);
        }
    }

    void theMarkIsHiddenAtFirstAndHasNoImageOfItsOwn()
    {
        QAlarmListItem item;
        const auto mark = item.findChild<QLabel*>(QStringLiteral("lblPix"));
        QVERIFY(mark->isHidden());
        QVERIFY(!item.HasMark());
        item.SetMark(true);
        QVERIFY(!mark->isHidden());
        QVERIFY(item.HasMark());
        item.SetMark(true);
        QVERIFY(item.HasMark());
        item.SetMark(false);
        QVERIFY(mark->isHidden());
        QVERIFY(!item.HasMark());
        QVERIFY(mark->pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(mark->text(), QString());
    }

    void theMarkStandsAtTheRightEnd()
    {
        QAlarmListItem item;
        item.SetMark(true);
        item.resize(300, 24);
        item.show();
        QVERIFY(QTest::qWaitForWindowExposed(&item));
        const auto mark = item.findChild<QLabel*>(QStringLiteral("lblPix"));
        QCOMPARE(mark->size(), QSize(16, 16));
        QCOMPARE(mark->geometry().right(), item.width() - 10 - 1);
    }

    void aClickOnTheMarkIsAClickOnTheEntry()
    {
        QAlarmListItem item;
        item.SetMark(true);
        item.show();
        QVERIFY(QTest::qWaitForWindowExposed(&item));
        QSignalSpy clicks(&item, &QAlarmListItem::clicked);
        const auto mark = item.findChild<QLabel*>(QStringLiteral("lblPix"));
        QTest::mouseClick(item.window()->windowHandle(), Qt::LeftButton, {},
                          mark->mapTo(item.window(), mark->rect().center()));
        QCOMPARE(clicks.count(), 1);
    }
};

QTEST_MAIN(tst_QAlarmListItem)
#include "tst_QAlarmListItem.moc"
