#include "client/SaveIndicator.h"

#include "client/store/AlarmSchemeStoreBackend.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace {

constexpr int BarWidth = 120;
constexpr int BarHeight = 12;

} // namespace

SaveIndicator::SaveIndicator(QWidget* parent)
    : QWidget(parent)
    , m_pText(new QLabel(tr("Saving…"), this))
    , m_pBar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("wndSaveIndicator"));
    m_pBar->setObjectName(QStringLiteral("barSaved"));
    m_pBar->setFixedSize(BarWidth, BarHeight);
    m_pBar->setTextVisible(false);
    m_pBar->setAccessibleName(tr("Schemes saved"));
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pText);
    pLayout->addWidget(m_pBar);
    connect(&m_timer, &QTimer::timeout, this, &SaveIndicator::OnLook);
    hide();
}

SaveIndicator::~SaveIndicator() = default;

void SaveIndicator::Follow(AlarmSchemeStoreBackend* pStore)
{
    m_store = pStore;
    connect(pStore, &AlarmSchemeStoreBackend::SignalSavingChanged, this, &SaveIndicator::OnSavingChanged);
    OnSavingChanged(pStore->IsSaving());
}

void SaveIndicator::OnSavingChanged(bool bSaving)
{
    if (bSaving) {
        m_timer.start(Patience);
    } else {
        m_timer.stop();
        hide();
    }
}

void SaveIndicator::OnLook()
{
    if (m_store.isNull() || !m_store->IsSaving()) {
        OnSavingChanged(false);
        return;
    }
    m_timer.setInterval(Interval);
    // A maximum of 0 is a bar that only moves.
    m_pBar->setMaximum(m_store->SchemesToWrite());
    m_pBar->setValue(m_store->SchemesWritten());
    show();
}
