#pragma once

#include "plugin/PlugInCatalogue.h"
#include "plugin/PlugInHost.h"
#include "project/ProjectPlugIns.h"

namespace dyeworks {

/// Tells the plug-ins of the catalogue that handle nodes or export projects.
class ProjectPlugInCalls : public ProjectPlugIns {
public:
    /// Both must outlive the calls.
    ProjectPlugInCalls(const PlugInCatalogue& catalogue, PlugInHost& host)
        : catalogue_(catalogue)
        , host_(host) {}

    std::size_t TPF_OnNew(PlugInHandles& handles) override;
    void TPF_OnUpdate(const PlugInHandles& handles) override;
    void TPF_OnUpdateNodes(const PlugInHandles& handles) override;
    void TPF_OnDelete(const PlugInHandles& handles) override;
    void TPF_OnCommand(const PlugInHandles& handles, const std::string& node, NodeCommand command) override;
    [[nodiscard]] bool TPF_QueryCommand(const PlugInHandles& handles, const std::string& node,
                                        NodeCommand command) override;
    [[nodiscard]] bool TPF_ToString(const PlugInHandles& handles, const std::string& node,
                                    std::string& text) override;
    [[nodiscard]] std::uint32_t TPF_IsDroppable(const PlugInHandles& handles, const std::string& target,
                                                const std::string& dragged, std::uint32_t keyState) override;
    bool TPF_OnDrop(const PlugInHandles& handles, const std::string& target, const std::string& key,
                    const std::string& value, std::uint32_t effect) override;
    [[nodiscard]] std::vector<std::string> projectExportNames() const override {
        return menuNames(catalogue_.projectExporters());
    }
    std::uint32_t TPF_Export(const PlugInHandles& handles, std::int32_t index,
                             const std::string& projectPath) override;

private:
    /// Lets `ask` call the entry point of that name of each plug-in that has it, with its handle, until the
    /// answer is other than 0.
    template <typename EntryPoint, typename Ask>
    void eachHandler(const char* name, const PlugInHandles& handles, Ask ask);
    template <typename EntryPoint, typename... Arguments>
    std::uint32_t firstAnswer(const char* name, const PlugInHandles& handles, Arguments... arguments);
    template <typename EntryPoint, typename... Arguments>
    void tellAll(const char* name, const PlugInHandles& handles, Arguments... arguments);

    const PlugInCatalogue& catalogue_;
    PlugInHost& host_;
};

} // namespace dyeworks
