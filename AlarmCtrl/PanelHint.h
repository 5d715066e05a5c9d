#pragma once

#include <QLabel>

/// One dim, centred sentence over the free lower part of a panel that has nothing to show. It belongs to the
/// panel's parent, so that it stays readable while the panel is disabled, takes no part in layouts and lets
/// the mouse through.
class PanelHint : public QLabel
{
    Q_OBJECT

public:
    /// `pPanel` must have a parent. `iTop`: pixels of the panel's upper part that the hint keeps clear.
    PanelHint(QWidget* pPanel, int iTop);

    /// Shows the sentence; an empty one hides the hint.
    void SetHint(const QString& strHint);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FollowPanel();

    QWidget* m_pPanel;
    int m_iTop;
};
