#pragma once

#include "calculator/lists/FunctionSelectViewController.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Finds pages, functions, constants and units by name and synonym. It reads them all when it is made.
class ReferenceSearch {
public:
    /// Over that list and the lists and pages inside it, and over the units.
    explicit ReferenceSearch(const FunctionList& list);

    /// The rows of which every word of the query begins some word, in any case; those whose titles do stand
    /// first, and among them those that the whole query begins. None for a query without words.
    std::vector<FunctionListRow> find(std::string_view query) const;

private:
    struct Entry {
        FunctionListRow row;
        std::vector<std::string> titleWords;
        std::vector<std::string> otherWords;
    };

    void addList(const FunctionList& list);
    void addUnits();
    void add(FunctionListRow row, std::string_view otherText);

    std::vector<Entry> m_entries;
};

} // namespace velmora
