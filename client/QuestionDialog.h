#pragma once

#include "platform/LXGUI/LXCustomDialog.h"

#include <memory>

namespace Ui {
class QuestionDialog;
}

/// A question with three answers about work that could be lost: keep it, give it up, or decide nothing yet.
/// Escape and closing the dialog decide nothing.
class QuestionDialog : public LXGUI::LXCustomDialog
{
    Q_OBJECT

public:
    enum class Answer
    {
        Keep,
        GiveUp,
        Nothing
    };
    struct Texts
    {
        QString strTitle;
        QString strQuestion;
        QString strKeep; ///< on the button that is the default
        QString strGiveUp;
        QString strNothing;
    };

    explicit QuestionDialog(const Texts& texts, QWidget* parent = nullptr);
    ~QuestionDialog() override;

    Answer GetAnswer() const { return m_eAnswer; }
    /// Shows the dialog and returns what was chosen; nothing when the parent dies meanwhile. Runs an event
    /// loop: guard what you come back to.
    static Answer Ask(const Texts& texts, QWidget* parent);

private:
    std::unique_ptr<Ui::QuestionDialog> ui;
    Answer m_eAnswer = Answer::Nothing;
};
