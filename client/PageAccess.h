#pragma once

#include <QByteArray>
#include <QString>

class QObject;
class QWidget;

/// What the client may ask of a module's page. It knows no page's class: everything is looked up by name in
/// the page's meta-object, and a page may offer none of it. A null page offers nothing. User-interface thread
/// only.
namespace PageAccess {

/// Whether the page has a slot "OnSave()".
bool CanSave(const QWidget* pPage);
bool Save(QWidget* pPage); ///< false when the page cannot
/// Tells the page that its last save did not reach the disk: "MarkUnsaved()".
void MarkUnsaved(QWidget* pPage);
/// Tells the page that a save has ended, and whether another one follows: "SaveEnded(bool,bool)".
void SaveEnded(QWidget* pPage, bool bStored, bool bMore);

bool OffersDraft(const QWidget* pPage);
/// The edits that are not saved, in the page's own form: "QByteArray Draft() const". Empty when there are
/// none.
QByteArray Draft(QWidget* pPage);
/// How many schemes a draft of this page changes: "int DraftSchemes(QByteArray) const"; -1 when it does not
/// tell.
int DraftSchemes(QWidget* pPage, const QByteArray& draft);
/// Makes the edits of a draft again: "int RestoreDraft(QByteArray)". How many schemes changed by it, negative
/// when the page cannot use the draft.
int RestoreDraft(QWidget* pPage, const QByteArray& draft);

/// A property, or what is given instead where the page has none of that name.
int IntProperty(const QWidget* pPage, const char* szName, int iOtherwise);
bool BoolProperty(const QWidget* pPage, const char* szName);
QString TextProperty(const QWidget* pPage, const char* szName);
/// Calls an invokable without arguments; false when the page has none of that name.
bool Call(QWidget* pPage, const char* szName);
/// Connects the notification signal of a property with a slot of the receiver, given as its signature
/// ("OnChanged()"); does nothing when the page has no such property or it never changes.
void Follow(QWidget* pPage, const char* szProperty, QObject* pReceiver, const char* szSlot);

} // namespace PageAccess
