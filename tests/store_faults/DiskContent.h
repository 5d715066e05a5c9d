#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// All files below a folder, by their paths.
using DiskContent = QMap<QString, QByteArray>;

DiskContent ReadDisk(const QString& strFolder);
/// Afterwards the folder holds these files and no others.
void WriteDisk(const QString& strFolder, const DiskContent& content);
