#pragma once

namespace velmora {

/// Makes the property lists of this folder known to findResource under their file names ("Units.plist").
void registerCompiledResources();

} // namespace velmora
