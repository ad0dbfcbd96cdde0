#include "tools/kept/KeptTexts.h"

#include "calculator/model/Model.h"
#include "platform/files/KeyedArchive.h"
#include "platform/machine/DocumentsFolder.h"

namespace velmora {

namespace {

constexpr const char* kTextsKey = "typedTextsKey";

std::map<std::string, KeptTexts>& files() {
    static std::map<std::string, KeptTexts> files;
    return files;
}

} // namespace

KeptTexts& KeptTexts::ofFile(const std::string& name) {
    const auto found = files().find(name);
    return found != files().end() ? found->second : files().emplace(name, KeptTexts(name)).first->second;
}

void KeptTexts::resetForTests() { files().clear(); }

void KeptTexts::saveAll() {
    for (auto& [name, texts] : files()) {
        texts.save();
    }
}

KeptTexts::KeptTexts(std::string fileName) : m_fileName(std::move(fileName)) { load(); }

std::string KeptTexts::text(std::string_view key) const {
    const auto found = m_texts.find(key);
    return found == m_texts.end() ? std::string() : found->second;
}

void KeptTexts::setText(std::string_view key, std::string text) {
    if (text == this->text(key)) {
        return;
    }
    m_hasChanged = true;
    m_texts.insert_or_assign(std::string(key), std::move(text));
    Model::m().changed().emit(ModelChange::Typed); // so that it is saved when the typing has rested
}

void KeptTexts::load() {
    const auto path = documentPath(m_fileName);
    if (!path) {
        return;
    }
    m_file.emplace(*path);
    const auto saved = m_file->read(m_fileName + " cannot be understood").content;
    if (!saved) {
        return;
    }
    const KeyedUnarchiver coder(*saved);
    const PropertyList* texts = coder.value(kTextsKey);
    const PropertyDictionary* byKey = texts ? texts->asDictionary() : nullptr;
    for (const auto& [key, text] : byKey ? *byKey : PropertyDictionary()) {
        if (text.asText()) {
            m_texts[key] = *text.asText();
        }
    }
}

void KeptTexts::save() {
    if (!m_file || !m_hasChanged || !m_file->isAsLastSeen()) {
        return;
    }
    PropertyDictionary byKey;
    for (const auto& [key, text] : m_texts) {
        byKey[key] = text;
    }
    KeyedArchiver coder;
    coder.encode(kTextsKey, std::move(byKey));
    m_hasChanged = !m_file->write(*coder.propertyList().asDictionary());
}

} // namespace velmora
