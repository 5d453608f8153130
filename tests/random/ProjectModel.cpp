#include "ProjectModel.h"

#include <algorithm>
#include <sstream>

namespace dyeworks {

namespace {

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(" \t\r") + 1 - first);
}

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('\\'));
}

} // namespace

void ProjectModel::read(const std::string& file, const std::string& bytes) {
    *this = {};
    path = file;
    std::istringstream in(bytes);
    for (std::string line; std::getline(in, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        const std::size_t equals = line.find('=');
        if (line.empty() || line.front() == '#' || equals == line.npos)
            lines.push_back({"", line});
        else
            setValue(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
    }
    setValue("TPF_DIR", folderOf(path));
    const int count = std::stoi(value("PICT_NUM").value_or("0"));
    for (int i = 0; i < count; ++i) {
        const std::string key = "PICT." + std::to_string(i);
        std::istringstream fields(value(key).value_or(""));
        std::string name;
        std::string number;
        Picture picture;
        if (!std::getline(fields, name, ','))
            continue;
        std::getline(fields, picture.image, ',');
        std::getline(fields, picture.palette, ',');
        std::getline(fields, number);
        picture.number = std::stoi(number);
        order.push_back(name);
        pictures[name] = picture;
        removeKey(key);
    }
    modified = false;
}

std::string ProjectModel::write() {
    setValue("TPF_DIR", folderOf(path));
    setValue("TMF_DIR", "");
    setValue("TLF_DIR", "");
    for (std::size_t i = 0; i < order.size(); ++i) {
        const Picture& picture = pictures.at(order[i]);
        setValue("PICT." + std::to_string(i), order[i] + "," + picture.image + "," + picture.palette + "," +
                                                  std::to_string(picture.number));
    }
    setValue("PICT_NUM", std::to_string(order.size()));
    modified = false;
    std::string bytes;
    for (const Line& line : lines)
        bytes += (line.name.empty() ? line.text : line.name + "\t=\t" + line.text) + "\r\n";
    return bytes;
}

std::string ProjectModel::title() const {
    const std::string name = path.substr(path.rfind('\\') + 1);
    return name.substr(0, name.rfind('.')) + (modified ? " *" : "");
}

std::optional<std::string> ProjectModel::value(const std::string& name) const {
    const auto found = std::ranges::find(lines, name, &Line::name);
    return found == lines.end() ? std::nullopt : std::optional(found->text);
}

void ProjectModel::setValue(const std::string& name, const std::string& text) {
    const auto found = std::ranges::find(lines, name, &Line::name);
    if (found == lines.end())
        lines.push_back({name, text});
    else
        found->text = text;
    modified = true;
}

bool ProjectModel::removeKey(const std::string& name) {
    const auto found = std::ranges::find(lines, name, &Line::name);
    if (found == lines.end())
        return false;
    lines.erase(found);
    return modified = true;
}

void ProjectModel::setPicture(const std::string& name, const Picture& picture, const std::string& after) {
    std::erase(order, name);
    pictures[name] = picture;
    const auto before = std::ranges::find(order, after);
    order.insert(before == order.end() ? order.begin() : before + 1, name);
    modified = true;
}

bool ProjectModel::removePicture(const std::string& name) {
    if (pictures.erase(name) == 0)
        return false;
    std::erase(order, name);
    return modified = true;
}

std::string ProjectModel::freeName(const std::string& name) const {
    if (!pictures.contains(name))
        return name;
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    int number = digits == name.size() ? 0 : std::stoi(name.substr(digits)) + 1;
    while (pictures.contains(name.substr(0, digits) + std::to_string(number)))
        ++number;
    return name.substr(0, digits) + std::to_string(number);
}

} // namespace dyeworks
