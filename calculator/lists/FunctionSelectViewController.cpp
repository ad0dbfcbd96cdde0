#include "calculator/lists/FunctionSelectViewController.h"

#include "calculator/keyboard/CalculatorOfScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/lists/ConstantEditViewController.h"
#include "calculator/lists/FunctionListTrimming.h"
#include "calculator/lists/ListedConstant.h"
#include "calculator/lists/ReferenceSearch.h"
#include "calculator/model/Model.h"
#include "engine/lines/Token.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/text/Log.h"

namespace velmora {

namespace {

constexpr std::string_view kScreenMark = "||";
constexpr std::string_view kHeadingMark = "%%";
constexpr std::string_view kGreetingMark = "%!%";
constexpr double kAngleRowHeight = 50;

std::string without(std::string text, std::string_view part) {
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
        text.erase(at, part.size());
    }
    return text;
}

std::string listed(const std::string& text) { return Token(text).functionListDisplayString(); }

FunctionListRow rowOfText(const std::string& content, const std::string& hint) {
    using enum FunctionListRowKind;
    if (content == "Angles") {
        return {.kind = AngleMode, .title = content, .content = content, .height = kAngleRowHeight};
    }
    if (const auto at = content.find(kScreenMark); at != std::string::npos) {
        return {.kind = OpensScreen,
                .title = content.substr(0, at),
                .detail = hint,
                .detailAlignment = TextAlignment::Right,
                .content = content.substr(at + kScreenMark.size())};
    }
    if (content.find(kGreetingMark) != std::string::npos) {
        return {.kind = Greeting, .title = without(content, kGreetingMark), .detail = hint};
    }
    if (content.find(kHeadingMark) != std::string::npos) {
        return {.kind = Heading, .title = listed(without(content, kHeadingMark))};
    }
    const bool uncertain = isConstantWithUncertainFinalDigit(content);
    return {.kind = Insert,
            .title = listed(content),
            .detail = hint + (uncertain ? " [final digit is uncertain]" : ""),
            .value = listedConstantValue(content, hint),
            .content = content};
}

} // namespace

FunctionListRow functionListRow(const PropertyList& entry) {
    const PropertyDictionary* fields = entry.asDictionary();
    const auto field = [&](const char* key) {
        const auto found =
            fields ? fields->find(std::string_view(key)) : PropertyDictionary::const_iterator();
        return fields && found != fields->end() ? found->second : PropertyList();
    };
    const PropertyList content = field("content");
    const PropertyList hint = field("hint");
    if (const PropertyArray* nested = content.asArray()) {
        const std::string* name = nested->empty() ? nullptr : nested->front().asText();
        return {.kind = FunctionListRowKind::NestedList, .title = name ? without(*name, "@") : std::string()};
    }
    return rowOfText(content.asText() ? *content.asText() : std::string(),
                     hint.asText() ? *hint.asText() : std::string());
}

FunctionSelectViewController::FunctionSelectViewController() = default;

FunctionSelectViewController::~FunctionSelectViewController() = default;

void FunctionSelectViewController::viewDidLoad() {
    loadFunctionList();
    setHidesNavigationBar(false);
    if (m_functionList.size() > kFunctionListTitle) {
        if (const std::string* title = m_functionList[kFunctionListTitle].asText()) {
            setTitle(*title);
        }
    }
    if (m_showsUserConstants) {
        setEditing(false);
    }
}

void FunctionSelectViewController::viewWillAppear(bool animated) {
    static_cast<void>(animated);
    makeRows(); // constants may have been defined, the angle mode changed
}

bool FunctionSelectViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

void FunctionSelectViewController::loadFunctionList() {
    if (m_functionList.empty()) {
        m_functionList = loadFunctionListWithName(m_functionListName);
    }
    const std::string* marker = m_functionList.empty() ? nullptr : m_functionList.front().asText();
    if (m_functionListName == kEquationsListName || (marker && *marker == kEquationsListName)) {
        m_functionList = equationsFunctionList(m_functionList);
        m_showsEquations = true;
        return;
    }
    m_showsUserConstants = marker && marker->starts_with('@');
    m_functionList =
        possiblySetUserdefinedFunctionList(trimFunctionList(m_functionList, m_variableIsDefined));
}

void FunctionSelectViewController::makeRows() {
    m_rows.clear();
    if (isSearching()) {
        m_rows = m_search->find(m_searchText);
        m_rowsChanged.emit();
        return;
    }
    for (std::size_t index = kFirstFunctionListEntry; index < m_functionList.size(); ++index) {
        FunctionListRow row = functionListRow(m_functionList[index]);
        const int slot = static_cast<int>(m_rows.size());
        if (m_showsUserConstants) {
            row.value = Model::m().constants().expressionString(slot);
        } else if (m_showsEquations) {
            row.value = Model::m().equations().expressionString(slot);
        }
        m_rows.push_back(std::move(row));
    }
    m_rowsChanged.emit();
}

void FunctionSelectViewController::setSearchText(const std::string& text) {
    if (!hasSearch() || text == m_searchText) {
        return;
    }
    if (!m_search) {
        m_search = std::make_unique<ReferenceSearch>(m_functionList);
    }
    m_searchText = text;
    makeRows();
}

void FunctionSelectViewController::setEditing(bool editing) {
    m_isEditing = editing;
    setRightBarButtons({{editing ? "Done" : "Edit", [this, editing] { setEditing(!editing); }}});
    m_rowsChanged.emit();
}

void FunctionSelectViewController::selectRow(std::size_t index) {
    if (index >= m_rows.size() || !m_rows[index].isSelectable()) {
        return;
    }
    const FunctionListRow row = m_rows[index];
    if (m_isEditing) {
        push(std::make_shared<ConstantEditViewController>(static_cast<int>(index)));
        return;
    }
    switch (row.kind) {
    case FunctionListRowKind::NestedList: {
        auto list = std::make_shared<FunctionSelectViewController>();
        const PropertyDictionary& entry = *m_functionList[index + kFirstFunctionListEntry].asDictionary();
        list->setFunctionList(*entry.find("content")->second.asArray());
        list->setVariableIsDefined(m_variableIsDefined);
        push(std::move(list));
        return;
    }
    case FunctionListRowKind::OpensScreen:
        push(ScreenRegistry::shared().make(row.content));
        return;
    default:
        insert(row.content);
    }
}

void FunctionSelectViewController::push(std::shared_ptr<ViewController> screen) {
    if (!screen) {
        return; // a screen that does not exist has been logged
    }
    if (NavigationController* stack = navigationController()) {
        stack->push(std::move(screen));
    }
}

void FunctionSelectViewController::insert(const std::string& text) {
    const auto select = [&](KeyboardViewController& calculator) { calculator.functionSelected(text); };
    if (!returnToCalculator(navigationController(), select)) {
        log("no calculator line for " + text);
    }
}

int FunctionSelectViewController::angleMode() const { return Model::m().angleMode(); }

void FunctionSelectViewController::setAngleMode(int mode) {
    if (mode == 0 || mode == 1) {
        Model::m().setAngleMode(mode);
        m_rowsChanged.emit();
    }
}

} // namespace velmora
