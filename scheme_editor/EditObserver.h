#pragma once

#include <QObject>
#include <QWidget>

#include <functional>

/// Tells a page when a person may have edited something on it: once after each action by mouse, keys or an
/// assistive technology, when everything that the action set off has come to its end. What a dialog does that
/// an action opened belongs to that action; a drag ends with the release of the button. It says nothing about
/// what was edited, and the widgets on the page know nothing of it. User-interface thread.
class EditObserver : public QObject
{
    Q_OBJECT

public:
    /// `bInDialog`: an event loop ran inside the action.
    using Observe = std::function<void(bool bInDialog)>;

    /// The page must outlive this.
    EditObserver(QWidget& page, Observe observe);
    ~EditObserver() override;

    /// Looks again when the present action has come to its end.
    void LookSoon();
    /// A mouse button that went down on the page is still down, or an action waits for its dialog.
    bool IsBusy() const;
    /// A number for the stay of the keyboard in the present text field of the page; 0 in none.
    int Typing() const;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static int LoopLevel();

    QWidget& m_page;
    Observe m_observe;
    Qt::MouseButtons m_pressed = Qt::NoButton; ///< on the page
    bool m_bDue = false;                       ///< an action is to be looked at
    bool m_bPosted = false;
    bool m_bInDialog = false; ///< the action that is due runs an event loop
    int m_iLevel = 0;         ///< event loop that the action came from
    int m_iStay = 1;          ///< number of the present stay in a field
};
