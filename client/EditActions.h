#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QWidget;

/// The entries of the Edit menu. Undo and redo belong to the text field that has the focus, and otherwise to
/// the page in front, which tells by properties (canUndo, canRedo, undoText, redoText) what there is and does
/// it by invokables (Undo, Redo); a page may offer neither. Find leads to the search field nearest to the
/// focus.
class EditActions : public QObject
{
    Q_OBJECT

public:
    struct Actions
    {
        QAction* pUndo;
        QAction* pRedo;
        QAction* pFind;
    };

    EditActions(const Actions& actions, QObject* parent);
    ~EditActions() override;

    void SetPage(QWidget* pPage); ///< null: no page is in front

public Q_SLOTS:
    void OnChanged(); ///< brings the entries up to date

private:
    void OnFocusChanged(QWidget* pFocus);
    void OnUndo();
    void OnRedo();
    void OnFind();

    Actions m_actions;
    QPointer<QWidget> m_page;
    QPointer<QWidget> m_field; ///< the text field that has the focus
};
