#pragma once

#include "platform/LXGUI/LXMessageNotify.h"

#include <QFrame>

class QTimer;
class QPropertyAnimation;

namespace LXGUI {

/// One note on screen: icon, words, a bar in the colour of its level. Deletes itself once it has left.
class LXMessageNotePanel : public QFrame
{
    Q_OBJECT

public:
    LXMessageNotePanel(const QString& strText, LXMessageNotify::Level level, QWidget* pAnchor);
    ~LXMessageNotePanel() override;

    QString Text() const { return m_strText; }
    LXMessageNotify::Level Level() const { return m_level; }
    bool IsLeaving() const { return m_bLeaving; }
    void FitWidth(int iWidth); ///< takes the width in pixels and the height that its words then need
    void Leave();              ///< fades out, then is gone

Q_SIGNALS:
    void SignalLeaving();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void StartTime();
    QPropertyAnimation* Fade(qreal from, qreal to);

    QString m_strText;
    LXMessageNotify::Level m_level;
    QTimer* m_pTime;
    bool m_bLeaving = false;
};

} // namespace LXGUI
