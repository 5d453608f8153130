#pragma once

#include "platform/StringId.h"

// The name by which the translation tools find the texts; what it wraps stays as it is.
#define QT_TRANSLATE_NOOP(context, text) text

namespace dyeworks {

/// The English wording of a text. The tables of TextTable.cpp together have one for each, in the order of
/// StringId. They are no std::array: deducing one from so many rows is more than some compilers go along
/// with.
struct TextRow {
    StringId id;
    const char* english;
};

} // namespace dyeworks
