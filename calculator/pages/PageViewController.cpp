#include "calculator/pages/PageViewController.h"

#include "calculator/model/Model.h"
#include "calculator/pages/FormulaInsertion.h"
#include "platform/machine/Device.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/text/Log.h"

namespace velmora {

namespace {

constexpr double kLargeTextScale = 1.25;

} // namespace

double PageViewController::textScale() {
    const bool isPhone = currentDevice().deviceClass() == DeviceClass::Phone;
    return isPhone && Model::m().largeFontsOnPhone() ? kLargeTextScale : 1;
}

void PageViewController::viewDidLoad() {
    Page page = loadPage(m_pageName);
    setTitle(page.title.empty() ? m_pageName : page.title);
    std::vector<FormulaArtwork> formulas = loadFormulaArtwork(m_pageName);
    auto nextFormula = formulas.begin();
    for (PageItem& item : page.items) {
        Row& row = m_rows.emplace_back(Row{std::move(item)});
        if (row.item.kind == PageItem::Kind::Figure) {
            row.figure = loadFigure(row.item.text);
        } else if (row.item.kind == PageItem::Kind::Formula) {
            if (nextFormula == formulas.end() || nextFormula->texHash != hashOfTex(row.item.text)) {
                log("no artwork of the formula " + row.item.text);
                continue;
            }
            row.formula = std::move(*nextFormula++);
            if (!row.item.spoken.empty()) {
                row.formula.spoken = row.item.spoken;
            }
        }
    }
}

void PageViewController::insert(std::size_t row) {
    if (row < m_rows.size() && !m_rows[row].item.insertion.empty()) {
        insertFormula(m_rows[row].item, title(), navigationController());
    }
}

bool PageViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

void registerPages() {
    for (const std::string& name : pageNames()) {
        ScreenRegistry::shared().registerScreen(
            name + "Page", [name] { return std::make_shared<PageViewController>(name); });
    }
}

} // namespace velmora
