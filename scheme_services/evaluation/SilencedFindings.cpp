#include "scheme_services/evaluation/SilencedFindings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 MaxBytes = qint64(1024) * 1024;

QString WithoutComment(const QString& strLine)
{
    for (int at = strLine.indexOf(QLatin1Char('#')); at >= 0;
         at = strLine.indexOf(QLatin1Char('#'), at + 1)) {
        if (at == 0 || strLine.at(at - 1).isSpace())
            return strLine.left(at);
    }
    return strLine;
}

} // namespace

std::optional<SilencedFindings> SilencedFindings::Parse(const QByteArray& text, QString& strProblem)
{
    const QByteArray mark = QByteArrayLiteral("\xEF\xBB\xBF");
    const QByteArray bare = text.startsWith(mark) ? text.mid(mark.size()) : text;
    const QString strText = QString::fromUtf8(bare.constData(), bare.size());
    if (strText.toUtf8() != bare) {
        strProblem = tr("The text is not in UTF-8.");
        return std::nullopt;
    }
    SilencedFindings silenced;
    const QStringList lines = strText.split(QLatin1Char('\n'));
    for (int line = 0; line < lines.size(); ++line) {
        const QString strLine = WithoutComment(lines.at(line)).simplified();
        if (strLine.isEmpty())
            continue;
        const int blank = strLine.indexOf(QLatin1Char(' '));
        const QString strCode = strLine.left(blank);
        const std::optional<FindingCode> code = Finding::CodeOf(strCode);
        if (!code) {
            strProblem = tr("Line %1: there is no finding \"%2\".").arg(QString::number(line + 1), strCode);
            return std::nullopt;
        }
        if (blank < 0) {
            silenced.m_codes.insert(static_cast<int>(*code));
            continue;
        }
        const QString strSource = strLine.mid(blank + 1);
        if (EventSource::FieldCount(strSource) != 4) {
            strProblem = tr("Line %1: \"%2\" is not the key of an event source.")
                             .arg(QString::number(line + 1), strSource);
            return std::nullopt;
        }
        silenced.m_places.insert({static_cast<int>(*code), strSource});
    }
    return silenced;
}

std::optional<SilencedFindings> SilencedFindings::Read(const QString& strPath, QString& strProblem)
{
    const QString strName = QDir::toNativeSeparators(strPath);
    QFile file(strPath);
    if (QFileInfo::exists(strPath) && !QFileInfo(strPath).isFile()) {
        strProblem = tr("%1 is not a file.").arg(strName);
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        strProblem = tr("%1 cannot be read: %2").arg(strName, file.errorString());
        return std::nullopt;
    }
    const QByteArray text = file.read(MaxBytes + 1);
    if (text.size() > MaxBytes) {
        strProblem = tr("%1 is larger than a list of findings can be.").arg(strName);
        return std::nullopt;
    }
    std::optional<SilencedFindings> silenced = Parse(text, strProblem);
    if (!silenced)
        strProblem = QStringLiteral("%1: %2").arg(strName, strProblem);
    return silenced;
}

bool SilencedFindings::Holds(const Finding& finding) const
{
    const int code = static_cast<int>(finding.code);
    return m_codes.contains(code) || m_places.contains({code, finding.key.strEventSource});
}
