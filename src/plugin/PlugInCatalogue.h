#pragma once

#include "plugin/PlugInFailures.h"
#include "plugin/PlugInInfo.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// The plug-ins of the program, read once when it starts. A plug-in stands in the list of each role that the
/// program calls it in; all lists are in the order of the file names, whatever their case.
class PlugInCatalogue : private PlugInFailures {
public:
    /// Loads the libraries in the folder "PlugIns" of the program's folder ("c:\program\") that accept the
    /// program. `locale` is the number of the language that the program speaks, which they are told, and in
    /// which they are described. The result is always true.
    bool LoadPlugIns(const std::string& programFolder, int locale);
    /// Empties all lists and unloads the libraries. Nothing of a plug-in may be in use any more.
    void FreePlugIns();

    /// With a trailing "\".
    [[nodiscard]] const std::string& folder() const noexcept { return folder_; }
    /// Files of plug-ins that broke off when they were asked who they are.
    [[nodiscard]] const std::vector<std::string>& failed() const noexcept { return failed_; }
    [[nodiscard]] const std::vector<PlugInInfo>& all() const noexcept { return all_; }
    [[nodiscard]] const std::vector<PlugInInfo>& importers() const noexcept { return importers_; }
    [[nodiscard]] const std::vector<PlugInInfo>& exporters() const noexcept { return exporters_; }
    [[nodiscard]] const std::vector<PlugInInfo>& previews() const noexcept { return previews_; }
    [[nodiscard]] const std::vector<PlugInInfo>& projectExporters() const noexcept {
        return projectExporters_;
    }
    [[nodiscard]] const std::vector<PlugInInfo>& nodeHandlers() const noexcept { return nodeHandlers_; }

private:
    void add(const std::string& fileName, int locale);
    /// Asks the plug-in whether it takes the program, and then what it is, which is put into `info`.
    bool isAccepted(PlugInInfo& info, int locale);
    void tellPlugInFailed(const std::string& fileName) override;

    std::string folder_;
    std::vector<std::string> failed_;
    std::vector<PlugInInfo> all_;
    std::vector<PlugInInfo> importers_;
    std::vector<PlugInInfo> exporters_;
    std::vector<PlugInInfo> previews_;
    std::vector<PlugInInfo> projectExporters_;
    std::vector<PlugInInfo> nodeHandlers_;
};

/// What the menu entries of these plug-ins are called.
[[nodiscard]] std::vector<std::string> menuNames(const std::vector<PlugInInfo>& plugIns);

/// The program's version in a word, the first of its four parts in the highest byte.
[[nodiscard]] std::uint32_t hostVersionWord();

} // namespace dyeworks
