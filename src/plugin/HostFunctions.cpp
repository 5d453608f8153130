#include "plugin/HostFunctions.h"

#include "core/PaletteSet.h"
#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "paint/CDyeworksDoc.h"
#include "platform/CodePage932.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "plugin/PlugInHost.h"
#include "plugin/PlugInRecords.h"
#include "project/CTPFDocument.h"
#include "project/PathHelpers.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
#include <thread>

namespace dyeworks {

namespace {

constexpr std::uintptr_t kFirstPointer = 0x10000;

struct Installed {
    PlugInHost* host = nullptr;
    std::thread::id thread;
};

Installed& installed() {
    static Installed now;
    return now;
}

/// Null when there is none, and on another thread than its own.
PlugInHost* host() {
    const Installed& now = installed();
    return now.thread == std::this_thread::get_id() ? now.host : nullptr;
}

CTPFDocument* project() {
    PlugInHost* const own = host();
    return own == nullptr ? nullptr : own->openProject();
}

PaletteSet* paletteSet() {
    PlugInHost* const own = host();
    return own == nullptr ? nullptr : own->paletteSet();
}

std::string textOf(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

/// Whether it is a text that a project's file can be written with. A single one that is not UTF-8 would have
/// the whole file read as Japanese of another code page.
bool isText(const char* text) {
    return text != nullptr && isUtf8(text);
}

std::optional<std::string> optionalText(const char* text) {
    return text == nullptr ? std::nullopt : std::optional<std::string>(text);
}

NodePlace placeOf(DwNode node) {
    if (node < kFirstPointer)
        return static_cast<std::uint32_t>(node);
    return textOf(reinterpret_cast<const char*>(node)); // NOLINT(performance-no-int-to-ptr)
}

/// As much as fits, whole characters only, with a zero behind it and in the last byte.
void fill(char* buffer, std::int32_t size, const std::string& text) {
    if (buffer == nullptr || size <= 0)
        return;
    const auto room = static_cast<std::size_t>(size) - 1;
    std::size_t length = 0;
    while (length < text.size()) {
        const std::size_t next = length + characterLength(std::string_view(text).substr(length));
        if (next > room)
            break;
        length = next;
    }
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    buffer[room] = '\0';
}

std::uint32_t filled(char* buffer, std::int32_t size, std::string CTPFFile::*folder) {
    const CTPFDocument* const open = project();
    if (open == nullptr)
        return 0;
    fill(buffer, size, open->projectFile().*folder);
    return 1;
}

std::uint32_t replaced(const char* folders, std::string CTPFFile::*folder) {
    CTPFDocument* const open = project();
    if (open == nullptr || !isText(folders))
        return 0;
    std::string own;
    std::string name;
    PathSplitFolder(open->projectFile().pathName, own, name);
    // The project's own folder is not read from the file.
    if (folder != &CTPFFile::tpfDir && !CTPFFile::holdsFolders(own, folders))
        return 0;
    open->projectFile().*folder = folders;
    open->setModified(true);
    return 1;
}

/// The palette's file in the project's folders, where it must be.
std::optional<std::string> paletteFile(const char* name) {
    const CTPFDocument* const open = project();
    std::string path;
    if (open == nullptr || !PathSearch(path, open->projectFile().tlfDir, textOf(name), true))
        return std::nullopt;
    return path;
}

TextureLookupTable* openPalette(const char* name) {
    PaletteSet* const set = paletteSet();
    return set == nullptr ? nullptr : set->lookup(textOf(name));
}

} // namespace

void setPlugInHost(PlugInHost* host) {
    installed() = {host, std::this_thread::get_id()};
}

} // namespace dyeworks

using namespace dyeworks; // NOLINT(google-build-using-namespace): the functions below stand outside it.

void DW_About(void) {
    if (PlugInHost* const own = host())
        own->showAbout();
}

std::uint32_t DW_getValue(const char* key, char* buffer, std::int32_t size) {
    const CTPFDocument* const open = project();
    std::string value;
    if (open == nullptr || !open->GetValue(textOf(key), value))
        return 0;
    fill(buffer, size, value);
    return 1;
}

std::uint32_t DW_setValue(const char* key, const char* value) {
    CTPFDocument* const open = project();
    return open != nullptr && isText(key) && isText(value) && open->SetValue(key, value) ? 1 : 0;
}

std::uint32_t DW_removeKey(const char* key) {
    CTPFDocument* const open = project();
    return open != nullptr && open->RemoveKey(textOf(key)) ? 1 : 0;
}

std::uint32_t DW_addNode(const char* text, std::int32_t image, const char* parent, DwNode after) {
    CTPFDocument* const open = project();
    return open != nullptr && isText(text) && open->AddNode(text, image, optionalText(parent), placeOf(after))
               ? 1
               : 0;
}

std::uint32_t DW_renameNode(const char* text, DwNode node, const char* parent) {
    CTPFDocument* const open = project();
    return open != nullptr && isText(text) && open->RenameNode(text, placeOf(node), optionalText(parent)) ? 1
                                                                                                          : 0;
}

std::uint32_t DW_removeNode(DwNode node, const char* parent) {
    CTPFDocument* const open = project();
    return open != nullptr && open->RemoveNode(placeOf(node), optionalText(parent)) ? 1 : 0;
}

std::uint32_t DW_getPictureName(std::int32_t index, char* buffer, std::int32_t size) {
    const CTPFDocument* const open = project();
    if (open == nullptr || index < 0 || static_cast<std::size_t>(index) >= open->projectFile().order.size())
        return 0;
    fill(buffer, size, open->projectFile().order[static_cast<std::size_t>(index)]);
    return 1;
}

std::uint32_t DW_getPicture(const char* name, char* tmf, std::int32_t tmfSize, char* tlf,
                            std::int32_t tlfSize, std::uint32_t* paletteNumber) {
    const CTPFDocument* const open = project();
    PictureEntry entry;
    if (open == nullptr || !open->GetPicture(textOf(name), entry))
        return 0;
    fill(tmf, tmfSize, entry.tmfFile);
    fill(tlf, tlfSize, entry.tlfFile);
    if (paletteNumber != nullptr)
        *paletteNumber = static_cast<std::uint32_t>(entry.paletteNo);
    return 1;
}

std::uint32_t DW_setPicture(const char* name, const char* tmf, const char* tlf, std::uint32_t paletteNumber) {
    CTPFDocument* const open = project();
    return open != nullptr && isText(name) && isUtf8(textOf(tmf)) && isUtf8(textOf(tlf)) &&
                   open->SetPicture(name,
                                    {textOf(tmf), textOf(tlf), static_cast<std::int32_t>(paletteNumber)})
               ? 1
               : 0;
}

std::uint32_t DW_getTPFDir(char* buffer, std::int32_t size) {
    return filled(buffer, size, &CTPFFile::tpfDir);
}

std::uint32_t DW_getTMFDir(char* buffer, std::int32_t size) {
    return filled(buffer, size, &CTPFFile::tmfDir);
}

std::uint32_t DW_getTLFDir(char* buffer, std::int32_t size) {
    return filled(buffer, size, &CTPFFile::tlfDir);
}

std::uint32_t DW_setTPFDir(const char* directory) {
    return replaced(directory, &CTPFFile::tpfDir);
}

std::uint32_t DW_setTMFDir(const char* directories) {
    return replaced(directories, &CTPFFile::tmfDir);
}

std::uint32_t DW_setTLFDir(const char* directories) {
    return replaced(directories, &CTPFFile::tlfDir);
}

::TmfImage* DW_getTMF(const char* name) {
    const PlugInHost* const own = host();
    if (own == nullptr || name == nullptr)
        return nullptr;
    if (const CDyeworksDoc* const document = own->findImage(name)) {
        const std::unique_ptr<dyeworks::TmfImage> image = document->canvas().ToImage();
        return image == nullptr ? nullptr : handedOut(std::move(*image)).release();
    }
    const auto file = platform().files().openForReading(name);
    if (!file)
        return nullptr;
    Result<dyeworks::TmfImage, TmfError> image = parseTmf(*file.value());
    return image ? handedOut(std::move(image.value())).release() : nullptr;
}

std::uint32_t DW_setTMF(const char* name, const ::TmfImage* image) {
    const PlugInHost* const own = host();
    const dyeworks::TmfImage* const texels = usable(image);
    if (own == nullptr || name == nullptr || texels == nullptr)
        return 0;
    if (CDyeworksDoc* const document = own->findImage(name))
        return document->SetImage(*texels, StringId::StepPlugIn) ? 1 : 0;
    return writeTmf(*texels, name) ? 0 : 1;
}

::TlutData* DW_getTLF(const char* name) {
    if (const TextureLookupTable* const palette = openPalette(name)) {
        dyeworks::TlutData copy(palette->table);
        return copy.entries == nullptr ? nullptr : handedOut(std::move(copy)).release();
    }
    const std::optional<std::string> path = paletteFile(name);
    if (!path)
        return nullptr;
    const auto file = platform().files().read(*path);
    if (!file)
        return nullptr;
    Result<dyeworks::TlutData, TlfError> table = parseTlf(file.value().bytes());
    return table ? handedOut(std::move(table.value())).release() : nullptr;
}

std::uint32_t DW_setTLF(const char* name, const ::TlutData* table) {
    const dyeworks::TlutData* const entries = usable(table);
    if (entries == nullptr)
        return 0;
    if (TextureLookupTable* const palette = openPalette(name)) {
        palette->beginEdit();
        if (palette->table.copyEntriesFrom(entries) == 0)
            return 0;
        palette->commitEdit(StringId::StepPlugIn);
        palette->modified = true;
        paletteSet()->entriesChanged(*palette);
        return 1;
    }
    const std::optional<std::string> path = paletteFile(name);
    const std::optional<ByteBuffer> bytes = path ? serialiseTlf(*entries) : std::nullopt;
    return bytes && !platform().files().write(*path, bytes->bytes()) ? 1 : 0;
}
