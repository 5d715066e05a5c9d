#include "CopyPopupHand.h"

#include "ClientDriver.h"
#include "Hand.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

CopyPopupHand::CopyPopupHand(ClientDriver& driver)
{
    if (driver.ClickButton("btnCopyTo")) {
        m_popup = QApplication::activeModalWidget();
    }
}

QTreeView* CopyPopupHand::Tree() const
{
    return m_popup.isNull() ? nullptr : m_popup->findChild<QTreeView*>(QStringLiteral("treeDevices"));
}

bool CopyPopupHand::Tick(qint64 iId, int iKind) const
{
    return Hand::ClickBox(Tree(), iId, iKind);
}

bool CopyPopupHand::ClickOk() const
{
    return IsOpen() && Hand::Click(m_popup->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)) &&
           IsGone();
}

bool CopyPopupHand::ClickCancel() const
{
    return IsOpen() &&
           Hand::Click(m_popup->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)) && IsGone();
}

bool CopyPopupHand::PressEscape() const
{
    if (!IsOpen()) {
        return false;
    }
    QTest::keyClick(m_popup.data(), Qt::Key_Escape);
    return IsGone();
}

bool CopyPopupHand::IsGone() const
{
    return QTest::qWaitFor([this] { return m_popup.isNull(); });
}
