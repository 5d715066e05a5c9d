#pragma once

#include <QAccessible>
#include <QStringList>
#include <QWidget>

/// What assistive technology finds below a widget, and what it cannot make sense of.
namespace AccessibleWalk {

inline bool IsControl(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ButtonMenu:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::List:
    case QAccessible::Tree:
    case QAccessible::Table:
    case QAccessible::PageTab:
    case QAccessible::PageTabList:
    case QAccessible::Chart:
    case QAccessible::ProgressBar:
    case QAccessible::MenuItem:
    case QAccessible::Dialog:
        return true;
    default:
        return false;
    }
}

inline QString Describe(const QAccessibleInterface& item)
{
    const QObject* const pObject = item.object();
    return QStringLiteral("role %1, %2 \"%3\"")
        .arg(QString::number(int(item.role())),
             pObject == nullptr ? QStringLiteral("an item")
                                : QString(QLatin1String(pObject->metaObject()->className())),
             pObject == nullptr ? QString() : pObject->objectName());
}

/// Appends a line for every control without a name, and for every widget that takes the focus without being
/// any kind of control. Counts the controls.
inline void Walk(QAccessibleInterface* pItem, QStringList& complaints, int& iControls)
{
    if (pItem == nullptr || !pItem->isValid()) {
        return;
    }
    const auto* const pWidget = qobject_cast<const QWidget*>(pItem->object());
    const bool bHidden = pWidget != nullptr && pWidget->isHidden() && !pWidget->inherits("QMenu");
    if (bHidden) {
        return;
    }
    const bool bSeparator = pItem->role() == QAccessible::Separator;
    if (IsControl(pItem->role()) && !bSeparator) {
        ++iControls;
        if (pItem->text(QAccessible::Name).trimmed().isEmpty()) {
            complaints.append(QStringLiteral("no name: ") + Describe(*pItem));
        }
    } else if (pWidget != nullptr && (pWidget->focusPolicy() & Qt::TabFocus) != 0 && pWidget->isEnabled() &&
               pWidget->focusProxy() == nullptr && pItem->role() != QAccessible::MenuBar &&
               pItem->role() != QAccessible::StaticText) {
        complaints.append(QStringLiteral("no role: ") + Describe(*pItem));
    }
    if (pItem->role() == QAccessible::ComboBox) {
        return; // its list is the toolkit's own, and named by the box
    }
    for (int i = 0; i < pItem->childCount(); ++i) {
        Walk(pItem->child(i), complaints, iControls);
    }
}

/// The complaints about a window; `iAtLeast` controls have to be found, so that an empty tree does not pass.
inline QStringList Complaints(QWidget& widget, int iAtLeast)
{
    QStringList complaints;
    int iControls = 0;
    Walk(QAccessible::queryAccessibleInterface(&widget), complaints, iControls);
    if (iControls < iAtLeast) {
        complaints.append(QStringLiteral("only %1 controls").arg(iControls));
    }
    return complaints;
}

} // namespace AccessibleWalk
