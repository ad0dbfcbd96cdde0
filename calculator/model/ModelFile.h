#pragma once

#include "platform/files/FolderLock.h"
#include "platform/files/KeptFile.h"
#include "platform/files/PropertyList.h"

#include <optional>
#include <string>

namespace velmora {

class Model;

/// The model's file over the length of a run, and what the user is told of it.
///
/// - What this program has not read is never written over. A file that could not be reached at the start,
///   or that came back with its folder, is joined with the state here as soon as it can be read.
/// - Of two running copies only the first one saves. The second says so; once the first has ended, what was
///   done in the second is joined with the file too.
class ModelFile {
public:
    void load(Model& model);
    /// Has everything registered for saving saved, then writes the file; nothing of it while the file may
    /// not be written over. A failure leaves the former file as it was, and is told once.
    void save(Model& model);
    /// The user gives up what could not be read: it is renamed where possible, else replaced by a save.
    void startAnew(Model& model);

private:
    bool openFile();
    bool mayWrite(Model& model);
    bool join(Model& model);
    void tell(const KeptFile::Reading& reading);
    void tellOnce(std::string title, std::string message);
    void tellThatItIsKeptAgain();

    std::optional<KeptFile> m_file;
    FolderLock m_lock;
    PropertyDictionary m_base; ///< the state when it was last the file's
    std::string m_lastTold;    ///< while the state is not kept, the reason that the user knows
};

} // namespace velmora
