#include "client/ClientApplication.h"
#include "client/MainWindow.h"
#include "tests/client/CutText.h"

#include <QAbstractButton>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// The page in the client's window, loaded from its file: nothing is cut or pushed out of sight.
class TestPageSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_strWorkingDirectory = QDir::currentPath();
        m_data = std::make_unique<QTemporaryDir>();
    }
    void cleanup()
    {
        m_client.reset();
        QDir::setCurrent(m_strWorkingDirectory);
    }
    void nothingIsCut_data();
    void nothingIsCut();

private:
    bool Start(const QString& strLanguage)
    {
        ClientOptions options;
        options.strDataDirectory = m_data->path();
        options.strLanguage = strLanguage;
        options.strOpenModule = QStringLiteral("ACSEventConfigUI");
        const QString strProgramDirectory =
            QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../bin"));
        m_client = std::make_unique<ClientApplication>(options, strProgramDirectory);
        return m_client->Start() && QTest::qWaitForWindowExposed(m_client->Window());
    }

    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<ClientApplication> m_client;
    QString m_strWorkingDirectory;
};

void TestPageSizes::nothingIsCut_data()
{
    QTest::addColumn<QString>("strLanguage");
    QTest::addColumn<QSize>("size");
    for (const QString& strLanguage : {QStringLiteral("en"), QStringLiteral("zh_cn")}) {
        for (const QSize& size : {QSize(900, 600), QSize(1061, 820), QSize(1920, 1080)}) {
            QTest::addRow("%s %dx%d", qPrintable(strLanguage), size.width(), size.height())
                << strLanguage << size;
        }
    }
}

void TestPageSizes::nothingIsCut()
{
    QFETCH(QString, strLanguage);
    QFETCH(QSize, size);
    QVERIFY(Start(strLanguage));
    QWidget* const pWindow = m_client->Window();
    auto* const pPage = pWindow->findChild<QWidget*>(QStringLiteral("ACSEventSchemeEditor"));
    QVERIFY(pPage != nullptr && pPage->isVisible());
    for (const char* const szTab : {"btnNotify", "btnAlarmOut", "btnDefTime"}) {
        pPage->findChild<QWidget*>(QStringLiteral("wndSettings"))->setEnabled(true);
        auto* const pTab = pPage->findChild<QAbstractButton*>(QLatin1String(szTab));
        QTest::mouseClick(pTab, Qt::LeftButton);
        QVERIFY(pTab->isChecked());
        pWindow->resize(size);
        QTRY_COMPARE(pWindow->size(), size);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const QStringList complaints = CutText::Complaints(*pPage);
        QVERIFY2(complaints.isEmpty(),
                 qPrintable(QLatin1String(szTab) + QLatin1Char('\n') + complaints.join(QLatin1Char('\n'))));
    }
}

QTEST_MAIN(TestPageSizes)
#include "tst_page_sizes.moc"
