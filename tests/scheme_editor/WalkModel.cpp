#include "tests/scheme_editor/WalkModel.h"

#include "platform/SystemLibrary/AlarmSchemeCommon.h"

WalkModel::WalkModel()
    : m_current{AlarmSchemeCommon::ACSAlarmEvent().constFirst(),
                AlarmSchemeCommon::ACSAbnormalEvent().constFirst(),
                AlarmSchemeCommon::ACSNormalEvent().constFirst()}
{
}

void WalkModel::SelectDoor(int64_t iDeviceId, int64_t iChannelId)
{
    const QString strKey = QStringLiteral("%1$1$0$%2").arg(iDeviceId).arg(iChannelId);
    if (strKey == m_strSource)
        return;
    m_strSource = strKey;
    m_iDeviceId = iDeviceId;
    m_iCategory = 0;
    m_inputs.clear();
    m_strInput.clear();
}

void WalkModel::SelectDevice(int64_t iDeviceId, const QStringList& inputKeys)
{
    const QString strKey = QStringLiteral("%1$1$1$0").arg(iDeviceId);
    if (strKey == m_strSource)
        return;
    m_strSource = strKey;
    m_iDeviceId = iDeviceId;
    m_iCategory = External;
    m_inputs = inputKeys;
    m_strInput = inputKeys.value(0);
}

void WalkModel::SelectNothing()
{
    m_strSource.clear();
    m_iDeviceId = -1;
    m_inputs.clear();
    m_strInput.clear();
}

void WalkModel::ChooseCategory(int iCategory)
{
    m_iCategory = iCategory;
}

void WalkModel::ChooseEvent(int32_t iType)
{
    m_current[static_cast<size_t>(m_iCategory)] = iType;
}

void WalkModel::ChooseInput(const QString& strInput)
{
    m_strInput = strInput;
}

void WalkModel::RemoveDevice(int64_t iDeviceId)
{
    const QString strPrefix = QString::number(iDeviceId) + QLatin1Char('$');
    for (auto it = m_edits.begin(); it != m_edits.end();)
        it = it.key().strEventSource.startsWith(strPrefix) ? m_edits.erase(it) : std::next(it);
    if (m_iDeviceId == iDeviceId)
        SelectNothing();
}

std::optional<AlarmSourceKey> WalkModel::KeyOf(int32_t iType) const
{
    if (m_strSource.isEmpty())
        return std::nullopt;
    if (iType == 22)
        return AlarmSourceKey{QStringLiteral("%1$1$0$-1").arg(m_iDeviceId), iType};
    return AlarmSourceKey{m_strSource, iType};
}

std::optional<AlarmSourceKey> WalkModel::Current() const
{
    if (m_iCategory != External)
        return KeyOf(m_current[static_cast<size_t>(m_iCategory)]);
    if (m_strInput.isEmpty())
        return std::nullopt;
    return AlarmSourceKey{m_strInput, 2};
}

WalkModel::Edits& WalkModel::Edit()
{
    return m_edits[*Current()];
}

WalkModel::Edits WalkModel::Shown() const
{
    const std::optional<AlarmSourceKey> key = Current();
    return key ? m_edits.value(*key) : Edits();
}

bool WalkModel::IsOn(int32_t iType) const
{
    const std::optional<AlarmSourceKey> key = KeyOf(iType);
    return key && m_edits.value(*key).bOpen;
}

bool WalkModel::IsInputOn(const QString& strInput) const
{
    return m_edits.value({strInput, 2}).bOpen;
}

AlarmInfoMap WalkModel::Schemes() const
{
    AlarmInfoMap schemes;
    for (auto it = m_edits.cbegin(); it != m_edits.cend(); ++it) {
        AlarmInfo info;
        info.bOpen = it->bOpen;
        info.bOpenSound = it->bSound;
        info.bSendEmail = it->bMail;
        if (it->outputs[0])
            info.listAlarmOut.append({QStringLiteral("503$3$0$0"), true, 20});
        if (it->outputs[1])
            info.listAlarmOut.append({QStringLiteral("504$3$0$0"), true, 20});
        for (int day = 0; day < 7; ++day) {
            if (it->emptyDays[static_cast<size_t>(day)])
                info.defenceTime[day].clear();
        }
        schemes.insert(it.key(), info);
    }
    return schemes;
}
