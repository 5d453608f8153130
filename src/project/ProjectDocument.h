#pragma once

#include "framework/CDocument.h"
#include "paint/OpenProject.h"
#include "project/PictureEntry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// The open project as the application and its main window see it: a document that besides keeps pictures,
/// each a pair of an image file and a palette file under a name. At most one is open at a time.
class ProjectDocument : public CDocument, public OpenProject {
public:
    using CDocument::CDocument;
    ~ProjectDocument() override;

    /// The names of the pictures in the project's order.
    [[nodiscard]] virtual std::vector<std::string> pictureNames() const = 0;

    /// False when there is no such picture.
    [[nodiscard]] virtual bool GetPicture(const std::string& name, PictureEntry& entry) const = 0;

    // What the user is shown and may cancel. True when the project was changed.
    virtual bool ChangePicture(const std::string& name) = 0;
    virtual bool RemovePicture(const std::string& name) = 0;
    virtual bool EditProperties() = 0;

    /// Opens the picture's palette and image and attaches one to the other. False when that failed, which has
    /// been reported.
    virtual bool OpenPicture(const std::string& name) = 0;
};

} // namespace dyeworks
