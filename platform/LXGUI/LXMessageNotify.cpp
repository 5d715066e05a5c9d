#include "platform/LXGUI/LXMessageNotify.h"

#include "platform/LXGUI/LXMessageNotePanel.h"

#include <QEvent>
#include <QPointer>
#include <QStatusBar>
#include <QVector>
#include <QWidget>

#include <algorithm>

namespace LXGUI {
namespace {

constexpr int MostNotes = 4;
constexpr int NoteWidth = 320;
constexpr int NarrowestNote = 120;
constexpr int Margin = 16;
constexpr int PageBar = 48; // what a page keeps at its foot for its buttons stays free
constexpr int Gap = 8;

} // namespace

class LXMessageNotify::Private
{
public:
    void Show(const QString& strText, Level level);
    void Arrange() const;
    void ClearPanels();
    QVector<LXMessageNotePanel*> Staying() const;

    QPointer<QWidget> pAnchor;
    QString strLast;
    // Oldest first; they belong to the anchor and may go with it.
    QVector<QPointer<LXMessageNotePanel>> panels;

private:
    void MakeRoom() const;
};

QVector<LXMessageNotePanel*> LXMessageNotify::Private::Staying() const
{
    QVector<LXMessageNotePanel*> staying;
    for (const QPointer<LXMessageNotePanel>& pPanel : qAsConst(panels)) {
        if (pPanel && !pPanel->IsLeaving()) {
            staying.append(pPanel.data());
        }
    }
    return staying;
}

void LXMessageNotify::Private::MakeRoom() const
{
    QVector<LXMessageNotePanel*> staying = Staying();
    while (staying.size() >= MostNotes) {
        auto it = std::find_if(staying.begin(), staying.end(),
                               [](const LXMessageNotePanel* pPanel) { return pPanel->Level() != Error; });
        if (it == staying.end()) {
            it = staying.begin();
        }
        (*it)->Leave();
        staying.erase(it);
    }
}

void LXMessageNotify::Private::Show(const QString& strText, Level level)
{
    panels.erase(std::remove_if(panels.begin(), panels.end(),
                                [](const QPointer<LXMessageNotePanel>& pPanel) { return pPanel.isNull(); }),
                 panels.end());
    // A note that says the same again replaces its elder, so that a repeated mistake does not fill the
    // corner.
    const QVector<LXMessageNotePanel*> staying = Staying();
    for (LXMessageNotePanel* pPanel : staying) {
        if (pPanel->Text() == strText && pPanel->Level() == level) {
            pPanel->Leave();
        }
    }
    MakeRoom();
    auto* pPanel = new LXMessageNotePanel(strText, level, pAnchor.data());
    panels.append(pPanel);
    Arrange();
    pPanel->show();
    pPanel->raise();
}

void LXMessageNotify::Private::Arrange() const
{
    if (!pAnchor) {
        return;
    }
    const auto* pStatus = pAnchor->findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly);
    int iBottom =
        pAnchor->height() - Margin - PageBar - (pStatus && !pStatus->isHidden() ? pStatus->height() : 0);
    const int iWidth = std::max(NarrowestNote, std::min(NoteWidth, pAnchor->width() - 2 * Margin));
    const QVector<LXMessageNotePanel*> staying = Staying();
    for (auto it = staying.crbegin(); it != staying.crend(); ++it) {
        (*it)->FitWidth(iWidth);
        iBottom -= (*it)->height();
        (*it)->move(pAnchor->width() - Margin - iWidth, iBottom);
        iBottom -= Gap;
    }
}

void LXMessageNotify::Private::ClearPanels()
{
    for (const QPointer<LXMessageNotePanel>& pPanel : qAsConst(panels)) {
        delete pPanel.data();
    }
    panels.clear();
}

LXMessageNotify::LXMessageNotify()
    : d(std::make_unique<Private>())
{
}

LXMessageNotify::~LXMessageNotify() = default;

void LXMessageNotify::AddTextNotification(const QString& strText)
{
    AddTextNotification(strText, Information);
}

void LXMessageNotify::AddTextNotification(const QString& strText, Level level)
{
    if (strText.isEmpty()) {
        return;
    }
    d->strLast = strText;
    if (d->pAnchor) {
        d->Show(strText, level);
        connect(d->panels.last().data(), &LXMessageNotePanel::SignalLeaving, this, [this] { d->Arrange(); });
    }
    Q_EMIT SignalNotificationAdded(strText, level);
}

void LXMessageNotify::SetAnchor(QWidget* pWindow)
{
    if (d->pAnchor == pWindow) {
        return;
    }
    d->ClearPanels();
    if (d->pAnchor) {
        d->pAnchor->removeEventFilter(this);
    }
    d->pAnchor = pWindow;
    if (pWindow) {
        pWindow->installEventFilter(this);
    }
}

QString LXMessageNotify::GetLastText() const
{
    return d->strLast;
}

QStringList LXMessageNotify::GetVisibleTexts() const
{
    QStringList texts;
    const QVector<LXMessageNotePanel*> staying = d->Staying();
    for (const LXMessageNotePanel* pPanel : staying) {
        texts.append(pPanel->Text());
    }
    return texts;
}

void LXMessageNotify::Withdraw(const QString& strText)
{
    const QVector<LXMessageNotePanel*> staying = d->Staying();
    for (LXMessageNotePanel* pPanel : staying) {
        if (pPanel->Text() == strText) {
            pPanel->Leave();
        }
    }
}

void LXMessageNotify::Clear()
{
    d->ClearPanels();
    d->strLast.clear();
}

bool LXMessageNotify::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->pAnchor && (event->type() == QEvent::Resize || event->type() == QEvent::Show)) {
        d->Arrange();
    }
    return QObject::eventFilter(watched, event);
}

template <>
LXMessageNotify* LXSingleton<LXMessageNotify>::Instance()
{
    static LXMessageNotify instance;
    return &instance;
}

} // namespace LXGUI
