#include "plugin/ProjectPlugInCalls.h"

#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/WaitCursor.h"
#include "plugin/PlugInCall.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace dyeworks {

namespace {

/// Bytes that a plug-in may write for a dragged node, with the zero at the end.
constexpr std::size_t kDragTextSize = 65536;

} // namespace

template <typename EntryPoint, typename Ask>
void ProjectPlugInCalls::eachHandler(const char* name, const PlugInHandles& handles, Ask ask) {
    // A copy, because a call may close the project that the handles belong to.
    const PlugInHandles own = handles;
    const std::vector<PlugInInfo>& plugIns = catalogue_.nodeHandlers();
    for (std::size_t i = 0; i < std::min(plugIns.size(), own.size()); ++i) {
        PlugInCall call(host_, plugIns[i]);
        EntryPoint* const entryPoint = call.find<EntryPoint>(name);
        if (entryPoint != nullptr && ask(call, entryPoint, own[i]) != 0)
            return;
    }
}

template <typename EntryPoint, typename... Arguments>
std::uint32_t ProjectPlugInCalls::firstAnswer(const char* name, const PlugInHandles& handles,
                                              Arguments... arguments) {
    std::uint32_t first = 0;
    eachHandler<EntryPoint>(name, handles, [&](PlugInCall& call, EntryPoint* entryPoint, DwHandle handle) {
        return first = call.answer(entryPoint, handle, arguments...);
    });
    return first;
}

template <typename EntryPoint, typename... Arguments>
void ProjectPlugInCalls::tellAll(const char* name, const PlugInHandles& handles, Arguments... arguments) {
    eachHandler<EntryPoint>(name, handles, [&](PlugInCall& call, EntryPoint* entryPoint, DwHandle handle) {
        call.answer(entryPoint, handle, arguments...);
        // Whatever it answers, the others are to hear of it as well.
        return 0;
    });
}

std::size_t ProjectPlugInCalls::TPF_OnNew(PlugInHandles& handles) {
    for (const PlugInInfo& plugIn : catalogue_.nodeHandlers()) {
        PlugInCall call(host_, plugIn);
        const auto entryPoint = call.find<decltype(DWPI_TPF_onNew)>("_DWPI_TPF_onNew@0");
        handles.push_back(entryPoint == nullptr ? nullptr : call.answer(entryPoint));
    }
    return handles.size();
}

void ProjectPlugInCalls::TPF_OnUpdate(const PlugInHandles& handles) {
    tellAll<decltype(DWPI_TPF_onUpdate)>("_DWPI_TPF_onUpdate@4", handles);
}

void ProjectPlugInCalls::TPF_OnUpdateNodes(const PlugInHandles& handles) {
    tellAll<decltype(DWPI_TPF_onUpdateNodes)>("_DWPI_TPF_onUpdateNodes@4", handles);
}

void ProjectPlugInCalls::TPF_OnDelete(const PlugInHandles& handles) {
    tellAll<decltype(DWPI_TPF_onDelete)>("_DWPI_TPF_onDelete@4", handles);
}

void ProjectPlugInCalls::TPF_OnCommand(const PlugInHandles& handles, const std::string& node,
                                       NodeCommand command) {
    tellAll<decltype(DWPI_TPF_onCommand)>("_DWPI_TPF_onCommand@16", handles, node.c_str(),
                                          static_cast<std::uint32_t>(command), std::uint32_t{0});
}

bool ProjectPlugInCalls::TPF_QueryCommand(const PlugInHandles& handles, const std::string& node,
                                          NodeCommand command) {
    return firstAnswer<decltype(DWPI_TPF_onCommand)>("_DWPI_TPF_onCommand@16", handles, node.c_str(),
                                                     static_cast<std::uint32_t>(command),
                                                     std::uint32_t{1}) != 0;
}

bool ProjectPlugInCalls::TPF_ToString(const PlugInHandles& handles, const std::string& node,
                                      std::string& text) {
    const std::unique_ptr<char[]> buffer(new (std::nothrow) char[kDragTextSize]());
    if (buffer == nullptr ||
        firstAnswer<decltype(DWPI_TPF_toString)>("_DWPI_TPF_toString@16", handles, node.c_str(), buffer.get(),
                                                 static_cast<std::uint32_t>(kDragTextSize)) == 0)
        return false;
    text.assign(buffer.get(), strnlen(buffer.get(), kDragTextSize));
    return true;
}

std::uint32_t ProjectPlugInCalls::TPF_IsDroppable(const PlugInHandles& handles, const std::string& target,
                                                  const std::string& dragged, std::uint32_t keyState) {
    std::uint32_t effect = drop_effect::kNone;
    std::uint32_t accepted = drop_effect::kNone;
    using IsDroppable = decltype(DWPI_TPF_isDroppable);
    eachHandler<IsDroppable>(
        "_DWPI_TPF_isDroppable@20", handles, [&](PlugInCall& call, IsDroppable* entryPoint, DwHandle handle) {
            effect = drop_effect::kNone;
            const std::uint32_t answer =
                call.answer(entryPoint, handle, target.c_str(), dragged.c_str(), keyState, &effect);
            accepted = answer == 0 ? drop_effect::kNone : effect;
            return answer;
        });
    return accepted;
}

bool ProjectPlugInCalls::TPF_OnDrop(const PlugInHandles& handles, const std::string& target,
                                    const std::string& key, const std::string& value, std::uint32_t effect) {
    return firstAnswer<decltype(DWPI_TPF_onDrop)>("_DWPI_TPF_onDrop@20", handles, target.c_str(), key.c_str(),
                                                  value.c_str(), effect) != 0;
}

std::uint32_t ProjectPlugInCalls::TPF_Export(const PlugInHandles& handles, std::int32_t index,
                                             const std::string& projectPath) {
    const std::vector<PlugInInfo>& exporters = catalogue_.projectExporters();
    if (exporters.empty()) {
        applicationMessage(text(StringId::ProjectExportPlugInMissing), MessageIcon::None);
        return 0;
    }
    if (index < 0 || static_cast<std::size_t>(index) >= exporters.size())
        return 0;
    const PlugInInfo& plugIn = exporters[static_cast<std::size_t>(index)];
    DwHandle handle = nullptr;
    if ((plugIn.type & DWPI_TPF_NODE) != 0) {
        const std::vector<PlugInInfo>& handlers = catalogue_.nodeHandlers();
        const auto same = std::ranges::find(handlers, plugIn.internalName, &PlugInInfo::internalName);
        const auto position = static_cast<std::size_t>(same - handlers.begin());
        if (same != handlers.end() && position < handles.size())
            handle = handles[position];
    }
    PlugInCall call(host_, plugIn);
    const WaitCursorScope working;
    const auto entryPoint = call.find<decltype(DWPI_TPF_export)>("_DWPI_TPF_export@8");
    if (entryPoint == nullptr) {
        applicationMessage(text(StringId::ProjectExportEntryMissing), MessageIcon::None);
        return 0;
    }
    // A copy, because the plug-in may have the project renamed.
    const std::string path = projectPath;
    return call.answer(entryPoint, handle, path.c_str());
}

} // namespace dyeworks
