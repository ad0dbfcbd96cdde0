#pragma once

#include "platform/files/PropertyList.h"

namespace velmora {

class Model;

/// Everything of the model that is kept between runs, under the keys of the archive file. Not kept:
/// whether zeroes trail, the sound's volume, and what belongs to the screens.
PropertyList archivedModel(Model& model);

/// Takes over what the list holds. A key that is absent, of another type or out of its range reads as its
/// default, so any list, even an empty one, leaves a model that works. Activations counted before are added
/// to those read. The letter i leaves the main keyboard at every load.
void loadArchivedModel(Model& model, const PropertyList& archive);

} // namespace velmora
