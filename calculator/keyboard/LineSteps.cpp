#include "calculator/keyboard/LineSteps.h"

#include <utility>

namespace velmora {

void LineSteps::add(LineStep step) {
    m_steps.resize(m_made);
    m_steps.push_back(std::move(step));
    if (m_steps.size() > kMost) {
        m_steps.pop_front();
    }
    m_made = m_steps.size();
}

const LineStep* LineSteps::takeBack() { return m_made == 0 ? nullptr : &m_steps[--m_made]; }

const LineStep* LineSteps::makeAgain() { return m_made == m_steps.size() ? nullptr : &m_steps[m_made++]; }

void LineSteps::clear() {
    m_steps.clear();
    m_made = 0;
}

} // namespace velmora
