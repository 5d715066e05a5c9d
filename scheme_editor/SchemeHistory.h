#pragma once

#include "scheme_editor/SchemeSelection.h"
#include "scheme_editor/edits/SchemeActionText.h"
#include "scheme_editor/edits/SchemeChange.h"
#include "scheme_editor/edits/SchemeContent.h"

#include <QObject>
#include <QString>
#include <QUndoStack>
#include <QVector>

#include <cstdint>
#include <functional>

/// One action of a person on the page.
struct SchemeStep
{
    QString strText;       ///< its name for a menu
    SchemeSelection place; ///< where it happened; no source when there is no place to go back to
    int iEditor = -1;      ///< position of the sub-editor that shows it; -1 when all do, or none
    SchemeChange change;
    /// Steps of one stay in a text field, told by a number above 0, become one; 0 stands alone.
    int iTyping = 0;
};

/// The steps that can be taken back and made again. Keeps the last ones, bounded in number and in memory;
/// the change itself is made by whoever is called. User-interface thread.
class SchemeHistory : public QObject
{
    Q_OBJECT

public:
    static constexpr int MaxSteps = 200;
    static constexpr int64_t MaxCost = int64_t{128} * 1024 * 1024; ///< bytes, see SchemeChange::Cost()

    using Make = std::function<void(const SchemeChange&, SchemeChange::Side)>;

    /// `make` brings the schemes to that side of a change. `isKnown` tells whether typing has led back to
    /// where it began, which is no step any more. The newest step stays whatever it costs.
    SchemeHistory(Make make, SchemeContent::KnownOutput isKnown, int64_t iMaxCost = MaxCost);
    ~SchemeHistory() override;

    /// A step that has been made already. What could be made again is forgotten.
    void Push(const SchemeStep& step);
    void Undo(); ///< nothing to undo, nothing done
    void Redo();
    void Clear();
    /// Drops what steps did to a device. A step that did nothing else is gone; one that happened there has
    /// no place any more.
    void ForgetDevice(int64_t iDeviceId);

    const SchemeStep* NextUndo() const; ///< null when there is none
    const SchemeStep* NextRedo() const;
    int Count() const { return m_stack.count(); }
    int64_t Cost() const; ///< bytes of all steps

Q_SIGNALS:
    void SignalChanged(); ///< what comes next in either direction

private:
    class Command;

    const Command* At(int iIndex) const;
    void Rebuild(const QVector<SchemeStep>& steps, int iIndex);
    void Trim();

    Make m_make;
    SchemeContent::KnownOutput m_isKnown;
    int64_t m_iMaxCost;
    QUndoStack m_stack;
    bool m_bMade = false;  ///< the step that is pushed has been made already
    bool m_bStill = false; ///< the steps are being rearranged
};
