#include "client/mail/MailSender.h"

MailSender::MailSender(QObject* parent)
    : QObject(parent)
{
}

MailSender::~MailSender()
{
    if (m_transfer) {
        m_transfer->Cancel();
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

bool MailSender::Send(const MailTransfer::Job& job)
{
    if (m_transfer) {
        return false;
    }
    m_transfer = std::make_unique<MailTransfer>(job);
    m_thread = std::thread([this, pTransfer = m_transfer.get()] {
        const MailOutcome outcome = pTransfer->Run();
        QMetaObject::invokeMethod(
            this, [this, outcome] { Finish(outcome); }, Qt::QueuedConnection);
    });
    return true;
}

void MailSender::Cancel()
{
    if (m_transfer) {
        m_transfer->Cancel();
    }
}

void MailSender::Finish(const MailOutcome& outcome)
{
    m_thread.join();
    m_transfer.reset();
    Q_EMIT SignalFinished(outcome);
}
