#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

/// What the page must hold after what a person has done: which scheme is current, and what was toggled under
/// which key. Knows nothing of the page.
class WalkModel
{
public:
    static constexpr int External = 3; ///< category of the alarm inputs; 0 to 2 are the three lists

    struct Edits
    {
        bool bOpen = false;
        bool bSound = false;
        bool bMail = false;
        std::array<bool, 2> outputs{}; ///< the horn and the lamp
        std::array<bool, 7> emptyDays{};
    };

    WalkModel();

    void SelectDoor(int64_t iDeviceId, int64_t iChannelId);
    void SelectDevice(int64_t iDeviceId, const QStringList& inputKeys);
    void SelectNothing();
    void ChooseCategory(int iCategory);
    void ChooseEvent(int32_t iType);           ///< in the list of the present category
    void ChooseInput(const QString& strInput); ///< empty for the item of the device
    void RemoveDevice(int64_t iDeviceId);

    bool HasSource() const { return !m_strSource.isEmpty(); }
    int Category() const { return m_iCategory; }
    const QStringList& Inputs() const { return m_inputs; }
    QString CurrentInput() const { return m_strInput; }
    std::optional<AlarmSourceKey> Current() const;
    Edits& Edit(); ///< of the current scheme; there must be one
    Edits Shown() const;
    bool IsOn(int32_t iType) const; ///< mark of an event of the selected door
    bool IsInputOn(const QString& strInput) const;

    AlarmInfoMap Schemes() const;

private:
    std::optional<AlarmSourceKey> KeyOf(int32_t iType) const;

    QString m_strSource;
    int64_t m_iDeviceId = -1;
    int m_iCategory = 0;
    std::array<int32_t, 3> m_current; ///< each list keeps its own current event
    QStringList m_inputs;
    QString m_strInput;
    QMap<AlarmSourceKey, Edits> m_edits;
};
