#pragma once

#include <QString>
#include <QStringList>

/// Where the client finds its parts and keeps its data. The only place that knows how an installed client is
/// laid out: beside the program ("build/bin"), or below "../share" and "../lib" of it.
namespace ClientPaths {

/// Directories that may hold "Skin" and "translations", in the order of the search.
QStringList SharedDirectories(const QString& strProgramDirectory);
/// The first of them that holds "Skin"; the program's own directory when none does.
QString SkinParentDirectory(const QString& strProgramDirectory);
/// Directories that may hold modules, in the order of the search; they need not exist.
QStringList ModuleDirectories(const QString& strProgramDirectory);
/// Directories that may hold translation catalogues.
QStringList TranslationDirectories(const QString& strProgramDirectory);

/// The platform's place for the data of this application, absolute.
QString DefaultDataDirectory();
QString SettingsFile(const QString& strDataDirectory);
QString LogFile(const QString& strDataDirectory);
QString SiteFile(const QString& strDataDirectory);

/// Where the choice of a file begins: the folder of the last file, or the person's documents, or home. Never
/// the working directory, which is that of the program's own files.
QString ChoiceDirectory(const QString& strLastFile);

} // namespace ClientPaths
