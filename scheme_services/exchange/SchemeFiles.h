#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

#include <functional>

/// Why a file was not read or written.
struct SchemeFileProblem
{
    Q_DECLARE_TR_FUNCTIONS(SchemeFileProblem)

public:
    QString strFile;
    int iLine = 0;     ///< from 1; 0 when it is about no line
    QString strReason; ///< translated, in lower case and without a full stop

    QString Text() const; ///< "file, line 3: reason"
};
using SchemeFileProblems = QVector<SchemeFileProblem>; ///< in the order of the lines

/// Schemes in files: texts of schemes, and whatever holds schemes. What is read is never changed.
class SchemeFiles
{
    Q_DECLARE_TR_FUNCTIONS(SchemeFiles)

public:
    SchemeFiles() = delete;

    /// So much of so much is done; nobody knows how much when the second number is 0.
    using Progress = std::function<void(qint64 iDone, qint64 iAll)>;

    /// Nothing when the map holds every scheme of the text; otherwise all that is wrong, and the map is
    /// empty.
    static SchemeFileProblems ReadText(const QString& strPath, AlarmInfoMap& map,
                                       const Progress& progress = {});
    /// The same for a text or a database, whichever the file is.
    static SchemeFileProblems Read(const QString& strPath, AlarmInfoMap& map, const Progress& progress = {});
    /// Nothing when the file is written; otherwise why not, and what was there is still there.
    static SchemeFileProblems WriteText(const QString& strPath, const AlarmInfoMap& map,
                                        const Progress& progress = {});
};
