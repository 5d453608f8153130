#pragma once

#include "paint/TextureCanvas.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace dyeworks {

/// Second description of an image and its undo history: whole images for the steps.
struct WholeImages {
    using Image = std::unique_ptr<TextureCanvas>;

    Image image;
    std::vector<Image> undone, redone; ///< Images to go back and forth to.
    bool modified = false;

    bool record(Image before) {
        if (std::ranges::equal(before->pixelRows(), image->pixelRows()))
            return false;
        undone.push_back(std::move(before));
        if (undone.size() > 100)
            undone.erase(undone.begin());
        redone.clear();
        return modified = true;
    }
    template <typename Draw>
    bool edit(Draw draw) {
        Image before = image->Clone();
        draw(*image);
        return record(std::move(before));
    }
    void undo() { go(undone, redone); }
    void redo() { go(redone, undone); }

private:
    void go(std::vector<Image>& from, std::vector<Image>& to) {
        if (from.empty())
            return;
        to.push_back(std::exchange(image, std::move(from.back())));
        from.pop_back();
        modified = !undone.empty();
    }
};

} // namespace dyeworks
