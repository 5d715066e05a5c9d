#pragma once

#include "lxgui_export.h"

#include <QTimeEdit>

namespace LXGUI {

/// A time edit in the host's look. A click selects the hours, minutes or seconds it hits, so that digits
/// typed next replace them; a selection that the person dragged is left as it is. User-interface thread.
class LXGUI_EXPORT LXTimeEdit : public QTimeEdit
{
    Q_OBJECT

public:
    explicit LXTimeEdit(QWidget* parent = nullptr);
    ~LXTimeEdit() override;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void SelectClickedSection();
};

} // namespace LXGUI
