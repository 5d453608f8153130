#include "Require.h"
#include "platform/qt/QtProfile.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

using namespace dyeworks;

namespace {

using Values = std::map<std::string, std::string>;

constexpr const char* kSections[] = {"Settings", "Settings\\Images", "Rules", "Recent TMF List", ""};

/// Everything that the program could ask for there.
Values valuesIn(const Profile& profile) {
    Values values;
    for (const char* const section : kSections) {
        for (const std::string& entry : profile.entries(section)) {
            // What is neither text nor a list counts as missing.
            if (const auto text = profile.text(section, entry))
                values[std::string(section) + '\n' + entry] = *text;
            static_cast<void>(profile.integer(section, entry, 1));
        }
    }
    return values;
}

} // namespace

/// A settings file that somebody has edited or a disk has damaged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    static int number = 0;
    // Files that are known by name are not read again where they look the same.
    const QString path = folder.filePath(QString::number(++number));
    {
        QFile file(path);
        require(file.open(QIODevice::WriteOnly) &&
                    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) ==
                        static_cast<qint64>(size),
                "there is room for a file");
    }
    Values before;
    bool writes = false;
    {
        QtProfile profile(path.toStdString());
        static_cast<void>(profile.takeTrouble());
        before = valuesIn(profile);
        profile.setText("Settings", "added", "one, two");
        profile.sync();
        writes = !profile.takeTrouble();
    }
    // Under the same name one that is as long as before would not be read again.
    const QString again = path + QStringLiteral(".again");
    if (writes && QFile::copy(path, again)) {
        const QtProfile profile(again.toStdString());
        require(profile.text("Settings", "added") == "one, two", "an entry that is added is kept");
        const Values now = valuesIn(profile);
        // What was no text may have become one.
        before.erase("Settings\nadded");
        require(std::ranges::includes(now, before), "the other entries stay");
    }
    for (const char* const end : {"", ".damaged", ".lock", ".again", ".again.damaged"})
        QFile::remove(path + QLatin1String(end));
    return 0;
}
