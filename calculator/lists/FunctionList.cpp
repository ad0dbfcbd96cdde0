#include "calculator/lists/FunctionList.h"

#include "calculator/model/Model.h"
#include "platform/files/Resources.h"

namespace velmora {

namespace {

constexpr int kEquationCount = 4;

} // namespace

FunctionList loadFunctionListWithName(std::string_view name) {
    const auto resource = readPropertyListResource(std::string(name) + ".plist");
    const PropertyArray* list = resource ? resource->asArray() : nullptr;
    return list ? *list : FunctionList();
}

PropertyList functionListEntry(PropertyList content, std::string hint) {
    return PropertyDictionary{{"content", std::move(content)}, {"hint", std::move(hint)}};
}

FunctionList starterArrayForUserDefined(const FunctionList& list) {
    const auto end =
        list.begin() + static_cast<std::ptrdiff_t>(std::min(list.size(), kFirstFunctionListEntry));
    return {list.begin(), end};
}

FunctionList userdefinedExpressionsList(const FunctionList& list) {
    FunctionList constants = starterArrayForUserDefined(list);
    const NamedExpressionList& slots = Model::m().constants();
    for (int slot = 0; slot < slots.maxExpressions(); ++slot) {
        const std::string token = slots.internalRepresentationWithIndex(slot);
        constants.push_back(functionListEntry(token, token.substr(1) + " from user-defined constants"));
    }
    return constants;
}

FunctionList equationsFunctionList(const FunctionList& list) {
    FunctionList equations = starterArrayForUserDefined(list);
    equations.resize(kFirstFunctionListEntry, kEquationsListName); // entries stand behind marker and title
    for (int number = 1; number <= kEquationCount; ++number) {
        const std::string name = "y" + std::to_string(number);
        equations.push_back(functionListEntry(name + "(", name + " from equations tab"));
    }
    return equations;
}

FunctionList possiblySetUserdefinedFunctionList(FunctionList list) {
    const std::string* marker = list.empty() ? nullptr : list.front().asText();
    return marker && marker->starts_with('@') ? userdefinedExpressionsList(list) : std::move(list);
}

} // namespace velmora
