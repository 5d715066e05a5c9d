#pragma once

#include "lxgui_export.h"

#include <QColor>
#include <QHash>
#include <QPalette>
#include <QString>

namespace LXGUI {

/// The colours of the look by name ("window", "panel", "raised", "input", "lineDark", "lineLight", "text",
/// "dim", "disabled", "accent", "onAccent", "accentHover", "accentPressed", "warning", "danger", "focus",
/// "selection"),
/// read from "./Skin/theme1/colours-<theme>.json". A colour that the file lacks takes its dark default, so
/// that a missing skin costs the look and nothing else. User-interface thread only.
class LXGUI_EXPORT Theme
{
public:
    static const Theme& Current();
    /// Reads another theme: "dark" or "light". False when its file is missing or broken; the defaults then
    /// hold.
    static bool Load(const QString& strName);

    QColor Colour(const QString& strName) const;
    QString Name() const;
    QPalette Palette() const;
    /// Style sheet text in which every "@name" is replaced by that colour; unknown names are left as they
    /// are.
    QString Resolve(const QString& strStyleSheet) const;

private:
    Theme();
    static Theme& Shared();
    static QString PathOf(const QString& strName);
    QString m_strName;
    QHash<QString, QColor> m_colours;
};

} // namespace LXGUI
