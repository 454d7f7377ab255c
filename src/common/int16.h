#pragma once
// Counters, IDs and flags of the record store are 16-bit signed. Arithmetic on them goes
// through these helpers so that passing 32767 is the overflow the planner reports.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/failure.h"

namespace qh {

using Int16 = std::int16_t;

// The flags of the planner: true is all bits set.
inline constexpr Int16 kTrue = -1;
inline constexpr Int16 kFalse = 0;

// Narrows to 16 bits; throws Overflow outside -32768..32767.
Int16 toInt16(long long value);

// Reads a decimal text the way the record readers do: leading and trailing blanks are
// ignored, an optional sign, digits. Returns nothing for anything else (empty, letters,
// fractions) and for values outside 16 bits.
[[nodiscard]] std::optional<Int16> parseInt16(std::string_view text);

// Like parseInt16 but any text gives a number: what does not read as one gives 0,
// which is what a numeric comparison of a link field in the record files expects.
Int16 int16OrZero(std::string_view text);

}  // namespace qh
