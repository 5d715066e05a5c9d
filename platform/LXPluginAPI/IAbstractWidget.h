#pragma once

#include "lxpluginapi_export.h"

#include <QIcon>
#include <QString>
#include <QVariant>

#include <string>

class QWidget;

namespace LXPluginAPI {

/// Describes one page that a module contributes and creates it on request. User-interface thread only.
/// The descriptor is owned by its module; the page, once handed out, by the host's widget tree.
class LXPLUGINAPI_EXPORT IAbstractWidget
{
public:
    virtual ~IAbstractWidget();                   // slot 0
    virtual std::string GetName() const = 0;      // slot 1: key of the page, unique within the module
    virtual QWidget* GetWidget() = 0;             // slot 2: the page, created on first use, may be null
    virtual QString GetTitle() const = 0;         // slot 3: translated title
    virtual QIcon GetIcon() const = 0;            // slot 4: icon, may be empty (see the paths below)
    virtual QString GetDescription() const = 0;   // slot 5: one translated line for the home page
    virtual QString GetIconPath() const = 0;      // slot 6: image of the tile, relative to "./Skin"'s parent
    virtual QString GetHoverIconPath() const = 0; // slot 7: image of the tile under the pointer
    virtual QString GetGroupTitle() const = 0;    // slot 8: translated group of the tile, empty for none
    virtual QIcon GetGroupIcon() const = 0;       // slot 9
    virtual QString GetTabTitle() const = 0;      // slot 10: translated text of the page's tab
    virtual QIcon GetTabIcon() const = 0;         // slot 11
    virtual QVariant GetExtra() const = 0;        // slot 12: free for agreements between host and module
    virtual bool IsWidgetCreated() const = 0;     // slot 13: true while the page exists
};

} // namespace LXPluginAPI
