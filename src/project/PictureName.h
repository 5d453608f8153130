#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace dyeworks {

/// What the path of a picture's node begins with.
inline constexpr std::string_view kBelowPictures = "\\Project\\Picture\\";

/// Whether a picture may be given the name: the file can hold it, and so can the paths of nodes.
[[nodiscard]] bool isPictureName(const std::string& name);

/// The proposed name, or the first one of the same stem with a number behind it that is not taken. Without a
/// proposal the names begin with "Picture0".
[[nodiscard]] std::string freePictureName(const std::string& proposed,
                                          const std::function<bool(const std::string& name)>& isTaken);

} // namespace dyeworks
