#pragma once

#include "tests/AlarmCtrl_linkage/SiteHost.h"

#include <QMetaObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

/// What the copy popups of both pages promise alike, and how their tests read them.
namespace CopyPopupChecks {

/// The keys of every copy that a spy on SignalCopyTo has seen, sorted.
inline QStringList CopiedKeys(const QSignalSpy& copies)
{
    QStringList keys;
    for (const QList<QVariant>& arguments : copies)
        keys += QStringList(arguments.first().value<QList<QString>>());
    keys.sort();
    return keys;
}

template <typename Popup>
void StandsAboveItsParent(int iMode)
{
    const SiteHost host{Site()};
    QWidget window;
    window.setGeometry(400, 620, 300, 100);
    QPushButton button(&window);
    button.setGeometry(200, 50, 70, 24);
    const Popup popup(iMode, &button);
    QCOMPARE(popup.pos(), button.mapToGlobal(QPoint(70 - 222, -510)));
}

template <typename Popup>
void IsKnownByItsSignatures()
{
    const QMetaObject& meta = Popup::staticMetaObject;
    QVERIFY(meta.indexOfSignal("SignalCopyTo(QList<QString>)") >= meta.methodOffset());
    for (const char* const slot : {"OnOk()", "OnCancel()", "OnGroupTreeChkChanged(QModelIndex,bool)"})
        QVERIFY2(meta.indexOfSlot(slot) >= meta.methodOffset(), slot);
}

} // namespace CopyPopupChecks
