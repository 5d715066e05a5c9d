#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

/// The page as a host knows it, whose code it does not share: by the names of its properties and operations.
/// Calls answer false, or -2, when the page has no such operation.
class PageByName
{
public:
    explicit PageByName(QObject& page);

    bool CanUndo() const;
    bool CanRedo() const;
    QString UndoText() const;
    QString RedoText() const;
    QString EditedScheme() const;
    int EnabledSchemes() const;

    bool Undo() const;
    bool Redo() const;
    bool MarkUnsaved() const;
    QByteArray Draft() const;
    int RestoreDraft(const QByteArray& draft) const;

private:
    bool Call(const char* szOperation) const;

    QObject& m_page;
};
