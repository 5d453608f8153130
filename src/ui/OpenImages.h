#pragma once

#include <vector>

namespace dyeworks {

class CDyeworksDoc;
class Workspace;

/// All images that are open.
[[nodiscard]] std::vector<CDyeworksDoc*> openImages(const Workspace& workspace);

} // namespace dyeworks
