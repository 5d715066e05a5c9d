#include "client/EditActions.h"

#include "client/PageAccess.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

namespace {

/// The line edit that takes what is typed into the widget; null for other widgets.
QLineEdit* LineOf(QWidget* pWidget)
{
    return qobject_cast<QAbstractSpinBox*>(pWidget) != nullptr ? pWidget->findChild<QLineEdit*>()
                                                               : qobject_cast<QLineEdit*>(pWidget);
}

QTextDocument* DocumentOf(QWidget* pWidget)
{
    if (auto* const pEdit = qobject_cast<QPlainTextEdit*>(pWidget)) {
        return pEdit->isReadOnly() ? nullptr : pEdit->document();
    }
    auto* const pEdit = qobject_cast<QTextEdit*>(pWidget);
    return pEdit == nullptr || pEdit->isReadOnly() ? nullptr : pEdit->document();
}

bool IsTextField(QWidget* pWidget)
{
    const QLineEdit* const pLine = LineOf(pWidget);
    return pLine != nullptr ? !pLine->isReadOnly() : DocumentOf(pWidget) != nullptr;
}

QString Named(const QString& strVerb, const QString& strVerbWithName, QString strName)
{
    return strName.isEmpty() ? strVerb
                             : strVerbWithName.arg(strName.replace(QLatin1Char('&'), QLatin1String("&&")));
}

/// The uppermost search field below a widget that a person sees; null when there is none.
QLineEdit* SearchBelow(const QWidget& widget)
{
    QLineEdit* pFound = nullptr;
    const QList<QLineEdit*> fields = widget.findChildren<QLineEdit*>(QStringLiteral("edtSearch"));
    for (QLineEdit* const pField : fields) {
        const auto place = [&widget](const QWidget* pWidget) { return pWidget->mapTo(&widget, QPoint()); };
        if (pField->isVisible() && pField->isEnabled() &&
            (pFound == nullptr || place(pField).x() < place(pFound).x())) {
            pFound = pField;
        }
    }
    return pFound;
}

} // namespace

EditActions::EditActions(const Actions& actions, QObject* parent)
    : QObject(parent)
    , m_actions(actions)
{
    // The platforms differ in their keys for redo; here all of them work.
    m_actions.pUndo->setShortcut(QKeySequence(QStringLiteral("Ctrl+Z")));
    m_actions.pRedo->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Y")), QKeySequence(QStringLiteral("Ctrl+Shift+Z"))});
    m_actions.pFind->setShortcut(QKeySequence(QStringLiteral("Ctrl+F")));
    connect(m_actions.pUndo, &QAction::triggered, this, &EditActions::OnUndo);
    connect(m_actions.pRedo, &QAction::triggered, this, &EditActions::OnRedo);
    connect(m_actions.pFind, &QAction::triggered, this, &EditActions::OnFind);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*pOld*/, QWidget* pNew) { OnFocusChanged(pNew); });
    OnChanged();
}

EditActions::~EditActions() = default;

void EditActions::SetPage(QWidget* pPage)
{
    if (m_page) {
        m_page->disconnect(this);
    }
    m_page = pPage;
    if (m_page) {
        // One signal for all four; a second connection would only do everything twice.
        PageAccess::Follow(m_page, "undoText", this, "OnChanged()");
    }
    OnChanged();
}

void EditActions::OnFocusChanged(QWidget* pFocus)
{
    // On its way through a menu the focus leaves no field.
    if (qobject_cast<QMenuBar*>(pFocus) != nullptr || qobject_cast<QMenu*>(pFocus) != nullptr) {
        return;
    }
    QWidget* const pField = IsTextField(pFocus) ? pFocus : nullptr;
    if (pField == m_field) {
        return;
    }
    if (QLineEdit* const pLine = LineOf(m_field)) {
        pLine->disconnect(this);
    } else if (QTextDocument* const pDocument = DocumentOf(m_field)) {
        pDocument->disconnect(this);
    }
    m_field = pField;
    if (QLineEdit* const pLine = LineOf(m_field)) {
        connect(pLine, &QLineEdit::textChanged, this, &EditActions::OnChanged);
    } else if (QTextDocument* const pDocument = DocumentOf(m_field)) {
        connect(pDocument, &QTextDocument::undoAvailable, this, &EditActions::OnChanged);
        connect(pDocument, &QTextDocument::redoAvailable, this, &EditActions::OnChanged);
    }
    OnChanged();
}

void EditActions::OnChanged()
{
    const bool bPage = m_field.isNull();
    bool bUndo = bPage && PageAccess::BoolProperty(m_page, "canUndo");
    bool bRedo = bPage && PageAccess::BoolProperty(m_page, "canRedo");
    if (const QLineEdit* const pLine = LineOf(m_field)) {
        bUndo = pLine->isUndoAvailable();
        bRedo = pLine->isRedoAvailable();
    } else if (const QTextDocument* const pDocument = DocumentOf(m_field)) {
        bUndo = pDocument->isUndoAvailable();
        bRedo = pDocument->isRedoAvailable();
    }
    const auto name = [this, bPage](bool bThere, const char* szProperty) {
        return !bThere ? QString() : bPage ? PageAccess::TextProperty(m_page, szProperty) : tr("typing");
    };
    m_actions.pUndo->setEnabled(bUndo);
    m_actions.pUndo->setText(Named(tr("&Undo"), tr("&Undo %1"), name(bUndo, "undoText")));
    m_actions.pRedo->setEnabled(bRedo);
    m_actions.pRedo->setText(Named(tr("&Redo"), tr("&Redo %1"), name(bRedo, "redoText")));
}

void EditActions::OnUndo()
{
    if (QLineEdit* const pLine = LineOf(m_field)) {
        pLine->undo();
    } else if (QTextDocument* const pDocument = DocumentOf(m_field)) {
        pDocument->undo();
    } else {
        PageAccess::Call(m_page, "Undo");
    }
}

void EditActions::OnRedo()
{
    if (QLineEdit* const pLine = LineOf(m_field)) {
        pLine->redo();
    } else if (QTextDocument* const pDocument = DocumentOf(m_field)) {
        pDocument->redo();
    } else {
        PageAccess::Call(m_page, "Redo");
    }
}

void EditActions::OnFind()
{
    if (m_page.isNull() || PageAccess::Call(m_page, "FocusSearch")) {
        return;
    }
    QWidget* pPlace = QApplication::focusWidget();
    if (pPlace == nullptr || !m_page->isAncestorOf(pPlace)) {
        pPlace = m_page;
    }
    QLineEdit* pField = SearchBelow(*pPlace);
    while (pField == nullptr && pPlace != m_page) {
        pPlace = pPlace->parentWidget();
        pField = SearchBelow(*pPlace);
    }
    if (pField != nullptr) {
        pField->setFocus(Qt::ShortcutFocusReason);
        pField->selectAll();
    }
}
