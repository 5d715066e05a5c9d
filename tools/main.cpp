#include "tools/CommandLine.h"

#include <QElapsedTimer>
#include <QTextStream>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool IsTerminal(FILE* pFile)
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(pFile)) != 0;
#else
    return isatty(fileno(pFile)) != 0;
#endif
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("acs-scheme"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ACS_VERSION));
    QTextStream out(stdout);
    QTextStream err(stderr);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Later streams speak UTF-8 of themselves.
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");
#endif
    QElapsedTimer clock;
    clock.start();
    CommandEnvironment environment{out, err, ClientDataDirectory(), IsTerminal(stderr),
                                   [&clock]() { return clock.elapsed(); }};
    const int code = CommandLine().Run(QCoreApplication::arguments(), environment);
    out.flush();
    // A full disk behind a redirection shows only here.
    if ((code == ExitCode::Done || code == ExitCode::Finding) && out.status() != QTextStream::Ok) {
        err << QCoreApplication::translate("CommandLine", "The output could not be written.") << '\n';
        return ExitCode::Failure;
    }
    return code;
}
