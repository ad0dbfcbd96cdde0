#include "calculator/model/ArchiveMerge.h"

#include "calculator/model/ArchiveKeys.h"

#include <algorithm>

namespace velmora {

namespace {

const PropertyList& valueOf(const PropertyDictionary& dictionary, const std::string& key) {
    static const PropertyList nothing;
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? nothing : found->second;
}

const PropertyArray& arrayOf(const PropertyList& list) {
    static const PropertyArray empty;
    return list.asArray() ? *list.asArray() : empty;
}

/// Lines join the history at its end and leave it at its head: what was added here stands behind the
/// longest end of the former history that this one begins with.
PropertyList mergedHistory(const PropertyArray& base, PropertyArray file, const PropertyArray& here) {
    auto former = base.begin();
    while (std::mismatch(former, base.end(), here.begin(), here.end()).first != base.end()) {
        ++former;
    }
    file.insert(file.end(), here.begin() + (base.end() - former), here.end());
    return file;
}

PropertyList merged(const PropertyList& base, const PropertyList& file, const PropertyList& here) {
    if (here == base) {
        return file.isNothing() ? here : file;
    }
    if (!base.asArray() || !file.asArray() || !here.asArray()) {
        return here;
    }
    PropertyArray slots = *here.asArray();
    const PropertyArray& former = arrayOf(base);
    const PropertyArray& kept = arrayOf(file);
    for (std::size_t slot = 0; slot < std::min({slots.size(), former.size(), kept.size()}); ++slot) {
        slots[slot] = merged(former[slot], kept[slot], slots[slot]);
    }
    return slots;
}

} // namespace

PropertyDictionary mergedArchive(const PropertyDictionary& base, const PropertyDictionary& file,
                                 const PropertyDictionary& here) {
    PropertyDictionary result = file;
    for (const auto& [key, value] : here) {
        result[key] = key == kHistoryArchiveKey ? mergedHistory(arrayOf(valueOf(base, key)),
                                                                arrayOf(valueOf(file, key)), arrayOf(value))
                                                : merged(valueOf(base, key), valueOf(file, key), value);
    }
    return result;
}

} // namespace velmora
