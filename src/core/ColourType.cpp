#include "core/ColourType.h"

namespace dyeworks {

const char* label(ColourType type) {
    switch (type) {
    case ColourType::Rgba:
        return "16bit RGBA";
    case ColourType::Ia:
        return "16bit IA";
    }
    return "";
}

} // namespace dyeworks
