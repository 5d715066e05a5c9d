#include "client/ClientApplication.h"
#include "client/ClientOptions.h"
#include "client/ClientPaths.h"
#include "client/ClientTranslations.h"

#include <QApplication>
#include <QDir>
#include <QLocale>

#include <cstdio>

namespace {

// Reads the command line on an application object without a window: help and wrong options must work where
// there is no display.
ParsedOptions ReadCommandLine(int argc, char* argv[])
{
    const QCoreApplication early(argc, argv);
    const ClientTranslations translations(
        ClientTranslations::Choose({}, {}, QLocale::system().name()),
        ClientPaths::TranslationDirectories(QCoreApplication::applicationDirPath()));
    return ClientOptionParser::Parse(QCoreApplication::arguments(), QDir::currentPath());
}

void Print(const QString& strText, std::FILE* pStream)
{
    std::fputs(strText.toLocal8Bit().constData(), pStream);
}

} // namespace

int main(int argc, char* argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Always so in later versions.
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
#if defined(Q_OS_WIN)
    // Windows scales in quarters, and the person chose the step.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#else
    // Elsewhere the factor comes from the screen's measured resolution; an odd one would blur every line.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::Round);
#endif
    QCoreApplication::setApplicationName(QStringLiteral("acs-client"));

    const ParsedOptions parsed = ReadCommandLine(argc, argv);
    if (parsed.outcome == ParsedOptions::Outcome::Print) {
        Print(parsed.strText, stdout);
        return 0;
    }
    if (parsed.outcome == ParsedOptions::Outcome::Refuse) {
        Print(parsed.strText, stderr);
        return ClientOptionParser::ExitWrongOptions;
    }

    const QApplication application(argc, argv);
    ClientApplication client(parsed.options, QCoreApplication::applicationDirPath());
    if (!client.Start()) {
        Print(client.ErrorText() + QLatin1Char('\n'), stderr);
        return ClientApplication::ExitNotStarted;
    }
    const int iExit = client.Run();
    if (iExit == ClientApplication::ExitNoPicture) {
        Print(client.ErrorText() + QLatin1Char('\n'), stderr);
    }
    return iExit;
}
