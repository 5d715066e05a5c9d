#include "platform/LXGUI/Theme.h"
#include "platform/UICommonMdl/CommonFun.h"

#include <QDirIterator>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QtTest>

using LXGUI::Theme;

namespace {

const QLatin1String Root("./Skin/theme1");

QStringList& Warnings()
{
    static QStringList warnings;
    return warnings;
}

void CollectWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& strMessage)
{
    if (type != QtDebugMsg && type != QtInfoMsg) {
        Warnings().append(strMessage);
    }
}

// Warnings that Qt utters while a widget takes a style sheet.
QStringList WarningsOf(const QString& strStyleSheet)
{
    Warnings().clear();
    const QtMessageHandler old = qInstallMessageHandler(CollectWarnings);
    QWidget widget;
    widget.setStyleSheet(strStyleSheet);
    widget.ensurePolished();
    qInstallMessageHandler(old);
    return Warnings();
}

QString TextOf(const QString& strPath)
{
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString WithoutComments(QString strText)
{
    return strText.remove(
        QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
}

QStringList FilesNamed(const QString& strPattern)
{
    QStringList files;
    QDirIterator it(Root, {strPattern}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files.append(it.next());
    }
    files.sort();
    return files;
}

QColor ThemeColour(const char* szName)
{
    return Theme::Current().Colour(QLatin1String(szName));
}

} // namespace

class tst_Skin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBrokenSheetWouldBeNoticed()
    {
        QCOMPARE(WarningsOf(QStringLiteral("QLabel { color: #123456; }")), QStringList());
        QVERIFY(!WarningsOf(QStringLiteral("QLabel { color }} {{")).isEmpty());
    }

    void everySheetIsUnderstood_data() { SheetsData(); }
    void everySheetIsUnderstood()
    {
        QFETCH(QString, path);
        const QString strResolved = Theme::Current().Resolve(TextOf(path));
        QVERIFY(!strResolved.isEmpty());
        QCOMPARE(WarningsOf(strResolved), QStringList());
    }

    void everyColourIsNamed_data() { SheetsData(); }
    void everyColourIsNamed()
    {
        QFETCH(QString, path);
        const QString strText = WithoutComments(TextOf(path));
        const QStringList names = QColor::colorNames();
        const QRegularExpression declaration(QStringLiteral("([\\w-]+)\\s*:\\s*([^;{}]+);"));
        QRegularExpressionMatchIterator it = declaration.globalMatch(strText);
        int iSeen = 0;
        while (it.hasNext()) {
            const QString strValue = it.next().captured(2);
            ++iSeen;
            QVERIFY2(!strValue.contains(QLatin1Char('#')), qPrintable(strValue));
            QVERIFY2(!strValue.contains(QRegularExpression(QStringLiteral("\\b(rgb|hsv|hsl)a?\\("))),
                     qPrintable(strValue));
            const QStringList words =
                strValue.split(QRegularExpression(QStringLiteral("[\\s,]+")), Qt::SkipEmptyParts);
            for (const QString& strWord : words) {
                QVERIFY2(strWord == QStringLiteral("transparent") || !names.contains(strWord),
                         qPrintable(strWord));
            }
        }
        QVERIFY(iSeen > 20);
    }

    void everyNameIsAColourOfTheTheme_data() { SheetsData(); }
    void everyNameIsAColourOfTheTheme()
    {
        QFETCH(QString, path);
        const QString strResolved = Theme::Current().Resolve(WithoutComments(TextOf(path)));
        QVERIFY2(!strResolved.contains(QLatin1Char('@')),
                 qPrintable(strResolved.mid(strResolved.indexOf(QLatin1Char('@')), 40)));
    }

    void everyImageOfASheetExists_data() { SheetsData(); }
    void everyImageOfASheetExists()
    {
        QFETCH(QString, path);
        const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
        QRegularExpressionMatchIterator it = url.globalMatch(TextOf(path));
        QVERIFY(it.hasNext());
        while (it.hasNext()) {
            const QString strImage = it.next().captured(1);
            QVERIFY2(strImage.startsWith(Root), qPrintable(strImage));
            QVERIFY2(!QImage(strImage).isNull(), qPrintable(strImage));
        }
    }

    void everyDrawingHasItsPicture()
    {
        const QStringList drawings = FilesNamed(QStringLiteral("*.svg"));
        QVERIFY(drawings.size() > 40);
        const QRegularExpression size(QStringLiteral("<svg[^>]* width=\"(\\d+)\" height=\"(\\d+)\""));
        for (const QString& strDrawing : drawings) {
            const QRegularExpressionMatch match = size.match(TextOf(strDrawing));
            QVERIFY2(match.hasMatch(), qPrintable(strDrawing));
            const QSize expected(match.captured(1).toInt(), match.captured(2).toInt());
            const QString strBase = strDrawing.left(strDrawing.size() - 4);
            QVERIFY2(QImage(strBase + QStringLiteral(".png")).size() == expected, qPrintable(strDrawing));
            const QString strDense = strBase + QStringLiteral("@2x.png");
            QVERIFY2(!QFile::exists(strDense) || QImage(strDense).size() == expected * 2,
                     qPrintable(strDense));
        }
    }

    void everyPictureHasItsDrawing()
    {
        const QStringList pictures = FilesNamed(QStringLiteral("*.png"));
        for (QString strPicture : pictures) {
            strPicture.chop(4);
            if (strPicture.endsWith(QStringLiteral("@2x"))) {
                strPicture.chop(3);
            }
            QVERIFY2(QFile::exists(strPicture + QStringLiteral(".svg")), qPrintable(strPicture));
        }
    }

    void thePicturesThatTheCodeNamesAreThere_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("size");
        const auto row = [](const char* szName, int iSize) {
            QTest::newRow(szName) << QString::fromLatin1(szName) << iSize;
        };
        row("homepage/alarmcfg.png", 96);
        row("app.png", 256);
        for (const char* const szName :
             {"AlarmCtrl/device.png", "AlarmCtrl/alarm.png", "AlarmCtrl/mark.png", "tree/group.png",
              "tree/device.png", "tree/device_offline.png", "tree/door.png", "tree/alarm_in.png",
              "tree/alarm_out.png", "tree/channel.png", "controls/search.png", "controls/clear.png",
              "controls/close.png", "notify/information.png", "notify/success.png", "notify/warning.png",
              "notify/error.png"}) {
            row(szName, 16);
        }
        for (const char* const szName :
             {"AlarmCtrl/DrawTime.png", "AlarmCtrl/CleanTime.png", "AlarmCtrl/lock_open.png",
              "AlarmCtrl/lock_closed.png", "AlarmCtrl/detail.png"}) {
            row(szName, 18);
        }
        row("dialog/information.png", 32);
        row("dialog/warning.png", 32);
    }
    void thePicturesThatTheCodeNamesAreThere()
    {
        QFETCH(QString, name);
        QFETCH(int, size);
        QCOMPARE(QImage(Root + QLatin1Char('/') + name).size(), QSize(size, size));
    }

    void theTipOfACursorIsItsLowerLeftCorner_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("pen") << QStringLiteral("DrawTime");
        QTest::newRow("rubber") << QStringLiteral("CleanTime");
    }
    void theTipOfACursorIsItsLowerLeftCorner()
    {
        QFETCH(QString, name);
        const QString strBase = Root + QStringLiteral("/AlarmCtrl/") + name;
        const QImage image(strBase + QStringLiteral(".png"));
        QVERIFY(image.pixelColor(0, 17).alpha() > 128);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(17, 17).alpha(), 0);
        // A dense twin would be cut to a quarter by those who take 18 x 18 pixels.
        QVERIFY(!QFile::exists(strBase + QStringLiteral("@2x.png")));
    }

    void aLockButtonShowsAnOpenOrAClosedPadlock()
    {
        QWidget page;
        auto* const pLock = new QPushButton(&page);
        pLock->setProperty("ImgLock", true);
        pLock->setCheckable(true);
        pLock->setFixedSize(18, 18);
        Dress(page);
        const QImage open = Picture(pLock);
        QVERIFY(!HasColour(open, ThemeColour("accent")));
        pLock->setChecked(true);
        const QImage closed = Picture(pLock);
        QVERIFY(HasColour(closed, ThemeColour("accent")));
        pLock->setEnabled(false);
        QVERIFY(!HasColour(Picture(pLock), ThemeColour("accent")));
        QVERIFY(Picture(pLock) != closed);
    }

    void aCheckedTabLosesItsLowerBorderAndTheOthersKeepTheirs()
    {
        QWidget page;
        auto* const pTab = new QPushButton(&page);
        pTab->setObjectName(QStringLiteral("btnNotify"));
        pTab->setCheckable(true);
        pTab->setFixedSize(120, 23);
        Dress(page);
        QCOMPARE(Picture(pTab).pixelColor(10, 22), ThemeColour("lineLight"));
        QVERIFY(Picture(pTab).pixelColor(10, 12) != ThemeColour("panel"));
        pTab->setChecked(true);
        QCOMPARE(Picture(pTab).pixelColor(10, 22), ThemeColour("panel"));
        QCOMPARE(Picture(pTab).pixelColor(10, 12), ThemeColour("panel"));
        QCOMPARE(Picture(pTab).pixelColor(60, 0), ThemeColour("lineLight"));
    }

    void theOpenCategoryCarriesABarOfThreePixels()
    {
        QWidget page;
        auto* const pHeading = new QPushButton(&page);
        pHeading->setObjectName(QStringLiteral("btnAlarm"));
        pHeading->setCheckable(true);
        pHeading->setFixedSize(200, 40);
        Dress(page);
        QCOMPARE(Picture(pHeading).pixelColor(1, 20), ThemeColour("raised"));
        pHeading->setChecked(true);
        for (const int y : {0, 20, 39}) {
            QCOMPARE(Picture(pHeading).pixelColor(0, y), ThemeColour("accent"));
            QCOMPARE(Picture(pHeading).pixelColor(2, y), ThemeColour("accent"));
            QCOMPARE(Picture(pHeading).pixelColor(3, y), ThemeColour("raised"));
        }
        pHeading->setEnabled(false);
        QVERIFY(Picture(pHeading).pixelColor(1, 20) != ThemeColour("accent"));
    }

    void aSeparatorIsADarkLineOverALightOne()
    {
        QWidget page;
        auto* const pLine = new QWidget(&page);
        pLine->setObjectName(QStringLiteral("separator"));
        pLine->setFixedSize(50, 2);
        Dress(page);
        QCOMPARE(Picture(pLine).pixelColor(20, 0), ThemeColour("lineDark"));
        QCOMPARE(Picture(pLine).pixelColor(20, 1), ThemeColour("lineLight"));
    }

    void theMarkIsADotOfAccent_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("event list") << QStringLiteral("lblPix");
        QTest::newRow("alarm inputs") << QStringLiteral("lblMark");
    }
    void theMarkIsADotOfAccent()
    {
        QFETCH(QString, name);
        QWidget page;
        auto* const pMark = new QLabel(&page);
        pMark->setObjectName(name);
        pMark->setFixedSize(16, 16);
        Dress(page);
        QCOMPARE(Picture(pMark).pixelColor(8, 8), ThemeColour("accent"));
        QVERIFY(Picture(pMark).pixelColor(0, 0) != ThemeColour("accent"));
    }

    void theEmptyPartOfADayHasTheInputColour()
    {
        QWidget page;
        auto* const pDay = new QWidget(&page);
        pDay->setObjectName(QStringLiteral("wndDisplay"));
        pDay->setFixedSize(200, 20);
        Dress(page);
        QCOMPARE(Picture(pDay).pixelColor(100, 10), ThemeColour("input"));
    }

    void theDetailButtonShowsThreeDots()
    {
        QWidget page;
        auto* const pButton = new QPushButton(&page);
        pButton->setObjectName(QStringLiteral("btnDetail"));
        pButton->setFixedSize(18, 18);
        Dress(page);
        const QImage image = Picture(pButton);
        QVector<int> dots;
        const QColor ground = image.pixelColor(0, 0);
        bool bInside = false;
        for (int x = 0; x < image.width(); ++x) {
            const bool bDot = image.pixelColor(x, 9) != ground;
            if (bDot && !bInside) {
                dots.append(x);
            }
            bInside = bDot;
        }
        QCOMPARE(dots.size(), 3);
    }

private:
    static void SheetsData()
    {
        QTest::addColumn<QString>("path");
        const QStringList sheets = FilesNamed(QStringLiteral("*.qss"));
        QVERIFY(sheets.contains(Root + QStringLiteral("/application.qss")));
        QVERIFY(sheets.contains(Root + QStringLiteral("/ACSEventConfigUI.qss")));
        for (const QString& strSheet : sheets) {
            QTest::newRow(qPrintable(QFileInfo(strSheet).fileName())) << strSheet;
        }
    }
    static void Dress(QWidget& page)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, ThemeColour("panel"));
        page.setPalette(palette);
        UICommonMdl::CommonFun::SetStyleSheet(&page, QStringLiteral("ACSEventConfigUI"), QString(),
                                              QString());
        page.resize(300, 100);
    }
    static QImage Picture(QWidget* pWidget)
    {
        return pWidget->grab().toImage().convertToFormat(QImage::Format_ARGB32);
    }
    static bool HasColour(const QImage& image, const QColor& colour)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == colour) {
                    return true;
                }
            }
        }
        return false;
    }
};

QTEST_MAIN(tst_Skin)
#include "tst_Skin.moc"
