#include "client/PageStatus.h"

#include <QSignalSpy>
#include <QWidget>
#include <QtTest>

/// A page as a module brings it: it says what it edits and can save.
class TellingPage : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString editedScheme READ EditedScheme NOTIFY SignalEditedSchemeChanged)

public:
    QString EditedScheme() const { return m_strEdited; }
    int Saves() const { return m_iSaves; }
    void Edit(const QString& strEdited)
    {
        m_strEdited = strEdited;
        Q_EMIT SignalEditedSchemeChanged();
    }

Q_SIGNALS:
    void SignalEditedSchemeChanged();

public Q_SLOTS:
    void OnSave() { ++m_iSaves; }

private:
    QString m_strEdited;
    int m_iSaves = 0;
};

/// A page whose property never announces a change.
class SilentPage : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString editedScheme READ EditedScheme CONSTANT)

public:
    QString EditedScheme() const { return QStringLiteral("always this"); }
};

class TestPageStatus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAPageThereIsNothing()
    {
        PageStatus status;
        QVERIFY(status.Text().isEmpty());
        QVERIFY(!status.CanSave());
        QVERIFY(!status.Save());
    }
    void aPagesTextIsFollowed()
    {
        TellingPage page;
        PageStatus status;
        status.SetPage(&page);
        QSignalSpy changed(&status, &PageStatus::SignalChanged);
        page.Edit(QStringLiteral("Main entrance, forced open"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(status.Text(), QStringLiteral("Main entrance, forced open"));
    }
    void theSamePageTwiceIsFollowedOnce()
    {
        TellingPage page;
        PageStatus status;
        status.SetPage(&page);
        status.SetPage(&page);
        QSignalSpy changed(&status, &PageStatus::SignalChanged);
        page.Edit(QStringLiteral("x"));
        QCOMPARE(changed.count(), 1);
    }
    void aPageThatWasLeftIsNoLongerFollowed()
    {
        TellingPage first;
        TellingPage second;
        PageStatus status;
        status.SetPage(&first);
        status.SetPage(&second);
        second.Edit(QStringLiteral("second"));
        QSignalSpy changed(&status, &PageStatus::SignalChanged);
        first.Edit(QStringLiteral("first"));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(status.Text(), QStringLiteral("second"));
    }
    void savingCallsThePagesSlot()
    {
        TellingPage page;
        PageStatus status;
        status.SetPage(&page);
        QVERIFY(status.CanSave());
        QVERIFY(status.Save());
        QCOMPARE(page.Saves(), 1);
    }
    void aPageThatTellsNothingIsTolerated()
    {
        QWidget page;
        PageStatus status;
        status.SetPage(&page);
        QVERIFY(status.Text().isEmpty());
        QVERIFY(!status.CanSave());
        QVERIFY(!status.Save());
    }
    void aPropertyWithoutNotificationIsReadAtLeastOnce()
    {
        SilentPage page;
        PageStatus status;
        status.SetPage(&page);
        QCOMPARE(status.Text(), QStringLiteral("always this"));
    }
    void aDestroyedPageIsForgotten()
    {
        PageStatus status;
        {
            TellingPage page;
            status.SetPage(&page);
            page.Edit(QStringLiteral("x"));
        }
        QVERIFY(status.Text().isEmpty());
        QVERIFY(!status.CanSave());
        QVERIFY(!status.Save());
    }
};

QTEST_MAIN(TestPageStatus)
#include "tst_page_status.moc"
