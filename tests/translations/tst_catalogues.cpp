#include "tests/translations/Catalogue.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString English()
{
    return QStringLiteral("acs_en.ts");
}

QString Chinese()
{
    return QStringLiteral("acs_zh_cn.ts");
}

QString PathOf(const QString& strName)
{
    return QStringLiteral(ACS_SOURCE_DIR "/translations/") + strName;
}

Catalogue Read(const QString& strPath)
{
    QFile file(strPath);
    return Catalogue(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
}

QString Lines(QStringList lines)
{
    lines.sort();
    return QLatin1Char('\n') + lines.join(QLatin1Char('\n'));
}

QString Lines(const QSet<QString>& lines)
{
    return Lines(lines.values());
}

/// A catalogue with one context "C"; \a strMessages is its XML.
Catalogue Made(const QString& strMessages)
{
    return Catalogue(QStringLiteral("<TS version=\"2.1\"><context><name>C</name>%1</context></TS>")
                         .arg(strMessages)
                         .toUtf8());
}

QString Message(const QString& strSource, const QString& strTranslation)
{
    return QStringLiteral("<message><source>%1</source>%2</message>").arg(strSource, strTranslation);
}

} // namespace

class tst_catalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("forms");
        QTest::newRow("English") << English() << 2;
        QTest::newRow("Chinese") << Chinese() << 1;
    }

    void everyTextIsTranslated()
    {
        QFETCH(QString, name);
        QFETCH(int, forms);
        const Catalogue catalogue = Read(PathOf(name));
        QVERIFY2(catalogue.Error().isEmpty(), qPrintable(catalogue.Error()));
        QVERIFY2(catalogue.Messages().size() > 100, "the catalogue is almost empty");
        const QStringList problems = catalogue.Problems(forms);
        QVERIFY2(problems.isEmpty(), qPrintable(Lines(problems)));
    }

    void bothLanguagesHaveTheSameTexts()
    {
        const QSet<QString> english = Read(PathOf(English())).Keys();
        const QSet<QString> chinese = Read(PathOf(Chinese())).Keys();
        const QSet<QString> onlyEnglish = english - chinese;
        const QSet<QString> onlyChinese = chinese - english;
        QVERIFY2(onlyEnglish.isEmpty(), qPrintable(Lines(onlyEnglish)));
        QVERIFY2(onlyChinese.isEmpty(), qPrintable(Lines(onlyChinese)));
    }

    void theCataloguesHoldExactlyTheTextsOfTheSources()
    {
        const QTemporaryDir folder;
        QVERIFY(folder.isValid());
        QStringList arguments = QStringLiteral(ACS_COLLECT_TEXTS).split(QLatin1Char('|'));
        arguments << QStringLiteral("-silent") << QStringLiteral("-ts");
        for (const QString& name : {English(), Chinese()}) {
            QVERIFY(QFile::copy(PathOf(name), folder.filePath(name)));
            // A copy of a read-only file is read-only itself.
            QVERIFY(QFile::setPermissions(folder.filePath(name),
                                          QFileDevice::ReadOwner | QFileDevice::WriteOwner));
            arguments << folder.filePath(name);
        }

        QProcess lupdate;
        lupdate.setWorkingDirectory(QStringLiteral(ACS_SOURCE_DIR));
        lupdate.start(QStringLiteral(ACS_LUPDATE), arguments);
        QVERIFY2(lupdate.waitForFinished(120'000), qPrintable(lupdate.errorString()));
        const QByteArray complaints = lupdate.readAllStandardError();
        QVERIFY2(complaints.isEmpty(), complaints.constData());
        QCOMPARE(lupdate.exitStatus(), QProcess::NormalExit);
        QCOMPARE(lupdate.exitCode(), 0);

        for (const QString& name : {English(), Chinese()}) {
            const QSet<QString> kept = Read(PathOf(name)).Keys();
            const Catalogue collected = Read(folder.filePath(name));
            QVERIFY2(collected.Error().isEmpty(), qPrintable(collected.Error()));
            const QSet<QString> missing = collected.Keys() - kept;
            const QSet<QString> gone = kept - collected.Keys();
            QVERIFY2(missing.isEmpty(), qPrintable(name + QStringLiteral(" lacks:") + Lines(missing)));
            QVERIFY2(gone.isEmpty(), qPrintable(name + QStringLiteral(" keeps what is gone:") + Lines(gone)));
        }
    }

    void placeholdersAreFoundInAnyOrder_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("placeholders");
        const QStringList none;
        QTest::newRow("empty") << QString() << none;
        QTest::newRow("none") << QStringLiteral("100 % sure, 5 %x") << none;
        QTest::newRow("order") << QStringLiteral("%2 of %1")
                               << QStringList{QStringLiteral("%1"), QStringLiteral("%2")};
        QTest::newRow("twice") << QStringLiteral("%1%1")
                               << QStringList{QStringLiteral("%1"), QStringLiteral("%1")};
        QTest::newRow("two digits") << QStringLiteral("%12") << QStringList{QStringLiteral("%12")};
        QTest::newRow("localized, number")
            << QStringLiteral("%n, %L1") << QStringList{QStringLiteral("%L1"), QStringLiteral("%n")};
    }

    void placeholdersAreFoundInAnyOrder()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, placeholders);
        QCOMPARE(Placeholders(text), placeholders);
    }

    void aFlawIsNamed_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("flaw");
        const auto plain = [](const char* szSource, const char* szTranslation) {
            return Message(
                QString::fromLatin1(szSource),
                QStringLiteral("<translation>%1</translation>").arg(QString::fromLatin1(szTranslation)));
        };
        const auto typed = [](const char* szType) {
            return Message(
                QStringLiteral("A"),
                QStringLiteral("<translation type=\"%1\">B</translation>").arg(QString::fromLatin1(szType)));
        };
        QTest::newRow("unfinished") << typed("unfinished") << QStringLiteral("is unfinished");
        QTest::newRow("vanished") << typed("vanished") << QStringLiteral("is vanished");
        QTest::newRow("obsolete") << typed("obsolete") << QStringLiteral("is obsolete");
        QTest::newRow("empty") << plain("A", "") << QStringLiteral("is empty");
        QTest::newRow("blank") << plain("A", " \n ") << QStringLiteral("is empty");
        QTest::newRow("absent") << Message(QStringLiteral("A"), QString())
                                << QStringLiteral("has 0 forms instead of 1");
        QTest::newRow("lost") << plain("A %1", "B") << QStringLiteral("has other placeholders");
        QTest::newRow("other") << plain("A %1", "B %2") << QStringLiteral("has other placeholders");
        QTest::newRow("doubled") << plain("A %1", "B %1 %1") << QStringLiteral("has other placeholders");
        QTest::newRow("lines") << plain("A\nB", "AB") << QStringLiteral("has other line breaks");
        QTest::newRow("mnemonic") << plain("&amp;A", "B") << QStringLiteral("lost or gained its mnemonic");
        QTest::newRow("ampersand") << plain("A", "B &amp;C") << QStringLiteral("lost or gained its mnemonic");
        QTest::newRow("twice") << plain("A", "B") + plain("A", "B") << QStringLiteral("stands twice");
    }

    void aFlawIsNamed()
    {
        QFETCH(QString, message);
        QFETCH(QString, flaw);
        const Catalogue catalogue = Made(message);
        QVERIFY2(catalogue.Error().isEmpty(), qPrintable(catalogue.Error()));
        const QStringList problems = catalogue.Problems(1);
        QCOMPARE(problems.size(), 1);
        QVERIFY2(problems.constFirst().endsWith(flaw), qPrintable(problems.constFirst()));
    }

    void aSoundMessageHasNoFlaw()
    {
        const Catalogue catalogue =
            Made(Message(QStringLiteral("&amp;A %1 &amp;&amp; %2"),
                         QStringLiteral("<translation>%2 &amp;&amp; %1 (&amp;A)</translation>")));
        QCOMPARE(catalogue.Problems(1), QStringList());
    }

    void everyGrammaticalNumberNeedsItsForm()
    {
        const QString strMessage =
            QStringLiteral("<message numerus=\"yes\"><source>%n door(s)</source><translation>"
                           "<numerusform>%n door</numerusform><numerusform>%n doors</numerusform>"
                           "</translation></message>");
        QCOMPARE(Made(strMessage).Problems(2), QStringList());
        QCOMPARE(Made(strMessage).Problems(1).size(), 1);
        QCOMPARE(Made(strMessage).Problems(3).size(), 1);
        QString strEmptyForm = strMessage;
        strEmptyForm.replace(QStringLiteral("%n doors"), QString());
        QCOMPARE(Made(strEmptyForm).Problems(2).size(), 1);
    }

    void messagesDifferByContextSourceAndComment()
    {
        const Catalogue catalogue(
            QByteArrayLiteral("<TS><context><name>C</name>"
                              "<message><source>A</source><translation>1</translation></message>"
                              "<message><source>A</source><comment>x</comment>"
                              "<translation>2</translation></message>"
                              "<message><source>B</source><translation>3</translation></message></context>"
                              "<context><name>D</name>"
                              "<message><source>A</source><translation>4</translation></message>"
                              "</context></TS>"));
        QCOMPARE(catalogue.Messages().size(), std::size_t(4));
        QCOMPARE(catalogue.Keys().size(), 4);
        QCOMPARE(catalogue.Problems(1), QStringList());
    }

    void whatIsNoCatalogueIsRefused_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArrayLiteral("texts");
        QTest::newRow("other") << QByteArrayLiteral("<ui/>");
        QTest::newRow("cut off") << QByteArrayLiteral("<TS><context><name>C</name><message>");
        QTest::newRow("markup in a text")
            << QByteArrayLiteral("<TS><context><name>C</name><message><source>A<b/></source>"
                                 "</message></context></TS>");
    }

    void whatIsNoCatalogueIsRefused()
    {
        QFETCH(QByteArray, content);
        QVERIFY(!Catalogue(content).Error().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_catalogues)
#include "tst_catalogues.moc"
