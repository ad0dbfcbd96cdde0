#include "engine/environment/Environment.h"

#include "engine/environment/DefinitionRevision.h"
#include "platform/text/Log.h"

namespace velmora {

namespace {

PlainEnvironment& startingEnvironment() {
    static PlainEnvironment environment;
    return environment;
}

} // namespace

Environment* Environment::s_current = &startingEnvironment();

void Environment::raiseOneShotAlert(std::string_view text) {
    if (m_shownTexts.emplace(text).second) {
        showAlert(text);
    }
}

void Environment::raiseDebugAlert(std::string_view text) {
    const std::string message = "DEBUG ALERT: " + std::string(text);
    log(message);
    showAlert(message);
}

void PlainEnvironment::showAlert(std::string_view text) {
    lastAlert = text;
    ++alertCount;
}

EnvironmentScope::EnvironmentScope(Environment& environment) : m_former(Environment::s_current) {
    Environment::s_current = &environment;
    definitionsChanged();
}

EnvironmentScope::~EnvironmentScope() {
    Environment::s_current = m_former;
    definitionsChanged();
}

} // namespace velmora
