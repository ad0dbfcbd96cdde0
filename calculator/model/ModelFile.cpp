#include "calculator/model/ModelFile.h"

#include "calculator/model/ArchiveMerge.h"
#include "calculator/model/Model.h"
#include "calculator/model/ModelArchive.h"
#include "platform/files/SavingRegistry.h"
#include "platform/machine/Alert.h"

#include <utility>

namespace velmora {

namespace {

constexpr const char* kComplaint = "catch";

PropertyDictionary archived(Model& model) { return *archivedModel(model).asDictionary(); }

} // namespace

bool ModelFile::openFile() {
    const auto path = Model::dataFilePath();
    if (!path) {
        return false;
    }
    if (!m_file || m_file->path() != *path) {
        m_file.emplace(*path);
    }
    return true;
}

void ModelFile::load(Model& model) {
    model.setUnitConverterArray(std::nullopt);
    m_file.reset();
    const KeptFile::Reading reading = openFile() ? m_file->read(kComplaint) : KeptFile::Reading();
    loadArchivedModel(model, reading.content.value_or(PropertyDictionary()));
    m_base = archived(model);
    tell(reading);
    if (m_file) {
        mayWrite(model);
    }
}

void ModelFile::save(Model& model) {
    const bool hasPlace = openFile();
    if (hasPlace && !mayWrite(model)) {
        return;
    }
    SavingRegistry::shared().saveAll();
    if (!hasPlace) {
        tellOnce("Not saved",
                 "There is no folder to keep your work in. It will be saved as soon as there is.");
        return;
    }
    PropertyDictionary state = archived(model);
    const WriteResult result = m_file->write(state);
    if (!result) {
        tellOnce("Not saved", "Your work could not be saved (" + result.failure +
                                  "). What was saved before is unharmed, and saving is tried again.");
        return;
    }
    m_base = std::move(state);
    tellThatItIsKeptAgain();
}

bool ModelFile::mayWrite(Model& model) {
    if (!m_lock.take(m_file->path().parent_path())) {
        tellOnce("Velmora is already open",
                 "What you do in this window is not saved while the other one is open. Once that is closed, "
                 "it is added to what is saved.");
        return false;
    }
    return m_file->isAsLastSeen() || join(model);
}

bool ModelFile::join(Model& model) {
    const KeptFile::Reading reading = m_file->read(kComplaint);
    if (reading.state == KeptFile::State::Unreachable) {
        tell(reading);
        return false;
    }
    if (reading.state == KeptFile::State::SetAside) {
        tell(reading);
    }
    if (reading.content) {
        const bool letterI = model.iOnMainKeyboard();
        const PropertyDictionary joined = mergedArchive(m_base, *reading.content, archived(model));
        model.history().reset();
        model.setNHasBecomeActive(0); // a load adds to it
        loadArchivedModel(model, joined);
        model.setIOnMainKeyboard(letterI);
        model.replaced().emit();
    }
    return true;
}

void ModelFile::startAnew(Model& model) {
    if (m_file) {
        m_file->giveUp();
        m_lastTold.clear();
        save(model);
    }
}

void ModelFile::tell(const KeptFile::Reading& reading) {
    if (reading.state == KeptFile::State::SetAside) {
        const std::string kept = "It is kept as \"" + reading.keptAs.filename().string() + "\" in " +
                                 reading.keptAs.parent_path().string() + ".";
        presentAlert({.title = "The saved file was damaged",
                      .message = (reading.content ? "What could be read of it has been loaded. "
                                                  : "Nothing of it could be read. ") +
                                 kept});
    }
    if (reading.state == KeptFile::State::Unreachable &&
        std::exchange(m_lastTold, reading.reason) != reading.reason) {
        presentAlert({.title = "Saved work cannot be read",
                      .message = "The file " + m_file->path().string() + " could not be read (" +
                                 reading.reason +
                                 "). It stays as it is, and nothing is saved until it can be read; then what "
                                 "you do meanwhile is added to it.",
                      .buttons = {"OK", "Start anew"},
                      .onChosen = [](int button) {
                          if (button == 1) {
                              Model::m().file().startAnew(Model::m());
                          }
                      }});
    }
}

void ModelFile::tellOnce(std::string title, std::string message) {
    if (std::exchange(m_lastTold, message) != message) {
        presentAlert({.title = std::move(title), .message = std::move(message)});
    }
}

void ModelFile::tellThatItIsKeptAgain() {
    if (!std::exchange(m_lastTold, {}).empty()) {
        presentAlert({.title = "Saved", .message = "Your work is saved again."});
    }
}

} // namespace velmora
