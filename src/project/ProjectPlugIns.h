#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// What plug-ins keep for one project: a value of its own for each plug-in that handles nodes, in their
/// order. Nobody but the plug-in knows what it stands for.
using PlugInHandles = std::vector<void*>;

/// The commands of a node.
enum class NodeCommand : std::uint32_t { Add = 0, Edit = 1, Remove = 2, Property = 3 };

/// What a drop does, in bits; none for no drop.
namespace drop_effect {
inline constexpr std::uint32_t kNone = 0;
inline constexpr std::uint32_t kCopy = 1;
inline constexpr std::uint32_t kMove = 2;
inline constexpr std::uint32_t kLink = 4;
} // namespace drop_effect

/// The keys that are held during a drag, in bits.
namespace drag_key {
inline constexpr std::uint32_t kShift = 4;
inline constexpr std::uint32_t kControl = 8;
} // namespace drag_key

/// The plug-ins that handle nodes of a project's tree or export projects. A handle belongs to the plug-in of
/// the same index; plug-ins beyond the shorter of the two lists are not asked. Nodes are named by their
/// paths, such as "\Project\Notes\first".
class ProjectPlugIns {
public:
    virtual ~ProjectPlugIns() = default;

    /// Appends a handle for every plug-in that handles nodes, null for one that makes none. The result is the
    /// number of handles then.
    virtual std::size_t TPF_OnNew(PlugInHandles& handles) = 0;
    /// A project was read from its file.
    virtual void TPF_OnUpdate(const PlugInHandles& handles) = 0;
    /// The project's tree stands and takes nodes.
    virtual void TPF_OnUpdateNodes(const PlugInHandles& handles) = 0;
    /// The project closes.
    virtual void TPF_OnDelete(const PlugInHandles& handles) = 0;

    /// Tells every plug-in; each knows its own nodes.
    virtual void TPF_OnCommand(const PlugInHandles& handles, const std::string& node,
                               NodeCommand command) = 0;
    /// Whether a plug-in has the command for the node.
    [[nodiscard]] virtual bool TPF_QueryCommand(const PlugInHandles& handles, const std::string& node,
                                                NodeCommand command) = 0;

    /// The node as the text that a drag carries. False when no plug-in has one.
    [[nodiscard]] virtual bool TPF_ToString(const PlugInHandles& handles, const std::string& node,
                                            std::string& text) = 0;
    /// What dropping the node `dragged` on `target` would do (`drop_effect`); `keyState` as in `drag_key`.
    [[nodiscard]] virtual std::uint32_t TPF_IsDroppable(const PlugInHandles& handles,
                                                        const std::string& target, const std::string& dragged,
                                                        std::uint32_t keyState) = 0;
    /// Offers one line of a drop to the plug-ins until one takes it.
    virtual bool TPF_OnDrop(const PlugInHandles& handles, const std::string& target, const std::string& key,
                            const std::string& value, std::uint32_t effect) = 0;

    /// The names of the plug-ins that export projects, in their order.
    [[nodiscard]] virtual std::vector<std::string> projectExportNames() const = 0;
    /// Exports the project in that file. The result is the plug-in's, 0 when there is none, which the user
    /// has then been told.
    virtual std::uint32_t TPF_Export(const PlugInHandles& handles, std::int32_t index,
                                     const std::string& projectPath) = 0;
};

} // namespace dyeworks
