#include "calculator/lists/ConstantEditViewController.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/ConstantName.h"
#include "calculator/model/Model.h"
#include "platform/machine/Alert.h"
#include "platform/screens/NavigationController.h"

namespace velmora {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
NamedExpressionList& constants() { return Model::m().constants(); }

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(kBlanks);
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

} // namespace

ConstantEditViewController::ConstantEditViewController(int slot) : m_slot(slot) {
    setTitle(name().empty() ? plainName() : name());
}

std::string ConstantEditViewController::plainName() const {
    return constants().internalRepresentationWithIndex(m_slot).substr(1);
}

std::string ConstantEditViewController::name() const {
    const std::string& full = constants().fullFunctionNameWithIndex(m_slot);
    return full == plainName() ? std::string() : full;
}

bool ConstantEditViewController::setName(const std::string& text) {
    const std::string newName = trimmed(text);
    const bool isNew = !newName.empty() && newName != name();
    const std::string reason =
        isNew ? reasonAgainstConstantName(constants(), newName, m_slot) : std::string();
    if (!reason.empty()) {
        presentAlert({.title = "This name cannot be used", .message = reason});
        m_contentsChanged.emit(); // the former name shows again
        return false;
    }
    constants().setNameAtIndex(m_slot, newName == plainName() ? std::string() : newName);
    setTitle(newName.empty() ? plainName() : newName);
    m_contentsChanged.emit();
    return true;
}

std::string ConstantEditViewController::valueText() const { return constants().expressionString(m_slot); }

void ConstantEditViewController::editValue() {
    NavigationController* stack = navigationController();
    if (!stack) {
        return;
    }
    setBackButtonTitle("Cancel");
    auto editor = std::make_shared<KeyboardViewController>(kEnteringFunction);
    editor->setTitle("Constant");
    editor->setEnteringWhichEquation(m_slot);
    editor->setDisplayModel(
        std::make_unique<ExpressionWithTokenArray>(*constants().expressionTokenArray(m_slot)));
    editor->setTarget(&constants());
    stack->push(std::move(editor));
}

bool ConstantEditViewController::isDefined() const {
    return constants().nonemptyExpressionAtIndex(m_slot) || !name().empty();
}

void ConstantEditViewController::deleteConstant() {
    presentAlert({.title = "Delete " + (name().empty() ? plainName() : name()) + "?",
                  .message = "Lines that use it are undefined until it has a value again.",
                  .buttons = {"Delete", "Cancel"},
                  .onChosen = [page = weak_from_this()](int button) {
                      const auto self = page.lock(); // the page may be gone before the answer comes
                      if (self && self->navigationController() && button == 0) {
                          constants().setExpressionAtIndex(self->m_slot, ExpressionWithTokenArray(), false);
                          self->setName({});
                      }
                  }});
}

void ConstantEditViewController::viewWillAppear(bool animated) {
    static_cast<void>(animated);
    setBackButtonTitle({});
    m_contentsChanged.emit(); // the value may have been edited
}

bool ConstantEditViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
