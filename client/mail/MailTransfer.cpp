#include "client/mail/MailTransfer.h"

#include <QUrl>

#include <curl/curl.h>

#include <atomic>
#include <cstring>
#include <mutex>

namespace {

constexpr int LongestWait = 1000; // milliseconds; waking up ends a wait sooner

/// How far the talk with the server has come, told by the last command.
enum class Stage
{
    Greeting,
    Hello,
    Encryption,
    Login,
    Sender,
    Recipient,
    Message
};

struct Talk
{
    Stage eStage = Stage::Greeting;
    bool bLogin = false;
    bool bOver = false; ///< the farewell has begun; what counts has been said
    QByteArray recipient;
    QByteArray answer; ///< last line the server sent since the last command
};

struct CurlDelete
{
    void operator()(CURL* p) const { curl_easy_cleanup(p); }
    void operator()(curl_slist* p) const { curl_slist_free_all(p); }
};
using Easy = std::unique_ptr<CURL, CurlDelete>;
using List = std::unique_ptr<curl_slist, CurlDelete>;

struct Upload
{
    QByteArray bytes;
    size_t iSent = 0;
};

size_t ReadUpload(char* buffer, size_t size, size_t count, void* user)
{
    auto* pUpload = static_cast<Upload*>(user);
    const size_t iLeft = static_cast<size_t>(pUpload->bytes.size()) - pUpload->iSent;
    const size_t iPart = qMin(size * count, iLeft);
    std::memcpy(buffer, pUpload->bytes.constData() + pUpload->iSent, iPart);
    pUpload->iSent += iPart;
    return iPart;
}

void FollowCommand(Talk& talk, const QByteArray& line)
{
    talk.answer.clear();
    if (line.startsWith("EHLO ") || line.startsWith("HELO ")) {
        talk.eStage = Stage::Hello;
    } else if (line.startsWith("STARTTLS")) {
        talk.eStage = Stage::Encryption;
    } else if (line.startsWith("AUTH ")) {
        // What follows, a password among it, is neither looked at nor kept.
        talk.eStage = Stage::Login;
        talk.bLogin = true;
    } else if (line.startsWith("MAIL FROM:")) {
        talk.eStage = Stage::Sender;
    } else if (line.startsWith("RCPT TO:")) {
        talk.eStage = Stage::Recipient;
        const int iBegin = static_cast<int>(line.indexOf('<')) + 1;
        talk.recipient = line.mid(iBegin, line.indexOf('>') - iBegin);
    } else if (line.startsWith("DATA") && talk.eStage == Stage::Recipient) {
        talk.eStage = Stage::Message;
    }
}

int FollowTalk(CURL*, curl_infotype type, char* data, size_t size, void* user)
{
    auto* pTalk = static_cast<Talk*>(user);
    const bool bOut = type == CURLINFO_HEADER_OUT;
    pTalk->bOver = pTalk->bOver || (bOut && QByteArray(data, static_cast<int>(size)).startsWith("QUIT"));
    if (pTalk->bOver) {
        return 0;
    }
    if (bOut) {
        FollowCommand(*pTalk, QByteArray(data, static_cast<int>(size)));
    } else if (type == CURLINFO_HEADER_IN) {
        pTalk->answer = QByteArray(data, static_cast<int>(size)).trimmed();
    }
    return 0;
}

bool IsRefusal(const QByteArray& answer)
{
    return answer.startsWith('4') || answer.startsWith('5');
}

/// Ends the transfer from within once it is cancelled. Taking it away from outside would have the library
/// wait for answers that the server owes it.
int StopWhenCancelled(void* user, curl_off_t, curl_off_t, curl_off_t, curl_off_t)
{
    return *static_cast<const std::atomic<bool>*>(user) ? 1 : 0;
}

MailOutcome::Kind KindOfRefusal(const Talk& talk)
{
    switch (talk.eStage) {
    case Stage::Greeting:
    case Stage::Hello:
        return MailOutcome::Kind::NoMailServer;
    case Stage::Encryption:
        return MailOutcome::Kind::NoEncryption;
    case Stage::Login:
        return MailOutcome::Kind::LoginRefused;
    case Stage::Sender:
        return MailOutcome::Kind::SenderRefused;
    case Stage::Recipient:
        return MailOutcome::Kind::RecipientRefused;
    case Stage::Message:
        break;
    }
    return MailOutcome::Kind::MessageRefused;
}

MailOutcome::Kind KindOf(CURLcode code, const Talk& talk, const SystemMailServer& server)
{
    using Kind = MailOutcome::Kind;
    if (code == CURLE_OK) {
        return server.strUser.isEmpty() || talk.bLogin ? Kind::Sent : Kind::SentWithoutLogin;
    }
    if (talk.eStage == Stage::Greeting && !talk.answer.isEmpty()) {
        return Kind::NoMailServer; // something spoke, but it was no greeting
    }
    switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
        return Kind::NoSuchHost;
    case CURLE_COULDNT_CONNECT:
        return Kind::NoConnection;
    case CURLE_OPERATION_TIMEDOUT:
        return Kind::NoAnswer;
    case CURLE_USE_SSL_FAILED:
        return Kind::NoEncryption;
    case CURLE_SSL_CONNECT_ERROR:
        return Kind::EncryptionFailed;
    case CURLE_PEER_FAILED_VERIFICATION:
        return Kind::CertificateUntrusted;
    case CURLE_SSL_CACERT_BADFILE:
        return Kind::CertificateFileUnusable;
    case CURLE_LOGIN_DENIED:
        return talk.bLogin ? Kind::LoginRefused : Kind::LoginNotOffered;
    default:
        break;
    }
    if (IsRefusal(talk.answer)) {
        // Without a login many servers refuse what they would take from a user they know.
        const bool bLoginMissing = !server.strUser.isEmpty() && !talk.bLogin && talk.eStage >= Stage::Sender;
        return bLoginMissing ? Kind::LoginNotOffered : KindOfRefusal(talk);
    }
    if (code == CURLE_WEIRD_SERVER_REPLY) {
        return Kind::NoMailServer;
    }
    return code == CURLE_SEND_ERROR || code == CURLE_RECV_ERROR || code == CURLE_GOT_NOTHING
               ? Kind::ConnectionLost
               : Kind::Failed;
}

/// The library's own set-up, once for the process.
void PrepareLibrary()
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

QByteArray UrlOf(const SystemMailServer& server)
{
    const bool bTls = server.eEncryption == SystemMailEncryption::Tls;
    const QByteArray host = server.strServer.contains(QLatin1Char(':'))
                                ? '[' + server.strServer.toLatin1() + ']'
                                : QUrl::toAce(server.strServer);
    return (bTls ? "smtps://" : "smtp://") + host + ':' + QByteArray::number(server.iPort);
}

} // namespace

class MailTransfer::Private
{
public:
    explicit Private(const Job& toDo)
        : job(toDo)
    {
        PrepareLibrary();
        pMulti = curl_multi_init();
    }
    ~Private() { curl_multi_cleanup(pMulti); }
    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;

    bool MakeAddresses(MailOutcome& outcome);
    void SetUp(CURL* pEasy);
    CURLcode Perform(CURL* pEasy);

    const Job job;
    CURLM* pMulti = nullptr;
    std::atomic<bool> bCancelled{false};
    Talk talk;
    Upload upload;
    QByteArray sender;
    List recipients;
    char szError[CURL_ERROR_SIZE] = {};
};

bool MailTransfer::Private::MakeAddresses(MailOutcome& outcome)
{
    const auto wire = [&outcome](const QString& strAddress) {
        const QByteArray address = MailMessage::WireAddress(strAddress);
        if (address.isEmpty()) {
            outcome.eKind = MailOutcome::Kind::BadAddress;
            outcome.strRecipient = strAddress.simplified();
        }
        return '<' + address + '>';
    };
    sender = wire(job.message.strSender);
    for (const QString& strRecipient : job.message.recipients) {
        recipients.reset(curl_slist_append(recipients.release(), wire(strRecipient).constData()));
    }
    if (job.message.recipients.isEmpty()) {
        outcome.eKind = MailOutcome::Kind::BadAddress;
    }
    return outcome.eKind != MailOutcome::Kind::BadAddress;
}

void MailTransfer::Private::SetUp(CURL* pEasy)
{
    const SystemMailServer& server = job.server;
    curl_easy_setopt(pEasy, CURLOPT_URL, UrlOf(server).constData());
    // The settings name the server, and nothing around the program does.
    curl_easy_setopt(pEasy, CURLOPT_PROXY, "");
    curl_easy_setopt(pEasy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(pEasy, CURLOPT_TIMEOUT_MS, static_cast<long>(job.timeLimit.count()));
#if LIBCURL_VERSION_NUM >= 0x075700
    // A name server that does not answer must not hold up whoever has cancelled.
    curl_easy_setopt(pEasy, CURLOPT_QUICK_EXIT, 1L);
#endif
    curl_easy_setopt(pEasy, CURLOPT_USE_SSL,
                     static_cast<long>(server.eEncryption == SystemMailEncryption::None ? CURLUSESSL_NONE
                                                                                        : CURLUSESSL_ALL));
    if (!server.strCertificateFile.isEmpty()) {
        curl_easy_setopt(pEasy, CURLOPT_CAINFO, server.strCertificateFile.toLocal8Bit().constData());
    }
    if (!server.strUser.isEmpty()) {
        curl_easy_setopt(pEasy, CURLOPT_USERNAME, server.strUser.toUtf8().constData());
        curl_easy_setopt(pEasy, CURLOPT_PASSWORD, server.strPassword.toUtf8().constData());
    }
    curl_easy_setopt(pEasy, CURLOPT_MAIL_FROM, sender.constData());
    curl_easy_setopt(pEasy, CURLOPT_MAIL_RCPT, recipients.get());
    curl_easy_setopt(pEasy, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(pEasy, CURLOPT_READFUNCTION, &ReadUpload);
    curl_easy_setopt(pEasy, CURLOPT_READDATA, static_cast<void*>(&upload));
    curl_easy_setopt(pEasy, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(pEasy, CURLOPT_DEBUGFUNCTION, &FollowTalk);
    curl_easy_setopt(pEasy, CURLOPT_DEBUGDATA, static_cast<void*>(&talk));
    curl_easy_setopt(pEasy, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(pEasy, CURLOPT_XFERINFOFUNCTION, &StopWhenCancelled);
    curl_easy_setopt(pEasy, CURLOPT_XFERINFODATA, static_cast<void*>(&bCancelled));
    curl_easy_setopt(pEasy, CURLOPT_ERRORBUFFER, static_cast<char*>(szError));
}

CURLcode MailTransfer::Private::Perform(CURL* pEasy)
{
    CURLcode code = CURLE_FAILED_INIT;
    curl_multi_add_handle(pMulti, pEasy);
    int iRunning = 1;
    while (iRunning > 0) {
        if (curl_multi_perform(pMulti, &iRunning) != CURLM_OK) {
            break;
        }
        if (iRunning > 0 && curl_multi_poll(pMulti, nullptr, 0, LongestWait, nullptr) != CURLM_OK) {
            break;
        }
    }
    int iLeft = 0;
    if (const CURLMsg* pMessage = curl_multi_info_read(pMulti, &iLeft)) {
        code = pMessage->data.result;
    }
    curl_multi_remove_handle(pMulti, pEasy);
    return code;
}

MailTransfer::MailTransfer(const Job& job)
    : d(std::make_unique<Private>(job))
{
}

MailTransfer::~MailTransfer() = default;

void MailTransfer::Cancel()
{
    d->bCancelled = true;
    curl_multi_wakeup(d->pMulti);
}

MailOutcome MailTransfer::Run()
{
    MailOutcome outcome;
    if (d->bCancelled) {
        outcome.eKind = MailOutcome::Kind::Cancelled;
        return outcome;
    }
    if (!d->MakeAddresses(outcome)) {
        return outcome;
    }
    d->upload.bytes = d->job.message.ToBytes();
    const Easy easy(curl_easy_init());
    d->SetUp(easy.get());
    const CURLcode code = d->Perform(easy.get());
    if (d->bCancelled && code != CURLE_OK) {
        outcome.eKind = MailOutcome::Kind::Cancelled;
        outcome.strDetail = QStringLiteral("stopped");
        return outcome;
    }
    outcome.eKind = KindOf(code, d->talk, d->job.server);
    if (outcome.eKind == MailOutcome::Kind::RecipientRefused) {
        outcome.strRecipient = MailOutcome::CleanLine(d->talk.recipient);
    }
    if (IsRefusal(d->talk.answer) || outcome.eKind == MailOutcome::Kind::NoMailServer) {
        outcome.strServerText = MailOutcome::CleanLine(d->talk.answer);
    }
    const char* szError = static_cast<const char*>(d->szError);
    outcome.strDetail = MailOutcome::CleanLine(*szError != '\0' ? szError : curl_easy_strerror(code));
    return outcome;
}
