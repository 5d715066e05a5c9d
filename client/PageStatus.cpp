#include "client/PageStatus.h"

#include "client/PageAccess.h"

#include <QWidget>

namespace {

const char* const EditedSchemeProperty = "editedScheme";
const char* const EnabledSchemesProperty = "enabledSchemes";

} // namespace

PageStatus::PageStatus(QObject* parent)
    : QObject(parent)
{
}

PageStatus::~PageStatus() = default;

void PageStatus::SetPage(QWidget* pPage)
{
    if (m_page == pPage && pPage != nullptr) {
        return;
    }
    if (m_page) {
        m_page->disconnect(this);
    }
    m_page = pPage;
    if (m_page) {
        PageAccess::Follow(m_page, EditedSchemeProperty, this, "OnChanged()");
        PageAccess::Follow(m_page, EnabledSchemesProperty, this, "OnChanged()");
    }
    Q_EMIT SignalChanged();
}

QString PageStatus::Text() const
{
    return PageAccess::TextProperty(m_page, EditedSchemeProperty);
}

int PageStatus::EnabledSchemes() const
{
    return PageAccess::IntProperty(m_page, EnabledSchemesProperty, -1);
}

bool PageStatus::CanSave() const
{
    return PageAccess::CanSave(m_page);
}

bool PageStatus::Save()
{
    return PageAccess::Save(m_page);
}

void PageStatus::OnChanged()
{
    Q_EMIT SignalChanged();
}
