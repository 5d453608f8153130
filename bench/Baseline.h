#pragma once

#include <cstddef>
#include <string>

namespace dyeworks {

/// What a case is measured against: the least that its bytes can cost, in the same run.
enum class Baseline {
    Memset,      ///< Into memory that was touched before.
    Memcpy,      ///< Between areas that were touched before.
    MemcpyFresh, ///< Into memory that is allocated and freed each time.
    Read,        ///< A file, with one call, into memory that is allocated and freed each time.
    Write,       ///< A file, with one call, flushed to the disk.
    Replace      ///< The same under another name, which then takes the place of the old one for good.
};

/// The baseline's name in the output; it is registered when it is asked for first. A case carries the name as
/// its label.
std::string baseline(Baseline kind, std::size_t bytes);

} // namespace dyeworks
