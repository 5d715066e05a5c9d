#pragma once

#include <QList>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>

class QAbstractButton;
class QAlarmListItem;
class QButtonGroup;
class QVBoxLayout;

namespace Ui {
class QAlarmListItemView;
}

/// A scrolling list of exclusive entries, each with a type and a mark, and below them a section of further
/// entries that folds. The current entry changes by a person's click or arrow key, by HideItem() and,
/// silently, when the first entry is added.
class QAlarmListItemView : public QWidget
{
    Q_OBJECT

public:
    explicit QAlarmListItemView(QWidget* parent = nullptr);
    ~QAlarmListItemView() override;

    /// Adds a main entry. An entry of this text that exists already is shown again instead and keeps its
    /// place and its type.
    void AddItem(const QString& strText, int iType);
    void AddSubItem(const QString& strText, int iType);
    int GetCurrentType() const; ///< -1 when no entry is checked
    QString GetCurrentText() const;
    /// Goes to the first entry of this type as a click on it does; false when there is none to be seen.
    bool GoToType(int iType);
    /// Hides the first entry of this type; when it is current, the first entry of all becomes current.
    void HideItem(int iType);
    void SetItemMark(int iType, bool bShow);
    void SetItemMarkByText(const QString& strText, bool bShow);
    void SetSubVisible(bool bShow);
    void SetIndent(QAlarmListItem* pItem, int iPixels);

Q_SIGNALS:
    void SignalCurrentItemChanged(QString strText, int iType);

public Q_SLOTS:
    void OnSubControllClicked();
    void OnGroupBtnClicked(QAbstractButton* pButton);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QList<QAbstractButton*> EntriesOnScreen(const QAbstractButton* pCurrent) const;
    void UpdateCurrentItem();
    QAlarmListItem* FindItem(const std::function<bool(const QAlarmListItem&)>& accept) const;
    QAlarmListItem* AppendItem(QVBoxLayout* pLayout, const QString& strText, int iType);

    std::unique_ptr<Ui::QAlarmListItemView> m_ui;
    QButtonGroup* m_pGroup;
    QVBoxLayout* m_pMainLayout;
    QVBoxLayout* m_pSubLayout;
};
