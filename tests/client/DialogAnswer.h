#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <QtTest>

/// Answers the next modal dialog that opens while this object lives: presses its button of that object name,
/// or Escape where it has none.
class DialogAnswer : public QObject
{
    Q_OBJECT

public:
    explicit DialogAnswer(const char* szButton)
        : m_strButton(QLatin1String(szButton))
    {
        qApp->installEventFilter(this);
    }

    bool WasGiven() const { return m_iDialogs > 0; }
    int Dialogs() const { return m_iDialogs; }         ///< how many opened, answered or not
    QString Question() const { return m_strQuestion; } ///< text of the dialog's label "lblQuestion"

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const pDialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
        if (pDialog != nullptr && pDialog->isModal() && ++m_iDialogs == 1) {
            // Once the dialog runs its own event loop.
            QMetaObject::invokeMethod(
                pDialog, [this, pDialog] { Give(pDialog); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void Give(QDialog* pDialog)
    {
        if (const auto* const pLabel = pDialog->findChild<QLabel*>(QStringLiteral("lblQuestion"))) {
            m_strQuestion = pLabel->text();
        }
        if (auto* const pButton = pDialog->findChild<QAbstractButton*>(m_strButton)) {
            QTest::mouseClick(pButton, Qt::LeftButton);
        } else {
            QTest::keyClick(pDialog, Qt::Key_Escape);
        }
    }

    QString m_strButton;
    QString m_strQuestion;
    int m_iDialogs = 0;
};
