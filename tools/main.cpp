#include "tools/CommandLine.h"

#include <QTextStream>

#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("acs-scheme"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ACS_VERSION));
    QTextStream out(stdout);
    QTextStream err(stderr);
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");
    const int code = CommandLine().Run(QCoreApplication::arguments(), out, err);
    out.flush();
    // A full disk behind a redirection shows only here.
    if (code == ExitCode::Done && out.status() != QTextStream::Ok) {
        err << QCoreApplication::translate("CommandLine", "The output could not be written.") << '\n';
        return ExitCode::Failure;
    }
    return code;
}
