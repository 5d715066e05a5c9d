#include "platform/LXGUI/Theme.h"
#include "platform/UICommonMdl/CommonFun.h"
#include "platform/UICommonMdl/LXImpPushButton.h"
#include "platform/lxl/DPrintLog.h"
#include "tests/LXGUI/TemporarySkin.h"

#include <QWidget>
#include <QtTest>

using UICommonMdl::CommonFun;

namespace {

void Collect(const lxl::DPrintLog::Entry& entry, void* pContext)
{
    static_cast<QStringList*>(pContext)->append(entry.strMessage);
}

} // namespace

class tst_CommonFun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The theme is read on its first use, and its problems are not the ones looked for here.
    void initTestCase() { QVERIFY(LXGUI::Theme::Load(QStringLiteral("dark"))); }
    void init() { lxl::DPrintLog::instance().SetListener(Collect, &m_messages); }
    void cleanup()
    {
        lxl::DPrintLog::instance().SetListener(nullptr, nullptr);
        m_messages.clear();
    }

    void aModuleSheetArrivesWithItsColours()
    {
        const TemporarySkin skin;
        QVERIFY(TemporarySkin::Write(QStringLiteral("Some.qss"), "QWidget{color:@text;}"));
        QWidget widget;
        CommonFun::SetStyleSheet(&widget, QStringLiteral("Some"), QString(), QString());
        QCOMPARE(widget.styleSheet(), QStringLiteral("QWidget{color:#dddddd;}"));
        QVERIFY(m_messages.isEmpty());
    }

    void subDirectoryAndSuffixNameAnotherFile()
    {
        const TemporarySkin skin;
        QVERIFY(TemporarySkin::Write(QStringLiteral("deep/Some_wide.qss"), "QLabel{}"));
        QWidget widget;
        CommonFun::SetStyleSheet(&widget, QStringLiteral("Some"), QStringLiteral("deep"),
                                 QStringLiteral("_wide"));
        QCOMPARE(widget.styleSheet(), QStringLiteral("QLabel{}"));
    }

    void aMissingFileChangesNothingAndIsLogged()
    {
        const TemporarySkin skin;
        QWidget widget;
        widget.setStyleSheet(QStringLiteral("QLabel{}"));
        CommonFun::SetStyleSheet(&widget, QStringLiteral("Missing"), QString(), QString());
        QCOMPARE(widget.styleSheet(), QStringLiteral("QLabel{}"));
        QCOMPARE(m_messages.size(), 1);
        QVERIFY(m_messages.first().contains(QStringLiteral("Missing.qss")));
    }

    void aPercentSignInAModuleNameIsNoFormat()
    {
        const TemporarySkin skin;
        QWidget widget;
        CommonFun::SetStyleSheet(&widget, QStringLiteral("%s%n%1"), QString(), QString());
        QCOMPARE(m_messages.size(), 1);
        QVERIFY(m_messages.first().contains(QStringLiteral("%s%n%1.qss")));
    }

    void noWidgetIsNoReasonToFail()
    {
        CommonFun::SetStyleSheet(nullptr, QStringLiteral("Some"), QString(), QString());
        QVERIFY(m_messages.isEmpty());
    }

    void theSheetOfThePageIsThere()
    {
        QWidget widget;
        CommonFun::SetStyleSheet(&widget, QStringLiteral("ACSEventConfigUI"), QString(), QString());
        QVERIFY(widget.styleSheet().contains(QStringLiteral("ImgLock")));
        QVERIFY(m_messages.isEmpty());
    }

    void anImportantButtonIsKnownToTheStyleSheets()
    {
        const UICommonMdl::LXImpPushButton button;
        QCOMPARE(button.property("primary").toBool(), true);
    }

private:
    QStringList m_messages;
};

QTEST_MAIN(tst_CommonFun)
#include "tst_CommonFun.moc"
