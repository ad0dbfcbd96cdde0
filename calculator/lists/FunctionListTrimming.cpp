#include "calculator/lists/FunctionListTrimming.h"

#include "platform/machine/Clock.h"
#include "platform/machine/RandomSource.h"
#include "platform/text/Log.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>

namespace velmora {

namespace {

constexpr std::string_view kNeedsVariable = "&&&&";
constexpr std::string_view kPlaceForGreeting = "FFFF";
constexpr std::string_view kInvisible = "$$$$";
constexpr const char* kGreetingMark = "%!%";

struct Greeting {
    const char* content;
    const char* hint;
};

// By the day of specialDate, counted from 1.
constexpr std::array kDayGreetings{
    Greeting{"Happy Friday the 13th", "It could be your lucky day"},
    Greeting{"Beware the Ides of March", "if your name is Caesar"},
    Greeting{"Happy new year!", ""},
    Greeting{"Today is leap day", "Ladies ask the guys out"},
};

// By chance, one in so many openings of a list each.
constexpr std::uint32_t kOpeningsPerGreeting = 100;
constexpr std::array kRareGreetings{
    Greeting{"Meow!", "says my cat"},
    Greeting{"This is a rare message", "You won't see it often"},
};

std::optional<Greeting> greetingOfToday() {
    if (const int day = specialDate(); day > 0) {
        return kDayGreetings[static_cast<std::size_t>(day) - 1];
    }
    const std::uint32_t number = randomNumber() % kOpeningsPerGreeting;
    log("rand is " + std::to_string(number));
    return number < kRareGreetings.size() ? std::optional(kRareGreetings[number]) : std::nullopt;
}

void removeAll(std::string& text, std::string_view part) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
        text.erase(at, part.size());
    }
}

/// The text at the key, or nothing.
std::optional<std::string> textOf(const PropertyList& entry, std::string_view key) {
    const PropertyDictionary* fields = entry.asDictionary();
    const auto field = fields ? fields->find(key) : PropertyDictionary::const_iterator();
    const std::string* text = fields && field != fields->end() ? field->second.asText() : nullptr;
    return text ? std::optional(*text) : std::nullopt;
}

} // namespace

FunctionList trimFunctionList(const FunctionList& list, bool variableIsDefined) {
    FunctionList trimmed = starterArrayForUserDefined(list);
    for (std::size_t index = kFirstFunctionListEntry; index < list.size(); ++index) {
        std::optional<std::string> content = textOf(list[index], "content");
        if (!content) { // a list inside this one, which is trimmed when it is opened
            trimmed.push_back(list[index]);
            continue;
        }
        std::string hint = textOf(list[index], "hint").value_or(std::string());
        if (content->starts_with(kPlaceForGreeting)) {
            const auto greeting = greetingOfToday();
            if (!greeting) {
                continue;
            }
            content = std::string(greeting->content) + kGreetingMark;
            hint = greeting->hint;
        }
        if (content->starts_with(kNeedsVariable)) {
            if (!variableIsDefined) {
                continue;
            }
            content->erase(0, kNeedsVariable.size());
        }
        removeAll(*content, kInvisible);
        removeAll(hint, kInvisible);
        trimmed.push_back(functionListEntry(std::move(*content), std::move(hint)));
    }
    return trimmed;
}

int specialDate() {
    using namespace std::chrono;
    const CalendarTime now = currentClock().now();
    const sys_days today =
        year(now.year) / month(static_cast<unsigned>(now.month)) / day(static_cast<unsigned>(now.day));
    const sys_days aWeekAhead = today + weeks(1);
    const year_month_day date(aWeekAhead);
    const month_day ofTheYear(date.month(), date.day());
    if (ofTheYear == March / 15) {
        return 2;
    }
    if (ofTheYear == January / 1) {
        return 3;
    }
    if (ofTheYear == February / 29) {
        return 4;
    }
    return weekday(aWeekAhead) == Friday && date.day() == day(13) ? 1 : 0;
}

} // namespace velmora
