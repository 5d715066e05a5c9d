#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

struct AlarmSchemeStatementFailure;

/// How one load or save of the schemes ended, for the operator.
struct SchemeStoreOutcome
{
    Q_DECLARE_TR_FUNCTIONS(SchemeStoreOutcome)

public:
    enum class Operation
    {
        Load,
        Save,
        Repair, ///< of a damaged database
    };
    enum class Reason
    {
        None,       ///< it succeeded
        NotOpen,    ///< the database file or its directory cannot be opened
        Locked,     ///< another program held the database for the whole waiting time
        ReadOnly,   ///< the file or its directory cannot be written
        DiskFull,   ///< no room for the file or its journal
        Damaged,    ///< the file is no database, or its content is damaged
        Moved,      ///< the file was moved, removed or replaced while the program ran
        NotLoaded,  ///< refused to save: nothing was loaded before
        LoadFailed, ///< refused to save: the last load failed or was partial
        BadText,    ///< a key holds a character that cannot be stored
        Conflict,   ///< another program has changed the schemes, and the operator chose not to save
        Journal,    ///< another program keeps the file in a journal mode that makes no durable commits
        NoHistory,  ///< the history does not tell what is to be taken back
        Other,      ///< any other failure of a statement
    };

    Operation eOperation = Operation::Load;
    Reason eReason = Reason::None;
    bool bWarning = false; ///< there is something to be told although it may have succeeded
    bool bRevert = false;  ///< of taking a step back, not of what somebody has edited
    int iSchemes = 0;      ///< schemes read or written; 0 for a failed save
    QString strWhat;       ///< what happened, one translated sentence or two
    QString strNext;       ///< what to do next, translated; empty when there is nothing to do
    QString strTechnical;  ///< the database's own words, untranslated; empty when there are none

    bool IsSuccess() const { return eReason == Reason::None; }
    /// Both sentences for a message box or a note.
    QString Text() const;

    static SchemeStoreOutcome Success(Operation eOperation, int iSchemes);
    /// A save that wrote so many schemes, perhaps none, and left so many as another program has stored them.
    static SchemeStoreOutcome Saved(int iSchemes, int iKept);
    /// A step of the history that was taken back: so many schemes written, so many left as they are, since
    /// they have changed after it.
    static SchemeStoreOutcome Reverted(int iSchemes, int iChangedSince);
    /// Says that the history does not tell of this save.
    void AddHistoryFailure(const QString& strHistoryTechnical);
    /// Says that a file was written without a backup of what it held before, and why.
    void AddNoBackup(const AlarmSchemeStatementFailure& failure);
    /// Says that the file was found, after an unclean end, to hold so many rows of schemes that are not
    /// there.
    void AddOrphanRows(qint64 iRows);
    /// A damaged database was set aside, and its place is taken by a backup of that time with so many
    /// schemes, or, without a time, by a new file without any.
    static SchemeStoreOutcome Repaired(const QString& strKeptAs, const QDateTime& backup, int iSchemes);
    /// A database that turned out not to be damaged any more.
    static SchemeStoreOutcome NothingToRepair();
    static SchemeStoreOutcome Failure(Operation eOperation, Reason eReason, const QString& strTechnical);
    /// A save that is refused because the last load ended as `load`.
    static SchemeStoreOutcome RefusedSave(const SchemeStoreOutcome& load);

private:
    static QString ReasonText(Reason eReason);
    static QString NextAfterLoad(Reason eReason);
    static QString NextAfterSave(Reason eReason);
    static QString NextAfterRepair(Reason eReason);
    static QString NoBackupText(Reason eReason);
    void Add(const QString& strNote);
};

/// What a failed statement means for the operator.
SchemeStoreOutcome::Reason ReasonOfFailure(const AlarmSchemeStatementFailure& failure);
