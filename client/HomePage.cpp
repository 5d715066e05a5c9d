#include "client/HomePage.h"
#include "ui_HomePage.h"

#include "client/PluginTile.h"
#include "client/TilePanel.h"
#include "platform/LXGUI/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

HomePage::HomePage(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::HomePage>())
    , m_pTiles(new TilePanel(this))
{
    ui->setupUi(this);
    QFont heading = ui->lblHeading->font();
    heading.setWeight(QFont::DemiBold);
    ui->lblHeading->setFont(heading);
    const LXGUI::Theme& theme = LXGUI::Theme::Current();
    const QString strDim = theme.Resolve(QStringLiteral("QLabel { color: @dim; background: transparent; }"));
    ui->lblEmpty->setStyleSheet(strDim);
    ui->lblNoDevices->setStyleSheet(strDim);
    ui->lblNoDevices->hide();
    ui->verticalLayoutTiles->insertWidget(0, m_pTiles);
    ui->wndProblems->hide();
    m_pTiles->hide();
}

HomePage::~HomePage() = default;

void HomePage::AddTile(const PluginInfo& info)
{
    auto* pTile = new PluginTile(info, m_pTiles);
    connect(pTile, &PluginTile::clicked, this, [this, pTile] { Q_EMIT SignalOpen(pTile->Key()); });
    m_pTiles->AddTile(pTile);
    m_pTiles->show();
    ui->lblEmpty->hide();
}

void HomePage::AddProblem(const QString& strText)
{
    m_problems.append(strText);
    auto* pLine = new QWidget(ui->wndProblems);
    auto* pLayout = new QHBoxLayout(pLine);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(8);
    auto* pIcon = new QLabel(pLine);
    const int iSize = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    QIcon icon(QStringLiteral("./Skin/theme1/notify/warning.png"));
    if (icon.availableSizes().isEmpty()) {
        icon = style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this);
    }
    pIcon->setPixmap(icon.pixmap(QSize(iSize, iSize)));
    pIcon->setFixedWidth(iSize);
    pLayout->addWidget(pIcon, 0, Qt::AlignTop);
    auto* pText = new QLabel(pLine);
    pText->setTextFormat(Qt::PlainText);
    pText->setText(strText);
    pText->setWordWrap(true);
    pText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    pLayout->addWidget(pText, 1);
    ui->verticalLayoutProblems->addWidget(pLine);
    ui->wndProblems->show();
}

void HomePage::ShowEmptySite(const QString& strFile)
{
    ui->lblNoDevices->setText(
        tr("The site has no devices; describe them in %1, or name another file with --site, and start again.")
            .arg(strFile));
    ui->lblNoDevices->setVisible(!strFile.isEmpty());
}

const QList<PluginTile*>& HomePage::Tiles() const
{
    return m_pTiles->Tiles();
}

void HomePage::FocusFirstTile()
{
    if (!Tiles().isEmpty()) {
        Tiles().constFirst()->setFocus(Qt::OtherFocusReason);
    }
}
