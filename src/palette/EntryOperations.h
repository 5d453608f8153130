#pragma once

#include "palette/EntryAdjustment.h"
#include "palette/EntryRange.h"

#include <cstdint>

namespace dyeworks {

struct TlutData;

// What can be done to the entries of a range, which must lie in the table. Channels that the colour type
// lacks take no part, so that a table of an unknown type is only reversed and filled.

/// Even steps from the first to the last entry, which stay: every channel, alpha too, is counted in its own
/// steps (5 bits and 1 of RGBA, 8 of IA) and rounded to the nearest, halves upward.
void rampEntries(TlutData& table, EntryRange range);

/// Every entry as `adjustment` makes it.
void adjustEntries(TlutData& table, EntryRange range, const EntryAdjustment& adjustment);

/// The complement of every colour channel or of the intensity; alpha stays.
void invertEntries(TlutData& table, EntryRange range);

/// The last entry comes first.
void reverseEntries(TlutData& table, EntryRange range);

/// `entry`, as it is stored, for all of them.
void fillEntries(TlutData& table, EntryRange range, std::uint16_t entry);

} // namespace dyeworks
