#pragma once

namespace velmora {

/// Makes the files of this folder known to findResource under their names ("Units.plist").
void registerCompiledResources();

} // namespace velmora
