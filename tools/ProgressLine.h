#pragma once

#include "tools/CommandEnvironment.h"

#include <QCoreApplication>
#include <QString>

/// One line on the terminal that tells how far a command has come, rewritten in place. Nothing is shown
/// during the first second, nor where no terminal is looked at; the line is wiped out at the end.
class ProgressLine
{
    Q_DECLARE_TR_FUNCTIONS(ProgressLine)

public:
    /// `strWhat` is what is being done, translated: "Reading the schemes".
    ProgressLine(CommandEnvironment& environment, const QString& strWhat);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// So much of so much is done. May be called as often as one likes.
    void Show(qint64 iDone, qint64 iAll);
    /// Still at it; nobody knows how far.
    void Show();

private:
    bool IsDue();
    void Write(const QString& strLine);

    CommandEnvironment& m_environment;
    QString m_strWhat;
    qint64 m_iStart = 0;
    qint64 m_iNext = 0;
    int m_iWidth = 0; ///< of the line that stands on the terminal
};
