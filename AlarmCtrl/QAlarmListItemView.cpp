#include "AlarmCtrl/QAlarmListItemView.h"

#include "AlarmCtrl/QAlarmListItem.h"
#include "AlarmCtrl/QAlarmListItemViewAccessible.h"
#include "ui_QAlarmListItemView.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int s_iSubIndent = 30;

QVBoxLayout* MakeEntryLayout(QWidget* pContainer, int iTop, int iBottom)
{
    auto* const pLayout = new QVBoxLayout(pContainer);
    pLayout->setContentsMargins(0, iTop, 0, iBottom);
    pLayout->setSpacing(0);
    return pLayout;
}

} // namespace

QAlarmListItemView::QAlarmListItemView(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::QAlarmListItemView>())
    , m_pGroup(new QButtonGroup(this))
{
    m_ui->setupUi(this);
    QAlarmListItemViewAccessible::Install();
    m_pMainLayout = MakeEntryLayout(m_ui->wndMain, 10, 0);
    m_pSubLayout = MakeEntryLayout(m_ui->wndSub, 0, 10);
    m_ui->wndSubContainer->hide();
    m_ui->btnSubControll->setChecked(true);
    connect(m_ui->btnSubControll, &QAbstractButton::clicked, this, &QAlarmListItemView::OnSubControllClicked);
    connect(m_pGroup, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &QAlarmListItemView::OnGroupBtnClicked);
    OnSubControllClicked();
}

QAlarmListItemView::~QAlarmListItemView() = default;

void QAlarmListItemView::AddItem(const QString& strText, int iType)
{
    QAlarmListItem* const pKnown =
        FindItem([&strText](const QAlarmListItem& item) { return item.text() == strText; });
    if (pKnown != nullptr) {
        pKnown->show();
    } else {
        AppendItem(m_pMainLayout, strText, iType);
    }
}

void QAlarmListItemView::AddSubItem(const QString& strText, int iType)
{
    SetIndent(AppendItem(m_pSubLayout, strText, iType), s_iSubIndent);
}

int QAlarmListItemView::GetCurrentType() const
{
    const auto* const pItem = qobject_cast<QAlarmListItem*>(m_pGroup->checkedButton());
    return pItem != nullptr ? pItem->GetType() : -1;
}

QString QAlarmListItemView::GetCurrentText() const
{
    const QAbstractButton* const pCurrent = m_pGroup->checkedButton();
    return pCurrent != nullptr ? pCurrent->text() : QString();
}

bool QAlarmListItemView::GoToType(int iType)
{
    QAlarmListItem* const pItem =
        FindItem([iType](const QAlarmListItem& item) { return item.GetType() == iType; });
    if (pItem == nullptr || pItem->isHidden())
        return false;
    m_ui->scrollArea->ensureWidgetVisible(pItem, 0, 0);
    if (!pItem->isChecked())
        pItem->click();
    return true;
}

void QAlarmListItemView::HideItem(int iType)
{
    QAlarmListItem* const pItem =
        FindItem([iType](const QAlarmListItem& item) { return item.GetType() == iType; });
    if (pItem == nullptr)
        return;
    if (pItem->isChecked())
        m_pGroup->buttons().constFirst()->click();
    pItem->hide();
}

void QAlarmListItemView::SetItemMark(int iType, bool bShow)
{
    QAlarmListItem* const pItem =
        FindItem([iType](const QAlarmListItem& item) { return item.GetType() == iType; });
    if (pItem != nullptr)
        pItem->SetMark(bShow);
}

void QAlarmListItemView::SetItemMarkByText(const QString& strText, bool bShow)
{
    QAlarmListItem* const pItem =
        FindItem([&strText](const QAlarmListItem& item) { return item.text() == strText; });
    if (pItem != nullptr)
        pItem->SetMark(bShow);
}

void QAlarmListItemView::SetSubVisible(bool bShow)
{
    m_ui->wndSubContainer->setVisible(bShow);
    m_ui->wndSpace->setVisible(!bShow);
}

void QAlarmListItemView::SetIndent(QAlarmListItem* pItem, int iPixels)
{
    if (pItem != nullptr && pItem->layout() != nullptr)
        pItem->setStyleSheet(QStringLiteral("QAlarmListItem{padding-left:%1px;}").arg(iPixels));
}

void QAlarmListItemView::OnSubControllClicked()
{
    const bool bUnfolded = m_ui->btnSubControll->isChecked();
    m_ui->wndSub->setVisible(bUnfolded);
    m_ui->wndSubSpace->setVisible(bUnfolded);
    m_ui->wndSubSpace2->setVisible(!bUnfolded);
}

void QAlarmListItemView::OnGroupBtnClicked(QAbstractButton* pButton)
{
    if (auto* const pItem = qobject_cast<QAlarmListItem*>(pButton))
        Q_EMIT SignalCurrentItemChanged(pItem->text(), pItem->GetType());
}

// The entries take no focus, so the view answers the keys for them: it clicks the entry to go to.
void QAlarmListItemView::keyPressEvent(QKeyEvent* event)
{
    const QAbstractButton* const pCurrent = m_pGroup->checkedButton();
    const QList<QAbstractButton*> entries = EntriesOnScreen(pCurrent);
    // A current entry that is hidden is a place to start from, but none to go to.
    const auto isShown = [this](const QAbstractButton* pEntry) { return pEntry->isVisibleTo(this); };
    const int iFirst =
        static_cast<int>(std::find_if(entries.begin(), entries.end(), isShown) - entries.begin());
    const int iLast =
        entries.size() - 1 -
        static_cast<int>(std::find_if(entries.rbegin(), entries.rend(), isShown) - entries.rbegin());
    const int iCurrent =
        static_cast<int>(std::find(entries.begin(), entries.end(), pCurrent) - entries.begin());
    const int iPage = std::max(1, height() / m_ui->btnSubControll->minimumHeight() - 1);
    int iTarget = -1;
    switch (event->key()) {
    case Qt::Key_Up:
        iTarget = iCurrent - 1;
        break;
    case Qt::Key_Down:
        iTarget = iCurrent + 1;
        break;
    case Qt::Key_PageUp:
        iTarget = iCurrent - iPage;
        break;
    case Qt::Key_PageDown:
        iTarget = iCurrent + iPage;
        break;
    case Qt::Key_Home:
        iTarget = iFirst;
        break;
    case Qt::Key_End:
        iTarget = iLast;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (iFirst > iLast)
        return;
    iTarget = std::clamp(iTarget, iFirst, iLast);
    if (iTarget == iCurrent)
        return;
    QAbstractButton* const pTarget = entries.at(iTarget);
    m_ui->scrollArea->ensureWidgetVisible(pTarget, 0, 0);
    pTarget->click();
}

// From top to bottom, as they stand and not as they were added. Hidden entries and those of a folded section
// are left out; the current one is always there.
QList<QAbstractButton*> QAlarmListItemView::EntriesOnScreen(const QAbstractButton* pCurrent) const
{
    QList<QAbstractButton*> entries;
    for (const QVBoxLayout* pLayout : {m_pMainLayout, m_pSubLayout}) {
        for (int i = 0; i < pLayout->count(); ++i) {
            auto* const pEntry = qobject_cast<QAbstractButton*>(pLayout->itemAt(i)->widget());
            if (pEntry != nullptr && (pEntry == pCurrent || pEntry->isVisibleTo(this)))
                entries.append(pEntry);
        }
    }
    return entries;
}

void QAlarmListItemView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    UpdateCurrentItem();
}

void QAlarmListItemView::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    UpdateCurrentItem();
}

void QAlarmListItemView::UpdateCurrentItem()
{
    if (QAbstractButton* const pCurrent = m_pGroup->checkedButton())
        pCurrent->update();
}

QAlarmListItem* QAlarmListItemView::FindItem(const std::function<bool(const QAlarmListItem&)>& accept) const
{
    const QList<QAbstractButton*> buttons = m_pGroup->buttons();
    for (QAbstractButton* const pButton : buttons) {
        auto* const pItem = qobject_cast<QAlarmListItem*>(pButton);
        if (pItem != nullptr && accept(*pItem))
            return pItem;
    }
    return nullptr;
}

QAlarmListItem* QAlarmListItemView::AppendItem(QVBoxLayout* pLayout, const QString& strText, int iType)
{
    auto* const pItem = new QAlarmListItem(this);
    pItem->setText(strText);
    pItem->SetType(iType);
    if (m_pGroup->buttons().isEmpty())
        pItem->setChecked(true);
    pLayout->addWidget(pItem);
    m_pGroup->addButton(pItem);
    return pItem;
}
