#include "FakeHost.h"

#include "notes/NoteValues.h"

#include <QByteArray>

namespace dyeworks::plugins {

std::unique_ptr<Host> host;

namespace {

template <typename Node, typename TextOf>
std::string outlineOf(const Node& node, TextOf textOf) {
    std::string text;
    for (const auto& child : node.children) {
        const std::string below = outlineOf(*child, textOf);
        text += (text.empty() ? "" : ",") + textOf(*child) + (below.empty() ? "" : "(" + below + ")");
    }
    return text;
}

NodePlace placeOf(DwNode node) {
    if (node < 0x10000)
        return static_cast<std::uint32_t>(node);
    return std::string(reinterpret_cast<const char*>(node)); // NOLINT(performance-no-int-to-ptr)
}

} // namespace

NotesTest::NotesTest() {
    host = std::make_unique<Host>();
    host->tree.insert(nullptr, 0, "Project", 4);
}

NotesTest::~NotesTest() {
    host.reset();
}

std::string NotesTest::outline(const Note& note) {
    return outlineOf(note, [](const Note& child) { return child.title.toStdString(); });
}

void NotesTest::expectNotes(NotesProject& project, const std::string& expected) {
    EXPECT_EQ(outline(project.notes().root()), expected);
    const ProjectNode* const shown = host->tree.FindNode(NoteTree::kPath);
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(outlineOf(*shown, [](const ProjectNode& node) { return node.text; }), expected)
        << "in the tree";
    NotesProject again;
    readAgain(again);
    EXPECT_EQ(outline(again.notes().root()), expected) << "in the file";
    std::vector<std::string> keys;
    for (const auto& [key, value] : valuesOf(project.notes()))
        keys.push_back(key.toStdString());
    std::vector<std::string> lines;
    for (const StoreLine& line : host->store.lines())
        lines.push_back(line[0]);
    EXPECT_EQ(lines, keys);
}

void NotesTest::readAgain(NotesProject& project) {
    ASSERT_TRUE(host->store.SaveFile("c:\\p.tpf"));
    host->store.RemoveAll();
    ASSERT_TRUE(host->store.LoadFile("c:\\p.tpf"));
    project.load();
}

Note& NotesTest::note(NotesProject& project, const char* below) {
    return *project.notes().find(QString::fromLatin1(NoteTree::kPath) + QLatin1Char('\\') +
                                 QString::fromUtf8(below));
}

} // namespace dyeworks::plugins

using dyeworks::plugins::host;
using dyeworks::plugins::placeOf;

std::uint32_t DW_getValue(const char* key, char* buffer, std::int32_t size) {
    std::string value;
    if (!host->store.GetValue(key, value))
        return 0;
    qstrncpy(buffer, value.c_str(), static_cast<std::size_t>(size));
    return 1;
}

std::uint32_t DW_setValue(const char* key, const char* value) {
    EXPECT_TRUE(dyeworks::CKeyValueStore::holds(key, value)) << key << " = " << value;
    host->store.SetValue(key, value);
    ++host->changes;
    return 1;
}

std::uint32_t DW_removeKey(const char* key) {
    host->store.RemoveKey(key);
    ++host->changes;
    return 1;
}

std::uint32_t DW_addNode(const char* text, std::int32_t image, const char* parent, DwNode after) {
    return host->tree.AddNode(text, image, parent, placeOf(after)) != nullptr ? 1 : 0;
}

std::uint32_t DW_renameNode(const char* text, DwNode node, const char* parent) {
    return host->tree.RenameNode(text, placeOf(node), parent) ? 1 : 0;
}

std::uint32_t DW_removeNode(DwNode node, const char* parent) {
    return host->tree.RemoveNode(placeOf(node), parent) ? 1 : 0;
}
