#pragma once

#include "platform/screens/ViewController.h"

#include <string>
#include <vector>

namespace velmora {

/// A page of text to read. All pages stand in the resource "Pages.plist": a dictionary of page names, each
/// with a "title" and a "content", an array of dictionaries with one key, "heading" or "text".
class PageViewController final : public ViewController {
public:
    struct Paragraph {
        std::string text;
        bool isHeading = false;
    };

    explicit PageViewController(std::string pageName) : m_pageName(std::move(pageName)) {}

    std::string className() const override { return "PageViewController"; }
    std::string qmlFile() const override { return "Page.qml"; }
    const std::string& pageName() const { return m_pageName; }
    const std::vector<Paragraph>& paragraphs() const { return m_paragraphs; }

    void viewDidLoad() override;
    bool shouldAutorotate(Orientation orientation) const override;

private:
    std::string m_pageName;
    std::vector<Paragraph> m_paragraphs;
};

/// Makes every page known to the screen registry under its name.
void registerPages();

} // namespace velmora
