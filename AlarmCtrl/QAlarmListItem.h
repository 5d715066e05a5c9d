#pragma once

#include <QPushButton>

#include <cstdint>
#include <memory>

namespace Ui {
class QAlarmListItem;
}

/// One entry of QAlarmListItemView: a checkable button that carries a type besides its text and can show a
/// mark of 16 x 16 pixels at its right end.
class QAlarmListItem : public QPushButton
{
    Q_OBJECT

public:
    explicit QAlarmListItem(QWidget* parent = nullptr);
    ~QAlarmListItem() override;

    int32_t GetType() const; ///< -1 until set
    void SetType(int32_t iType);

    void SetMark(bool bShow);
    bool HasMark() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString ElidedText() const;
    bool IsInFocusedView() const;

    std::unique_ptr<Ui::QAlarmListItem> m_ui;
    int32_t m_iType = -1;
};
