#include "toolkit/OrvLinearPartition.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace velmora {

namespace {

double usableLength(double length) { return length > 0 ? length : 0; }

struct Bounds {
    double minimum;
    double maximum;
};

Bounds usableBounds(const OrvLengthRange& range) {
    const double minimum = usableLength(range.minimum);
    return {minimum, range.maximum > minimum ? range.maximum : minimum};
}

/// Shares out what the minima leave. In each round every member that is not full gets the same share;
/// each round but the last fills a member.
std::vector<double> shareOut(std::vector<Bounds> members, double available) {
    std::vector<double> lengths;
    lengths.reserve(members.size());
    for (const Bounds& member : members) {
        lengths.push_back(member.minimum);
        available -= member.minimum;
    }
    std::vector<std::size_t> open(members.size());
    std::iota(open.begin(), open.end(), 0);
    while (true) {
        std::erase_if(open, [&](std::size_t index) { return lengths[index] >= members[index].maximum; });
        if (open.empty() || available <= 0) {
            return lengths;
        }
        double share = available / static_cast<double>(open.size());
        const bool fillsNone = std::ranges::all_of(
            open, [&](std::size_t index) { return members[index].maximum - lengths[index] > share; });
        for (const std::size_t index : open) {
            share = std::min(share, members[index].maximum - lengths[index]);
        }
        for (const std::size_t index : open) {
            const bool isFull = members[index].maximum - lengths[index] <= share;
            lengths[index] = isFull ? members[index].maximum : lengths[index] + share;
            available -= share;
        }
        if (fillsNone) {
            return lengths;
        }
    }
}

std::vector<double> memberLengths(const std::vector<Bounds>& members, double available) {
    double needed = 0;
    for (const Bounds& member : members) {
        needed += member.minimum;
    }
    if (needed <= available) {
        return shareOut(members, available);
    }
    std::vector<double> lengths;
    lengths.reserve(members.size());
    for (const Bounds& member : members) {
        lengths.push_back(member.minimum * (available / needed));
    }
    return lengths;
}

} // namespace

std::vector<OrvLengthPart> linearPartition(double length, std::span<const OrvLengthRange> members,
                                           const OrvPartitionMargins& margins) {
    if (members.empty()) {
        return {};
    }
    const double total = usableLength(length);
    const double gaps = static_cast<double>(members.size() - 1);
    const double allMargins =
        usableLength(margins.before) + usableLength(margins.between) * gaps + usableLength(margins.after);
    const double marginScale = allMargins > total ? total / allMargins : 1;

    std::vector<Bounds> bounds;
    bounds.reserve(members.size());
    for (const OrvLengthRange& member : members) {
        bounds.push_back(usableBounds(member));
    }
    std::vector<OrvLengthPart> parts;
    parts.reserve(members.size());
    double start = usableLength(margins.before) * marginScale;
    for (const double partLength : memberLengths(bounds, std::max(0.0, total - allMargins))) {
        parts.push_back({start, partLength});
        start += partLength + usableLength(margins.between) * marginScale;
    }
    return parts;
}

} // namespace velmora
