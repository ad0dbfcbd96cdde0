#pragma once

#include "platform/screens/ViewController.h"

#include <memory>
#include <string>

namespace velmora {

/// One of the user's constants: its name, its value, and a way to delete it.
class ConstantEditViewController final : public ViewController,
                                         public std::enable_shared_from_this<ConstantEditViewController> {
public:
    /// The slot in the model's list of constants, from 0.
    explicit ConstantEditViewController(int slot);

    std::string className() const override { return "ConstantEditViewController"; }
    std::string qmlFile() const override { return "ConstantEdit.qml"; }

    /// "k3" for the third constant: what it is called while it has no name.
    std::string plainName() const;
    std::string name() const;
    /// Takes a new name, blanks at its ends left out; an empty one takes the name away. A name that cannot
    /// be told from something else in a line is refused with an alert that says why, and nothing changes.
    bool setName(const std::string& name);
    /// What is typed as the value; empty while undefined.
    std::string valueText() const;
    /// Opens the keyboard on the value.
    void editValue();
    bool isDefined() const;
    /// Takes away the value and the name, after a question. Nothing is taken away once the page has been
    /// left.
    void deleteConstant();

    /// Emitted when the name or the value has changed.
    Signal<>& contentsChanged() { return m_contentsChanged; }

    void viewWillAppear(bool animated) override;
    bool shouldAutorotate(Orientation orientation) const override;

private:
    int m_slot;
    Signal<> m_contentsChanged;
};

} // namespace velmora
