#include "common/DialogScope.h"
#include "notes/NoteCommands.h"

#include <algorithm>
#include <memory>
#include <new>

// What the program shows of this plug-in, and what it calls.

DW_VERSION_INFO(1, 0, 0, 0, DW_VERSION_STRING("040904E4", "ProductName", "Notes"),
                DW_VERSION_STRING("040904E4", "InternalName", "Notes as Markdown..."),
                DW_VERSION_STRING("040904E4", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("040904E4", "Comments",
                                  "Keeps notes in a project's tree and writes them as Markdown."),
                DW_VERSION_STRING("041104B0", "ProductName", "ノート"),
                DW_VERSION_STRING("041104B0", "InternalName", "ノートを Markdown に..."),
                DW_VERSION_STRING("041104B0", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("041104B0", "Comments",
                                  "プロジェクトのツリーにノートを置き、Markdown に書き出します。"));

namespace {

using namespace dyeworks::plugins;

/// What a handle stands for. A command keeps the project while it shows a dialog.
using Project = std::shared_ptr<NotesProject>;

/// Calls `action` with the handle's project, if there is one. Its result, or 0 when memory ran out.
template <typename Action>
std::uint32_t with(DwHandle handle, Action action) {
    if (handle == nullptr)
        return 0;
    const Project project = *static_cast<const Project*>(handle);
    try {
        return static_cast<std::uint32_t>(action(project));
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

} // namespace

std::uint32_t DWPI_isAvail(std::uint32_t /*hostVersion*/) {
    return 1;
}

std::uint32_t DWPI_getType(void) {
    return DWPI_TPF_NODE | DWPI_TPF_EXPORT;
}

DwHandle DWPI_TPF_onNew(void) {
    try {
        return std::make_unique<Project>(std::make_shared<NotesProject>()).release();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

std::uint32_t DWPI_TPF_onUpdate(DwHandle handle) {
    return with(handle, [](const Project& project) {
        project->load();
        return true;
    });
}

std::uint32_t DWPI_TPF_onUpdateNodes(DwHandle handle) {
    return with(handle, [](const Project& project) {
        project->showNodes();
        return true;
    });
}

std::uint32_t DWPI_TPF_onDelete(DwHandle handle) {
    const std::unique_ptr<Project> project(static_cast<Project*>(handle));
    if (project != nullptr)
        (*project)->close();
    return 1;
}

std::uint32_t DWPI_TPF_onCommand(DwHandle handle, const char* node, std::uint32_t command,
                                 std::uint32_t query) {
    return with(handle, [&](const Project& project) {
        const QString path = QString::fromUtf8(node);
        return query != 0 ? hasNoteCommand(*project, path, command) : runNoteCommand(project, path, command);
    });
}

std::uint32_t DWPI_TPF_toString(DwHandle handle, const char* node, char* buffer, std::uint32_t size) {
    return with(handle, [&](const Project& project) {
        const QByteArray line = project->dragLine(QString::fromUtf8(node));
        if (line.isEmpty() || buffer == nullptr || static_cast<quint64>(line.size()) >= size)
            return false;
        std::copy_n(line.constData(), line.size() + 1, buffer);
        return true;
    });
}

std::uint32_t DWPI_TPF_isDroppable(DwHandle handle, const char* target, const char* dragged,
                                   std::uint32_t keyState, std::uint32_t* effect) {
    return with(handle, [&](const Project& project) {
        const std::uint32_t allowed = project->dropEffect(QString::fromUtf8(target), dragged, keyState);
        if (allowed == 0 || effect == nullptr)
            return false;
        *effect = allowed;
        return true;
    });
}

std::uint32_t DWPI_TPF_onDrop(DwHandle handle, const char* target, const char* key, const char* value,
                              std::uint32_t effect) {
    return with(handle, [&](const Project& project) {
        return project->drop(QString::fromUtf8(target), key, value, effect);
    });
}

std::uint32_t DWPI_TPF_export(DwHandle handle, const char* projectPath) {
    const DialogScope scope;
    return with(handle,
                [&](const Project& project) { return exportNotes(project, QString::fromUtf8(projectPath)); });
}
