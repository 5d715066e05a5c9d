#pragma once

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QLabel>
#include <QStringList>
#include <QWidget>

/// Looks for texts of labels and buttons that have less room than they need.
namespace CutText {

/// What lies in a scroll area may be out of sight for a while.
inline bool IsScrolled(const QWidget* pWidget, const QWidget* pTop)
{
    for (const QWidget* p = pWidget->parentWidget(); p != nullptr && p != pTop; p = p->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea*>(p) != nullptr) {
            return true;
        }
    }
    return false;
}

/// One line for each visible widget that is cut or pushed out of sight; `top` is shown and laid out.
inline QStringList Complaints(const QWidget& top)
{
    QStringList complaints;
    const QList<QWidget*> widgets = top.findChildren<QWidget*>();
    for (const QWidget* const pWidget : widgets) {
        if (!pWidget->isVisible() || pWidget->window() != top.window() || IsScrolled(pWidget, &top)) {
            continue;
        }
        const auto complain = [&](const QString& strWhat) {
            complaints +=
                QStringLiteral("%1 %2: %3")
                    .arg(QLatin1String(pWidget->metaObject()->className()), pWidget->objectName(), strWhat);
        };
        const QRect place(pWidget->mapTo(&top, QPoint(0, 0)), pWidget->size());
        if (!top.rect().contains(place)) {
            complain(QStringLiteral("out of sight"));
        }
        const auto* const pLabel = qobject_cast<const QLabel*>(pWidget);
        const auto* const pButton = qobject_cast<const QAbstractButton*>(pWidget);
        if (pLabel == nullptr && (pButton == nullptr || pButton->text().isEmpty())) {
            continue;
        }
        if (pWidget->width() < pWidget->minimumSizeHint().width()) {
            complain(QStringLiteral("%1 of %2 pixels wide")
                         .arg(pWidget->width())
                         .arg(pWidget->minimumSizeHint().width()));
        }
        const bool bWrapped = pLabel != nullptr && pLabel->wordWrap();
        const int iHeight =
            bWrapped ? pWidget->heightForWidth(pWidget->width()) : pWidget->minimumSizeHint().height();
        if (pLabel != nullptr && pWidget->height() < iHeight) {
            complain(QStringLiteral("%1 of %2 pixels high").arg(pWidget->height()).arg(iHeight));
        }
    }
    return complaints;
}

} // namespace CutText
