#include "client/ModulePlatform.h"
#include "platform/LXPluginAPI/PlatformVersion.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using ModulePlatform::Fit;

Q_DECLARE_METATYPE(ModulePlatform::Fit)

class TestModulePlatform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theClientHasThePlatformOfItsHeaders();
    void theStatedVersionIsFound_data();
    void theStatedVersionIsFound();
    void aVersionIsCompared_data();
    void aVersionIsCompared();
};

void TestModulePlatform::theClientHasThePlatformOfItsHeaders()
{
    QCOMPARE(ModulePlatform::ToText(ModulePlatform::Own()),
             QStringLiteral("%1.%2").arg(LX_PLATFORM_VERSION_MAJOR).arg(LX_PLATFORM_VERSION_MINOR));
    QCOMPARE(ModulePlatform::Compare(ModulePlatform::ToText(ModulePlatform::Own()), ModulePlatform::Own()),
             Fit::Fits);
}

void TestModulePlatform::theStatedVersionIsFound_data()
{
    QTest::addColumn<QByteArray>("metaData");
    QTest::addColumn<bool>("bStated");
    QTest::addColumn<QString>("strVersion");
    QTest::newRow("none") << QByteArray(R"({"IID": "x", "MetaData": {"Keys": ["a"]}})") << false << QString();
    QTest::newRow("no metadata") << QByteArray("{}") << false << QString();
    QTest::newRow("by the build") << QByteArray(R"({"PlatformVersion": ["1.0"]})") << true
                                  << QStringLiteral("1.0");
    QTest::newRow("by hand") << QByteArray(R"({"MetaData": {"PlatformVersion": "2.1"}})") << true
                             << QStringLiteral("2.1");
    QTest::newRow("both: the build knows better")
        << QByteArray(R"({"PlatformVersion": ["1.0"], "MetaData": {"PlatformVersion": "2.1"}})") << true
        << QStringLiteral("1.0");
    QTest::newRow("in another place")
        << QByteArray(R"({"MetaData": {"x": {"PlatformVersion": "2.1"}}})") << false << QString();
    QTest::newRow("two versions") << QByteArray(R"({"PlatformVersion": ["1.0", "2.0"]})") << true
                                  << QString();
    QTest::newRow("an empty list") << QByteArray(R"({"PlatformVersion": []})") << true << QString();
    QTest::newRow("a number") << QByteArray(R"({"MetaData": {"PlatformVersion": 1.0}})") << true << QString();
    QTest::newRow("nothing") << QByteArray(R"({"MetaData": {"PlatformVersion": null}})") << true << QString();
    QTest::newRow("a list in a list") << QByteArray(R"({"PlatformVersion": [["1.0"]]})") << true << QString();
}

void TestModulePlatform::theStatedVersionIsFound()
{
    QFETCH(QByteArray, metaData);
    QFETCH(bool, bStated);
    QFETCH(QString, strVersion);
    const QJsonDocument document = QJsonDocument::fromJson(metaData);
    QVERIFY(document.isObject());
    const std::optional<QString> strStated = ModulePlatform::Stated(document.object());
    QCOMPARE(strStated.has_value(), bStated);
    QCOMPARE(strStated.value_or(QString()), strVersion);
}

void TestModulePlatform::aVersionIsCompared_data()
{
    QTest::addColumn<QString>("strStated");
    QTest::addColumn<Fit>("fit");
    // against the platform 3.4
    QTest::newRow("the same") << QStringLiteral("3.4") << Fit::Fits;
    QTest::newRow("a third number means nothing") << QStringLiteral("3.4.9") << Fit::Fits;
    QTest::newRow("an older one of the same major") << QStringLiteral("3.0") << Fit::Fits;
    QTest::newRow("a newer one of the same major") << QStringLiteral("3.5") << Fit::NewerMinor;
    QTest::newRow("numbers are no decimals") << QStringLiteral("3.10") << Fit::NewerMinor;
    QTest::newRow("leading zeros") << QStringLiteral("03.04") << Fit::Fits;
    QTest::newRow("an older major") << QStringLiteral("2.4") << Fit::OtherMajor;
    QTest::newRow("a newer major") << QStringLiteral("4.0") << Fit::OtherMajor;
    QTest::newRow("a newer major that begins alike") << QStringLiteral("33.4") << Fit::OtherMajor;
    for (const char* szText : {"", "3", "3.", ".4", "three", "3.4-beta", " 3.4", "3.4\n", "3.4.5.6", "-3.4",
                               "3,4", "3.99999999999999999999", "\xd9\xa3.\xd9\xa4"}) {
        const QString strText = QString::fromUtf8(szText);
        QTest::newRow(qPrintable(QStringLiteral("unreadable: \"%1\"").arg(strText)))
            << strText << Fit::Unreadable;
    }
}

void TestModulePlatform::aVersionIsCompared()
{
    QFETCH(QString, strStated);
    QFETCH(Fit, fit);
    QCOMPARE(ModulePlatform::Compare(strStated, {3, 4}), fit);
}

QTEST_APPLESS_MAIN(TestModulePlatform)
#include "tst_module_platform.moc"
