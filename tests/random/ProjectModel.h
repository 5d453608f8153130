#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

/// The open project, described a second time: the lines of its file, and its pictures apart from them. Its
/// images and palettes lie in its own folder.
struct ProjectModel {
    struct Picture {
        std::string image;
        std::string palette;
        int number = 0;

        bool operator==(const Picture&) const = default;
    };
    /// Without a name it is a line that is kept as it is.
    struct Line {
        std::string name;
        std::string text;
    };

    std::string path;
    std::vector<Line> lines;
    std::vector<std::string> order;
    std::map<std::string, Picture> pictures;
    bool modified = false;

    void read(const std::string& file, const std::string& bytes);
    /// What the file holds from now on.
    [[nodiscard]] std::string write();
    [[nodiscard]] std::string title() const;
    [[nodiscard]] std::optional<std::string> value(const std::string& name) const;
    void setValue(const std::string& name, const std::string& text);
    bool removeKey(const std::string& name);
    /// Behind another one, or else as the first.
    void setPicture(const std::string& name, const Picture& picture, const std::string& after = {});
    bool removePicture(const std::string& name);
    /// The name, or the next with another number at its end that is free.
    [[nodiscard]] std::string freeName(const std::string& name) const;
};

} // namespace dyeworks
