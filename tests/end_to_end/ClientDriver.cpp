#include "ClientDriver.h"

#include "Hand.h"

#include "client/HomePage.h"
#include "client/MainWindow.h"
#include "client/PluginTile.h"
#include "client/SchemeSaving.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/LXGUI/LXSwitchButton.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QScrollArea>
#include <QTreeView>
#include <QtTest>

ClientDriver::ClientDriver(const QString& strDataDirectory, UserRole role)
{
    m_options.strDataDirectory = strDataDirectory;
    m_options.role = role;
    m_options.strLanguage = QStringLiteral("en");
    qApp->installEventFilter(this);
}

ClientDriver::~ClientDriver()
{
    End();
}

void ClientDriver::UseSiteFile(const QString& strPath)
{
    m_options.strSiteFile = strPath;
}

void ClientDriver::UseLanguage(const QString& strLanguage)
{
    m_options.strLanguage = strLanguage;
}

bool ClientDriver::Start()
{
    // The module and the skin lie where the program lies.
    const QString strProgramDirectory =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../bin"));
    m_client = std::make_unique<ClientApplication>(m_options, strProgramDirectory);
    return m_client->Start() && QTest::qWaitForWindowExposed(m_client->Window());
}

bool ClientDriver::OpenByTile()
{
    for (PluginTile* pTile : m_client->Window()->Home()->Tiles()) {
        if (pTile->Key() == QLatin1String("ACSEventConfigUI")) {
            QTest::mouseClick(pTile, Qt::LeftButton);
        }
    }
    return Page() != nullptr && Page()->isVisible();
}

void ClientDriver::End()
{
    m_client.reset();
}

bool ClientDriver::ClickNode(qint64 iId, int iKind)
{
    return Hand::ClickRow(Tree(), iId, iKind);
}

bool ClientDriver::ClickEvent(const QString& strName)
{
    QAbstractButton* pItem = EventItem(strName);
    if (pItem == nullptr || !pItem->isEnabled()) {
        return false;
    }
    for (QWidget* pParent = pItem->parentWidget(); pParent != nullptr; pParent = pParent->parentWidget()) {
        if (auto* pArea = qobject_cast<QScrollArea*>(pParent)) {
            pArea->ensureWidgetVisible(pItem);
            break;
        }
    }
    QTest::mouseClick(pItem, Qt::LeftButton);
    return pItem->isChecked();
}

bool ClientDriver::ClickButton(const char* szName)
{
    auto* pButton = Page()->findChild<QAbstractButton*>(QLatin1String(szName));
    if (pButton == nullptr || !pButton->isVisible() || !pButton->isEnabled()) {
        return false;
    }
    QTest::mouseClick(pButton, Qt::LeftButton);
    WaitForSaves();
    return true;
}

bool ClientDriver::IsSwitchedOn(const char* szName) const
{
    const auto* pSwitch = Page()->findChild<LXGUI::LXSwitchButton*>(QLatin1String(szName));
    return pSwitch != nullptr && pSwitch->isToggled();
}

bool ClientDriver::HasMark(const QString& strEvent) const
{
    const QAbstractButton* pItem = EventItem(strEvent);
    const auto* pMark = pItem == nullptr ? nullptr : pItem->findChild<QLabel*>(QStringLiteral("lblPix"));
    return pMark != nullptr && pMark->isVisible();
}

QWidget* ClientDriver::Page() const
{
    return m_client->Window()->findChild<QWidget*>(QStringLiteral("ACSEventSchemeEditor"));
}

QString ClientDriver::StatusText() const
{
    return m_client->Window()->StatusText();
}

QString ClientDriver::LastNote()
{
    return LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->GetLastText();
}

void ClientDriver::WaitForSaves() const
{
    // A save goes on beside the window.
    if (m_client && m_client->Saving() != nullptr) {
        m_client->Saving()->WaitForSaves();
    }
}

QString ClientDriver::DatabasePath() const
{
    WaitForSaves();
    return QDir(m_options.strDataDirectory).filePath(QStringLiteral("Database/AlarmScheme.db"));
}

void ClientDriver::AnswerDialogs(std::initializer_list<std::function<void(QWidget*)>> answers)
{
    m_iAnswered = 0;
    m_answers = answers;
}

bool ClientDriver::eventFilter(QObject* watched, QEvent* event)
{
    auto* pDialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (pDialog != nullptr && pDialog->isModal() && !m_answers.isEmpty()) {
        // Once the dialog runs its own event loop.
        const std::function<void(QWidget*)> answer = m_answers.takeFirst();
        QMetaObject::invokeMethod(
            pDialog,
            [this, pDialog, answer] {
                ++m_iAnswered;
                answer(pDialog);
            },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

QTreeView* ClientDriver::Tree() const
{
    return Page()->findChild<QTreeView*>(QStringLiteral("treeDevices"));
}

QAbstractButton* ClientDriver::EventItem(const QString& strName) const
{
    const QList<QAbstractButton*> buttons = Page()->findChildren<QAbstractButton*>();
    for (QAbstractButton* pButton : buttons) {
        if (pButton->inherits("QAlarmListItem") && pButton->text() == strName && pButton->isVisible()) {
            return pButton;
        }
    }
    return nullptr;
}
