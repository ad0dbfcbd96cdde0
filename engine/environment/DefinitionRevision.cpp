#include "engine/environment/DefinitionRevision.h"

namespace velmora {

namespace {

std::uint64_t s_revision = 1;

} // namespace

std::uint64_t definitionRevision() { return s_revision; }

void definitionsChanged() { ++s_revision; }

} // namespace velmora
