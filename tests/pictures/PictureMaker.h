#pragma once

#include "tests/end_to_end/ClientDriver.h"

#include <QDir>
#include <QSize>
#include <QTemporaryDir>

class QDialog;

/// Which pictures, and of which client.
struct PictureOrder
{
    QString strDirectory;
    QString strLanguage = QStringLiteral("en");
    QSize size = QSize(1366, 768); ///< of the window, in pixels that do not depend on the screen's scale
    bool bEveryScreen = false;     ///< besides those that the documentation shows
};

/// Works through the client like an operator on its first day, and takes a picture at each stop.
class PictureMaker
{
public:
    explicit PictureMaker(const PictureOrder& order);

    /// False as soon as something is not where an operator would look for it.
    bool Run();

private:
    MainWindow* Window() { return m_driver.Client().Window(); }
    bool OpenPage();
    bool SetAlarm();
    bool PlanWeek();
    bool LinkOutput();
    bool CopyToFloor();
    bool AskAboutUnsaved();
    bool LeaveMistakes();
    bool Explain();
    bool ShowCoverage();
    bool ShowHistory();
    bool ImportSite();
    bool RestOfTheWindow();
    bool RestOfTheDialogs();
    bool OfferDraft();

    bool Edit(qint64 iDoor, int iType); ///< picks it and switches its scheme on
    bool SaveSchemes();
    bool Trigger(const char* szAction);
    bool Settled();
    bool Picture(QWidget* pWidget, const char* szName);
    /// A picture of the dialog that `act` opens; the dialog is closed then.
    template <typename Act>
    bool PictureOfDialog(const char* szName, Act act);

    PictureOrder m_order;
    QDir m_directory;
    QTemporaryDir m_data;
    ClientDriver m_driver;
    QString m_strSaved; ///< what the client said to the last save
};
