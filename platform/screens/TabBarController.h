#pragma once

#include "platform/machine/Device.h"
#include "platform/screens/ViewController.h"

#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

/// How many tabs the bar can hold. With more screens than that, the last place is "More".
std::size_t tabBarCapacity(DeviceClass deviceClass);

/// The screens of the program side by side, of which one shows. Tabs that do not fit the bar are listed
/// behind "More".
class TabBarController final : public ViewController {
public:
    using Tabs = std::vector<std::shared_ptr<ViewController>>;

    std::string className() const override { return "TabBarController"; }

    /// Sets the tabs in their order and selects the first. Null entries are logged and left out.
    void setViewControllers(Tabs controllers);
    const Tabs& viewControllers() const { return m_tabs; }

    /// How many tabs stand in the bar of the device in force, "More" not counted.
    std::size_t visibleTabCount() const;
    /// The tab from which on all stand behind "More", however much room the bar has; none unless set.
    void setFirstTabBehindMore(std::size_t index) { m_firstTabBehindMore = index; }
    bool hasMore() const { return visibleTabCount() < m_tabs.size(); }

    /// The selected tab, which may be one behind "More"; 0 when there are no tabs.
    std::size_t selectedIndex() const { return m_selectedIndex; }
    std::shared_ptr<ViewController> selectedViewController() const;
    /// Selects a tab. False, with nothing changed, for an index out of range.
    bool setSelectedIndex(std::size_t index);
    /// Selects the tab that is, or whose stack holds, the screen. False when there is none.
    bool selectViewController(const ViewController& controller);

    /// A tap by the user on a tab of the bar or an entry of the "More" list: asks shouldSelect, selects,
    /// tells didSelect. A tap on the selected tab takes its stack back to the root.
    bool tapTab(std::size_t index);

    /// The list behind "More": shown in place of the selected screen until a tab is selected.
    bool showsMoreList() const { return m_showsMoreList; }
    bool showMoreList();

    /// Asked before a tap selects; empty allows everything.
    void setShouldSelect(std::function<bool(ViewController&)> shouldSelect);
    /// Told after a tap has selected.
    void setDidSelect(std::function<void(ViewController&)> didSelect);

    /// Emitted after the tabs, the selection or the showing of the "More" list have changed.
    Signal<>& selectionChanged() { return m_selectionChanged; }

    void viewWillAppear(bool animated) override;
    void viewDidAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;
    void viewDidDisappear(bool animated) override;
    bool shouldAutorotate(Orientation orientation) const override;
    void willAnimateRotation(Orientation to) override;
    void didRotate(Orientation from) override;

private:
    /// What is on display: the selected screen, or null while the "More" list shows.
    std::shared_ptr<ViewController> shownViewController() const;
    void show(std::size_t index, bool moreList);

    Tabs m_tabs;
    std::size_t m_selectedIndex = 0;
    std::size_t m_firstTabBehindMore = std::numeric_limits<std::size_t>::max();
    bool m_showsMoreList = false;
    std::function<bool(ViewController&)> m_shouldSelect;
    std::function<void(ViewController&)> m_didSelect;
    Signal<> m_selectionChanged;
};

} // namespace velmora
