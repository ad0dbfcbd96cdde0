#pragma once

#include "calculator/pages/Figure.h"
#include "calculator/pages/FormulaArtwork.h"
#include "calculator/pages/Page.h"
#include "platform/screens/ViewController.h"

#include <string>
#include <vector>

namespace velmora {

/// A page of text, formulas and figures to read (see Page.h). Its drawings are read when it is opened and
/// forgotten with it.
class PageViewController final : public ViewController {
public:
    /// An item with what is drawn for it.
    struct Row {
        PageItem item;
        FormulaArtwork formula{}; ///< of a formula
        Figure figure{};          ///< of a figure
        std::string link{};       ///< of an action, whose text is the button's
    };

    explicit PageViewController(std::string pageName) : m_pageName(std::move(pageName)) {}

    std::string className() const override { return "PageViewController"; }
    std::string qmlFile() const override { return "Page.qml"; }
    const std::string& pageName() const { return m_pageName; }
    const std::vector<Row>& rows() const { return m_rows; }
    GlyphOutlines& outlines() { return m_outlines; }
    /// Puts the right side of a row's formula into the line. Nothing for a row without one.
    void insert(std::size_t row);
    /// Opens the link of a row's button; an alert says it when the machine cannot.
    void open(std::size_t row);
    /// How much larger than usual the texts are: by the user's choice of large fonts, on a phone.
    static double textScale();

    void viewDidLoad() override;
    bool shouldAutorotate(Orientation orientation) const override;

private:
    void addActions(const std::string& name);

    std::string m_pageName;
    std::vector<Row> m_rows;
    GlyphOutlines m_outlines;
};

/// Makes every page known to the screen registry: the page "Circle" as "CirclePage".
void registerPages();

} // namespace velmora
