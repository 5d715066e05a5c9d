#pragma once

#include "client/mail/MailTransfer.h"

#include <QObject>

#include <memory>
#include <thread>

/// Sends mail in the background, one at a time. Lives on the user-interface thread; taking it down cancels
/// what is under way and tells nobody.
class MailSender : public QObject
{
    Q_OBJECT

public:
    explicit MailSender(QObject* parent = nullptr);
    ~MailSender() override;

    /// Begins to send; false and nothing done while another mail is under way.
    bool Send(const MailTransfer::Job& job);
    void Cancel(); ///< what is under way ends soon, with the outcome "cancelled" as a rule
    bool IsBusy() const { return m_transfer != nullptr; }

Q_SIGNALS:
    void SignalFinished(const MailOutcome& outcome);

private:
    void Finish(const MailOutcome& outcome);

    std::unique_ptr<MailTransfer> m_transfer;
    std::thread m_thread;
};
