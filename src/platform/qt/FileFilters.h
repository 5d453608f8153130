#pragma once

#include <QStringList>

#include <string>

namespace dyeworks {

/// The name filters of a file dialog, "A (*.a *.b)", from pairs of label and pattern:
/// "A (*.a)|*.a;*.b|All Files (*.*)|*.*||". "*.*" means every file, with or without a full stop in its name.
/// A pattern that a label already ends in is not repeated; a label without a pattern is left out.
[[nodiscard]] QStringList nameFilters(const std::string& filter);

} // namespace dyeworks
