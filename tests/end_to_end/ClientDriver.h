#pragma once

#include "client/ClientApplication.h"

#include <QObject>

#include <functional>
#include <memory>

class QAbstractButton;
class QTreeView;

/// A person at the client: starts it, clicks and types on the real widgets, which are found by their object
/// names, and ends it. Operations answer false when the widget is not there or cannot be used.
class ClientDriver : public QObject
{
    Q_OBJECT

public:
    explicit ClientDriver(const QString& strDataDirectory, UserRole role = UserRole::Administrator);
    ~ClientDriver() override;

    void UseSiteFile(const QString& strPath);     ///< in place of the one in the data directory
    void UseLanguage(const QString& strLanguage); ///< in place of English
    bool Start();                                 ///< without opening a page
    bool OpenByTile();                            ///< clicks the tile of the event page
    void End();

    bool ClickNode(qint64 iId, int iKind);   ///< unfolds what hides the node and clicks its row
    bool ClickEvent(const QString& strName); ///< an entry of the list that is shown
    bool ClickButton(const char* szName);
    bool IsSwitchedOn(const char* szName) const;
    bool HasMark(const QString& strEvent) const; ///< whether the entry of an event shows its mark

    QWidget* Page() const;
    QTreeView* Tree() const; ///< the page's own, not that of a tab or popup
    QString StatusText() const;
    static QString LastNote();
    ClientApplication& Client() { return *m_client; }
    void WaitForSaves() const; ///< returns when nothing is being saved
    QString DatabasePath() const;

    /// Calls `act` with the next modal dialogs, one call for each; more than these stay unanswered.
    void AnswerDialogs(std::initializer_list<std::function<void(QWidget*)>> answers);
    int AnsweredDialogs() const { return m_iAnswered; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractButton* EventItem(const QString& strName) const;

    ClientOptions m_options;
    std::unique_ptr<ClientApplication> m_client;
    QList<std::function<void(QWidget*)>> m_answers;
    int m_iAnswered = 0;
};
