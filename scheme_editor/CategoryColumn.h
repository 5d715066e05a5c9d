#pragma once

#include <QList>

class QAbstractButton;
class QGridLayout;
class QWidget;

/// The accordion of category buttons: every button that is not hidden, the checked one followed by the
/// content.
namespace CategoryColumn {

/// Object name of the lines between the rows; their look comes from the style sheet.
extern const char* const SeparatorName;

/// Lays the column out anew and makes its separators anew. `buttons` in their order from the top.
void Arrange(QGridLayout* pLayout, const QList<QAbstractButton*>& buttons, QWidget* pContent);

} // namespace CategoryColumn
