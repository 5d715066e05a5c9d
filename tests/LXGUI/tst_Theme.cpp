#include "platform/LXGUI/Theme.h"
#include "tests/LXGUI/TemporarySkin.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <cmath>

using LXGUI::Theme;

namespace {

QStringList TokenNames()
{
    return QStringLiteral(
               "window panel raised input lineDark lineLight text dim disabled accent onAccent accentHover "
               "accentPressed warning danger focus selection scale")
        .split(QLatin1Char(' '));
}

QColor ColourIn(const QJsonObject& theme, const QString& strName)
{
    return QColor(theme.value(strName).toString());
}

QJsonObject ThemeFile(const QString& strName)
{
    QFile file(QStringLiteral("./Skin/theme1/colours-%1.json").arg(strName));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

// Relative luminance and contrast as defined by WCAG 2.
double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const double high = std::max(Luminance(a), Luminance(b));
    const double low = std::min(Luminance(a), Luminance(b));
    return (high + 0.05) / (low + 0.05);
}

} // namespace

class tst_Theme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Theme::Load(QStringLiteral("dark")); }

    void contrastOfBlackAndWhiteIsTwentyOne()
    {
        QVERIFY(std::abs(Contrast(Qt::black, Qt::white) - 21.0) < 0.01);
    }

    void aThemeFileNamesEveryToken_data() { ThemesData(); }
    void aThemeFileNamesEveryToken()
    {
        QFETCH(QString, theme);
        const QJsonObject file = ThemeFile(theme);
        QStringList names = file.keys();
        QStringList expected = TokenNames();
        names.sort();
        expected.sort();
        QCOMPARE(names, expected);
        for (const QString& strName : qAsConst(expected)) {
            QVERIFY2(ColourIn(file, strName).isValid(), qPrintable(strName));
        }
    }

    void textCanBeReadOnEveryGround_data() { ThemesData(); }
    void textCanBeReadOnEveryGround()
    {
        QFETCH(QString, theme);
        const QJsonObject file = ThemeFile(theme);
        const QVector<QPair<QString, QString>> pairs = {
            {QStringLiteral("text"), QStringLiteral("window panel raised input selection")},
            {QStringLiteral("dim"), QStringLiteral("window panel raised input")},
            {QStringLiteral("onAccent"), QStringLiteral("accent accentHover accentPressed")}};
        for (const auto& pair : pairs) {
            const QStringList grounds = pair.second.split(QLatin1Char(' '));
            for (const QString& strGround : grounds) {
                const double contrast = Contrast(ColourIn(file, pair.first), ColourIn(file, strGround));
                QVERIFY2(contrast >= 4.5,
                         qPrintable(QStringLiteral("%1 on %2: %3").arg(pair.first, strGround).arg(contrast)));
            }
        }
    }

    void theHoursOfTheWeekPlanCanBeReadOnTheirGround_data() { ThemesData(); }
    void theHoursOfTheWeekPlanCanBeReadOnTheirGround()
    {
        QFETCH(QString, theme);
        const QColor hours(QStringLiteral("#DDDDDD")); // the same in every theme
        QVERIFY(Contrast(hours, ColourIn(ThemeFile(theme), QStringLiteral("scale"))) >= 4.5);
    }

    void marksThatCarryMeaningStandOut_data() { ThemesData(); }
    void marksThatCarryMeaningStandOut()
    {
        QFETCH(QString, theme);
        const QJsonObject file = ThemeFile(theme);
        const QStringList marks = QStringLiteral("accent focus warning danger").split(QLatin1Char(' '));
        const QStringList grounds = QStringLiteral("window panel raised input").split(QLatin1Char(' '));
        for (const QString& strMark : marks) {
            for (const QString& strGround : grounds) {
                const double contrast = Contrast(ColourIn(file, strMark), ColourIn(file, strGround));
                QVERIFY2(contrast >= 3.0,
                         qPrintable(QStringLiteral("%1 on %2: %3").arg(strMark, strGround).arg(contrast)));
            }
        }
    }

    void selectionIsAQuarterOfAccentOverPanel_data() { ThemesData(); }
    void selectionIsAQuarterOfAccentOverPanel()
    {
        QFETCH(QString, theme);
        const QJsonObject file = ThemeFile(theme);
        const QColor accent = ColourIn(file, QStringLiteral("accent"));
        const QColor panel = ColourIn(file, QStringLiteral("panel"));
        const QColor selection = ColourIn(file, QStringLiteral("selection"));
        const auto isMix = [](int part, int over, int under) {
            return std::abs(part - (0.25 * over + 0.75 * under)) <= 1.0;
        };
        QVERIFY(isMix(selection.red(), accent.red(), panel.red()));
        QVERIFY(isMix(selection.green(), accent.green(), panel.green()));
        QVERIFY(isMix(selection.blue(), accent.blue(), panel.blue()));
    }

    void theFixedDarkColoursAreTheOnesOfThePaintedWidgets()
    {
        const Theme& theme = Theme::Current();
        QCOMPARE(theme.Colour(QStringLiteral("accent")), QColor(0x3A, 0xAA, 0x24));
        QCOMPARE(theme.Colour(QStringLiteral("text")), QColor(0xDD, 0xDD, 0xDD));
        QCOMPARE(theme.Colour(QStringLiteral("disabled")), QColor(0x78, 0x78, 0x78));
        QCOMPARE(theme.Colour(QStringLiteral("lineDark")), QColor(0x1A, 0x1D, 0x20));
        QCOMPARE(theme.Colour(QStringLiteral("lineLight")), QColor(0x47, 0x51, 0x57));
    }

    void theLightThemeIsAnotherOne()
    {
        const QColor dark = Theme::Current().Colour(QStringLiteral("window"));
        QVERIFY(Theme::Load(QStringLiteral("light")));
        QCOMPARE(Theme::Current().Name(), QStringLiteral("light"));
        QVERIFY(Theme::Current().Colour(QStringLiteral("window")).lightness() > dark.lightness() + 100);
    }

    void aMissingFileFallsBackToDark()
    {
        QVERIFY(Theme::Load(QStringLiteral("light")));
        const TemporarySkin skin;
        QVERIFY(!Theme::Load(QStringLiteral("light")));
        QCOMPARE(Theme::Current().Name(), QStringLiteral("dark"));
        QCOMPARE(Theme::Current().Colour(QStringLiteral("panel")), QColor(0x27, 0x2C, 0x31));
        QVERIFY(!Theme::Load(QStringLiteral("no such theme")));
        QVERIFY(!Theme::Load(QString()));
        QVERIFY(!Theme::Load(QStringLiteral("../theme1/colours")));
    }

    void aBrokenFileFallsBackToDark_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << QByteArray("{ \"window\": \"#FFFFFF\", ");
        QTest::newRow("array") << QByteArray("[1, 2]");
        QTest::newRow("bytes") << QByteArray("\0\xFF\xFE\x01", 4);
        QTest::newRow("huge") << QByteArray(100 * 1024, ' ') + "{}";
    }
    void aBrokenFileFallsBackToDark()
    {
        QFETCH(QByteArray, content);
        const TemporarySkin skin;
        QVERIFY(TemporarySkin::Write(QStringLiteral("colours-light.json"), content));
        QVERIFY(!Theme::Load(QStringLiteral("light")));
        QCOMPARE(Theme::Current().Colour(QStringLiteral("window")), QColor(0x1F, 0x23, 0x27));
    }

    void aColourThatTheFileLacksOrSpoilsTakesItsDefault()
    {
        const TemporarySkin skin;
        QVERIFY(TemporarySkin::Write(
            QStringLiteral("colours-light.json"),
            R"({"window": "#FFFFFF", "panel": "no colour", "text": 12, "raised": null, "extra": "#010101"})"));
        QVERIFY(Theme::Load(QStringLiteral("light")));
        const Theme& theme = Theme::Current();
        QCOMPARE(theme.Colour(QStringLiteral("window")), QColor(Qt::white));
        QCOMPARE(theme.Colour(QStringLiteral("panel")), QColor(0x27, 0x2C, 0x31));
        QCOMPARE(theme.Colour(QStringLiteral("text")), QColor(0xDD, 0xDD, 0xDD));
        QCOMPARE(theme.Colour(QStringLiteral("raised")), QColor(0x31, 0x37, 0x3E));
        QVERIFY(!theme.Colour(QStringLiteral("extra")).isValid());
        const QStringList names = TokenNames();
        for (const QString& strName : names) {
            QVERIFY2(theme.Colour(strName).isValid(), qPrintable(strName));
        }
    }

    void resolvingTakesTheLongestName()
    {
        const Theme& theme = Theme::Current();
        QCOMPARE(theme.Resolve(QStringLiteral("a{color:@accentHover;b:@accent;c:@accentPressed}")),
                 QStringLiteral("a{color:#47bf2f;b:#3aaa24;c:#2f8c1d}"));
    }

    void resolvingLeavesUnknownNamesAlone_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* const szText :
             {"", "@", "@@", "x@2x.png", "@accents", "@Accent", "a@", "@ accent"}) {
            QTest::newRow(szText) << QString::fromLatin1(szText);
        }
    }
    void resolvingLeavesUnknownNamesAlone()
    {
        QFETCH(QString, text);
        QCOMPARE(Theme::Current().Resolve(text), text);
    }

    void resolvingWorksAtBothEndsAndBackToBack()
    {
        QCOMPARE(Theme::Current().Resolve(QStringLiteral("@text@text")), QStringLiteral("#dddddd#dddddd"));
    }

    void thePaletteCarriesTheTheme()
    {
        const Theme& theme = Theme::Current();
        const QPalette palette = theme.Palette();
        QCOMPARE(palette.color(QPalette::Window), theme.Colour(QStringLiteral("window")));
        QCOMPARE(palette.color(QPalette::Base), theme.Colour(QStringLiteral("input")));
        QCOMPARE(palette.color(QPalette::Text), theme.Colour(QStringLiteral("text")));
        QCOMPARE(palette.color(QPalette::Button), theme.Colour(QStringLiteral("raised")));
        QCOMPARE(palette.color(QPalette::Highlight), theme.Colour(QStringLiteral("selection")));
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::Text), theme.Colour(QStringLiteral("disabled")));
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::WindowText),
                 theme.Colour(QStringLiteral("disabled")));
    }

private:
    static void ThemesData()
    {
        QTest::addColumn<QString>("theme");
        QTest::newRow("dark") << QStringLiteral("dark");
        QTest::newRow("light") << QStringLiteral("light");
    }
};

QTEST_MAIN(tst_Theme)
#include "tst_Theme.moc"
