#include "platform/LXGUI/Theme.h"

#include "platform/lxl/DPrintLog.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace LXGUI {
namespace {

constexpr qint64 LargestFile = 65536; // a colours file holds about twenty short lines

struct DefaultColour
{
    const char* szName;
    QRgb rgb;
};

const DefaultColour DefaultColours[] = {
    {"window", 0xFF1F2327},        {"panel", 0xFF272C31},     {"raised", 0xFF31373E},
    {"input", 0xFF1A1D20},         {"lineDark", 0xFF1A1D20},  {"lineLight", 0xFF475157},
    {"text", 0xFFDDDDDD},          {"dim", 0xFF9AA3AB},       {"disabled", 0xFF787878},
    {"accent", 0xFF3AAA24},        {"onAccent", 0xFF0B0D0E},  {"accentHover", 0xFF47BF2F},
    {"accentPressed", 0xFF2F8C1D}, {"warning", 0xFFE8A33D},   {"danger", 0xFFE5484D},
    {"focus", 0xFF6CB6FF},         {"selection", 0xFF2C4C2E}, {"scale", 0xFF272C31},
};

QHash<QString, QColor> Defaults()
{
    QHash<QString, QColor> colours;
    for (const DefaultColour& entry : DefaultColours) {
        colours.insert(QLatin1String(entry.szName), QColor(entry.rgb));
    }
    return colours;
}

void LogProblem(const QString& strPath, const char* szWhat)
{
    lxl::DPrintLog::instance().Log(__FILE__, __LINE__, "Theme::Load", "LXGUI", lxl::LogWarning,
                                   "Colours file \"%s\": %s", strPath.toUtf8().constData(), szWhat);
}

// Replaces what the file names; everything else keeps its default.
bool ReadColours(const QString& strPath, QHash<QString, QColor>& colours)
{
    QFile file(strPath);
    if (!file.open(QIODevice::ReadOnly)) {
        LogProblem(strPath, "cannot be opened, the dark defaults hold");
        return false;
    }
    if (file.size() > LargestFile) {
        LogProblem(strPath, "is too large, the dark defaults hold");
        return false;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject()) {
        LogProblem(strPath, "holds no JSON object, the dark defaults hold");
        return false;
    }
    const QJsonObject object = document.object();
    for (auto it = colours.begin(); it != colours.end(); ++it) {
        const QJsonValue value = object.value(it.key());
        if (value.isUndefined()) {
            continue;
        }
        const QColor colour(value.toString());
        if (colour.isValid()) {
            it.value() = colour;
        } else {
            LogProblem(strPath, "holds a value that is no colour, its default holds");
        }
    }
    return true;
}

bool IsPlainName(const QString& strName)
{
    for (const QChar c : strName) {
        if (!c.isLetterOrNumber()) {
            return false;
        }
    }
    return !strName.isEmpty();
}

bool IsNameCharacter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
           (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
           (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
}

} // namespace

Theme::Theme()
    : m_strName(QStringLiteral("dark"))
    , m_colours(Defaults())
{
}

Theme& Theme::Shared()
{
    // The dark theme's file is read on first use, so that a module asks for colours in any order.
    static Theme theme = [] {
        Theme first;
        ReadColours(PathOf(first.m_strName), first.m_colours);
        return first;
    }();
    return theme;
}

QString Theme::PathOf(const QString& strName)
{
    return QStringLiteral("./Skin/theme1/colours-%1.json").arg(strName);
}

const Theme& Theme::Current()
{
    return Shared();
}

bool Theme::Load(const QString& strName)
{
    Theme loaded;
    const bool bRead = IsPlainName(strName) && ReadColours(PathOf(strName), loaded.m_colours);
    if (bRead) {
        loaded.m_strName = strName;
    }
    Shared() = loaded;
    return bRead;
}

QColor Theme::Colour(const QString& strName) const
{
    return m_colours.value(strName);
}

QString Theme::Name() const
{
    return m_strName;
}

QPalette Theme::Palette() const
{
    const auto colour = [this](const char* szName) { return m_colours.value(QLatin1String(szName)); };
    QPalette palette;
    palette.setColor(QPalette::Window, colour("window"));
    palette.setColor(QPalette::WindowText, colour("text"));
    palette.setColor(QPalette::Base, colour("input"));
    palette.setColor(QPalette::AlternateBase, colour("panel"));
    palette.setColor(QPalette::Text, colour("text"));
    palette.setColor(QPalette::PlaceholderText, colour("dim"));
    palette.setColor(QPalette::Button, colour("raised"));
    palette.setColor(QPalette::ButtonText, colour("text"));
    palette.setColor(QPalette::BrightText, colour("danger"));
    palette.setColor(QPalette::ToolTipBase, colour("raised"));
    palette.setColor(QPalette::ToolTipText, colour("text"));
    palette.setColor(QPalette::Highlight, colour("selection"));
    palette.setColor(QPalette::HighlightedText, colour("text"));
    palette.setColor(QPalette::Link, colour("focus"));
    palette.setColor(QPalette::LinkVisited, colour("focus"));
    palette.setColor(QPalette::Light, colour("lineLight"));
    palette.setColor(QPalette::Midlight, colour("raised"));
    palette.setColor(QPalette::Mid, colour("lineLight"));
    palette.setColor(QPalette::Dark, colour("lineDark"));
    palette.setColor(QPalette::Shadow, colour("lineDark"));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, colour("disabled"));
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colour("raised"));
    return palette;
}

QString Theme::Resolve(const QString& strStyleSheet) const
{
    QString strResult;
    strResult.reserve(strStyleSheet.size() + strStyleSheet.size() / 8);
    int iFrom = 0;
    while (true) {
        const int iAt = strStyleSheet.indexOf(QLatin1Char('@'), iFrom);
        if (iAt < 0) {
            return strResult.append(QStringView(strStyleSheet).mid(iFrom));
        }
        // The whole word decides: "@accentHover" is never "@accent" with a tail, "a@2x.png" no colour.
        int iEnd = iAt + 1;
        while (iEnd < strStyleSheet.size() && IsNameCharacter(strStyleSheet.at(iEnd))) {
            ++iEnd;
        }
        const auto it = m_colours.constFind(strStyleSheet.mid(iAt + 1, iEnd - iAt - 1));
        strResult.append(QStringView(strStyleSheet).mid(iFrom, iAt - iFrom));
        if (it == m_colours.constEnd()) {
            strResult.append(QStringView(strStyleSheet).mid(iAt, iEnd - iAt));
        } else {
            strResult.append(it->name());
        }
        iFrom = iEnd;
    }
}

} // namespace LXGUI
