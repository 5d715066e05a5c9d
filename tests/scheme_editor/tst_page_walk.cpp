#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/VantaModel/NodeRoles.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/SchemeText.h"
#include "tests/scheme_editor/WalkModel.h"

#include <QTest>

#include <random>

using namespace PageSite;

namespace {

constexpr int s_iSteps = 2000;
constexpr const char* s_categories[] = {"btnAlarm", "btnAbnormal", "btnNormal", "btnExternalAlarm"};
constexpr const char* s_lists[] = {"listAlarm", "listAbnormal", "listNormal"};
constexpr const char* s_tabs[] = {"btnNotify", "btnAlarmOut", "btnDefTime"};

struct Node
{
    int64_t iDeviceId;
    int64_t iChannelId; ///< 0 for the device itself
    bool bSource;       ///< whether it can be configured
};

constexpr Node s_nodes[] = {
    {Lobby, 0, true},       {Lobby, Front, true}, {Lobby, Back, true},    {Vault, 0, true},
    {Vault, Safe, true},    {Garage, 0, true},    {Garage, Gate, true},   {Cellar, 0, false},
    {Cellar, Hatch, false}, {Attic, 0, true},     {Attic, Sealed, false}, {Attic, Loft, true},
};

constexpr int64_t s_devices[] = {Lobby, Vault, Garage, Cellar, Attic};

QStringList InputsOf(int64_t iDeviceId)
{
    QStringList keys;
    const VantaLogic::DeviceInfo device = PageSite::Device(iDeviceId);
    for (const VantaLogic::ChannelInfo& channel : device.channels) {
        if (channel.iChannelType == VantaLogic::ChannelTypeAlarmInput)
            keys.append(QStringLiteral("%1$3$1$%2").arg(iDeviceId).arg(channel.iChannelId));
    }
    return keys;
}

QList<int> TypesOf(int iCategory)
{
    if (iCategory == 0)
        return AlarmSchemeCommon::ACSAlarmEvent();
    return iCategory == 1 ? AlarmSchemeCommon::ACSAbnormalEvent() : AlarmSchemeCommon::ACSNormalEvent();
}

/// One person who does whatever comes to mind, and the book that is kept of it.
class Walk
{
public:
    explicit Walk(unsigned int iSeed)
        : m_random(iSeed)
        , m_page(&m_host.managers)
    {
    }

    /// Does one thing; answers what then differs from the book, or nothing.
    QString Step()
    {
        const int what = Random(24);
        QString strProblem;
        if (what < 5) {
            strProblem = ClickNode(s_nodes[Random(12)]);
        } else if (what < 7) {
            strProblem = ClickCategory(Random(4));
        } else if (what < 10) {
            strProblem = ClickEvent();
        } else if (what < 12) {
            strProblem = ClickInput();
        } else if (what == 12) {
            strProblem = ClickTab();
        } else if (what == 13) {
            strProblem = Search();
        } else if (what < 22) {
            strProblem = Edit();
        } else if (what == 22) {
            strProblem = RemoveOrAdd();
        } else {
            strProblem = Save();
        }
        if (strProblem.isEmpty())
            strProblem = Compare();
        return strProblem.isEmpty() ? QString() : m_strDone + QLatin1String(": ") + strProblem;
    }

    int EditCount() const { return m_iEdits; }

    /// Ends the walk with a Save; answers what was saved and what the book says.
    std::pair<QStringList, QStringList> Finish()
    {
        m_page.Page().OnSave();
        return {SchemeText::Edited(m_host.Kept().schemes), SchemeText::Edited(m_model.Schemes())};
    }

private:
    int Random(int iBelow) { return std::uniform_int_distribution<int>(0, iBelow - 1)(m_random); }

    static QString Unless(bool bRight, const char* szProblem)
    {
        return bRight ? QString() : QString::fromLatin1(szProblem);
    }

    bool SeesNode(const Node& node) const
    {
        return node.iChannelId == 0 ? m_page.hands.SeesNode(node.iDeviceId, VantaModel::NodeKindDevice)
                                    : m_page.hands.SeesNode(node.iChannelId, VantaModel::NodeKindChannel);
    }

    void Select(const Node* pNode)
    {
        if (pNode == nullptr || !pNode->bSource) {
            m_model.SelectNothing();
        } else if (pNode->iChannelId == 0) {
            m_model.SelectDevice(pNode->iDeviceId, InputsOf(pNode->iDeviceId));
        } else {
            m_model.SelectDoor(pNode->iDeviceId, pNode->iChannelId);
        }
    }

    QString ClickNode(const Node& node)
    {
        m_strDone = QStringLiteral("node %1/%2").arg(node.iDeviceId).arg(node.iChannelId);
        const bool bSeen = SeesNode(node);
        const bool bDone = node.iChannelId == 0 ? m_page.hands.ClickDevice(node.iDeviceId)
                                                : m_page.hands.ClickDoor(node.iChannelId);
        if (bDone) {
            m_pPicked = &node;
            Select(&node);
        }
        return Unless(bDone == bSeen, "a node that is seen can be clicked");
    }

    QString ClickCategory(int iCategory)
    {
        m_strDone = QLatin1String(s_categories[iCategory]);
        const bool bDone = m_page.hands.ClickCategory(s_categories[iCategory]);
        const bool bOffered = m_model.HasSource() && (iCategory == WalkModel::External) ==
                                                         (m_model.Category() == WalkModel::External);
        if (bDone && m_model.HasSource() && iCategory == WalkModel::External) {
            // Chosen again, the alarm inputs show what their current item stands for.
            m_model.ChooseInput(m_page.hands.CurrentInputKey());
        }
        if (bDone)
            m_model.ChooseCategory(iCategory);
        return Unless(!m_model.HasSource() || bDone == bOffered, "the categories of the source are offered");
    }

    QString ClickEvent()
    {
        if (m_model.Category() == WalkModel::External)
            return {};
        const QList<int> types = TypesOf(m_model.Category());
        const int type = types.at(Random(types.size()));
        m_strDone = QStringLiteral("event %1").arg(type);
        const bool bDone = m_page.hands.ClickEvent(type);
        if (bDone)
            m_model.ChooseEvent(type);
        return Unless(bDone || !m_model.HasSource(), "an event of a selected door can be clicked");
    }

    QString ClickInput()
    {
        if (m_model.Category() != WalkModel::External || !m_model.HasSource())
            return {};
        const QStringList inputs = m_model.Inputs();
        const int which = Random(inputs.size() + 1);
        const QString input = inputs.value(which);
        m_strDone = QStringLiteral("input %1").arg(input);
        const bool bDone = input.isEmpty() ? m_page.hands.ClickInputDevice() : m_page.hands.ClickInput(input);
        if (bDone)
            m_model.ChooseInput(input);
        return Unless(bDone == !inputs.isEmpty(), "an input that is listed can be clicked");
    }

    QString ClickTab()
    {
        const int tab = Random(3);
        m_strDone = QLatin1String(s_tabs[tab]);
        return Unless(m_page.hands.ClickTab(s_tabs[tab]) == m_model.Current().has_value(),
                      "a tab can be clicked while there is a scheme");
    }

    QString Search()
    {
        static const QStringList texts{QString(),
                                       QString(),
                                       QStringLiteral("Door"),
                                       QStringLiteral("Front"),
                                       QStringLiteral("Lobby"),
                                       QStringLiteral("Gate"),
                                       QStringLiteral("nothing matches this")};
        const QString& text = texts.at(Random(texts.size()));
        m_strDone = QStringLiteral("search \"%1\"").arg(text);
        if (!m_page.hands.Search(text))
            return QStringLiteral("the search box cannot be used");
        Select(m_pPicked != nullptr && SeesNode(*m_pPicked) ? m_pPicked : nullptr);
        return {};
    }

    QString Edit()
    {
        const bool bPossible = m_model.Current().has_value();
        const int what = Random(8);
        const int day = Random(7);
        bool bDone = false;
        m_strDone = QStringLiteral("edit %1 (day %2)").arg(what).arg(day);
        if (what < 2) {
            bDone = m_page.hands.ToggleOpen();
        } else if (what < 4) {
            bDone = m_page.hands.ToggleSound();
        } else if (what == 4) {
            bDone = m_page.hands.ToggleMail();
        } else if (what < 7) {
            bDone = m_page.hands.ToggleOutput(what == 5 ? Horn : Lamp);
        } else {
            bDone = m_page.hands.ToggleDay(day);
        }
        if (bDone != bPossible)
            return QStringLiteral("a scheme can be edited exactly while there is one");
        if (!bDone)
            return {};
        WalkModel::Edits& edits = m_model.Edit();
        bool& field = what < 2    ? edits.bOpen
                      : what < 4  ? edits.bSound
                      : what == 4 ? edits.bMail
                      : what < 7  ? edits.outputs[static_cast<size_t>(what - 5)]
                                  : edits.emptyDays[static_cast<size_t>(day)];
        field = !field;
        ++m_iEdits;
        return {};
    }

    QString RemoveOrAdd()
    {
        const int64_t device = s_devices[Random(5)];
        VantaLogic::DeviceInfo info;
        if (m_host.devices.GetDevice(device, info) != 0) {
            m_strDone = QStringLiteral("add %1").arg(device);
            return Unless(m_host.devices.AddDevice(PageSite::Device(device)), "the site takes the device");
        }
        if (Random(4) != 0)
            return {}; // or the site would stand half empty most of the time
        m_strDone = QStringLiteral("remove %1").arg(device);
        if (!m_host.devices.RemoveDevice(device))
            return QStringLiteral("the site gives the device away");
        m_model.RemoveDevice(device);
        if (m_pPicked != nullptr && m_pPicked->iDeviceId == device)
            m_pPicked = nullptr;
        return Unless(
            QTest::qWaitFor([&] { return SchemeText::KeysOfDevice(m_page.Schemes(), device).isEmpty(); }),
            "the device's schemes leave the map");
    }

    QString Save()
    {
        m_strDone = QStringLiteral("save");
        if (!m_page.hands.Save())
            return {};
        return Unless(SchemeText::Edited(m_host.Kept().schemes) == SchemeText::Edited(m_model.Schemes()),
                      "what is saved is what was edited");
    }

    QString Compare() const
    {
        const PageHands& hands = m_page.hands;
        const WalkModel::Edits shown = m_model.Shown();
        if (hands.AreSettingsEnabled() != m_model.Current().has_value())
            return QStringLiteral("the settings are enabled exactly while there is a scheme");
        if (m_model.HasSource() && !hands.IsColumnEnabled())
            return QStringLiteral("the column is enabled for a source");
        if (hands.IsOpenShown() != shown.bOpen || hands.IsSoundShown() != shown.bSound ||
            hands.IsMailShown() != shown.bMail)
            return QStringLiteral("the switches show the current scheme");
        if (!m_model.HasSource())
            return {};
        if (m_model.Category() == WalkModel::External) {
            if (hands.InputKeys() != m_model.Inputs())
                return QStringLiteral("the alarm inputs are those of the device");
            for (const QString& input : m_model.Inputs()) {
                if (hands.HasInputMark(input) != m_model.IsInputOn(input))
                    return QStringLiteral("the mark of input %1").arg(input);
            }
            return {};
        }
        const QList<int> types = TypesOf(m_model.Category());
        for (const int type : types) {
            if (hands.HasMark(s_lists[m_model.Category()], type) != m_model.IsOn(type))
                return QStringLiteral("the mark of event %1").arg(type);
        }
        return {};
    }

    PageHost m_host;
    std::mt19937 m_random;
    OpenPage m_page;
    WalkModel m_model;
    const Node* m_pPicked = nullptr; ///< what the device tree has selected
    QString m_strDone;
    int m_iEdits = 0;
};

} // namespace

/// A long random walk over the page against a plain book of what was toggled under which key.
class TestPageWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whateverIsDoneTheSavedMapIsWhatWasEdited_data();
    void whateverIsDoneTheSavedMapIsWhatWasEdited();
};

void TestPageWalk::whateverIsDoneTheSavedMapIsWhatWasEdited_data()
{
    QTest::addColumn<unsigned int>("seed");
    for (unsigned int seed = 1; seed <= 3; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestPageWalk::whateverIsDoneTheSavedMapIsWhatWasEdited()
{
    QFETCH(unsigned int, seed);
    Walk walk(seed);
    for (int step = 0; step < s_iSteps; ++step) {
        const QString problem = walk.Step();
        QVERIFY2(problem.isEmpty(),
                 qPrintable(QStringLiteral("seed %1, step %2, %3").arg(seed).arg(step).arg(problem)));
    }
    const auto [saved, expected] = walk.Finish();
    QVERIFY(walk.EditCount() > s_iSteps / 10); // a walk that edits nothing proves nothing
    QCOMPARE(saved, expected);
}

QTEST_MAIN(TestPageWalk)
#include "tst_page_walk.moc"
