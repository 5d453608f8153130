#include "ui/OpenImages.h"

#include "paint/CDyeworksDoc.h"
#include "ui/Workspace.h"

namespace dyeworks {

std::vector<CDyeworksDoc*> openImages(const Workspace& workspace) {
    std::vector<CDyeworksDoc*> images;
    for (CDocument* document : workspace.documents()) {
        if (auto* const image = dynamic_cast<CDyeworksDoc*>(document))
            images.push_back(image);
    }
    return images;
}

} // namespace dyeworks
