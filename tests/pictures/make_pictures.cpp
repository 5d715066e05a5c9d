// Makes the pictures of the documentation from the real client over its sample site, so that they stay true:
//     make_pictures DIRECTORY [--language en|zh_cn] [--size WIDTHxHEIGHT] [--all]
#include "PictureMaker.h"

#include <QApplication>
#include <QCommandLineParser>

int main(int argc, char* argv[])
{
    qputenv("USER", "anna"); // the author in the history
    QApplication application(argc, argv);
    const QCommandLineOption language(QStringLiteral("language"), QString(), QStringLiteral("en|zh_cn"),
                                      QStringLiteral("en"));
    const QCommandLineOption size(QStringLiteral("size"), QString(), QStringLiteral("WIDTHxHEIGHT"),
                                  QStringLiteral("1366x768"));
    const QCommandLineOption all(QStringLiteral("all"));
    QCommandLineParser parser;
    parser.addOptions({language, size, all});
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("DIRECTORY"), QString());
    parser.process(application);
    const QStringList sides = parser.value(size).split(QLatin1Char('x'));
    if (parser.positionalArguments().size() != 1 || sides.size() != 2)
        parser.showHelp(2);

    PictureOrder order;
    order.strDirectory = QDir(parser.positionalArguments().constFirst()).absolutePath();
    order.strLanguage = parser.value(language);
    order.size = QSize(sides.constFirst().toInt(), sides.constLast().toInt());
    order.bEveryScreen = parser.isSet(all);
    return PictureMaker(order).Run() ? 0 : 1;
}
