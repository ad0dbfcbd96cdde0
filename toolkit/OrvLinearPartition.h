#pragma once

#include <limits>
#include <span>
#include <vector>

namespace velmora {

/// What one member of a row or column needs, in points. A minimum below 0 counts as 0, a maximum below the
/// minimum as the minimum.
struct OrvLengthRange {
    double minimum = 0;
    double maximum = std::numeric_limits<double>::infinity();
};

/// Free space around and between the members.
struct OrvPartitionMargins {
    double before = 0;
    double between = 0;
    double after = 0;
};

/// Where one member lies along the divided length.
struct OrvLengthPart {
    double start = 0;
    double length = 0;
    double end() const { return start + length; }
    bool operator==(const OrvLengthPart&) const = default;
};

/// Divides a length among members in their order.
///
/// - Every member gets at least its minimum; what is left is shared out equally, but none gets more than
///   its maximum, and what a full member leaves goes to the others.
/// - Too much space: when all have their maximum, the rest stays empty after the last one.
/// - Too little space: when the minima do not fit between the margins, all members shrink below their
///   minimum in proportion to it; without room even for the margins, every length is 0 and the margins
///   shrink in proportion.
///
/// A length that is negative or not a number counts as 0.
std::vector<OrvLengthPart> linearPartition(double length, std::span<const OrvLengthRange> members,
                                           const OrvPartitionMargins& margins = {});

} // namespace velmora
