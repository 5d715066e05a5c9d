#include "client/ClientApplication.h"
#include "client/MainWindow.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QDir>
#include <QLabel>
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
    /// What lies in a scroll area may be out of sight for a while.
    static bool IsScrolled(const QWidget* pWidget, const QWidget* pPage)
    {
        for (const QWidget* p = pWidget->parentWidget(); p != nullptr && p != pPage; p = p->parentWidget()) {
            if (qobject_cast<const QAbstractScrollArea*>(p) != nullptr)
                return true;
        }
        return false;
    }
    static QString Name(const QWidget* pWidget)
    {
        return QStringLiteral("%1 %2").arg(QLatin1String(pWidget->metaObject()->className()),
                                           pWidget->objectName());
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
        const QList<QWidget*> widgets = pPage->findChildren<QWidget*>();
        for (const QWidget* const pWidget : widgets) {
            if (!pWidget->isVisible() || IsScrolled(pWidget, pPage))
                continue;
            const QRect place(pWidget->mapTo(pPage, QPoint(0, 0)), pWidget->size());
            QVERIFY2(pPage->rect().contains(place),
                     qPrintable(Name(pWidget) + QLatin1Char(' ') + QLatin1String(szTab)));
            const bool bText = qobject_cast<const QLabel*>(pWidget) != nullptr ||
                               (qobject_cast<const QAbstractButton*>(pWidget) != nullptr &&
                                !static_cast<const QAbstractButton*>(pWidget)->text().isEmpty());
            if (bText) {
                QVERIFY2(pWidget->width() >= pWidget->minimumSizeHint().width(),
                         qPrintable(QStringLiteral("%1: %2 of %3 pixels")
                                        .arg(Name(pWidget))
                                        .arg(pWidget->width())
                                        .arg(pWidget->minimumSizeHint().width())));
            }
        }
    }
}

QTEST_MAIN(TestPageSizes)
#include "tst_page_sizes.moc"
