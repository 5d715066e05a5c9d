// Makes the pictures of the documentation from the real client over its sample site, so that they stay true:
//     make_pictures DIRECTORY
#include "tests/end_to_end/ClientDriver.h"

#include "client/MainWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

namespace {

constexpr qint64 MainEntrance = 100101;
constexpr int KindChannel = 3;
constexpr QSize WindowSize(1366, 768);

/// A hand on one day bar.
class Bar
{
public:
    Bar(QWidget* pPage, int iDay)
        : m_pDisplay(pPage->findChild<QWidget*>(QStringLiteral("editor%1").arg(iDay))
                         ->findChild<QWidget*>(QStringLiteral("wndDisplay")))
    {
    }

    void Send(QEvent::Type type, double hour, Qt::MouseButton button, Qt::MouseButtons held) const
    {
        const QPointF at(hour * m_pDisplay->width() / 24.0, m_pDisplay->height() / 2.0);
        QMouseEvent event(type, at, m_pDisplay->mapToGlobal(at.toPoint()), button, held, Qt::NoModifier);
        QApplication::sendEvent(m_pDisplay, &event);
    }
    void Begin(double from, double to) const
    {
        Send(QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
        Send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        Send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    }
    void End(double to) const { Send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton); }
    void Drag(double from, double to) const
    {
        Begin(from, to);
        End(to);
    }

private:
    QWidget* m_pDisplay;
};

class PictureMaker
{
public:
    explicit PictureMaker(const QString& strDirectory)
        : m_directory(strDirectory)
        , m_driver(m_data.path())
    {
    }

    bool Run()
    {
        if (!m_data.isValid() || !QDir().mkpath(m_directory.path()) || !m_driver.Start())
            return false;
        Window()->resize(WindowSize);
        return Save(Window(), "home") && m_driver.OpenByTile() && Save(Window(), "nothing-selected") &&
               NotifyTab() && WeekPlan() && AlarmOut() && CopyPopup();
    }

private:
    QWidget* Window() { return m_driver.Client().Window(); }
    QAbstractButton* Button(const char* szName)
    {
        return m_driver.Page()->findChild<QAbstractButton*>(QLatin1String(szName));
    }

    bool Save(QWidget* pWidget, const char* szName)
    {
        // What is still to be laid out or to slide shows its last state.
        QCoreApplication::sendPostedEvents();
        const QString strFile = m_directory.filePath(QLatin1String(szName) + QStringLiteral(".png"));
        const bool bSaved = pWidget->grab().save(strFile);
        std::printf("%s %s\n", bSaved ? "made" : "cannot write", qPrintable(strFile));
        return bSaved;
    }

    bool NotifyTab()
    {
        return m_driver.ClickNode(MainEntrance, KindChannel) && m_driver.ClickButton("btnOpenStatus") &&
               m_driver.ClickButton("btnAlarmSound") &&
               m_driver.ClickEvent(QStringLiteral("Duress Code Entered")) &&
               m_driver.ClickButton("btnOpenStatus") && m_driver.ClickButton("btnAlarmSound") &&
               QTest::qWaitFor([this] { return m_driver.IsSwitchedOn("btnAlarmSound"); }) && Settled() &&
               Save(Window(), "page");
    }

    // The switches slide for a moment; a picture shows them at rest.
    bool Settled()
    {
        bool bStill = false;
        QTimer::singleShot(300, &m_driver, [&bStill] { bStill = true; });
        return QTest::qWaitFor([&bStill] { return bStill; });
    }

    bool WeekPlan()
    {
        if (!m_driver.ClickButton("btnDefTime"))
            return false;
        QWidget* const pPage = m_driver.Page();
        for (int day = 0; day < 7; ++day)
            Bar(pPage, day).Drag(0.0, 24.0); // erases the whole day
        for (int day = 1; day <= 5; ++day) {
            Bar(pPage, day).Drag(0.0, 7.0);
            Bar(pPage, day).Drag(19.5, 24.0);
        }
        Bar(pPage, 0).Drag(0.0, 24.0);
        Bar(pPage, 6).Drag(0.0, 9.0);
        Bar(pPage, 6).Drag(13.0, 24.0);
        if (!Save(Window(), "week-plan"))
            return false;

        for (const char* szLock : {"btn1", "btn2", "btn3"})
            Button(szLock)->click();
        const Bar monday(pPage, 1);
        monday.Begin(11.0, 14.5);
        const bool bDrag = Save(Window(), "week-drag");
        monday.End(14.5);

        bool bDialog = false;
        m_driver.AnswerDialogs({[this, &bDialog](QWidget* pDialog) {
            bDialog = Save(pDialog, "day-dialog");
            static_cast<QDialog*>(pDialog)->reject();
        }});
        pPage->findChild<QWidget*>(QStringLiteral("editor3"))
            ->findChild<QAbstractButton*>(QStringLiteral("btnDetail"))
            ->click();
        return bDrag && bDialog;
    }

    bool AlarmOut() { return m_driver.ClickButton("btnAlarmOut") && Save(Window(), "alarm-out"); }

    bool CopyPopup()
    {
        Button("btnCopyTo")->click();
        QWidget* const pPopup = QApplication::activeModalWidget();
        if (pPopup == nullptr)
            return false;
        const bool bSaved = QTest::qWaitForWindowExposed(pPopup) && Save(pPopup, "copy-to");
        pPopup->close();
        return bSaved;
    }

    QDir m_directory;
    QTemporaryDir m_data;
    ClientDriver m_driver;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_pictures DIRECTORY\n");
        return 2;
    }
    return PictureMaker(QDir(QString::fromLocal8Bit(argv[1])).absolutePath()).Run() ? 0 : 1;
}
