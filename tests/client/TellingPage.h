#pragma once

#include <QByteArray>
#include <QLineEdit>
#include <QStringList>
#include <QWidget>

#include <functional>

/// A page that offers everything a client may ask for. It holds one text; each edit is a step that can be
/// undone, and the page is modified while the text is not the one last saved.
class TellingPage : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString editedScheme READ Text NOTIFY SignalEditedSchemeChanged)
    Q_PROPERTY(int enabledSchemes READ EnabledSchemes NOTIFY SignalEnabledSchemesChanged)
    Q_PROPERTY(bool canUndo READ CanUndo NOTIFY SignalUndoChanged)
    Q_PROPERTY(bool canRedo READ CanRedo NOTIFY SignalUndoChanged)
    Q_PROPERTY(QString undoText READ UndoText NOTIFY SignalUndoChanged)
    Q_PROPERTY(QString redoText READ RedoText NOTIFY SignalUndoChanged)

public:
    explicit TellingPage(QWidget* parent = nullptr)
        : QWidget(parent)
    {
    }

    QString Text() const { return m_texts.at(m_iNow); }
    int EnabledSchemes() const { return Text().size(); }
    bool CanUndo() const { return m_iNow > 0; }
    bool CanRedo() const { return m_iNow + 1 < m_texts.size(); }
    QString UndoText() const { return CanUndo() ? QStringLiteral("Write ") + m_texts.at(m_iNow) : QString(); }
    QString RedoText() const
    {
        return CanRedo() ? QStringLiteral("Write ") + m_texts.at(m_iNow + 1) : QString();
    }
    int Saves() const { return m_iSaves; }

    /// Is asked by a save whether it takes place; every save does without one.
    std::function<bool()> m_save;

    Q_INVOKABLE void Edit(const QString& strText)
    {
        m_texts = m_texts.mid(0, m_iNow + 1);
        m_texts.append(strText);
        ++m_iNow;
        Tell();
    }
    Q_INVOKABLE void Undo()
    {
        m_iNow -= CanUndo() ? 1 : 0;
        Tell();
    }
    Q_INVOKABLE void Redo()
    {
        m_iNow += CanRedo() ? 1 : 0;
        Tell();
    }
    Q_INVOKABLE void MarkUnsaved()
    {
        m_bSaved = false;
        Tell();
    }
    Q_INVOKABLE QByteArray Draft() const { return isWindowModified() ? Text().toUtf8() : QByteArray(); }
    Q_INVOKABLE int DraftSchemes(const QByteArray& draft) const { return QString::fromUtf8(draft).size(); }
    Q_INVOKABLE int RestoreDraft(const QByteArray& draft)
    {
        if (draft == "unusable") {
            return -1;
        }
        const QString strText = QString::fromUtf8(draft);
        if (strText == Text()) {
            return 0;
        }
        Edit(strText);
        return strText.size();
    }

public Q_SLOTS:
    void OnSave()
    {
        ++m_iSaves;
        if (!m_save || m_save()) {
            m_strSaved = Text();
            m_bSaved = true;
            Tell();
        }
    }

Q_SIGNALS:
    void SignalEditedSchemeChanged();
    void SignalEnabledSchemesChanged();
    void SignalUndoChanged();

private:
    void Tell()
    {
        setWindowModified(!m_bSaved || Text() != m_strSaved);
        Q_EMIT SignalEditedSchemeChanged();
        Q_EMIT SignalEnabledSchemesChanged();
        Q_EMIT SignalUndoChanged();
    }

    QStringList m_texts{QString()};
    int m_iNow = 0;
    int m_iSaves = 0;
    QString m_strSaved;
    bool m_bSaved = true;
};
