#include "ui/CommandLine.h"

#include "platform/Platform.h"
#include "platform/Version.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <cstdio>
#include <iterator>
#include <optional>

namespace dyeworks {

namespace {

using Task = CommandLine::Task;

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

QString absolute(const QString& file) {
    return file.isEmpty() ? file : QFileInfo(file).absoluteFilePath();
}

/// The options. Each is named as a person types it.
struct Options {
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Show this text and exit.")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                               QStringLiteral("Show the version and exit.")};
    QCommandLineOption language{QStringLiteral("language"),
                                QStringLiteral("Language of the program: ja or en."),
                                QStringLiteral("language")};
    QCommandLineOption settings{QStringLiteral("settings"), QStringLiteral("Keep the settings in this file."),
                                QStringLiteral("file")};
    QCommandLineOption drive{
        QStringLiteral("drive"),
        QStringLiteral("Let a drive of projects made elsewhere stand for a folder, from now on."),
        QStringLiteral("letter=folder")};
    QCommandLineOption newImage{QStringLiteral("new-image"),
                                QStringLiteral("Ask what a new image is to be like.")};
    QCommandLineOption newPalette{QStringLiteral("new-palette"),
                                  QStringLiteral("Ask what a new palette is to be like.")};
    QCommandLineOption newInstance{QStringLiteral("new-instance"),
                                   QStringLiteral("Start another program even when one is running.")};
    QCommandLineOption attach{
        QStringLiteral("attach"),
        QStringLiteral("Attach each image to the palette opened before it, or else to the last one.")};
    QCommandLineOption print{QStringLiteral("print"),
                             QStringLiteral("Print the last of the files on the default printer and exit.")};
    QCommandLineOption printTo{
        QStringLiteral("print-to"),
        QStringLiteral(
            "The same on the printer that the last argument names. A name ending in .pdf is a file "
            "to print into.")};
    QCommandLineOption render{QStringLiteral("render"),
                              QStringLiteral("Open the files, render the window to a PNG picture and exit."),
                              QStringLiteral("file")};
    QCommandLineOption noSplash{QStringLiteral("no-splash"), QStringLiteral("Start without the picture.")};
    QCommandLineOption unregister{
        QStringLiteral("unregister"),
        QStringLiteral("Take the program's entries out of the user's desktop and exit.")};
    // What the switches of other desktops become.
    QCommandLineOption printWithDriver = hidden("print-with-driver");
    QCommandLineOption receive = hidden("receive");
    QCommandLineOption serve = hidden("serve");

    static QCommandLineOption hidden(const char* name) {
        QCommandLineOption option{QString::fromLatin1(name)};
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        return option;
    }
    void addTo(QCommandLineParser& parser) const {
        parser.addOptions({help, version, language, settings, drive, newImage, newPalette, newInstance,
                           attach, print, printTo, render, noSplash, unregister, printWithDriver, receive,
                           serve});
    }
};

/// The option that a switch of other desktops stands for: nothing for an argument that is none, "" for one
/// that means nothing here.
std::optional<QString> optionOfSwitch(const QString& argument) {
    struct Switch {
        const char* name; ///< In small letters; arguments may have any.
        const char* option;
    };
    static constexpr Switch kSwitches[] = {
        {"p", "--print"},         {"pt", "--print-with-driver"},   {"dde", "--receive"},
        {"embedding", "--serve"}, {"automation", "--serve"},       {"unregister", "--unregister"},
        {"register", ""},         {"unregserver", "--unregister"}, {"regserver", ""},
    };
    const bool slash = argument.startsWith(QLatin1Char('/'));
    if (!slash && !argument.startsWith(QLatin1Char('-')))
        return std::nullopt;
    // Files of this host begin with "/" as well, and what is there is meant.
    if (slash && QFileInfo::exists(argument))
        return std::nullopt;
    const QString name = argument.mid(1).toLower();
    for (const Switch& known : kSwitches) {
        if (name == QLatin1String(known.name))
            return QString::fromLatin1(known.option);
    }
    return std::nullopt;
}

/// The arguments with options in the place of such switches.
QStringList withoutSwitches(const QStringList& arguments) {
    static const QStringList kTakeValue{QStringLiteral("--language"), QStringLiteral("--settings"),
                                        QStringLiteral("--drive"), QStringLiteral("--render")};
    QStringList result;
    bool optionsEnded = false;
    for (const QString& argument : arguments) {
        optionsEnded = optionsEnded || argument == QLatin1String("--");
        const bool isValue = !result.isEmpty() && kTakeValue.contains(result.last());
        const std::optional<QString> option =
            optionsEnded || isValue || result.isEmpty() ? std::nullopt : optionOfSwitch(argument);
        if (!option || !option->isEmpty())
            result << option.value_or(argument);
    }
    return result;
}

/// Takes the printer off the end of the arguments. What is left are files. False when it does not fit.
bool takePrinter(CommandLine& line, QStringList& files, bool withDriver) {
    // Driver and port say how to reach the printer, which its name alone does here.
    constexpr qsizetype kFileAndPrinter = 2;
    constexpr qsizetype kWithDriverAndPort = 4;
    if (withDriver && files.size() <= kWithDriverAndPort)
        files = files.mid(0, kFileAndPrinter);
    if (files.size() < kFileAndPrinter)
        return false;
    const QString printer = files.takeLast();
    if (printer.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        line.printFile = absolute(printer);
    else
        line.printer = printer;
    return true;
}

} // namespace

std::vector<std::string> CommandLine::paths() const {
    std::vector<std::string> paths;
    for (const QString& file : files)
        paths.push_back(platform().files().fromHostPath(file.toStdString()));
    return paths;
}

std::vector<std::string> CommandLine::newFiles() const {
    std::vector<std::string> words;
    if (newPalette)
        words.emplace_back(kNewPalette);
    if (newImage)
        words.emplace_back(kNewImage);
    return words;
}

std::vector<std::string> CommandLine::request() const {
    std::vector<std::string> request = paths();
    const std::vector<std::string> words = newFiles();
    request.insert(request.end(), words.begin(), words.end());
    return request;
}

CommandLine parseCommandLine(const QStringList& arguments) {
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Editor for colour-indexed console textures."));
    options.addTo(parser);
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("Projects (.tpf), images (.tmf, .bmp) and palettes (.tlf)."),
                                 QStringLiteral("[files...]"));
    if (!parser.parse(withoutSwitches(arguments)))
        return refused(parser.errorText());
    if (parser.isSet(options.help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return ended(0);
    }
    if (parser.isSet(options.version)) {
        std::printf("Orrery Dyeworks %s\n", kVersionText);
        return ended(0);
    }

    CommandLine result;
    result.language = parser.value(options.language);
    if (parser.isSet(options.language) && result.language != QLatin1String("ja") &&
        result.language != QLatin1String("en"))
        return refused(QStringLiteral("the language \"%1\" is neither ja nor en").arg(result.language));
    result.settingsFile = absolute(parser.value(options.settings));
    for (const QString& drive : parser.values(options.drive)) {
        const QString folder = absolute(drive.mid(2));
        const bool named = drive.size() > 2 && drive.at(1) == QLatin1Char('=') && drive.at(0).isLetter() &&
                           drive.at(0).unicode() < 0x80;
        if (!named || !QFileInfo(folder).isDir())
            return refused(QStringLiteral("\"%1\" does not name a drive and a folder, as in c=/home/kei/work")
                               .arg(drive));
        result.drives.emplace_back(drive.at(0).toLower().toLatin1(), folder);
    }
    result.attach = parser.isSet(options.attach);
    result.newImage = parser.isSet(options.newImage);
    result.newPalette = parser.isSet(options.newPalette);
    result.newInstance = parser.isSet(options.newInstance);
    result.noSplash = parser.isSet(options.noSplash);
    result.renderTo = absolute(parser.value(options.render));

    QStringList files = parser.positionalArguments();
    const bool withDriver = parser.isSet(options.printWithDriver);
    if (parser.isSet(options.unregister)) {
        result.task = Task::Unregister;
    } else if (parser.isSet(options.serve)) {
        result.task = Task::Serve;
    } else if (withDriver || parser.isSet(options.printTo)) {
        result.task = Task::PrintTo;
        if (!takePrinter(result, files, withDriver))
            return refused(QStringLiteral("printing to a printer takes a file and the printer's name"));
    } else if (parser.isSet(options.print)) {
        result.task = Task::Print;
        if (files.isEmpty())
            return refused(QStringLiteral("there is no file to print"));
    } else if (!files.isEmpty() || result.newImage || result.newPalette) {
        result.task = Task::Open;
    } else if (parser.isSet(options.receive)) {
        result.task = Task::Receive;
    }
    for (const QString& file : files)
        result.files << absolute(file);
    if ((result.newImage || result.newPalette) && !result.isInteractive())
        return refused(QStringLiteral("nobody is there to be asked about a new file"));
    return result;
}

} // namespace dyeworks
