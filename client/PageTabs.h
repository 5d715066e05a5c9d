#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

class QTabWidget;
class QWidget;

/// The modules' pages in the tabs beside the home page. A page whose tab is closed stays in the window's
/// widget tree, with everything it holds, until it is destroyed. A page that says, by Qt's window-modified
/// state, that it holds unsaved edits carries a mark in its tab.
class PageTabs : public QObject
{
    Q_OBJECT

public:
    /// The tabs must outlive this object; the home page becomes their first.
    PageTabs(QTabWidget& tabs, QWidget& home, QObject* parent = nullptr);
    ~PageTabs() override;

    /// Gives the page a tab, unless it has one, and brings it to the front.
    void Show(QWidget* pPage, const QString& strKey, const QString& strTitle);
    void Hide(QWidget* pPage); ///< takes the tab away; the page stays
    /// Destroys the page together with what it has not saved.
    void Discard(QWidget* pPage);
    void DestroyAll(); ///< without a word about what is unsaved
    void Move(QWidget* pPage, int iTab);

    QWidget* Current() const;                   ///< null while the home page is in front
    QWidget* At(int iTab) const;                ///< null for the home page and where there is no tab
    QList<QPointer<QWidget>> Open() const;      ///< in the order of the tabs
    QList<QPointer<QWidget>> All() const;       ///< those without a tab too
    QList<QPointer<QWidget>> Modified() const;  ///< those of All() with unsaved edits
    static QString Key(const QWidget* pPage);   ///< of the module; empty for strangers
    static QString Title(const QWidget* pPage); ///< as the tab names it
    int IndexOf(QWidget* pPage) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void SignalCurrentChanged();
    void SignalAdded(QWidget* pPage); ///< a page that was not in the window before
    void SignalModifiedChanged(QWidget* pPage);
    void SignalDiscarding(QWidget* pPage); ///< the page still stands

private:
    void Mark(QWidget* pPage);

    QTabWidget& m_tabs;
    QWidget& m_home;
};
