#pragma once

#include <QPoint>
#include <QWidget>

class QLabel;
class QToolButton;

namespace LXGUI {

/// The strip at the top of a host dialog: title, close button; the dialog is moved by it.
class LXDialogTitleBar : public QWidget
{
    Q_OBJECT

public:
    explicit LXDialogTitleBar(QWidget* pDialog);
    ~LXDialogTitleBar() override;

    void SetTitle(const QString& strTitle);

Q_SIGNALS:
    void SignalCloseClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowTitle();

    QLabel* m_pTitle;
    QToolButton* m_pClose;
    QString m_strTitle;
    QPoint m_grip; ///< pointer relative to the dialog's corner while a drag lasts
    bool m_bDragging = false;
};

} // namespace LXGUI
