#include "tests/scheme_editor/PageByName.h"

#include <QVariant>

PageByName::PageByName(QObject& page)
    : m_page(page)
{
}

bool PageByName::CanUndo() const
{
    return m_page.property("canUndo").toBool();
}

bool PageByName::CanRedo() const
{
    return m_page.property("canRedo").toBool();
}

QString PageByName::UndoText() const
{
    return m_page.property("undoText").toString();
}

QString PageByName::RedoText() const
{
    return m_page.property("redoText").toString();
}

QString PageByName::EditedScheme() const
{
    return m_page.property("editedScheme").toString();
}

int PageByName::EnabledSchemes() const
{
    return m_page.property("enabledSchemes").toInt();
}

bool PageByName::Undo() const
{
    return Call("Undo");
}

bool PageByName::Redo() const
{
    return Call("Redo");
}

bool PageByName::MarkUnsaved() const
{
    return Call("MarkUnsaved");
}

QByteArray PageByName::Draft() const
{
    QByteArray draft;
    const bool bCalled =
        QMetaObject::invokeMethod(&m_page, "Draft", Qt::DirectConnection, Q_RETURN_ARG(QByteArray, draft));
    return bCalled ? draft : QByteArrayLiteral("no such operation");
}

int PageByName::RestoreDraft(const QByteArray& draft) const
{
    int iRestored = -2;
    QMetaObject::invokeMethod(&m_page, "RestoreDraft", Qt::DirectConnection, Q_RETURN_ARG(int, iRestored),
                              Q_ARG(QByteArray, draft));
    return iRestored;
}

bool PageByName::Call(const char* szOperation) const
{
    return QMetaObject::invokeMethod(&m_page, szOperation, Qt::DirectConnection);
}
