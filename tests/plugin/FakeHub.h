#pragma once

#include "platform/LXPluginAPI/IHubManager.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

/// A hub whose operations write down their slot. Each slot answers a pointer of its own unless told
/// otherwise.
class FakeHub : public LXPluginAPI::IHubManager
{
public:
    enum class Answers
    {
        Distinct,
        Null
    };
    static constexpr int LastSlot = 58;

    explicit FakeHub(Answers answers = Answers::Distinct, std::string strName = "HubPluginManager")
        : m_strName(std::move(strName))
    {
        for (int slot = 0; slot <= LastSlot; ++slot)
            SetAnswer(slot, answers == Answers::Null ? nullptr : Mark(slot));
    }

    /// The pointer that a slot answers at first; never looked into.
    void* Mark(int iSlot) { return &m_marks[static_cast<std::size_t>(iSlot)]; }
    void SetAnswer(int iSlot, void* pAnswer) { m_answers[static_cast<std::size_t>(iSlot)] = pAnswer; }
    /// From now on every call answers a pointer that no earlier call answered (up to 64 calls).
    void AnswerAnewEveryTime() { m_bAnew = true; }

    std::string GetServiceName() const override
    {
        ++m_iNameCalls;
        return m_strName;
    }
    int NameCalls() const { return m_iNameCalls; }
    const std::vector<int>& Calls() const { return m_calls; }
    void* AnswerOfCall(std::size_t iCall) { return &m_anew[iCall]; }
    void ForgetCalls()
    {
        m_calls.clear();
        m_iNameCalls = 0;
    }

// clang-format off
// NOLINTBEGIN(bugprone-macro-parentheses): these macros write declarations
#define FAKE_SLOT(n) void* SubManager##n() override { return Answer(n); }
#define FAKE_SLOTS_10(t) \
    FAKE_SLOT(t##0) FAKE_SLOT(t##1) FAKE_SLOT(t##2) FAKE_SLOT(t##3) FAKE_SLOT(t##4) \
    FAKE_SLOT(t##5) FAKE_SLOT(t##6) FAKE_SLOT(t##7) FAKE_SLOT(t##8) FAKE_SLOT(t##9)
    FAKE_SLOT(2) FAKE_SLOT(3) FAKE_SLOT(4) FAKE_SLOT(5) FAKE_SLOT(6) FAKE_SLOT(7) FAKE_SLOT(8) FAKE_SLOT(9)
    FAKE_SLOTS_10(1)
    FAKE_SLOTS_10(2)
    FAKE_SLOTS_10(3)
    FAKE_SLOTS_10(4)
    FAKE_SLOT(50) FAKE_SLOT(51) FAKE_SLOT(52) FAKE_SLOT(53) FAKE_SLOT(54)
    FAKE_SLOT(55) FAKE_SLOT(56) FAKE_SLOT(57) FAKE_SLOT(58)
#undef FAKE_SLOTS_10
#undef FAKE_SLOT
    // NOLINTEND(bugprone-macro-parentheses)
        // clang-format on

        private : void* Answer(int iSlot)
    {
        m_calls.push_back(iSlot);
        if (m_bAnew)
            return AnswerOfCall(m_calls.size() - 1);
        return m_answers[static_cast<std::size_t>(iSlot)];
    }

    std::string m_strName;
    std::array<char, LastSlot + 1> m_marks{};
    std::array<char, 64> m_anew{};
    std::array<void*, LastSlot + 1> m_answers{};
    bool m_bAnew = false;
    mutable int m_iNameCalls = 0;
    std::vector<int> m_calls;
};

/// A manager that is nothing but a name.
class NamedManager : public LXPluginAPI::IManager
{
public:
    explicit NamedManager(std::string strName)
        : m_strName(std::move(strName))
    {
    }
    std::string GetServiceName() const override
    {
        ++m_iNameCalls;
        return m_strName;
    }
    int NameCalls() const { return m_iNameCalls; }

private:
    std::string m_strName;
    mutable int m_iNameCalls = 0;
};

/// Where each entry of the service table comes from, and in which order the table is filled.
namespace HubSlots {

inline constexpr int First = 58;
inline constexpr int Second = 43;
inline constexpr int Third = 47;
inline constexpr int Fourth = 48;
inline constexpr int Fifth = 52;
inline constexpr int Sixth = 53;
inline constexpr std::array<int, 40> Positions = {2,  3,  4,  5,  6,  7,  8,  25, 26, 19, 20, 30, 31, 21,
                                                  22, 34, 32, 33, 35, 36, 23, 24, 37, 38, 27, 28, 29, 39,
                                                  40, 41, 9,  13, 14, 17, 18, 12, 10, 11, 15, 16};
/// Slots with a getter that feed no entry of the table.
inline constexpr std::array<int, 10> Extra = {42, 44, 45, 46, 49, 50, 51, 54, 55, 56};

inline std::vector<int> FillOrder()
{
    std::vector<int> order = {Positions[7], Positions[13]};
    order.insert(order.end(), Positions.begin(), Positions.begin() + 39);
    for (int slot : {Second, Fourth, Third, Positions[39], Sixth, Fifth, First})
        order.push_back(slot);
    return order;
}

} // namespace HubSlots
