#pragma once

#include <functional>

namespace dyeworks {

/// Told how far long work is, in thousandths, now and then and never more often than a hundred times. False:
/// the work stops and answers `InterchangeError::Kind::Cancelled`. An empty one is not told.
using Progress = std::function<bool(int thousandths)>;

} // namespace dyeworks
