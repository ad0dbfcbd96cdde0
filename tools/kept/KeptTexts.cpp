#include "tools/kept/KeptTexts.h"

#include "platform/files/KeyedArchive.h"
#include "platform/files/PropertyListFile.h"
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
}

void KeptTexts::load() {
    const auto path = documentPath(m_fileName);
    const auto saved = path ? readDictionaryFile(*path, m_fileName + " cannot be understood") : std::nullopt;
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
    const auto path = documentPath(m_fileName);
    if (!path || !m_hasChanged) {
        return;
    }
    PropertyDictionary byKey;
    for (const auto& [key, text] : m_texts) {
        byKey[key] = text;
    }
    KeyedArchiver coder;
    coder.encode(kTextsKey, std::move(byKey));
    m_hasChanged = !writePropertyListAtomically(*path, coder.propertyList());
}

} // namespace velmora
