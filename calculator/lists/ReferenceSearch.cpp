#include "calculator/lists/ReferenceSearch.h"

#include "calculator/pages/Page.h"
#include "platform/files/KeyedArchive.h"
#include "platform/files/Resources.h"
#include "platform/screens/ScreenRegistry.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::string_view kPageSuffix = "Page";
constexpr const char* kUnitConverter = "UnitConvertViewController";
constexpr std::size_t kFirstUnit = 2; // behind the quantity's name and its main unit

/// Letters and digits stand in words, and every character beyond ASCII ("π", "°C").
bool standsInWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || static_cast<unsigned char>(c) > 127;
}

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words(1);
    for (char c : text) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        if (standsInWord(c)) {
            words.back() += c;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    if (words.back().empty()) {
        words.pop_back();
    }
    return words;
}

bool beginsOneOf(const std::vector<std::string>& words, const std::string& start) {
    return std::ranges::any_of(words, [&](const std::string& word) { return word.starts_with(start); });
}

/// "foot=0.3048|feet#ft" as "foot feet ft", and its name.
std::pair<std::string, std::string> wordsOfUnit(std::string unit) {
    if (unit.starts_with('+')) {
        unit.erase(0, 1);
    }
    const std::string name = unit.substr(0, unit.find_first_of("=|#"));
    std::string words = name;
    for (const char mark : {'|', '#'}) {
        if (const auto at = unit.find(mark); at != std::string::npos) {
            words += " " + unit.substr(at + 1, unit.find_first_of("|#+", at + 1) - at - 1);
        }
    }
    return {name, words};
}

} // namespace

ReferenceSearch::ReferenceSearch(const FunctionList& list) {
    addList(list);
    if (ScreenRegistry::shared().isRegistered(kUnitConverter)) {
        addUnits();
    }
}

void ReferenceSearch::addList(const FunctionList& list) {
    for (std::size_t i = kFirstFunctionListEntry; i < list.size(); ++i) {
        const KeyedUnarchiver entry(list[i]);
        if (const PropertyArray* nested = entry.array("content")) {
            addList(*nested);
            continue;
        }
        const FunctionListRow row = functionListRow(list[i]);
        if (row.kind == FunctionListRowKind::Insert) {
            add(row, row.detail);
        } else if (row.kind == FunctionListRowKind::OpensScreen && row.content.ends_with(kPageSuffix)) {
            add(row, loadPage(row.content.substr(0, row.content.size() - kPageSuffix.size())).searchWords);
        }
    }
}

void ReferenceSearch::addUnits() {
    const auto quantities = readPropertyListResource("Units.plist");
    const PropertyArray* list = quantities ? quantities->asArray() : nullptr;
    for (const PropertyList& quantity : list ? *list : PropertyArray()) {
        const PropertyArray* units = quantity.asArray();
        const std::string* name = units && !units->empty() ? units->front().asText() : nullptr;
        for (std::size_t i = kFirstUnit; name && i < units->size(); ++i) {
            const auto [title, words] = wordsOfUnit((*units)[i].asText() ? *(*units)[i].asText() : "");
            add({.kind = FunctionListRowKind::OpensScreen,
                 .title = title,
                 .detail = *name + ", unit converter",
                 .detailAlignment = TextAlignment::Right,
                 .content = kUnitConverter},
                words + " " + *name);
        }
    }
}

void ReferenceSearch::add(FunctionListRow row, std::string_view otherText) {
    // A function may stand in two lists.
    const auto isSame = [&](const Entry& entry) {
        return entry.row.title == row.title && entry.row.content == row.content;
    };
    if (std::ranges::none_of(m_entries, isSame)) {
        std::vector<std::string> titleWords = wordsOf(row.title);
        m_entries.push_back({std::move(row), std::move(titleWords), wordsOf(otherText)});
    }
}

std::vector<FunctionListRow> ReferenceSearch::find(std::string_view query) const {
    const std::vector<std::string> words = wordsOf(query);
    if (words.empty()) {
        return {};
    }
    // In the title from its start, anywhere in the title, among the synonyms.
    std::vector<std::vector<FunctionListRow>> found(3);
    for (const Entry& entry : m_entries) {
        const auto isInTitle = [&](const std::string& word) { return beginsOneOf(entry.titleWords, word); };
        const auto isInEntry = [&](const std::string& word) {
            return isInTitle(word) || beginsOneOf(entry.otherWords, word);
        };
        if (!std::ranges::all_of(words, isInEntry)) {
            continue;
        }
        const bool leads = !entry.titleWords.empty() && entry.titleWords.front().starts_with(words.front());
        const bool inTitle = std::ranges::all_of(words, isInTitle);
        found[inTitle && leads ? 0 : inTitle ? 1 : 2].push_back(entry.row);
    }
    std::vector<FunctionListRow> rows;
    for (const auto& group : found) {
        rows.insert(rows.end(), group.begin(), group.end());
    }
    return rows;
}

} // namespace velmora
