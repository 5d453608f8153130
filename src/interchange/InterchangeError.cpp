#include "interchange/InterchangeError.h"

#include "platform/StringId.h"

namespace dyeworks {

namespace {

StringId textOf(const InterchangeError& error) {
    switch (error.kind) {
    case InterchangeError::Kind::UnknownFormat:
        return StringId::InterchangeUnknownFormat;
    case InterchangeError::Kind::EndsTooEarly:
        return StringId::FileEndsTooEarly;
    case InterchangeError::Kind::Damaged:
        return error.detail.empty() ? StringId::InterchangeDamaged : StringId::InterchangeDamagedWhere;
    case InterchangeError::Kind::TooLarge:
        return StringId::InterchangeTooLarge;
    case InterchangeError::Kind::NoMemory:
        return StringId::NotEnoughMemory;
    case InterchangeError::Kind::NoColours:
        return StringId::InterchangeNoColours;
    case InterchangeError::Kind::TooManyColours:
        return StringId::InterchangeTooManyColours;
    case InterchangeError::Kind::BadLine:
        return StringId::InterchangeBadLine;
    case InterchangeError::Kind::IndexWithoutColour:
        return StringId::InterchangeIndexWithoutColour;
    case InterchangeError::Kind::IndexTooHigh:
        return StringId::InterchangeIndexTooHigh;
    case InterchangeError::Kind::NoTexels:
        return StringId::InterchangeNoTexels;
    case InterchangeError::Kind::Cancelled:
        return StringId::InterchangeCancelled;
    }
    return StringId::InterchangeDamaged;
}

} // namespace

std::string describe(const InterchangeError& error, const Texts& texts) {
    const std::string pattern = texts.translate(kTextContext, englishText(textOf(error)));
    return filled(pattern, {std::to_string(error.first), std::to_string(error.second), error.detail});
}

} // namespace dyeworks
