#include "scheme_services/exchange/SchemeFiles.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStoreReader.h"
#include "platform/SystemLibrary/WholeFile.h"
#include "scheme_services/exchange/SchemeTextReader.h"
#include "scheme_services/exchange/SchemeTextWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

SchemeFileProblems Problem(const QString& strPath, const QString& strReason)
{
    return {SchemeFileProblem{strPath, 0, strReason}};
}

} // namespace

QString SchemeFileProblem::Text() const
{
    const QString shown = QDir::toNativeSeparators(strFile);
    return iLine > 0 ? tr("%1, line %2: %3").arg(shown, QString::number(iLine), strReason)
                     : tr("%1: %2").arg(shown, strReason);
}

SchemeFileProblems SchemeFiles::ReadText(const QString& strPath, AlarmInfoMap& map, const Progress& progress)
{
    map.clear();
    const QFileInfo info(strPath);
    if (!info.exists())
        return Problem(strPath, tr("there is no such file"));
    if (!info.isFile()) // opening a pipe would wait for its other end
        return Problem(strPath, tr("this is no file"));
    QFile file(strPath);
    if (!file.open(QIODevice::ReadOnly))
        return Problem(strPath, file.errorString());
    SchemeTextReader reader;
    if (progress) {
        const qint64 size = file.size();
        reader.SetProgress([&progress, size](qint64 iDone) { progress(iDone, size); });
    }
    SchemeFileProblems problems;
    if (reader.Read(file, map))
        return problems;
    for (const SchemeTextProblem& problem : reader.Problems())
        problems.append({strPath, problem.iLine, problem.strReason});
    return problems;
}

SchemeFileProblems SchemeFiles::Read(const QString& strPath, AlarmInfoMap& map, const Progress& progress)
{
    if (!QFileInfo(strPath).isFile())
        return ReadText(strPath, map, progress);
    static const QByteArray database("SQLite format 3");
    {
        QFile file(strPath);
        if (!file.open(QIODevice::ReadOnly) || file.read(database.size()) != database)
            return ReadText(strPath, map, progress);
    }
    AlarmSchemeStoreReader reader(strPath);
    if (progress) {
        reader.SetPulse([&progress] {
            progress(0, 0);
            return true;
        });
    }
    const AlarmSchemeReadOutcome outcome = reader.Read(map);
    return outcome.IsSuccess() ? SchemeFileProblems() : Problem(strPath, outcome.Text());
}

SchemeFileProblems SchemeFiles::WriteText(const QString& strPath, const AlarmInfoMap& map,
                                          const Progress& progress)
{
    WholeFile file(strPath);
    if (!file.open(QIODevice::WriteOnly))
        return Problem(strPath, file.errorString());
    const auto put = [&file](const QByteArray& piece) { return file.write(piece) == piece.size(); };
    SchemeTextWriter writer;
    if (progress)
        writer.SetProgress([&progress](int iDone, int iAll) { progress(iDone, iAll); });
    if (writer.Write(map, put) && file.commit())
        return SchemeFileProblems();
    return Problem(strPath, writer.Failure().isEmpty() ? file.errorString() : writer.Failure());
}
