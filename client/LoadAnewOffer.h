#pragma once

#include <QPushButton>

/// A button of the status bar that stands there while the stored schemes are not those that pages show. It
/// only offers: whoever owns it decides what a click does.
class LoadAnewOffer : public QPushButton
{
    Q_OBJECT

public:
    explicit LoadAnewOffer(QWidget* parent = nullptr);
    ~LoadAnewOffer() override;

    /// Shows the button, with the reason as its description, and says the reason in a note.
    void Offer(const QString& strReason);
    void Withdraw();
};
