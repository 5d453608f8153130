#include "TestPlugIn.h"

#include <set>
#include <string>
#include <thread>

/* Calls all functions of the host from inside each entry point, once, and from a thread that it starts there.
 */

IS_CALLED("all twenty");

namespace {

constexpr std::int32_t kSize = 12;

/// What the functions answered and left in their buffers.
class Answers {
public:
    void add(const char* name, std::uint32_t result) {
        line_.append(" ").append(name).append(result == 0 ? ":0" : ":1");
    }
    /// A call that fills the buffer.
    template <typename Call>
    void fill(const char* name, Call call) {
        char buffer[kSize] = "#";
        add(name, call(buffer));
        line_.append("=").append(buffer);
    }

    [[nodiscard]] const std::string& line() const { return line_; }

private:
    std::string line_;
};

DwNode at(const char* path) {
    return reinterpret_cast<DwNode>(path);
}

void callValues(Answers& answers) {
    const char* const key = "\\Project\\Twenty";
    answers.add("setValue", DW_setValue(key, " a b # c"));
    const auto value = [&](char* buffer) { return DW_getValue(key, buffer, kSize); };
    answers.fill("getValue", value);
    answers.add("removeKey", DW_removeKey(key));
    answers.fill("gone", value);
}

void callNodes(Answers& answers, const char* where) {
    answers.add("addNode", DW_addNode("old", 2, "\\Project", at("")));
    answers.add("renameNode", DW_renameNode("new", at("old"), "\\Project"));
    answers.add("removeNode", DW_removeNode(at("new"), "\\Project"));
    answers.add("addNode", DW_addNode(where, 3, "\\Project", 0));
}

void callPictures(Answers& answers, const char* where) {
    answers.add("setPicture", DW_setPicture(where, "w.tmf", "w.tlf", 5));
    char tlf[kSize] = "#";
    std::uint32_t number = 9;
    answers.fill("getPicture", [&](char* tmf) {
        return DW_getPicture(where, tmf, kSize, tlf, 4, &number) * (number == 5) *
               (std::string(tlf) == "w.t");
    });
    char first[64] = "";
    answers.add("getPictureName", DW_getPictureName(0, first, sizeof(first)));
    answers.add("first", std::string(first) == where);
    answers.fill("tooLarge", [](char* buffer) { return DW_getPictureName(1000, buffer, kSize); });
}

void callFolders(Answers& answers) {
    const struct {
        const char* name;
        std::uint32_t (*get)(char*, std::int32_t);
        std::uint32_t (*set)(const char*);
    } folders[] = {{"TPFDir", DW_getTPFDir, DW_setTPFDir},
                   {"TMFDir", DW_getTMFDir, DW_setTMFDir},
                   {"TLFDir", DW_getTLFDir, DW_setTLFDir}};
    for (const auto& folder : folders) {
        char before[256] = "";
        answers.add(folder.name, folder.get(before, sizeof(before)) * folder.set("c:\\d\xE7\xA9\xBA;e:"));
        answers.fill("cut", [&](char* buffer) { return folder.get(buffer, 6); });
        answers.fill("none", [&](char* buffer) { return folder.get(buffer, -1); });
        answers.add("back", folder.set(before));
    }
}

void callImages(Answers& answers) {
    const char* const name = "c:\\tex\\pic.tmf";
    TmfImage* const image = DW_getTMF(name);
    answers.add("getTMF", image != nullptr);
    TmfImage* const larger = DW_newImage(9, 8, 4);
    answers.add("null", DW_setTMF(name, nullptr));
    if (image != nullptr) {
        DW_setTexel(image, 1, 0, static_cast<std::uint8_t>(DW_getTexel(image, 1, 0) + 1));
        answers.add("setTMF", DW_setTMF(name, image));
        TmfImage* const again = DW_getTMF(name);
        answers.add("again", again != nullptr && DW_getTexel(again, 1, 0) == DW_getTexel(image, 1, 0));
        DW_freeImage(again);
    } else {
        answers.add("setTMF", DW_setTMF(name, larger));
    }
    DW_freeImage(larger);
    DW_freeImage(image);
}

void callPalettes(Answers& answers) {
    const char* const name = "c:\\tex\\pic.tlf";
    TlutData* const current = DW_getTLF("");
    answers.add("current", current != nullptr);
    DW_freePalette(current);
    TlutData* table = DW_getTLF(name);
    answers.add("getTLF", table != nullptr);
    if (table == nullptr)
        table = DW_newPalette(DW_COLOUR_RGBA, 256);
    ++table->entries[7];
    answers.add("setTLF", DW_setTLF(name, table));
    TlutData* const again = DW_getTLF(name);
    answers.add("again", again != nullptr && again->entries[7] == table->entries[7]);
    DW_freePalette(again);
    DW_freePalette(table);
}

std::string callAll(const char* where) {
    Answers answers;
    DW_About();
    callValues(answers);
    callNodes(answers, where);
    callPictures(answers, where);
    callFolders(answers);
    callImages(answers);
    callPalettes(answers);
    return answers.line();
}

/// With the handle of the entry point, which is that of onNew or none.
std::uint32_t everything(const char* where, const void* handle, const void* expected) {
    static std::set<std::string> done;
    if (handle != expected)
        note(where, " has a wrong handle");
    if (!done.insert(where).second)
        return 1;
    note(where, callAll(where).c_str());
    std::thread([] { note("thread", callAll("thread").c_str()); }).join();
    return 1;
}

int ownHandle;

std::uint32_t everything(const char* where) {
    return everything(where, nullptr, nullptr);
}

std::uint32_t everything(const char* where, DwHandle handle) {
    return everything(where, handle, &ownHandle);
}

} // namespace

std::uint32_t DWPI_isAvail(std::uint32_t /*hostVersion*/) {
    return everything("isAvail");
}
std::uint32_t DWPI_getType(void) {
    everything("getType");
    return DWPI_TMF_IMPORT | DWPI_TMF_EXPORT | DWPI_TMF_PREVIEW | DWPI_TPF_EXPORT | DWPI_TPF_NODE;
}
std::uint32_t DWPI_import(const PlugInPicture* /*in*/, PlugInPicture* /*out*/) {
    return everything("import");
}
std::uint32_t DWPI_export(const PlugInPicture* /*picture*/) {
    return everything("export");
}
std::uint32_t DWPI_preview2(const PlugInPicture* /*picture*/, std::uint32_t /*which*/) {
    return everything("preview2");
}
DwHandle DWPI_TPF_onNew(void) {
    everything("onNew");
    return &ownHandle;
}
std::uint32_t DWPI_TPF_onUpdate(DwHandle handle) {
    return everything("onUpdate", handle);
}
std::uint32_t DWPI_TPF_onUpdateNodes(DwHandle handle) {
    return everything("onUpdateNodes", handle);
}
std::uint32_t DWPI_TPF_onDelete(DwHandle handle) {
    return everything("onDelete", handle);
}
std::uint32_t DWPI_TPF_onCommand(DwHandle handle, const char* /*node*/, std::uint32_t /*command*/,
                                 std::uint32_t query) {
    return everything(query != 0 ? "query" : "onCommand", handle);
}
std::uint32_t DWPI_TPF_toString(DwHandle handle, const char* node, char* buffer, std::uint32_t size) {
    snprintf(buffer, size, "%s=x", node);
    return everything("toString", handle);
}
std::uint32_t DWPI_TPF_isDroppable(DwHandle handle, const char* /*target*/, const char* /*dragged*/,
                                   std::uint32_t /*keyState*/, std::uint32_t* effect) {
    *effect = DW_DROP_COPY;
    return everything("isDroppable", handle);
}
std::uint32_t DWPI_TPF_onDrop(DwHandle handle, const char* /*target*/, const char* /*key*/,
                              const char* /*value*/, std::uint32_t /*effect*/) {
    return everything("onDrop", handle);
}
std::uint32_t DWPI_TPF_export(DwHandle handle, const char* /*projectPath*/) {
    return everything("TPF_export", handle);
}
