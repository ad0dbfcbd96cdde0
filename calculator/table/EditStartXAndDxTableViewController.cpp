#include "calculator/table/EditStartXAndDxTableViewController.h"

#include "calculator/model/Model.h"
#include "toolkit/OrvNumberSettingsCell.h"
#include "toolkit/OrvTextSettingsCell.h"

#include <array>
#include <utility>

namespace velmora {

namespace {

struct EditedNumber {
    const char* title;
    const char* key;
};
constexpr std::array kNumbers{EditedNumber{"Initial ", "startX"}, EditedNumber{"Delta ", "dx"}};

} // namespace

EditStartXAndDxTableViewController::EditStartXAndDxTableViewController(std::shared_ptr<ValueTableView> target,
                                                                       std::string variableName)
    : m_target(std::move(target)), m_variableName(std::move(variableName)) {
    setTitle("Start and Step");
}

int EditStartXAndDxTableViewController::rawNumberOfRowsInRawSection(int /*section*/) const {
    return static_cast<int>(kNumbers.size());
}

std::string EditStartXAndDxTableViewController::titleForHeaderInRawSection(int /*section*/) const {
    return {};
}

std::shared_ptr<OrvSettingsCell> EditStartXAndDxTableViewController::cellForRaw(int /*section*/, int row) {
    if (row < 0 || !std::cmp_less(row, kNumbers.size())) {
        return std::make_shared<OrvPlainTextSettingsCell>("Undefined Cell");
    }
    const EditedNumber& number = kNumbers.at(static_cast<std::size_t>(row));
    auto cell = std::make_shared<OrvDoubleSettingsCell>(
        number.title + m_variableName,
        OrvBoundSettingsCell::Binding{ValueTableView::kTargetName, number.key});
    cell->setPlaceholder(m_variableName);
    return cell;
}

bool EditStartXAndDxTableViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
