#include "AlarmCtrl/QAlarmDefenceTimeEditor.h"

#include "AlarmCtrl/DefenceTime.h"
#include "AlarmCtrl/QAlarmDayEditor.h"
#include "AlarmCtrl/QAlarmDayItem.h"
#include "ui_QAlarmDefenceTimeEditor.h"

#include <QEvent>

#include <algorithm>

QAlarmDefenceTimeEditor::QAlarmDefenceTimeEditor(QWidget* parent)
    : QWidget(parent)
    , m_pUi(std::make_unique<Ui::QAlarmDefenceTimeEditor>())
    , m_pScale(nullptr)
{
    m_pUi->setupUi(this);
    m_pScale = new QAlarmDayItem(this);
    m_pUi->editor0->installEventFilter(this);
    PositionScale();
    m_locks = {{m_pUi->editor0, m_pUi->btn0}, {m_pUi->editor1, m_pUi->btn1}, {m_pUi->editor2, m_pUi->btn2},
               {m_pUi->editor3, m_pUi->btn3}, {m_pUi->editor4, m_pUi->btn4}, {m_pUi->editor5, m_pUi->btn5},
               {m_pUi->editor6, m_pUi->btn6}};
    for (auto it = m_locks.cbegin(); it != m_locks.cend(); ++it) {
        ConnectDay(it.key(), it.value());
    }
    connect(m_pUi->btnAll, &QPushButton::clicked, this, &QAlarmDefenceTimeEditor::OnBtnClicked);
    ShowAccessibleNames();
}

QAlarmDefenceTimeEditor::~QAlarmDefenceTimeEditor() = default;

void QAlarmDefenceTimeEditor::ConnectDay(QAlarmDayEditor* pEditor, QPushButton* pLock)
{
    connect(pEditor, &QAlarmDayEditor::SignalCopySettingToOthers, this,
            &QAlarmDefenceTimeEditor::OnCopySettingToOthers);
    connect(pEditor, &QAlarmDayEditor::SignalEditStart, this, &QAlarmDefenceTimeEditor::OnEditStart);
    connect(pEditor, &QAlarmDayEditor::SignalEditing, this, &QAlarmDefenceTimeEditor::OnEditing);
    connect(pEditor, &QAlarmDayEditor::SignalEditReady, this, &QAlarmDefenceTimeEditor::OnEditReady);
    connect(pLock, &QPushButton::clicked, this, &QAlarmDefenceTimeEditor::OnBtnClicked);
}

void QAlarmDefenceTimeEditor::SetDefenceTime(const AlarmDefenceTime_t* pDays)
{
    if (pDays == nullptr) {
        return;
    }
    for (int iDay = 0; iDay < DefenceTime::DayCount; ++iDay) {
        if (QAlarmDayEditor* pEditor = FindEditor(iDay)) {
            pEditor->SetDefenceTime(pDays[iDay]);
        }
    }
}

int QAlarmDefenceTimeEditor::GetDefenceTime(AlarmDefenceTime_t* pDays) const
{
    if (pDays == nullptr) {
        return -1;
    }
    for (int iDay = 0; iDay < DefenceTime::DayCount; ++iDay) {
        pDays[iDay].clear();
        if (const QAlarmDayEditor* pEditor = FindEditor(iDay)) {
            pEditor->GetDefenceTime(pDays[iDay]);
        }
    }
    return 0;
}

bool QAlarmDefenceTimeEditor::eventFilter(QObject* watched, QEvent* event)
{
    // A change of the rows above moves the first bar without resizing it.
    if (watched == m_pUi->editor0 && (event->type() == QEvent::Resize || event->type() == QEvent::Move)) {
        PositionScale();
    }
    return QWidget::eventFilter(watched, event);
}

// A slot's signature reads like its signal's.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void QAlarmDefenceTimeEditor::OnCopySettingToOthers(int iDays, AlarmDefenceTime_t regions)
{
    for (int iDay = 0; iDays != 0; ++iDay, iDays /= 2) {
        QAlarmDayEditor* pEditor = (iDays & 1) != 0 ? FindEditor(iDay) : nullptr;
        if (pEditor != nullptr) {
            pEditor->SetDefenceTime(regions);
        }
    }
}

void QAlarmDefenceTimeEditor::OnEditStart(QAlarmDayEditor* pEditor)
{
    if (!IsLocked(pEditor)) {
        return;
    }
    const auto locked = LockedEditors();
    for (QAlarmDayEditor* pOther : locked) {
        if (pOther != pEditor) {
            pOther->SetEditSource(pEditor);
        }
    }
}

void QAlarmDefenceTimeEditor::OnEditing(QAlarmDayEditor* pEditor)
{
    if (!IsLocked(pEditor)) {
        return;
    }
    const auto locked = LockedEditors();
    for (QAlarmDayEditor* pOther : locked) {
        if (pOther != pEditor) {
            pOther->UpdateDisplay();
        }
    }
}

void QAlarmDefenceTimeEditor::OnEditReady(QAlarmDayEditor* pEditor)
{
    if (!IsLocked(pEditor)) {
        if (pEditor != nullptr) {
            pEditor->ApplyEdit();
        }
        return;
    }
    const auto locked = LockedEditors();
    // Stops at the first refusal, so that one tip is shown and not one for every full day.
    const bool bAllOk = std::all_of(locked.cbegin(), locked.cend(),
                                    [](QAlarmDayEditor* pLocked) { return pLocked->CheckEdit(); });
    for (QAlarmDayEditor* pLocked : locked) {
        if (bAllOk) {
            pLocked->ApplyEdit();
        }
        pLocked->SetEditSource(nullptr);
    }
}

void QAlarmDefenceTimeEditor::OnBtnClicked()
{
    const QObject* pSender = sender();
    if (pSender == nullptr) {
        return;
    }
    if (pSender == m_pUi->btnAll) {
        for (QPushButton* pLock : qAsConst(m_locks)) {
            pLock->setChecked(m_pUi->btnAll->isChecked());
        }
    } else {
        m_pUi->btnAll->setChecked(std::all_of(m_locks.cbegin(), m_locks.cend(),
                                              [](const QPushButton* pLock) { return pLock->isChecked(); }));
    }
}

void QAlarmDefenceTimeEditor::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PositionScale();
}

void QAlarmDefenceTimeEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_pUi->retranslateUi(this);
        ShowAccessibleNames();
    }
}

QAlarmDayEditor* QAlarmDefenceTimeEditor::FindEditor(int iDay) const
{
    return findChild<QAlarmDayEditor*>(QStringLiteral("editor%1").arg(iDay));
}

bool QAlarmDefenceTimeEditor::IsLocked(QAlarmDayEditor* pEditor) const
{
    const QPushButton* pLock = m_locks.value(pEditor, nullptr);
    return pLock != nullptr && pLock->isChecked();
}

QList<QAlarmDayEditor*> QAlarmDefenceTimeEditor::LockedEditors() const
{
    QList<QAlarmDayEditor*> locked;
    for (auto it = m_locks.cbegin(); it != m_locks.cend(); ++it) {
        if (it.value()->isChecked()) {
            locked.append(it.key());
        }
    }
    return locked;
}

void QAlarmDefenceTimeEditor::PositionScale()
{
    const auto* pDisplay = m_pUi->editor0->findChild<QWidget*>(QStringLiteral("wndDisplay"));
    if (pDisplay == nullptr) {
        return;
    }
    const QPoint left = pDisplay->mapTo(this, QPoint(0, 0));
    const QPoint right = pDisplay->mapTo(this, QPoint(pDisplay->width(), 0));
    m_pScale->resize(right.x() + m_pScale->Margin() - left.x(), m_pScale->height());
    m_pScale->move(left.x() - m_pScale->Margin() / 2, left.y() - m_pScale->height() - 1);
    m_pScale->update();
}

void QAlarmDefenceTimeEditor::ShowAccessibleNames()
{
    m_pUi->btnAll->setAccessibleName(tr("Lock all days"));
    const QList<QLabel*> days{m_pUi->label_2,  m_pUi->label_3, m_pUi->label_4, m_pUi->label_5,
                              m_pUi->label_16, m_pUi->label_6, m_pUi->label_7};
    for (int iDay = 0; iDay < days.size(); ++iDay) {
        const QString strDay = days[iDay]->text();
        if (QAlarmDayEditor* pEditor = FindEditor(iDay)) {
            pEditor->SetDayName(strDay);
            m_locks.value(pEditor)->setAccessibleName(tr("Lock %1").arg(strDay));
        }
    }
}
