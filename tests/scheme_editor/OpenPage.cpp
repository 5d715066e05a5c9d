#include "tests/scheme_editor/OpenPage.h"

#include "scheme_editor/ACSEventCopyToPopup.h"
#include "scheme_editor/ACSEventSchemeEditor.h"

#include <QCoreApplication>
#include <QEvent>

OpenPage::OpenPage(const LXPluginAPI::ManagerList* pManagers)
    : m_page(std::make_unique<ACSEventSchemeEditor>(nullptr))
    , hands(*m_page)
    , byName(*m_page)
{
    m_page->Init(pManagers);
    m_page->show();
}

OpenPage::~OpenPage() = default;

const AlarmInfoMap& OpenPage::Schemes() const
{
    return m_page->GetAlarmInfoMap();
}

AlarmInfo OpenPage::Scheme(const QString& strSource, int32_t iType) const
{
    return Schemes().value({strSource, iType});
}

bool OpenPage::Holds(const QString& strSource, int32_t iType) const
{
    return Schemes().contains({strSource, iType});
}

void OpenPage::Close()
{
    m_page.reset();
}

QPointer<ACSEventCopyToPopup> OpenPage::OpenPopup() const
{
    if (!PageHands::Click(hands.Widget("btnCopyTo")))
        return nullptr;
    return m_page->findChild<ACSEventCopyToPopup*>();
}

bool OpenPage::CopyTo(const QList<QString>& keys) const
{
    const QPointer<ACSEventCopyToPopup> pPopup = OpenPopup();
    if (pPopup.isNull())
        return false;
    Q_EMIT pPopup->SignalCopyTo(keys);
    pPopup->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return pPopup.isNull();
}
