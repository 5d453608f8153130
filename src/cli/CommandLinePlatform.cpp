#include "cli/CommandLinePlatform.h"

#include "cli/BitmapReader.h"
#include "interchange/JpegFile.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace dyeworks {

namespace {

class StreamMessages final : public Messages {
public:
    MessageAnswer show(const Message& message) override {
        std::string line = message.text;
        if (line.empty() || line.back() != '\n')
            line += '\n';
        (void)std::fwrite(line.data(), 1, line.size(), stderr);
        switch (message.buttons) {
        case MessageButtons::Ok:
            return MessageAnswer::Ok;
        case MessageButtons::YesNo:
            return MessageAnswer::No;
        case MessageButtons::OkCancel:
        case MessageButtons::YesNoCancel:
            break;
        }
        return MessageAnswer::Cancel;
    }
};

class NoDialogs final : public FileDialogs {
public:
    std::optional<std::string> open(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> save(const FileDialogRequest&) override { return std::nullopt; }
};

class NoWatcher final : public FileWatcher {
public:
    void watch(const std::vector<std::string>&) override {}
    void setListener(std::function<void()>) override {}
};

class NoProfile final : public Profile {
public:
    [[nodiscard]] std::optional<std::string> text(const std::string&, const std::string&) const override {
        return std::nullopt;
    }
    void setText(const std::string&, const std::string&, const std::string&) override {}
    void remove(const std::string&, const std::string&) override {}
    void sync() override {}
    [[nodiscard]] std::vector<std::string> entries(const std::string&) const override { return {}; }
};

class NoClipboard final : public Clipboard {
public:
    [[nodiscard]] bool offers(ClipboardFormat) const override { return false; }
    bool setBitmap(std::span<const std::byte>) override { return false; }
    [[nodiscard]] std::optional<std::vector<std::byte>> bitmap() const override { return std::nullopt; }
    [[nodiscard]] std::optional<std::vector<std::byte>> png() const override { return std::nullopt; }
    [[nodiscard]] std::optional<Picture> picture() const override { return std::nullopt; }
    bool setText(const std::string&) override { return false; }
    [[nodiscard]] std::optional<std::string> text() const override { return std::nullopt; }
};

class KnownPictures final : public PictureReader {
public:
    [[nodiscard]] Result<Picture, PictureError> read(std::span<const std::byte> file) const override {
        return isJpeg(file) ? readJpeg(file) : BitmapReader().read(file);
    }
};

class NoLibraries final : public Library {
public:
    [[nodiscard]] std::unique_ptr<LoadedLibrary> load(const std::string&) override { return nullptr; }
    [[nodiscard]] std::string extension() const override { return ".so"; }
};

class NoVersions final : public VersionInfo {
public:
    [[nodiscard]] std::optional<VersionRecord> read(const std::string&) const override {
        return std::nullopt;
    }
    [[nodiscard]] VersionRecord program() const override { return {}; }
};

class NoShell final : public Shell {
public:
    bool openWithDefaultProgram(const std::string&) override { return false; }
    bool registerFileTypes(const std::vector<FileTypeRegistration>&) override { return false; }
    bool unregisterFileTypes() override { return false; }
    bool handToRunningInstance(const std::vector<std::string>&) override { return false; }
    bool listenForOpenRequests(std::function<void(const std::vector<std::string>&)>) override {
        return false;
    }
};

class NoState final : public StateFolder {
public:
    [[nodiscard]] std::string location() const override { return {}; }
    [[nodiscard]] std::optional<FileError> write(const std::string&, FilePieces) override {
        return FileError::AccessDenied;
    }
    void remove(const std::string&) override {}
    void discard() override {}
    [[nodiscard]] std::vector<std::unique_ptr<LeftState>> left() override { return {}; }
};

class NoCursor final : public WaitCursor {
public:
    void begin() override {}
    void end() override {}
};

const char* variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string_view localeName() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const std::string_view value = variable(name); !value.empty())
            return value;
    }
    return "C";
}

/// "ja" or "en"; empty for a language that there are no texts of.
std::string knownLanguage(std::string_view locale) {
    const std::string_view language = locale.substr(0, locale.find_first_of("_.@"));
    if (language == "ja" || language == "japanese")
        return "ja";
    return language == "en" || language == "C" || language == "POSIX" ? "en" : "";
}

} // namespace

struct CommandLinePlatform::Absent {
    StreamMessages messages;
    NoDialogs dialogs;
    NoWatcher watcher;
    NoProfile profile;
    NoClipboard clipboard;
    KnownPictures pictures;
    NoLibraries libraries;
    NoVersions versions;
    NoShell shell;
    NoState state;
    NoCursor cursor;
};

CommandLinePlatform::CommandLinePlatform(const std::string& language)
    : files_(
          [this](char letter) -> std::optional<std::string> {
              const auto found = drives_.find(static_cast<char>(std::tolower(letter)));
              return found == drives_.end() ? std::nullopt : std::optional(found->second);
          },
          "/")
    , texts_(language == "ja" ? &kJapaneseTexts : nullptr)
    , absent_(std::make_unique<Absent>())
    , before_(installPlatform(this)) {}

CommandLinePlatform::~CommandLinePlatform() {
    installPlatform(before_);
}

void CommandLinePlatform::mapDrive(char letter, const std::string& folder) {
    drives_[static_cast<char>(std::tolower(letter))] = folder;
}

Messages& CommandLinePlatform::messages() {
    return absent_->messages;
}
FileDialogs& CommandLinePlatform::fileDialogs() {
    return absent_->dialogs;
}
FileWatcher& CommandLinePlatform::fileWatcher() {
    return absent_->watcher;
}
Profile& CommandLinePlatform::profile() {
    return absent_->profile;
}
Clipboard& CommandLinePlatform::clipboard() {
    return absent_->clipboard;
}
PictureReader& CommandLinePlatform::pictureReader() {
    return absent_->pictures;
}
Library& CommandLinePlatform::library() {
    return absent_->libraries;
}
VersionInfo& CommandLinePlatform::versionInfo() {
    return absent_->versions;
}
Shell& CommandLinePlatform::shell() {
    return absent_->shell;
}
StateFolder& CommandLinePlatform::stateFolder() {
    return absent_->state;
}
WaitCursor& CommandLinePlatform::waitCursor() {
    return absent_->cursor;
}

std::string userLanguage() {
    const std::string_view locale = localeName();
    std::string_view wished = variable("LANGUAGE");
    // As gettext has it: a user without a locale is spoken to as the program is written.
    while (!wished.empty() && locale != "C" && locale != "POSIX") {
        const std::size_t end = std::min(wished.find(':'), wished.size());
        if (std::string known = knownLanguage(wished.substr(0, end)); !known.empty())
            return known;
        wished.remove_prefix(std::min(end + 1, wished.size()));
    }
    const std::string known = knownLanguage(locale);
    return known.empty() ? "en" : known;
}

} // namespace dyeworks
