#pragma once

#include "calculator/pages/Page.h"
#include "toolkit/OrvSettingsTableViewController.h"

#include <optional>
#include <string>
#include <vector>

namespace velmora {

class NavigationController;

/// Puts the right side of a formula into the line below on the stack, or into the calculator's: at once
/// where that line knows all its variables, else by a form that asks for the others. What would not parse
/// is never inserted.
void insertFormula(const PageItem& formula, const std::string& title, NavigationController* stack);

/// Asks for the value of each letter of a formula that the line lacks, one field a letter. The letters of
/// other lines (x, y, t, θ) may be left as they are.
class FormulaFormViewController final : public OrvSettingsTableViewController {
public:
    struct Field {
        FormulaLetter letter;
        std::string text;
        bool mayStay = false; ///< whether the letter itself is a value
    };

    FormulaFormViewController(std::string insertion, std::vector<Field> fields);

    std::string className() const override { return "FormulaFormViewController"; }

    const std::vector<Field>& fields() const { return m_fields; }
    /// Takes what was typed: a number, its blanks left out, or the letter where it may stay. Anything else
    /// is refused with an alert, and nothing changes.
    bool setValue(std::size_t field, const std::string& text);
    /// Inserts the finished expression; with a value missing an alert names it.
    void insert();

    int rawNumberOfSectionsInTableView() const override { return 2; }
    int rawNumberOfRowsInRawSection(int section) const override;
    std::string titleForHeaderInRawSection(int section) const override;
    std::shared_ptr<OrvSettingsCell> cellForRaw(int section, int row) override;
    bool shouldAutorotate(Orientation orientation) const override;

private:
    std::string m_insertion;
    std::vector<Field> m_fields;
};

} // namespace velmora
