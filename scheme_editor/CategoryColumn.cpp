#include "scheme_editor/CategoryColumn.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QWidget>

#include <memory>

const char* const CategoryColumn::SeparatorName = "separator";

namespace {

constexpr int s_iSeparatorHeight = 2;

void DeleteSeparators(QWidget* pColumn)
{
    qDeleteAll(pColumn->findChildren<QWidget*>(QLatin1String(CategoryColumn::SeparatorName),
                                               Qt::FindDirectChildrenOnly));
}

void EmptyGrid(QGridLayout* pLayout)
{
    while (pLayout->count() > 0)
        std::unique_ptr<QLayoutItem>(pLayout->takeAt(0)).reset();
    for (int row = 0; row < pLayout->rowCount(); ++row)
        pLayout->setRowStretch(row, 0);
}

QWidget* MakeSeparator(QWidget* pColumn)
{
    auto* const pLine = new QWidget(pColumn);
    pLine->setObjectName(QLatin1String(CategoryColumn::SeparatorName));
    pLine->setAttribute(Qt::WA_StyledBackground);
    pLine->setFixedHeight(s_iSeparatorHeight);
    return pLine;
}

} // namespace

void CategoryColumn::Arrange(QGridLayout* pLayout, const QList<QAbstractButton*>& buttons, QWidget* pContent)
{
    QWidget* const pColumn = pLayout->parentWidget();
    DeleteSeparators(pColumn);
    EmptyGrid(pLayout);

    int row = 0;
    bool bContentPlaced = false;
    const auto placeContent = [&] {
        pLayout->addWidget(pContent, row, 0);
        pLayout->setRowStretch(row++, 1);
        bContentPlaced = true;
    };
    for (QAbstractButton* const pButton : buttons) {
        if (pButton->isHidden())
            continue;
        if (row > 0)
            pLayout->addWidget(MakeSeparator(pColumn), row++, 0);
        pLayout->addWidget(pButton, row++, 0);
        if (pButton->isChecked())
            placeContent();
    }
    if (!bContentPlaced)
        placeContent();
    // Hidden buttons take no room, but stay in the layout for the time when they are shown again.
    for (QAbstractButton* const pButton : buttons) {
        if (pButton->isHidden())
            pLayout->addWidget(pButton, row++, 0);
    }
}
