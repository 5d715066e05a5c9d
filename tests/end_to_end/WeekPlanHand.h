#pragma once

#include <QDialogButtonBox>
#include <QImage>
#include <QString>
#include <QStringList>

#include <functional>

class ClientDriver;
class QWidget;

/// A hand and an eye on the tab of the week plan. Day 0 is Sunday; times of day are given in hours.
class WeekPlanHand
{
public:
    static constexpr int Days = 7;

    explicit WeekPlanHand(ClientDriver& driver);

    bool ClickLock(const QString& strName) const;
    bool ClickLock(int iDay) const { return ClickLock(QStringLiteral("btn%1").arg(iDay)); }
    bool IsLocked(int iDay) const;

    bool HoverAt(int iDay, double dHours) const; ///< in the quarter hour that begins then; also while pulling
    bool PressAt(int iDay, double dHours) const;
    bool ReleaseAt(int iDay, double dHours) const;
    /// A pull over the quarter hours from one time to before another. Over a region it erases.
    bool Drag(int iDay, double dFrom, double dTo) const;

    QImage Picture(int iDay) const;
    /// What the bar shows, read from its pixels: "8:00-12:00 13:00-17:00", the times between which it is
    /// green.
    QString Seen(int iDay) const;
    QStringList SeenWeek() const;

    /// Opens the day's dialog by its button and does something in it; false unless the dialog has ended then.
    bool InDialog(int iDay, const std::function<void(QWidget*)>& act) const;

private:
    QWidget* Display(int iDay) const;
    QPoint At(int iDay, double dHours) const;

    ClientDriver& m_driver;
};

/// A hand on the dialog of a day.
namespace DayDialogHand {

/// Types the digits of both times of a row (1 to 6), hours first, as "130507"; false when the row then holds
/// something else.
bool TypeRow(QWidget* pDialog, int iRow, const QString& strBegin, const QString& strEnd);
QString Row(const QWidget* pDialog, int iRow); ///< "begin-end" as the row shows them
bool ClickBox(QWidget* pDialog, const char* szBox);
bool ClickButton(QWidget* pDialog, QDialogButtonBox::StandardButton button);
bool ClickOk(QWidget* pDialog);

} // namespace DayDialogHand
