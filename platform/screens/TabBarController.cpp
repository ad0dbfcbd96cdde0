#include "platform/screens/TabBarController.h"

#include "platform/screens/NavigationController.h"
#include "platform/text/Log.h"

#include <algorithm>
#include <utility>

namespace velmora {

std::size_t tabBarCapacity(DeviceClass deviceClass) { return deviceClass == DeviceClass::Phone ? 5 : 8; }

void TabBarController::setViewControllers(Tabs controllers) {
    if (std::erase(controllers, nullptr) > 0) {
        log("a tab without a screen was left out");
    }
    const auto formerShown = shownViewController();
    const Tabs former = std::exchange(m_tabs, std::move(controllers));
    m_selectedIndex = 0;
    m_showsMoreList = false;
    if (isVisible()) {
        changeVisible(formerShown.get(), shownViewController().get(), false);
    }
    m_selectionChanged.emit();
}

std::size_t TabBarController::visibleTabCount() const {
    const std::size_t capacity = tabBarCapacity(currentDevice().deviceClass());
    if (m_tabs.size() <= std::min(capacity, m_firstTabBehindMore)) {
        return m_tabs.size();
    }
    return std::min(capacity - 1, m_firstTabBehindMore);
}

std::shared_ptr<ViewController> TabBarController::selectedViewController() const {
    return m_selectedIndex < m_tabs.size() ? m_tabs[m_selectedIndex] : nullptr;
}

bool TabBarController::setSelectedIndex(std::size_t index) {
    if (index >= m_tabs.size()) {
        return false;
    }
    show(index, false);
    return true;
}

bool TabBarController::selectViewController(const ViewController& controller) {
    const auto holds = [&](const std::shared_ptr<ViewController>& tab) {
        const auto* stack = dynamic_cast<const NavigationController*>(tab.get());
        return tab.get() == &controller || (stack && stack->contains(controller));
    };
    const auto tab = std::ranges::find_if(m_tabs, holds);
    return tab != m_tabs.end() && setSelectedIndex(static_cast<std::size_t>(tab - m_tabs.begin()));
}

bool TabBarController::tapTab(std::size_t index) {
    if (index >= m_tabs.size()) {
        return false;
    }
    const std::shared_ptr<ViewController> tab = m_tabs[index];
    if (m_shouldSelect && !m_shouldSelect(*tab)) {
        return false;
    }
    if (tab == shownViewController()) {
        if (auto* stack = dynamic_cast<NavigationController*>(tab.get())) {
            stack->popToRoot();
        }
    }
    show(index, false);
    if (m_didSelect) {
        m_didSelect(*tab);
    }
    return true;
}

bool TabBarController::showMoreList() {
    if (!hasMore()) {
        return false;
    }
    show(m_selectedIndex, true);
    return true;
}

void TabBarController::setShouldSelect(std::function<bool(ViewController&)> shouldSelect) {
    m_shouldSelect = std::move(shouldSelect);
}

void TabBarController::setDidSelect(std::function<void(ViewController&)> didSelect) {
    m_didSelect = std::move(didSelect);
}

std::shared_ptr<ViewController> TabBarController::shownViewController() const {
    return m_showsMoreList ? nullptr : selectedViewController();
}

void TabBarController::show(std::size_t index, bool moreList) {
    if (index == m_selectedIndex && moreList == m_showsMoreList) {
        return;
    }
    const auto former = shownViewController();
    m_selectedIndex = index;
    m_showsMoreList = moreList;
    if (isVisible()) {
        changeVisible(former.get(), shownViewController().get(), false);
    }
    m_selectionChanged.emit();
}

void TabBarController::viewWillAppear(bool animated) {
    if (const auto shown = shownViewController()) {
        shown->beginAppearing(animated);
    }
}

void TabBarController::viewDidAppear(bool animated) {
    if (const auto shown = shownViewController()) {
        shown->endAppearing(animated);
    }
}

void TabBarController::viewWillDisappear(bool animated) {
    if (const auto shown = shownViewController()) {
        shown->beginDisappearing(animated);
    }
}

void TabBarController::viewDidDisappear(bool animated) {
    if (const auto shown = shownViewController()) {
        shown->endDisappearing(animated);
    }
}

bool TabBarController::shouldAutorotate(Orientation orientation) const {
    // The "More" list stands in for the selected screen, so it turns as that one does.
    const auto selected = selectedViewController();
    return !selected || selected->shouldAutorotate(orientation);
}

void TabBarController::willAnimateRotation(Orientation to) {
    if (const auto shown = shownViewController()) {
        shown->willAnimateRotation(to);
    }
}

void TabBarController::didRotate(Orientation from) {
    if (const auto shown = shownViewController()) {
        shown->didRotate(from);
    }
}

} // namespace velmora
