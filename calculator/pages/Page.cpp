#include "calculator/pages/Page.h"

#include "platform/files/Resources.h"
#include "platform/text/Log.h"
#include "platform/text/TextReading.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr std::string_view kPageType = ".page";
constexpr std::string_view kBlanks = " \t";

struct ItemWord {
    std::string_view word;
    PageItem::Kind kind;
};

constexpr std::array kItemWords{
    ItemWord{"text", PageItem::Kind::Text},     ItemWord{"heading", PageItem::Kind::Heading},
    ItemWord{"figure", PageItem::Kind::Figure}, ItemWord{"formula", PageItem::Kind::Formula},
    ItemWord{"keys", PageItem::Kind::Keys},     ItemWord{"action", PageItem::Kind::Action},
};

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// The first word and what follows it.
std::pair<std::string_view, std::string> divided(std::string_view line) {
    const std::size_t end = std::min(line.find_first_of(kBlanks), line.size());
    return {line.substr(0, end), std::string(trimmed(line.substr(end)))};
}

/// What a word says of the item before it. False for a word that no item has.
bool describe(PageItem& item, std::string_view word, std::string value) {
    if (word == "spoken") {
        item.spoken = std::move(value);
    } else if (word == "insert") {
        item.insertion = std::move(value);
    } else if (word == "letter") {
        auto [name, meaning] = divided(value);
        item.letters.push_back({std::string(name), std::move(meaning)});
    } else if (word == "shows") {
        item.shown = std::move(value);
    } else if (word == "check") {
        item.checks.push_back(std::move(value));
    } else if (word == "given") {
        item.given = std::move(value);
    } else {
        return false;
    }
    return true;
}

void readLine(Page& page, std::string_view line) {
    auto [word, value] = divided(line);
    const auto* item = std::ranges::find(kItemWords, word, &ItemWord::word);
    if (word == "title") {
        page.title = std::move(value);
    } else if (word == "search") {
        page.searchWords = std::move(value);
    } else if (item != kItemWords.end()) {
        page.items.push_back({.kind = item->kind, .text = std::move(value)});
    } else if (page.items.empty() || !describe(page.items.back(), word, std::move(value))) {
        log("no part of a page: " + std::string(line));
    }
}

} // namespace

Page pageWithText(std::string_view text) {
    Page page;
    std::string line;
    const auto finishLine = [&] {
        if (!trimmed(line).empty()) {
            readLine(page, line);
        }
        line.clear();
    };
    while (!text.empty()) {
        const std::string_view next = takeUntil(text, '\n');
        const bool goesOn = !next.empty() && kBlanks.find(next.front()) != std::string_view::npos;
        if (!goesOn) {
            finishLine();
        } else if (!line.empty()) {
            line += ' ';
        }
        line += trimmed(next);
    }
    finishLine();
    return page;
}

Page loadPage(const std::string& name) {
    const auto bytes = findResource(name + std::string(kPageType));
    if (!bytes) {
        log("no page " + name);
        return {};
    }
    return pageWithText(*bytes);
}

std::vector<std::string> pageNames() {
    std::vector<std::string> names = resourceNames(kPageType);
    for (std::string& name : names) {
        name.resize(name.size() - kPageType.size());
    }
    return names;
}

} // namespace velmora
