#include "MemoryPlatform.h"
#include "Require.h"
#include "ui/CommandLine.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <span>

using namespace dyeworks;

/// The arguments of the program behind its name, with a zero between them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const MemoryPlatform platform;
    QStringList arguments{QStringLiteral("Dyeworks")};
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const QByteArray& argument : bytes.split('\0'))
        arguments << QString::fromLocal8Bit(argument);

    const CommandLine line = parseCommandLine(arguments);
    if (line.ended) {
        require(line.exitCode == 0 || line.exitCode == 2, "what is refused is refused as such");
        return 0;
    }
    require(line.paths().size() == static_cast<std::size_t>(line.files.size()), "each file has a path");
    require(!line.prints() || !line.files.isEmpty(), "there is something to print");
    require(line.task != CommandLine::Task::PrintTo || line.printer.isEmpty() != line.printFile.isEmpty() ||
                line.printFile.isEmpty(),
            "a printer is one or a file");
    require(line.isInteractive() || line.newFiles().empty(), "nobody is asked who is not there");
    for (const auto& [letter, folder] : line.drives)
        require(letter >= 'a' && letter <= 'z' && !folder.isEmpty(), "a drive has a letter and a folder");
    return 0;
}
