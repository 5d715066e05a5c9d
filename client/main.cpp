#include "client/ClientApplication.h"
#include "client/ClientOptions.h"

#include <QApplication>
#include <QDir>

#include <cstdio>

namespace {

// Ends of the program that need no window; -1 when there is something to start.
int EndEarly(const ParsedOptions& parsed)
{
    if (parsed.outcome == ParsedOptions::Outcome::Start) {
        return -1;
    }
    const bool bPrint = parsed.outcome == ParsedOptions::Outcome::Print;
    std::fputs(parsed.strText.toLocal8Bit().constData(), bPrint ? stdout : stderr);
    return bPrint ? 0 : ClientOptionParser::ExitWrongOptions;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setApplicationName(QStringLiteral("acs-client"));

    // Help and wrong options must work without a display, so they are looked for before there is one.
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const int iEarly = EndEarly(ClientOptionParser::Parse(arguments, QDir::currentPath()));
    if (iEarly >= 0) {
        return iEarly;
    }

    const QApplication application(argc, argv);
    // Once more: the toolkit reads arguments in the system's own encoding and takes out what is its own.
    const ParsedOptions parsed =
        ClientOptionParser::Parse(QCoreApplication::arguments(), QDir::currentPath());
    const int iLate = EndEarly(parsed);
    if (iLate >= 0) {
        return iLate;
    }
    ClientApplication client(parsed.options, QCoreApplication::applicationDirPath());
    if (!client.Start()) {
        std::fputs(client.ErrorText().append(QLatin1Char('\n')).toLocal8Bit().constData(), stderr);
        return ClientApplication::ExitNotStarted;
    }
    const int iExit = client.Run();
    if (iExit == ClientApplication::ExitNoPicture) {
        std::fputs(client.ErrorText().append(QLatin1Char('\n')).toLocal8Bit().constData(), stderr);
    }
    return iExit;
}
