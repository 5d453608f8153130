#pragma once

#include "platform/ByteLookUp.h"

namespace dyeworks {

class TextureCanvas;

/// Gives every texel the value that the map has for its own. Of a canvas of less than 8 bits the first 2^bits
/// count and must stay below that; one of more has colours in the place of values and is left alone. The
/// whole canvas counts as changed.
void renumber(TextureCanvas& canvas, const ByteTable& map);

} // namespace dyeworks
