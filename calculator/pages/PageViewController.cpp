#include "calculator/pages/PageViewController.h"

#include "calculator/model/Model.h"
#include "calculator/pages/FormulaInsertion.h"
#include "calculator/pages/PageActions.h"
#include "platform/machine/Alert.h"
#include "platform/machine/Device.h"
#include "platform/machine/LinkOpener.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/text/Log.h"

namespace velmora {

namespace {

constexpr double kLargeTextScale = 1.25;
constexpr const char* kOtherApplications = "applications";

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
        if (item.kind == PageItem::Kind::Action) {
            addActions(item.text);
            continue;
        }
        item.text = withVersion(std::move(item.text));
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

void PageViewController::addActions(const std::string& name) {
    const std::vector<PageAction> actions = pageActions(name);
    if (name == kOtherApplications && !actions.empty()) {
        m_rows.push_back({{.kind = PageItem::Kind::Heading, .text = "Other applications"}});
    }
    for (const PageAction& action : actions) {
        Row& row = m_rows.emplace_back(Row{{.kind = PageItem::Kind::Action, .text = action.title}});
        row.link = action.link;
    }
}

void PageViewController::open(std::size_t row) {
    if (row < m_rows.size() && !m_rows[row].link.empty() && !openLink(m_rows[row].link)) {
        Alert alert;
        alert.message = "This link cannot be opened here: " + m_rows[row].link;
        presentAlert(std::move(alert));
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
