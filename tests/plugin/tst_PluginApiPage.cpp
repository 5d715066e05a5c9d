#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

#include <utility>

namespace {

QString Read(const QString& strFile)
{
    QFile file(QStringLiteral(ACS_SOURCE_DIR "/") + strFile);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString Header(const QString& strInterface)
{
    return Read(QStringLiteral("platform/LXPluginAPI/%1.h").arg(strInterface));
}

/// Slot number to the operation's name, from the comments in a header; destructors left out.
QMap<int, QString> SlotsOf(const QString& strInterface)
{
    static const QRegularExpression operation(
        QStringLiteral("\\b(\\w+)\\([^()]*\\)[^;]*;\\s*// slot (\\d+)"));
    QMap<int, QString> slotNames;
    auto match = operation.globalMatch(Header(strInterface));
    while (match.hasNext()) {
        const QRegularExpressionMatch hit = match.next();
        if (hit.captured(2) != QLatin1String("0"))
            slotNames.insert(hit.captured(2).toInt(), hit.captured(1));
    }
    return slotNames;
}

/// The rows "| <slot> | `<name>` | ... |" of the table whose head names the interface.
QMap<int, QString> SlotsInPage(const QString& strPage, const QString& strHead)
{
    static const QRegularExpression row(QStringLiteral("^\\| (\\d+) \\| `(\\w+)` \\|"));
    QMap<int, QString> slotNames;
    bool bInside = false;
    const QStringList lines = strPage.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (!line.startsWith(QLatin1Char('|')))
            bInside = false;
        if (line.startsWith(QStringLiteral("| Slot | %1 |").arg(strHead)))
            bInside = true;
        const QRegularExpressionMatch hit = row.match(line);
        if (bInside && hit.hasMatch())
            slotNames.insert(hit.captured(1).toInt(), hit.captured(2));
    }
    return slotNames;
}

} // namespace

// The page for authors of modules says what the headers say.
class TestPluginApiPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_strPage = Read(QStringLiteral("docs/plugin-api.md"));
        QVERIFY(!m_strPage.isEmpty());
    }

    void theSlotsAreThoseOfTheHeaders_data()
    {
        QTest::addColumn<QString>("strHead");
        QTest::addColumn<QStringList>("interfaces");
        QTest::addColumn<int>("iCount");
        QTest::newRow("root object") << QStringLiteral("Operation of the root object")
                                     << QStringList{QStringLiteral("IPluginAPI"),
                                                    QStringLiteral("IClientUIPluginAPI")}
                                     << 9;
        QTest::newRow("user-interface object") << QStringLiteral("Operation of `IAbstractUI`")
                                               << QStringList{QStringLiteral("IAbstractUI")} << 2;
        QTest::newRow("descriptor") << QStringLiteral("Operation of `IAbstractWidget`")
                                    << QStringList{QStringLiteral("IAbstractWidget")} << 13;
    }

    void theSlotsAreThoseOfTheHeaders()
    {
        QFETCH(QString, strHead);
        QFETCH(QStringList, interfaces);
        QFETCH(int, iCount);
        QMap<int, QString> slotNames;
        for (const QString& strInterface : std::as_const(interfaces))
            slotNames.insert(SlotsOf(strInterface));
        QCOMPARE(slotNames.size(), iCount);
        QCOMPARE(SlotsInPage(m_strPage, strHead), slotNames);
    }

    void theListThatIsShownIsTheExamples()
    {
        const QString strList = Read(QStringLiteral("examples/minimal_module/CMakeLists.txt"));
        static const QRegularExpression shown(QStringLiteral("```cmake\\n(.*?)```"),
                                              QRegularExpression::DotMatchesEverythingOption);
        const QStringList lines =
            shown.match(m_strPage).captured(1).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QVERIFY(lines.size() > 3);
        for (const QString& line : lines)
            QVERIFY2(strList.contains(line), qPrintable(line));
    }

    void everyHeaderFolderIsThere()
    {
        static const QRegularExpression folder(QStringLiteral("`((?:platform|AlarmCtrl)/[\\w/]+(?:\\.h)?)`"));
        auto match = folder.globalMatch(m_strPage);
        int iFound = 0;
        for (; match.hasNext(); ++iFound) {
            const QString strPath = match.next().captured(1);
            QVERIFY2(QFileInfo::exists(QStringLiteral(ACS_SOURCE_DIR "/") + strPath), qPrintable(strPath));
        }
        QVERIFY(iFound >= 10);
    }

    void everyLinkLeadsToAHeading()
    {
        static const QRegularExpression link(QStringLiteral("\\]\\(#([^)]+)\\)"));
        static const QRegularExpression dropped(QStringLiteral("[^a-z0-9 -]"));
        QStringList anchors;
        const QStringList lines = m_strPage.split(QLatin1Char('\n'));
        for (const QString& line : lines) {
            if (line.startsWith(QLatin1String("## ")))
                anchors.append(
                    line.mid(3).toLower().remove(dropped).replace(QLatin1Char(' '), QLatin1Char('-')));
        }
        auto match = link.globalMatch(m_strPage);
        QVERIFY(match.hasNext());
        while (match.hasNext()) {
            const QString strAnchor = match.next().captured(1);
            QVERIFY2(anchors.contains(strAnchor), qPrintable(strAnchor));
        }
    }

private:
    QString m_strPage;
};

QTEST_APPLESS_MAIN(TestPluginApiPage)
#include "tst_PluginApiPage.moc"
