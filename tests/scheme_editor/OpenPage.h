#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "platform/LXPluginAPI/IManager.h"
#include "tests/scheme_editor/PageByName.h"
#include "tests/scheme_editor/PageHands.h"

#include <QList>
#include <QPointer>
#include <QString>

#include <cstdint>
#include <memory>

class ACSEventCopyToPopup;
class ACSEventSchemeEditor;

/// A page over the services that are offered at the moment, shown at its own size, and a person before it.
class OpenPage
{
public:
    explicit OpenPage(const LXPluginAPI::ManagerList* pManagers);
    ~OpenPage();
    OpenPage(const OpenPage&) = delete;
    OpenPage& operator=(const OpenPage&) = delete;

    ACSEventSchemeEditor& Page() const { return *m_page; }
    const AlarmInfoMap& Schemes() const;
    AlarmInfo Scheme(const QString& strSource, int32_t iType) const; ///< a fresh record when there is none
    bool Holds(const QString& strSource, int32_t iType) const;
    void Close(); ///< destroys the page
    /// What "Copy to" opens, nothing when it opens none.
    QPointer<ACSEventCopyToPopup> OpenPopup() const;
    /// Copies to the keys as a confirmed popup does, and closes it.
    bool CopyTo(const QList<QString>& keys) const;

private:
    std::unique_ptr<ACSEventSchemeEditor> m_page;

public:
    PageHands hands;
    PageByName byName;
};
