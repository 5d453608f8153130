#include "project/ProjectDocument.h"

namespace dyeworks {

// Here, so that one file holds the class's tables.
ProjectDocument::~ProjectDocument() = default;

} // namespace dyeworks
