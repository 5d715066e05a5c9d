#include "client/PageTabs.h"

#include <QEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QVariant>

namespace {

const char* const KeyProperty = "clientModuleKey";
const char* const TitleProperty = "clientTabTitle";

} // namespace

PageTabs::PageTabs(QTabWidget& tabs, QWidget& home, QObject* parent)
    : QObject(parent)
    , m_tabs(tabs)
    , m_home(home)
{
    m_tabs.addTab(&m_home, tr("Home"));
    m_tabs.setAccessibleName(tr("Pages"));
    m_tabs.tabBar()->setAccessibleName(tr("Pages"));
    for (const QTabBar::ButtonPosition side : {QTabBar::LeftSide, QTabBar::RightSide}) {
        m_tabs.tabBar()->setTabButton(0, side, nullptr);
    }
    connect(&m_tabs, &QTabWidget::currentChanged, this, &PageTabs::SignalCurrentChanged);
}

PageTabs::~PageTabs()
{
    // Tabs that go one by one with the widget tree would still announce themselves.
    m_tabs.disconnect(this);
}

void PageTabs::Show(QWidget* pPage, const QString& strKey, const QString& strTitle)
{
    const bool bNew = !pPage->property(KeyProperty).isValid();
    if (IndexOf(pPage) < 0) {
        pPage->setProperty(KeyProperty, strKey);
        pPage->setProperty(TitleProperty, strTitle);
        const int iTab = m_tabs.addTab(pPage, QString());
        for (const QTabBar::ButtonPosition side : {QTabBar::LeftSide, QTabBar::RightSide}) {
            if (QWidget* const pClose = m_tabs.tabBar()->tabButton(iTab, side)) {
                pClose->setAccessibleName(tr("Close %1").arg(strTitle));
            }
        }
        Mark(pPage);
    }
    if (bNew) {
        pPage->installEventFilter(this);
        Q_EMIT SignalAdded(pPage);
    }
    m_tabs.setCurrentWidget(pPage);
}

void PageTabs::Hide(QWidget* pPage)
{
    const int iTab = IndexOf(pPage);
    if (iTab >= 0) {
        m_tabs.removeTab(iTab);
        pPage->hide();
    }
}

void PageTabs::Discard(QWidget* pPage)
{
    const QPointer<QWidget> page(pPage);
    Q_EMIT SignalDiscarding(pPage);
    if (page) {
        Hide(page);
        delete page.data();
    }
}

void PageTabs::DestroyAll()
{
    m_tabs.disconnect(this);
    const QList<QPointer<QWidget>> pages = All();
    for (const QPointer<QWidget>& page : pages) {
        if (page) {
            page->removeEventFilter(this);
            Hide(page);
            delete page.data();
        }
    }
}

void PageTabs::Move(QWidget* pPage, int iTab)
{
    m_tabs.tabBar()->moveTab(IndexOf(pPage), iTab);
}

QWidget* PageTabs::Current() const
{
    return At(m_tabs.currentIndex());
}

QWidget* PageTabs::At(int iTab) const
{
    QWidget* const pPage = m_tabs.widget(iTab);
    return pPage == &m_home ? nullptr : pPage;
}

QList<QPointer<QWidget>> PageTabs::Open() const
{
    QList<QPointer<QWidget>> pages;
    for (int i = 0; i < m_tabs.count(); ++i) {
        if (QWidget* const pPage = At(i)) {
            pages.append(pPage);
        }
    }
    return pages;
}

QList<QPointer<QWidget>> PageTabs::All() const
{
    const QList<QWidget*> candidates = m_tabs.findChildren<QWidget*>();
    QList<QPointer<QWidget>> pages;
    for (QWidget* const pCandidate : candidates) {
        if (pCandidate->property(KeyProperty).isValid()) {
            pages.append(pCandidate);
        }
    }
    return pages;
}

QList<QPointer<QWidget>> PageTabs::Modified() const
{
    QList<QPointer<QWidget>> pages;
    const QList<QPointer<QWidget>> all = All();
    for (const QPointer<QWidget>& page : all) {
        if (page->isWindowModified()) {
            pages.append(page);
        }
    }
    return pages;
}

QString PageTabs::Key(const QWidget* pPage)
{
    return pPage == nullptr ? QString() : pPage->property(KeyProperty).toString();
}

QString PageTabs::Title(const QWidget* pPage)
{
    return pPage == nullptr ? QString() : pPage->property(TitleProperty).toString();
}

int PageTabs::IndexOf(QWidget* pPage) const
{
    return m_tabs.indexOf(pPage);
}

bool PageTabs::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ModifiedChange) {
        auto* const pPage = static_cast<QWidget*>(watched);
        Mark(pPage);
        Q_EMIT SignalModifiedChanged(pPage);
    }
    return QObject::eventFilter(watched, event);
}

void PageTabs::Mark(QWidget* pPage)
{
    const int iTab = IndexOf(pPage);
    if (iTab < 0) {
        return;
    }
    const QString strTitle = Title(pPage);
    QString strText = strTitle;
    strText.replace(QLatin1Char('&'), QLatin1String("&&"));
    const bool bModified = pPage->isWindowModified();
    m_tabs.setTabText(iTab, bModified ? tr("\u25cf %1", "a tab with unsaved changes").arg(strText) : strText);
    m_tabs.setTabToolTip(iTab, bModified ? tr("Changes are not saved") : QString());
#if !defined(QT_NO_ACCESSIBILITY)
    m_tabs.tabBar()->setAccessibleTabName(iTab, bModified ? tr("%1, not saved").arg(strTitle) : QString());
#endif
}
