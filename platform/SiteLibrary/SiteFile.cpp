#include "platform/SiteLibrary/SiteFile.h"

#include "platform/SiteLibrary/SiteReader.h"
#include "platform/SiteLibrary/SiteRules.h"
#include "platform/SystemLibrary/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

using namespace VantaLogic;

namespace {

/// About twelve times the site of 10,000 doors; more is no site.
constexpr qint64 megabyte = 1024LL * 1024;
constexpr qint64 maxFileSize = 64 * megabyte;

using Writer = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

void WriteName(Writer& writer, const QString& strName)
{
    const QByteArray name = strName.toUtf8();
    writer.Key("name");
    writer.String(name.constData(), static_cast<rapidjson::SizeType>(name.size()));
}

void WriteNumber(Writer& writer, const char* key, int64_t i)
{
    writer.Key(key);
    writer.Int64(i);
}

void WriteFlag(Writer& writer, const char* key, bool b)
{
    writer.Key(key);
    writer.Bool(b);
}

void WriteGroup(Writer& writer, const GroupInfo& group)
{
    writer.StartObject();
    WriteNumber(writer, "id", group.iGroupId);
    WriteName(writer, group.strName);
    if (group.iParentId != -1)
        WriteNumber(writer, "parent", group.iParentId);
    writer.EndObject();
}

void WriteChannel(Writer& writer, const ChannelInfo& channel)
{
    writer.StartObject();
    WriteNumber(writer, "id", channel.iChannelId);
    WriteNumber(writer, "number", channel.iNumber);
    WriteNumber(writer, "kind", channel.iChannelType);
    WriteName(writer, channel.strName);
    if (!channel.bEnabled)
        WriteFlag(writer, "enabled", false);
    writer.EndObject();
}

void WriteDevice(Writer& writer, const DeviceInfo& device)
{
    writer.StartObject();
    WriteNumber(writer, "id", device.iDeviceId);
    WriteName(writer, device.strName);
    WriteNumber(writer, "type", device.iDeviceType);
    WriteFlag(writer, "enabled", device.bEnabled);
    WriteFlag(writer, "online", device.bOnline);
    if (device.iGroupId != -1)
        WriteNumber(writer, "group", device.iGroupId);
    writer.Key("channels");
    writer.StartArray();
    for (const ChannelInfo& channel : device.channels)
        WriteChannel(writer, channel);
    writer.EndArray();
    writer.EndObject();
}

bool Fail(SiteFileError& error, const QString& strFile, const QString& strReason)
{
    error = {strFile, 0, strReason};
    return false;
}

} // namespace

QString SiteFileError::Text() const
{
    const QString strShown = QDir::toNativeSeparators(strFile);
    return iLine > 0 ? SiteText::tr("%1, line %2: %3").arg(strShown, QString::number(iLine), strReason)
                     : SiteText::tr("%1: %2").arg(strShown, strReason);
}

namespace SiteFile {

bool Read(const QString& strPath, Site& site, SiteFileError& error)
{
    const QFileInfo info(strPath);
    if (!info.exists())
        return Fail(error, strPath, SiteText::tr("the file does not exist"));
    if (!info.isFile()) // opening a pipe would wait for its other end
        return Fail(error, strPath, SiteText::tr("this is not a file"));
    QFile file(strPath);
    if (!file.open(QIODevice::ReadOnly))
        return Fail(error, strPath, file.errorString());
    const QByteArray text = file.read(maxFileSize + 1);
    if (file.error() != QFileDevice::NoError)
        return Fail(error, strPath, file.errorString());
    return Parse(text, strPath, site, error);
}

bool Parse(const QByteArray& text, const QString& strFileName, Site& site, SiteFileError& error)
{
    if (text.size() > maxFileSize) {
        return Fail(error, strFileName,
                    SiteText::tr("the file is larger than %1 MB").arg(maxFileSize / megabyte));
    }
    SiteTextError textError;
    if (ReadSiteText(text, site, textError))
        return true;
    error = {strFileName, textError.iLine, textError.strReason};
    return false;
}

QByteArray ToText(const Site& site)
{
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    writer.SetIndent(' ', 2);
    writer.StartObject();
    if (!site.groups.isEmpty()) {
        writer.Key("groups");
        writer.StartArray();
        for (const GroupInfo& group : site.groups)
            WriteGroup(writer, group);
        writer.EndArray();
    }
    writer.Key("devices");
    writer.StartArray();
    for (const DeviceInfo& device : site.devices)
        WriteDevice(writer, device);
    writer.EndArray();
    writer.EndObject();
    return QByteArray(buffer.GetString(), static_cast<int>(buffer.GetSize())) + '\n';
}

bool Write(const QString& strPath, const Site& site, SiteFileError& error)
{
    // What could not be read back must not replace a file that can.
    const QByteArray text = ToText(site);
    Site readBack;
    if (!Parse(text, strPath, readBack, error))
        return false;
    QString reason;
    return WholeFile::Write(strPath, text, reason) || Fail(error, strPath, reason);
}

} // namespace SiteFile
