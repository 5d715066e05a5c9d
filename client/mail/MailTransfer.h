#pragma once

#include "client/mail/MailMessage.h"
#include "client/mail/MailOutcome.h"

#include <chrono>
#include <memory>

/// Hands one mail to one server through SMTP. Made on any thread; Run() blocks its thread and is called once.
class MailTransfer
{
public:
    struct Job
    {
        SystemMailServer server; ///< sound, see MailCheck
        MailMessage message;     ///< goes to its own recipients, from its own sender
        std::chrono::milliseconds timeLimit{30000};
    };

    explicit MailTransfer(const Job& job);
    ~MailTransfer();

    MailOutcome Run();
    /// Makes Run() return within moments, or return at once when it has not begun. From any thread.
    void Cancel();

private:
    class Private;
    std::unique_ptr<Private> d;
};
