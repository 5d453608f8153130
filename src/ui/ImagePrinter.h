#pragma once

#include <functional>

class QPrinter;

namespace dyeworks {

class ImageView;

/// Prints the image of a view as the view shows it, but once and without the lines of the mirrors: at its
/// zoom, with its grid, in the size that it has on the screen, over as many pages as that takes.
class ImagePrinter {
public:
    /// Told before each page, with its number counted from 1 and the number of all; false stops the printing.
    using Progress = std::function<bool(int page, int pages)>;

    explicit ImagePrinter(ImageView& view)
        : view_(view) {}

    /// Pages on the printer's present paper.
    [[nodiscard]] int pageCount(const QPrinter& printer) const;

    /// Prints the pages that the printer's page range names, all if it names none. False when the printer
    /// failed, and when `progress` stopped it, after which nothing comes out.
    [[nodiscard]] bool print(QPrinter& printer, const Progress& progress) const;

private:
    ImageView& view_;
};

} // namespace dyeworks
