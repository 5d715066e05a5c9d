#include "tests/architecture/IncludeRules.h"

#include <QFile>
#include <QMap>
#include <QTest>

#include <functional>

namespace {

struct Target
{
    QString strFile; ///< a source file that tells its room
    QStringList links;
};

using Targets = QMap<QString, Target>;

Targets Parse(const QString& strText)
{
    Targets targets;
    const QStringList lines = strText.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList fields = line.split(QLatin1Char('|'));
        if (fields.size() == 3)
            targets.insert(fields[0], {fields[1], fields[2].split(QLatin1Char(' '), Qt::SkipEmptyParts)});
    }
    return targets;
}

QStringList ForbiddenLinks(const Targets& targets)
{
    QStringList forbidden;
    for (auto target = targets.begin(); target != targets.end(); ++target) {
        const IncludeRules::Room* const room = IncludeRules::RoomOf(target->strFile);
        for (const QString& link : target->links) {
            const auto other = targets.find(link);
            if (other == targets.end())
                continue; // not ours
            const IncludeRules::Room* const otherRoom = IncludeRules::RoomOf(other->strFile);
            if (!room || !otherRoom ||
                (room != otherRoom && !IncludeRules::RoomsIncludedBy(*room).contains(otherRoom->strPrefix)))
                forbidden.append(QStringLiteral("%1 links %2").arg(target.key(), link));
        }
    }
    return forbidden;
}

/// A circle as a path of names; empty when there is none.
QStringList Circle(const Targets& targets)
{
    QStringList path;
    QSet<QString> done;
    const std::function<bool(const QString&)> walk = [&](const QString& name) {
        if (done.contains(name) || !targets.contains(name))
            return false;
        const bool closed = path.contains(name);
        path.append(name);
        if (closed)
            return true;
        for (const QString& link : targets[name].links) {
            if (walk(link))
                return true;
        }
        path.removeLast();
        done.insert(name);
        return false;
    };
    for (auto target = targets.begin(); target != targets.end(); ++target) {
        if (walk(target.key()))
            return path;
    }
    return {};
}

} // namespace

class tst_TargetLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(QStringLiteral(ACS_TARGETS_FILE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_targets = Parse(QString::fromUtf8(file.readAll()));
        for (const char* name :
             {"acs-client", "ACSEventConfigUI", "SchemeEditor", "AlarmCtrl", "HostServices", "AlarmRecords",
              "AlarmSchemeStore", "SystemLibrary", "LXGUI"})
            QVERIFY2(m_targets.contains(QLatin1String(name)), name);
    }

    void noTargetLinksWhatItsRoomMayNotKnow()
    {
        const QStringList forbidden = ForbiddenLinks(m_targets);
        QVERIFY2(forbidden.isEmpty(), qPrintable(forbidden.join(QLatin1Char('\n'))));
    }

    void targetsLinkEachOtherInNoCircle()
    {
        const QStringList circle = Circle(m_targets);
        QVERIFY2(circle.isEmpty(), qPrintable(circle.join(QStringLiteral(" -> "))));
    }

    void forbiddenLinksAreFound()
    {
        QCOMPARE(ForbiddenLinks(
                     Parse(QStringLiteral("Client|client/A.cpp|Page Qt5::Widgets\n"
                                          "Page|scheme_editor/A.cpp|Widgets Core\n"
                                          "Widgets|AlarmCtrl/A.cpp|Core\n"
                                          "Core|AlarmCtrl/AlarmSchemeData/AlarmInfo.cpp|Store\n"
                                          "Store|AlarmCtrl/AlarmSchemeData/AlarmSchemeReads.cpp|Core\n"))),
                 (QStringList{QStringLiteral("Client links Page"), QStringLiteral("Core links Store")}));
    }

    void circlesAreFound()
    {
        QCOMPARE(Circle(Parse(QStringLiteral("A|x/A.cpp|B Qt5::Core\nB|x/B.cpp|C\nC|x/C.cpp|B\n"))),
                 (QStringList{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                              QStringLiteral("B")}));
        QCOMPARE(Circle(Parse(QStringLiteral("A|x/A.cpp|B C\nB|x/B.cpp|C\nC|x/C.cpp|Qt5::Core\n"))),
                 QStringList());
    }

private:
    Targets m_targets;
};

QTEST_GUILESS_MAIN(tst_TargetLinks)
#include "tst_TargetLinks.moc"
