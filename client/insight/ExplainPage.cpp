#include "client/insight/ExplainPage.h"
#include "ui_ExplainPage.h"

#include "platform/SystemLibrary/QCommon.h"
#include "scheme_services/evaluation/EventCategories.h"
#include "scheme_services/evaluation/SchemeExplanation.h"
#include "scheme_services/evaluation/SchemeWords.h"

#include <QCompleter>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>

ExplainPage::ExplainPage(StoredSchemeView& schemes, QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::ExplainPage>())
    , m_schemes(schemes)
{
    ui->setupUi(this);
    ui->cmbSource->lineEdit()->setPlaceholderText(tr("Device/door or device/alarm input"));
    QCompleter* const pCompleter = ui->cmbSource->completer();
    pCompleter->setCompletionMode(QCompleter::PopupCompletion);
    pCompleter->setFilterMode(Qt::MatchContains);
    pCompleter->setCaseSensitivity(Qt::CaseInsensitive);
    ui->dteTime->setDateTime(QDateTime::currentDateTime());
    connect(ui->cmbSource, &QComboBox::currentTextChanged, this, &ExplainPage::OnSourceChanged);
    connect(ui->cmbEvent, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ExplainPage::Explain);
    connect(ui->dteTime, &QDateTimeEdit::dateTimeChanged, this, &ExplainPage::Explain);
    connect(ui->btnNow, &QPushButton::clicked, this,
            [this] { ui->dteTime->setDateTime(QDateTime::currentDateTime()); });
    connect(&m_schemes, &StoredSchemeView::SignalRead, this, &ExplainPage::Explain);
    Explain();
}

ExplainPage::~ExplainPage() = default;

void ExplainPage::SetSite(const Site& site)
{
    m_site = SiteIndex(site);
    const QString strPicked = ui->cmbSource->currentText();
    {
        const QSignalBlocker blocker(ui->cmbSource);
        ui->cmbSource->clear();
        const QStringList sources = m_site.Sources();
        for (const QString& strSource : sources) {
            ui->cmbSource->addItem(m_site.NameOfSource(strSource), strSource);
        }
        ui->cmbSource->setCurrentIndex(-1);
        ui->cmbSource->setEditText(strPicked);
        const int iIndex = ui->cmbSource->findText(strPicked);
        if (iIndex >= 0) {
            ui->cmbSource->setCurrentIndex(iIndex);
        }
    }
    OnSourceChanged();
}

void ExplainPage::Ask(const QString& strSource, int iType)
{
    const int iSource = ui->cmbSource->findData(strSource);
    if (iSource >= 0) {
        ui->cmbSource->setCurrentIndex(iSource);
    } else {
        ui->cmbSource->setEditText(strSource);
    }
    ui->cmbEvent->setCurrentIndex(ui->cmbEvent->findData(iType));
}

QString ExplainPage::PickedSource(QString& strProblem) const
{
    const QString strText = ui->cmbSource->currentText();
    // Names may be alike: what was picked from the list is what its entry says.
    const int iIndex = ui->cmbSource->currentIndex();
    if (iIndex >= 0 && ui->cmbSource->itemText(iIndex) == strText) {
        return ui->cmbSource->itemData(iIndex).toString();
    }
    if (strText.trimmed().isEmpty()) {
        strProblem = m_site.IsEmpty() ? tr("The site has no devices. Open a site with devices first.")
                                      : tr("Pick the source that the event comes from.");
        return QString();
    }
    const SiteIndex::Resolved resolved = m_site.ResolveSource(strText);
    strProblem = resolved.strProblem;
    return resolved.strKey;
}

void ExplainPage::OnSourceChanged()
{
    QString strProblem;
    const QString strSource = PickedSource(strProblem);
    if (!strSource.isEmpty()) {
        FillEvents(strSource);
    }
    Explain();
}

void ExplainPage::FillEvents(const QString& strSource)
{
    const QSignalBlocker blocker(ui->cmbEvent);
    const QVariant picked = ui->cmbEvent->currentData();
    ui->cmbEvent->clear();
    const QList<int32_t> types = EventCategories::KnownTypes();
    for (const int32_t iType : types) {
        if (SchemeExplanation::KeyOf(strSource, iType)) {
            ui->cmbEvent->addItem(QCommon::GetAlarmNameByType(iType), iType);
        }
    }
    const int iIndex = ui->cmbEvent->findData(picked);
    ui->cmbEvent->setCurrentIndex(iIndex < 0 ? 0 : iIndex);
}

void ExplainPage::Explain()
{
    QString strProblem;
    const QString strSource = PickedSource(strProblem);
    ui->cmbEvent->setEnabled(!strSource.isEmpty());
    if (!m_schemes.Problem().isEmpty()) {
        ShowProblem(m_schemes.Problem());
    } else if (strSource.isEmpty()) {
        ShowProblem(strProblem);
    } else if (ui->cmbEvent->currentIndex() < 0) {
        ShowProblem(tr("Pick the event."));
    } else {
        Show(SchemeExplanation::Of(m_schemes.Schemes(), strSource, ui->cmbEvent->currentData().toInt(),
                                   ui->dteTime->dateTime()),
             strSource);
    }
}

void ExplainPage::Show(const SchemeExplanation& explanation, const QString& strSource)
{
    const bool bArmed = explanation.verdict == SchemeVerdict::Armed;
    ui->lblVerdict->setText(explanation.Sentence());
    ui->lblVerdict->setProperty("armed", bArmed);
    const QTime time = explanation.at.time();
    const bool bKnown = explanation.key && m_schemes.Schemes().contains(*explanation.key);
    const AlarmDefenceTime_t day =
        bKnown
            ? m_schemes.Schemes().value(*explanation.key).defenceTime[explanation.at.date().dayOfWeek() % 7]
            : AlarmDefenceTime_t();
    ui->wndDay->setVisible(bKnown);
    ui->lblDay->setVisible(bKnown);
    ui->wndDay->SetDay(day);
    ui->wndDay->SetMoment(QTime(0, 0).secsTo(time));
    ui->lblDay->setText(
        tr("%1: %2", "day, armed time")
            .arg(QLocale().dayName(explanation.at.date().dayOfWeek()), SchemeWords::Day(day)));
    QStringList notes;
    if (explanation.key && explanation.key->strEventSource != strSource) {
        notes += tr("A device has one scheme for this event, whichever door it comes from.");
    }
    if (explanation.nextChange) {
        notes += tr("The next change is at %1.").arg(SchemeExplanation::MomentText(*explanation.nextChange));
    } else if (bKnown) {
        notes += tr("Nothing changes with time.");
    }
    ui->lblNext->setVisible(!notes.isEmpty());
    ui->lblNext->setText(notes.join(QLatin1Char(' ')));
    const QStringList reactions = SchemeWords::Reactions(explanation.reactions, m_site);
    ui->lblReactions->setText(bArmed || reactions.isEmpty() ? tr("&Reactions")
                                                            : tr("&Reactions while it is armed"));
    ui->lstReactions->clear();
    ui->lstReactions->addItems(reactions);
    if (reactions.isEmpty()) {
        ui->lstReactions->addItem(tr("None"));
    }
    ui->lstReactions->setEnabled(bArmed);
}

void ExplainPage::ShowProblem(const QString& strText)
{
    ui->lblVerdict->setText(strText);
    ui->lblDay->hide();
    ui->wndDay->hide();
    ui->lblNext->hide();
    ui->lstReactions->clear();
    ui->lstReactions->setEnabled(false);
}
