#include "WeekPlanHand.h"

#include "ClientDriver.h"
#include "Hand.h"

#include <QApplication>
#include <QCheckBox>
#include <QPointer>
#include <QPushButton>
#include <QTimeEdit>
#include <QtTest>

namespace {

constexpr int Quarters = 96;
constexpr int QuarterHour = 900;
constexpr int LastSecond = 86399;

QString ClockTime(int iQuarter)
{
    return QStringLiteral("%1:%2").arg(iQuarter / 4).arg(iQuarter % 4 * 15, 2, 10, QLatin1Char('0'));
}

QTimeEdit* BeginEdit(const QWidget* pDialog, int iRow)
{
    return pDialog->findChild<QTimeEdit*>(QStringLiteral("timeEditBegin%1").arg(iRow));
}

QTimeEdit* EndEdit(const QWidget* pDialog, int iRow)
{
    return pDialog->findChild<QTimeEdit*>(QStringLiteral("timeEditEnd%1").arg(iRow));
}

bool TypeTime(QTimeEdit* pEdit, const QString& strDigits)
{
    if (pEdit == nullptr || !Hand::Click(pEdit, QPoint(8, pEdit->height() / 2))) {
        return false;
    }
    // Coming in by the keyboard selects the hours, so that typing replaces them.
    for (const Qt::Key key : {Qt::Key_Backtab, Qt::Key_Tab}) {
        QWidget* pFocus = QApplication::focusWidget();
        if (pFocus == nullptr) {
            return false;
        }
        QTest::keyClick(pFocus, key);
    }
    if (!pEdit->hasFocus()) {
        return false;
    }
    QTest::keyClicks(pEdit, strDigits);
    return pEdit->time() == QTime::fromString(strDigits, QStringLiteral("HHmmss"));
}

} // namespace

WeekPlanHand::WeekPlanHand(ClientDriver& driver)
    : m_driver(driver)
{
}

bool WeekPlanHand::ClickLock(const QString& strName) const
{
    return Hand::Click(m_driver.Page()->findChild<QPushButton*>(strName));
}

bool WeekPlanHand::IsLocked(int iDay) const
{
    return m_driver.Page()->findChild<QPushButton*>(QStringLiteral("btn%1").arg(iDay))->isChecked();
}

bool WeekPlanHand::HoverAt(int iDay, double dHours) const
{
    return Hand::Hover(Display(iDay), At(iDay, dHours));
}

bool WeekPlanHand::PressAt(int iDay, double dHours) const
{
    return Hand::Press(Display(iDay), At(iDay, dHours));
}

bool WeekPlanHand::ReleaseAt(int iDay, double dHours) const
{
    return Hand::Release(Display(iDay), At(iDay, dHours));
}

bool WeekPlanHand::Drag(int iDay, double dFrom, double dTo) const
{
    const double dLast = dTo - 0.25;
    return HoverAt(iDay, dFrom) && PressAt(iDay, dFrom) && HoverAt(iDay, (dFrom + dLast) / 2) &&
           HoverAt(iDay, dLast) && ReleaseAt(iDay, dLast);
}

QImage WeekPlanHand::Picture(int iDay) const
{
    return Display(iDay)->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QString WeekPlanHand::Seen(int iDay) const
{
    const QColor green(QStringLiteral("#3AAA24"));
    const QImage picture = Picture(iDay);
    QStringList regions;
    int iBegin = -1;
    for (int i = 0; i <= Quarters; ++i) {
        // The middle of a quarter hour lies beside the grid line of its hour.
        const bool bGreen = i < Quarters && picture.pixelColor(At(iDay, i / 4.0)) == green;
        if (bGreen && iBegin < 0) {
            iBegin = i;
        } else if (!bGreen && iBegin >= 0) {
            regions.append(ClockTime(iBegin) + QLatin1Char('-') + ClockTime(i));
            iBegin = -1;
        }
    }
    return regions.join(QLatin1Char(' '));
}

QStringList WeekPlanHand::SeenWeek() const
{
    QStringList week;
    for (int iDay = 0; iDay < Days; ++iDay) {
        week.append(Seen(iDay));
    }
    return week;
}

bool WeekPlanHand::InDialog(int iDay, const std::function<void(QWidget*)>& act) const
{
    bool bEnded = false;
    m_driver.AnswerDialogs({[&act, &bEnded](QWidget* pDialog) {
        const QPointer<QWidget> dialog(pDialog);
        act(pDialog);
        bEnded = dialog.isNull() || !dialog->isVisible();
        if (!bEnded) {
            dialog->close(); // or the test would wait for ever
        }
    }});
    return Hand::Click(Display(iDay)->parentWidget()->findChild<QPushButton*>(QStringLiteral("btnDetail"))) &&
           m_driver.AnsweredDialogs() == 1 && bEnded;
}

QWidget* WeekPlanHand::Display(int iDay) const
{
    const auto* pBar = m_driver.Page()->findChild<QWidget*>(QStringLiteral("editor%1").arg(iDay));
    return pBar->findChild<QWidget*>(QStringLiteral("wndDisplay"));
}

/// The middle of the quarter hour that begins then.
QPoint WeekPlanHand::At(int iDay, double dHours) const
{
    const QWidget* pDisplay = Display(iDay);
    const int iSecond = qRound(dHours * 3600) + QuarterHour / 2;
    return {pDisplay->width() * iSecond / LastSecond, pDisplay->height() / 2};
}

bool DayDialogHand::TypeRow(QWidget* pDialog, int iRow, const QString& strBegin, const QString& strEnd)
{
    return TypeTime(BeginEdit(pDialog, iRow), strBegin) && TypeTime(EndEdit(pDialog, iRow), strEnd);
}

QString DayDialogHand::Row(const QWidget* pDialog, int iRow)
{
    return BeginEdit(pDialog, iRow)->text() + QLatin1Char('-') + EndEdit(pDialog, iRow)->text();
}

bool DayDialogHand::ClickBox(QWidget* pDialog, const char* szBox)
{
    auto* pBox = pDialog->findChild<QCheckBox*>(QLatin1String(szBox));
    const Qt::CheckState before = pBox->checkState();
    return Hand::Click(pBox, QPoint(10, pBox->height() / 2)) && pBox->checkState() != before;
}

bool DayDialogHand::ClickButton(QWidget* pDialog, QDialogButtonBox::StandardButton button)
{
    return Hand::Click(pDialog->findChild<QDialogButtonBox*>()->button(button));
}

bool DayDialogHand::ClickOk(QWidget* pDialog)
{
    return ClickButton(pDialog, QDialogButtonBox::Ok);
}
