#include "framework/WindowTiling.h"

#include <cstdint>

namespace dyeworks {

namespace {

/// Where part `index` of `count` equal parts of `length` begins.
int edge(int index, int count, int length) {
    return static_cast<int>(std::int64_t{index} * length / count);
}

} // namespace

std::vector<TilePlace> tilePlaces(int count, int width, int height, TileDirection direction) {
    std::vector<TilePlace> places;
    if (count <= 0)
        return places;
    int root = 1;
    while ((root + 1) * (root + 1) <= count)
        ++root;

    // Bands lie across the direction in which few windows follow each other: columns for Horizontal, rows for
    // Vertical.
    const bool columns = direction == TileDirection::Horizontal;
    const int across = columns ? width : height;
    const int along = columns ? height : width;
    for (int band = 0; band < root; ++band) {
        // The last bands take one window more where the count does not divide evenly.
        const int inBand = count / root + (band >= root - count % root ? 1 : 0);
        const int bandStart = edge(band, root, across);
        const int bandSize = edge(band + 1, root, across) - bandStart;
        for (int i = 0; i < inBand; ++i) {
            const int start = edge(i, inBand, along);
            const int size = edge(i + 1, inBand, along) - start;
            places.push_back(columns ? TilePlace{bandStart, start, bandSize, size}
                                     : TilePlace{start, bandStart, size, bandSize});
        }
    }
    return places;
}

} // namespace dyeworks
