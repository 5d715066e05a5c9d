#include "AlarmCtrl/QAlarmDayEditor.h"

#include "AlarmCtrl/DayBarPicture.h"
#include "AlarmCtrl/QAlarmDayDetailEditor.h"
#include "ui_QAlarmDayEditor.h"

#include <QCursor>
#include <QEvent>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScopeGuard>
#include <QStyle>
#include <QToolTip>

namespace {

constexpr int CursorSize = 18;
constexpr qreal DisabledOpacity = 0.4; // what cannot be edited steps back behind what can

QString CursorFile(bool bErase)
{
    return bErase ? QStringLiteral("./Skin/theme1/AlarmCtrl/CleanTime.png")
                  : QStringLiteral("./Skin/theme1/AlarmCtrl/DrawTime.png");
}

} // namespace

QAlarmDayEditor::QAlarmDayEditor(QWidget* parent)
    : QWidget(parent)
    , m_pUi(std::make_unique<Ui::QAlarmDayEditor>())
    , m_regionColour(QStringLiteral("#3AAA24"))
    , m_gridColour(QStringLiteral("#DDDDDD"))
{
    m_pUi->setupUi(this);
    m_pDisplay = m_pUi->wndDisplay;
    m_pDisplay->installEventFilter(this);
    qRegisterMetaType<AlarmDefenceTime_t>("AlarmDefenceTime_t");
    qRegisterMetaType<QAlarmDayEditor*>("QAlarmDayEditor*");
    ShowAccessibleNames();
    connect(m_pUi->btnDetail, &QPushButton::clicked, this, &QAlarmDayEditor::OnDetail);
    connect(this, &QAlarmDayEditor::SignalInternalShowTip, this, &QAlarmDayEditor::OnShowTip,
            Qt::QueuedConnection);
}

QAlarmDayEditor::~QAlarmDayEditor() = default;

void QAlarmDayEditor::SetDefenceTime(const AlarmDefenceTime_t& regions)
{
    m_regions = regions;
    UpdateDisplay();
}

void QAlarmDayEditor::GetDefenceTime(AlarmDefenceTime_t& regions) const
{
    regions = m_regions;
}

void QAlarmDayEditor::SetEditSource(QAlarmDayEditor* pSource)
{
    if (pSource == this) {
        m_pEditSource = nullptr;
        return;
    }
    m_pEditSource = pSource;
    UpdateDisplay();
}

bool QAlarmDayEditor::CheckEdit()
{
    return MergeEdit(true);
}

void QAlarmDayEditor::ApplyEdit()
{
    MergeEdit(false);
    UpdateDisplay();
}

void QAlarmDayEditor::UpdateDisplay()
{
    m_pDisplay->update();
}

void QAlarmDayEditor::SetDayName(const QString& strDay)
{
    m_strDayName = strDay;
    ShowAccessibleNames();
}

void QAlarmDayEditor::OnDetail()
{
    // Both can go while the dialog runs: the page may be closed under it.
    const QPointer<QAlarmDayEditor> pSelf(this);
    const QPointer<QAlarmDayDetailEditor> pDialog(new QAlarmDayDetailEditor(this));
    pDialog->SetRegions(m_regions);
    const int iOwnDay = DefenceTime::DayBitOfName(objectName());
    pDialog->SetTitle(tr("Time Editor"));
    pDialog->SetDayMask(iOwnDay);
    const int iResult = pDialog->exec();
    const auto cleanup = qScopeGuard([pDialog] { delete pDialog.data(); });
    if (!pSelf || !pDialog || iResult != QDialog::Accepted) {
        return;
    }

    const int iDays = pDialog->GetDayMask();
    if ((iDays & iOwnDay) != 0) {
        pDialog->GetRegions(m_regions);
        UpdateDisplay();
        if (iDays != iOwnDay) {
            Q_EMIT SignalCopySettingToOthers(iDays & ~iOwnDay, m_regions);
        }
    } else if (iDays != 0) {
        AlarmDefenceTime_t regions;
        pDialog->GetRegions(regions);
        Q_EMIT SignalCopySettingToOthers(iDays, regions);
    }
}

// The slots that a signal calls by value take values, so that their signatures read alike.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void QAlarmDayEditor::OnShowTip(QPoint position, QString strText)
{
    QToolTip::showText(position, strText);
}

bool QAlarmDayEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_pDisplay) {
        return QWidget::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::Polish:
        // Taking the event keeps the display from asking its style for a background, so this does it instead.
        m_pDisplay->style()->polish(m_pDisplay);
        m_pDisplay->setAttribute(Qt::WA_WState_Polished);
        break;
    case QEvent::Paint:
        PaintDisplay();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // the second press of a quick pair
        OnDisplayPress(*static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        OnDisplayRelease(*static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseMove:
        OnDisplayMove(*static_cast<QMouseEvent*>(event));
        break;
    default:
        break;
    }
    return true;
}

void QAlarmDayEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_pUi->retranslateUi(this);
        ShowAccessibleNames();
    }
}

void QAlarmDayEditor::PaintDisplay()
{
    const QAlarmDayEditor& source = DragSource();
    DayBarPicture::Content content{m_regions, {}, m_regionColour, m_gridColour};
    if (source.m_bPressed) {
        content.drag = source.m_drag;
    }
    const qreal dRatio = m_pDisplay->devicePixelRatioF();
    QImage image = DayBarPicture::Draw(m_pDisplay->size(), dRatio, content);
    // Every pixel is opaque or fully transparent, for which both formats have the same bits; this one
    // is copied faster.
    image.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(m_pDisplay);
    if (!m_pDisplay->isEnabled()) {
        painter.setOpacity(DisabledOpacity);
    }
    // In device pixels, so that the picture is copied and not scaled again at a fractional ratio.
    painter.scale(1 / dRatio, 1 / dRatio);
    painter.drawImage(QRectF(QPointF(0, 0), image.size()), image, QRectF(QPointF(0, 0), image.size()));
}

void QAlarmDayEditor::OnDisplayPress(const QMouseEvent& event)
{
    if (!m_pDisplay->isEnabled() || event.button() != Qt::LeftButton) {
        return;
    }
    m_bPressed = true;
    m_drag.iPress = m_drag.iCurrent = SecondsAt(event);
    UpdateDisplay();
    Q_EMIT SignalEditStart(this);
}

void QAlarmDayEditor::OnDisplayRelease(const QMouseEvent& event)
{
    if (!m_pDisplay->isEnabled() || event.button() != Qt::LeftButton) {
        return;
    }
    m_bPressed = false;
    m_drag.iCurrent = SecondsAt(event);
    Q_EMIT SignalEditReady(this);
    UpdateDisplay();
    m_drag.bErase = false;
    SetDisplayCursor(false);
}

void QAlarmDayEditor::OnDisplayMove(const QMouseEvent& event)
{
    if (!m_pDisplay->isEnabled()) {
        return;
    }
    if (!m_bPressed) {
        Hover(SecondsAt(event));
    } else if ((event.buttons() & Qt::LeftButton) != 0) {
        m_drag.iCurrent = SecondsAt(event);
        UpdateDisplay();
        Q_EMIT SignalEditing(this);
    }
}

void QAlarmDayEditor::Hover(int32_t iSeconds)
{
    m_drag.bErase = DefenceTime::IsOnRegion(m_regions, iSeconds);
    SetDisplayCursor(m_drag.bErase);
}

int32_t QAlarmDayEditor::SecondsAt(const QMouseEvent& event) const
{
    return DefenceTime::PixelToSecs(event.pos().x(), m_pDisplay->width());
}

void QAlarmDayEditor::SetDisplayCursor(bool bErase)
{
    // Read as an image: a pixmap of a file may come from the cache, and a skin may change under us.
    const QImage picture(CursorFile(bErase));
    if (!picture.isNull()) {
        const QPixmap pointer = QPixmap::fromImage(picture.copy(0, 0, CursorSize, CursorSize));
        m_pDisplay->setCursor(QCursor(pointer, 0, CursorSize));
    }
}

bool QAlarmDayEditor::MergeEdit(bool bCheckOnly)
{
    const DefenceTime::Drag& drag = DragSource().m_drag;
    const DefenceTime::MergeResult result = DefenceTime::Merge(m_regions, drag);
    if (result.status == DefenceTime::MergeStatus::TooManyRegions) {
        const int x = DefenceTime::SecsToPixel(drag.iCurrent, m_pDisplay->width());
        Q_EMIT SignalInternalShowTip(m_pDisplay->mapToGlobal(QPoint(x, 0)), tr("6 regions at most."));
    }
    if (result.Succeeded() && !bCheckOnly) {
        m_regions = result.regions;
    }
    return result.Succeeded();
}

void QAlarmDayEditor::ShowAccessibleNames()
{
    m_pDisplay->setAccessibleName(m_strDayName);
    m_pUi->btnDetail->setAccessibleName(m_strDayName.isEmpty() ? tr("Details")
                                                               : tr("Details for %1").arg(m_strDayName));
}
