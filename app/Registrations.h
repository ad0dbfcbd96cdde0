#pragma once

namespace velmora {

/// Makes the screens, settings targets and savers known by name. May run again: later registrations replace
/// earlier ones of the same name.
void registerEverything();

} // namespace velmora
