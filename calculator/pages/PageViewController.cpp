#include "calculator/pages/PageViewController.h"

#include "calculator/model/Model.h"
#include "platform/files/KeyedArchive.h"
#include "platform/files/Resources.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/text/Log.h"

namespace velmora {

namespace {

constexpr const char* kPagesResource = "Pages.plist";

} // namespace

void PageViewController::viewDidLoad() {
    const auto pages = readPropertyListResource(kPagesResource);
    const KeyedUnarchiver all(pages.value_or(PropertyList()));
    const PropertyList* saved = all.value(m_pageName);
    if (!saved) {
        log("no page " + m_pageName);
        return;
    }
    const KeyedUnarchiver page(*saved);
    setTitle(page.text("title").value_or(m_pageName));
    const PropertyArray* content = page.array("content");
    for (const PropertyList& item : content ? *content : PropertyArray()) {
        const KeyedUnarchiver paragraph(item);
        if (const auto heading = paragraph.text("heading")) {
            m_paragraphs.push_back({*heading, true});
        } else if (const auto text = paragraph.text("text")) {
            m_paragraphs.push_back({*text, false});
        }
    }
}

bool PageViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

void registerPages() {
    const auto pages = readPropertyListResource(kPagesResource);
    const PropertyDictionary* names = pages ? pages->asDictionary() : nullptr;
    for (const auto& [name, page] : names ? *names : PropertyDictionary()) {
        ScreenRegistry::shared().registerScreen(
            name, [pageName = name] { return std::make_shared<PageViewController>(pageName); });
    }
}

} // namespace velmora
