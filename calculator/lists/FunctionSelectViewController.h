#pragma once

#include "calculator/keyboard/FunctionListScreen.h"
#include "calculator/lists/FunctionList.h"
#include "platform/screens/ViewController.h"
#include "toolkit/LabelRecord.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

class ReferenceSearch;

/// What a row of a list does when it is chosen.
enum class FunctionListRowKind : unsigned char {
    AngleMode, ///< holds a choice of its own; the row itself does nothing
    Heading,   ///< nothing
    Greeting,  ///< nothing
    OpensScreen,
    NestedList,
    Insert,
};

/// A row as it is shown.
struct FunctionListRow {
    FunctionListRowKind kind = FunctionListRowKind::Insert;
    std::string title{};
    std::string detail{};
    TextAlignment detailAlignment = TextAlignment::Left;
    std::string value{}; ///< of a constant; of an equation its formula
    std::string content{};
    double height = 44;

    bool isSelectable() const {
        return kind == FunctionListRowKind::OpensScreen || kind == FunctionListRowKind::NestedList ||
               kind == FunctionListRowKind::Insert;
    }
};

/// An entry of a list as it is shown.
FunctionListRow functionListRow(const PropertyList& entry);

/// A list of functions or constants to choose from. A choice goes into the calculator line below it on the
/// stack; where there is none, as in the Reference tab, into the line of the calculator tab.
class FunctionSelectViewController : public ViewController, public FunctionListScreen {
public:
    FunctionSelectViewController();
    ~FunctionSelectViewController() override;

    static constexpr std::array<const char*, 2> kAngleModes{"Radians", "Degrees"};

    std::string className() const override { return "FunctionSelectViewController"; }
    std::string qmlFile() const override { return "FunctionSelectTable.qml"; }

    void setFunctionListName(std::string name) override { m_functionListName = std::move(name); }
    const std::string& functionListName() const { return m_functionListName; }
    void setVariableIsDefined(bool defined) override { m_variableIsDefined = defined; }
    bool variableIsDefined() const { return m_variableIsDefined; }
    /// A list that stands inside another one, instead of a name.
    void setFunctionList(FunctionList list) { m_functionList = std::move(list); }
    const FunctionList& functionList() const { return m_functionList; }

    const std::vector<FunctionListRow>& rows() const { return m_rows; }
    /// Chooses a row as a tap does. Nothing for a row that cannot be chosen or does not exist.
    void selectRow(std::size_t row);

    /// Whether the list can be searched, with all that is inside it: the root of the reference.
    bool hasSearch() const { return m_functionListName == kReferenceListName; }
    const std::string& searchText() const { return m_searchText; }
    /// Shows what the text finds; everything again for one without words.
    void setSearchText(const std::string& text);
    bool isSearching() const { return m_searchText.find_first_not_of(' ') != std::string::npos; }

    int angleMode() const;
    void setAngleMode(int mode);

    /// Whether the list shows the user's own constants, and whether a tap edits them instead of using them.
    bool showsUserConstants() const { return m_showsUserConstants; }
    bool isEditing() const { return m_isEditing; }

    /// Emitted when the rows have changed.
    Signal<>& rowsChanged() { return m_rowsChanged; }

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    bool shouldAutorotate(Orientation orientation) const override;

private:
    void loadFunctionList();
    void makeRows();
    void setEditing(bool editing);
    void push(std::shared_ptr<ViewController> screen);
    void insert(const std::string& text);

    std::string m_functionListName;
    std::string m_searchText;
    std::unique_ptr<ReferenceSearch> m_search; ///< made for the first search
    bool m_variableIsDefined = false;
    FunctionList m_functionList;
    std::vector<FunctionListRow> m_rows;
    bool m_showsUserConstants = false;
    bool m_showsEquations = false;
    bool m_isEditing = false;
    Signal<> m_rowsChanged;
};

} // namespace velmora
