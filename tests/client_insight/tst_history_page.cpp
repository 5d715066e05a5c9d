#include "client/insight/HistoryPage.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client/DialogAnswer.h"
#include "tests/client_store/StoreClient.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

namespace {

AlarmSourceKey Door(int iDoor)
{
    return AlarmSourceKey{EventSource::Door(1, iDoor), 101};
}

} // namespace

class HistoryPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void withoutAHistoryThePageSaysWhenItBegins();
    void stepsAreShownTheNewestFirst();
    void aStepTellsItsChangesInWords();
    void theBeginningCannotBeTakenBack();
    void aStepIsTakenBackAfterAQuestion();
    void schemesThatWereNotTakenBackAreNamed();
    void aRefusedQuestionChangesNothing();
    void theListGrowsWithEverySave();
    void aLongHistoryComesPieceByPiece();

private:
    template <typename Type>
    Type* Child(const char* szName) const
    {
        return m_page->findChild<Type*>(QLatin1String(szName));
    }
    int Rows() const { return Child<QTableView>("tblSteps")->model()->rowCount(); }
    QString Cell(int iRow, int iColumn) const
    {
        return Child<QTableView>("tblSteps")->model()->index(iRow, iColumn).data().toString();
    }
    void TwoSaves();

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<StoreClient> m_client;
    std::unique_ptr<HistoryPage> m_page;
};

void HistoryPageTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    m_client = std::make_unique<StoreClient>();
    m_client->store.SetAuthor([] { return QStringLiteral("anna"); });
    m_page = std::make_unique<HistoryPage>(m_folder->File(), m_client->store);
}

void HistoryPageTest::cleanup()
{
    m_page.reset();
    m_client.reset();
    m_folder.reset();
    m_log.reset();
}

void HistoryPageTest::TwoSaves()
{
    m_client->map[Door(1)].bOpen = true;
    m_client->map[Door(2)].bOpen = true;
    QCOMPARE(m_client->Save(), 0);
    m_client->map[Door(1)].bOpenSound = true;
    m_client->map[Door(1)].defenceTime[1] = {{8 * 3600, 12 * 3600}};
    QCOMPARE(m_client->Save(), 0);
    QTRY_COMPARE(Rows(), 2);
}

void HistoryPageTest::withoutAHistoryThePageSaysWhenItBegins()
{
    QVERIFY(
        QFile::remove(QFileInfo(m_folder->File()).dir().filePath(QStringLiteral("AlarmSchemeHistory.db"))));
    m_page->Refresh();
    QTRY_VERIFY(Child<QLabel>("lblHeading")->text().contains(QLatin1String("begins with the next save")));
    QCOMPARE(Rows(), 0);
    QVERIFY(!Child<QPushButton>("btnTakeBack")->isEnabled());
}

void HistoryPageTest::stepsAreShownTheNewestFirst()
{
    TwoSaves();
    QCOMPARE(Cell(0, HistoryModel::ColumnSchemes), QStringLiteral("1"));
    QCOMPARE(Cell(1, HistoryModel::ColumnSchemes), QStringLiteral("2"));
    QCOMPARE(Cell(0, HistoryModel::ColumnWho), QStringLiteral("anna"));
    QCOMPARE(Cell(0, HistoryModel::ColumnWhat), QStringLiteral("saved"));
    QVERIFY(
        Cell(0, HistoryModel::ColumnTime).startsWith(QDate::currentDate().toString(QStringLiteral("yyyy-"))));
}

void HistoryPageTest::aStepTellsItsChangesInWords()
{
    TwoSaves();
    Child<QTableView>("tblSteps")->selectRow(0);
    const auto* changes = Child<QTreeWidget>("trvChanges");
    QTRY_COMPARE(changes->topLevelItemCount(), 1);
    const QString text = changes->topLevelItem(0)->text(0);
    QVERIFY2(text.contains(QLatin1String("sound")), qPrintable(text));
    QVERIFY2(text.contains(QLatin1String("08:00-12:00")), qPrintable(text));
    QCOMPARE(changes->topLevelItem(0)->childCount(), 2);
}

void HistoryPageTest::theBeginningCannotBeTakenBack()
{
    m_client->map[Door(1)].bOpen = true;
    QCOMPARE(m_client->Save(), 0);
    m_page.reset();
    m_client.reset();
    QVERIFY(
        QFile::remove(QFileInfo(m_folder->File()).dir().filePath(QStringLiteral("AlarmSchemeHistory.db"))));
    m_client = std::make_unique<StoreClient>();
    m_page = std::make_unique<HistoryPage>(m_folder->File(), m_client->store);
    m_client->map[Door(2)].bOpen = true;
    QCOMPARE(m_client->Save(), 0);
    QTRY_COMPARE(Rows(), 2);
    Child<QTableView>("tblSteps")->selectRow(1);
    QVERIFY(!Child<QPushButton>("btnTakeBack")->isEnabled());
    Child<QTableView>("tblSteps")->selectRow(0);
    QVERIFY(Child<QPushButton>("btnTakeBack")->isEnabled());
}

void HistoryPageTest::aStepIsTakenBackAfterAQuestion()
{
    TwoSaves();
    Child<QTableView>("tblSteps")->selectRow(0);
    const DialogAnswer answer("btnAccept");
    Child<QPushButton>("btnTakeBack")->click();
    QVERIFY(answer.WasGiven());
    m_client->store.WaitForSaves();
    QTRY_COMPARE(Rows(), 3);
    QCOMPARE(Cell(0, HistoryModel::ColumnWhat), QStringLiteral("taken back"));
    QVERIFY(!m_client->map.value(Door(1)).bOpenSound); // loaded anew
    QCOMPARE(m_client->iReloads, 1);
}

void HistoryPageTest::schemesThatWereNotTakenBackAreNamed()
{
    TwoSaves();
    m_client->map[Door(1)].bSendEmail = true;
    QCOMPARE(m_client->Save(), 0);
    QTRY_COMPARE(Rows(), 3);
    Child<QTableView>("tblSteps")->selectRow(2); // made both schemes, of which the first has changed since
    const DialogAnswer answer("btnAccept");
    Child<QPushButton>("btnTakeBack")->click();
    QVERIFY(answer.WasGiven());
    m_client->store.WaitForSaves();
    QTRY_COMPARE(Rows(), 4);
    const auto* changes = Child<QTreeWidget>("trvChanges");
    QTRY_COMPARE(changes->topLevelItemCount(), 3);
    const QTreeWidgetItem* left = changes->topLevelItem(0);
    QVERIFY(left->isExpanded());
    QCOMPARE(left->childCount(), 1);
    QVERIFY(left->child(0)->text(0).contains(Door(1).strEventSource));
    // Another step has nothing to do with that.
    Child<QTableView>("tblSteps")->selectRow(1);
    QTRY_COMPARE(changes->topLevelItemCount(), 1);
}

void HistoryPageTest::aRefusedQuestionChangesNothing()
{
    TwoSaves();
    Child<QTableView>("tblSteps")->selectRow(0);
    const DialogAnswer answer("btnRefuse");
    Child<QPushButton>("btnTakeBack")->click();
    QVERIFY(answer.WasGiven());
    m_client->store.WaitForSaves();
    m_client->Load();
    QVERIFY(m_client->map.value(Door(1)).bOpenSound);
}

void HistoryPageTest::theListGrowsWithEverySave()
{
    TwoSaves();
    Child<QTableView>("tblSteps")->selectRow(1);
    m_client->map[Door(2)].bSendEmail = true;
    QCOMPARE(m_client->Save(), 0);
    QTRY_COMPARE(Rows(), 3);
    // The step that was picked stays picked.
    QCOMPARE(Child<QTableView>("tblSteps")->currentIndex().row(), 2);
}

void HistoryPageTest::aLongHistoryComesPieceByPiece()
{
    for (int step = 0; step < 3; ++step) {
        m_client->map[Door(1)].bOpen = step % 2 == 0;
        QCOMPARE(m_client->Save(), 0);
    }
    HistoryModel model;
    QSignalSpy more(&model, &HistoryModel::SignalMoreWanted);
    SchemeHistoryEntry first;
    first.iId = 9;
    SchemeHistoryEntry second;
    second.iId = 4;
    model.SetEntries({first, second}, true);
    QVERIFY(model.canFetchMore(QModelIndex()));
    model.fetchMore(QModelIndex());
    QCOMPARE(more.size(), 1);
    QCOMPARE(more.first().first().toLongLong(), 4);
    // Not twice, until they have come.
    QVERIFY(!model.canFetchMore(QModelIndex()));
    SchemeHistoryEntry third;
    third.iId = 1;
    model.Append({third}, false);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.RowOf(1), 2);
    QCOMPARE(model.RowOf(2), -1);
    QVERIFY(!model.canFetchMore(QModelIndex()));
}

QTEST_MAIN(HistoryPageTest)
#include "tst_history_page.moc"
