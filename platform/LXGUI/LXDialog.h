#pragma once

#include "lxgui_export.h"

#include <QDialog>

namespace LXGUI {

class LXDialogTitleBar;

/// Base of the host's dialogs: the host's look, movable by its title, no context help button. The title bar
/// shows the window title and lies in the contents margins, so that a layout set on the dialog begins below
/// it. The close button rejects.
class LXGUI_EXPORT LXDialog : public QDialog
{
    Q_OBJECT

public:
    explicit LXDialog(QWidget* parent = nullptr);
    ~LXDialog() override;

protected:
    void SetTitleHeight(int iHeight); ///< pixels, 36 at first
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceTitleBar();

    LXDialogTitleBar* m_pTitleBar;
    int m_iTitleHeight = 0;
};

} // namespace LXGUI
