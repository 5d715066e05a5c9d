#include "client/PageStatus.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QVariant>
#include <QWidget>

namespace {

const char* const EditedSchemeProperty = "editedScheme";
const char* const SaveSlot = "OnSave()";

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
        const QMetaObject* pMeta = m_page->metaObject();
        const int iProperty = pMeta->indexOfProperty(EditedSchemeProperty);
        if (iProperty >= 0 && pMeta->property(iProperty).hasNotifySignal()) {
            QMetaObject::connect(m_page, pMeta->property(iProperty).notifySignalIndex(), this,
                                 metaObject()->indexOfSlot("OnEditedSchemeChanged()"));
        }
    }
    Q_EMIT SignalChanged();
}

QString PageStatus::Text() const
{
    return m_page ? m_page->property(EditedSchemeProperty).toString() : QString();
}

bool PageStatus::CanSave() const
{
    return CanSave(m_page);
}

bool PageStatus::CanSave(const QWidget* pPage)
{
    return pPage != nullptr && pPage->metaObject()->indexOfSlot(SaveSlot) >= 0;
}

bool PageStatus::Save()
{
    return CanSave() && QMetaObject::invokeMethod(m_page, "OnSave", Qt::DirectConnection);
}

void PageStatus::OnEditedSchemeChanged()
{
    Q_EMIT SignalChanged();
}
