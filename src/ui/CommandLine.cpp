#include "ui/CommandLine.h"

#include "platform/Version.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <cstdio>

namespace dyeworks {

namespace {

CommandLine ended(int exitCode) {
    CommandLine result;
    result.ended = true;
    result.exitCode = exitCode;
    return result;
}

CommandLine refused(const QString& why) {
    std::fprintf(stderr, "Dyeworks: %s\n", qPrintable(why));
    return ended(2);
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments) {
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this text and exit."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version and exit."));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Language of the program: ja or en."),
                                      QStringLiteral("language"));
    const QCommandLineOption settings(QStringLiteral("settings"),
                                      QStringLiteral("Keep the settings in this file."),
                                      QStringLiteral("file"));
    const QCommandLineOption attach(
        QStringLiteral("attach"),
        QStringLiteral("Attach each image to the palette opened before it, or else to the last one."));
    const QCommandLineOption render(
        QStringLiteral("render"),
        QStringLiteral("Open the files, render the window to a PNG picture and exit."),
        QStringLiteral("file"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Editor for colour-indexed console textures."));
    parser.addOptions({help, version, language, settings, attach, render});
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("Images (.tmf) and palettes (.tlf)."),
                                 QStringLiteral("[files...]"));
    if (!parser.parse(arguments))
        return refused(parser.errorText());
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return ended(0);
    }
    if (parser.isSet(version)) {
        std::printf("Orrery Dyeworks %s\n", kVersionText);
        return ended(0);
    }

    CommandLine result;
    result.language = parser.value(language);
    if (parser.isSet(language) && result.language != QLatin1String("ja") &&
        result.language != QLatin1String("en"))
        return refused(QStringLiteral("the language \"%1\" is neither ja nor en").arg(result.language));
    result.settingsFile = parser.value(settings);
    result.attach = parser.isSet(attach);
    result.renderTo = parser.value(render);
    const QStringList files = parser.positionalArguments();
    for (const QString& file : files)
        result.files << QFileInfo(file).absoluteFilePath();
    return result;
}

} // namespace dyeworks
