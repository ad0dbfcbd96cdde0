#pragma once

#include "platform/machine/DocumentsFolder.h"

namespace velmora {

/// The folder that the system sets aside for this user's data of the program.
class QtDocumentsFolder final : public DocumentsFolder {
public:
    std::optional<std::filesystem::path> path() const override;
};

} // namespace velmora
