#pragma once

#include "lxgui_export.h"

#include <QTimeEdit>

namespace LXGUI {

/// A time edit in the host's look. A click selects the hours, minutes or seconds it hits, so that digits
/// typed next replace them; a selection that the person dragged is left as it is. Digits that leave no choice
/// lead on to the next part; a colon typed behind them as on paper ("8:30:00") leads no further.
/// User-interface thread.
class LXGUI_EXPORT LXTimeEdit : public QTimeEdit
{
    Q_OBJECT

public:
    explicit LXTimeEdit(QWidget* parent = nullptr);
    ~LXTimeEdit() override;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    void SelectClickedSection();

    Section m_eLedTo = NoSection; ///< the part that the last digit has led on to
};

} // namespace LXGUI
