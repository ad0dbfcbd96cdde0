#include "tools/units/UnitConverterModel.h"

#include "calculator/model/Assertion.h"
#include "platform/files/KeyedArchive.h"
#include "platform/files/Resources.h"
#include "platform/machine/DocumentsFolder.h"
#include "platform/text/Log.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr const char* kQuantityKey = "selectedQuantityNameKey";
constexpr const char* kUnitsKey = "selectedUnitDictionaryKey";
constexpr const char* kMoreUnitsKey = "moreUnitsKey";
constexpr const char* kMoreUnitsSetting = "moreUnits";
constexpr int kComponents = 2;

bool isExtended(const PropertyList& text) { return text.asText() && text.asText()->starts_with('+'); }

/// The texts of a quantity that are offered, without the mark of the extended set.
std::vector<std::string> offeredTexts(const PropertyArray& quantity, bool moreUnits) {
    std::vector<std::string> texts;
    for (const PropertyList& text : quantity) {
        if (!isExtended(text)) {
            texts.push_back(text.asText() ? *text.asText() : std::string());
        } else if (moreUnits) {
            texts.push_back(text.asText()->substr(1));
        }
    }
    return texts;
}

} // namespace

std::unique_ptr<UnitConverterModel>& UnitConverterModel::instance() {
    static std::unique_ptr<UnitConverterModel> instance = [] {
        std::unique_ptr<UnitConverterModel> model(new UnitConverterModel);
        model->load();
        return model;
    }();
    return instance;
}

UnitConverterModel& UnitConverterModel::ucm() { return *instance(); }

void UnitConverterModel::resetForTests() {
    instance().reset(new UnitConverterModel);
    instance()->load();
}

std::optional<std::filesystem::path> UnitConverterModel::ucDataFilePath() {
    return documentPath("UnitConverterModelSave");
}

bool UnitConverterModel::load() {
    const auto path = ucDataFilePath();
    m_file.reset();
    if (!path) {
        return false;
    }
    m_file.emplace(*path);
    const auto saved = m_file->read("the unit converter's file cannot be understood").content;
    if (!saved) {
        return false;
    }
    const KeyedUnarchiver coder(*saved);
    m_selectedQuantityName = coder.text(kQuantityKey);
    setMoreUnits(coder.boolean(kMoreUnitsKey).value_or(false));
    m_selectedUnitDictionary.clear();
    const PropertyList* units = coder.value(kUnitsKey);
    const PropertyDictionary* pairs = units ? units->asDictionary() : nullptr;
    for (const auto& [quantity, names] : pairs ? *pairs : PropertyDictionary()) {
        const PropertyArray* pair = names.asArray();
        if (pair && pair->size() == kComponents && (*pair)[0].asText() && (*pair)[1].asText()) {
            m_selectedUnitDictionary[quantity] = {*(*pair)[0].asText(), *(*pair)[1].asText()};
        }
    }
    return true;
}

void UnitConverterModel::save() {
    const auto path = ucDataFilePath();
    if (!path) {
        return;
    }
    if (!m_file || m_file->path() != *path || !m_file->isAsLastSeen()) {
        // What this program has not read is not written over; of the choices made meanwhile little is lost.
        if (load() || !m_file->isAsLastSeen()) {
            return;
        }
    }
    KeyedArchiver coder;
    if (m_selectedQuantityName) {
        coder.encode(kQuantityKey, *m_selectedQuantityName);
    }
    PropertyDictionary units;
    for (const auto& [quantity, pair] : m_selectedUnitDictionary) {
        units[quantity] = PropertyArray{pair[0], pair[1]};
    }
    coder.encode(kUnitsKey, std::move(units));
    coder.encode(kMoreUnitsKey, m_moreUnits);
    m_file->write(*coder.propertyList().asDictionary());
}

void UnitConverterModel::loadUnitConverterIfNeeded() {
    if (!m_isLoaded) {
        loadUnitConverter();
    }
}

void UnitConverterModel::loadUnitConverter() {
    log("starting converter load");
    m_isLoaded = true;
    m_unitConverterArray.clear();
    const auto resource = readPropertyListResource("Units.plist");
    const PropertyArray* quantities = resource ? resource->asArray() : nullptr;
    if (resource && !quantities) {
        log("the resource of units holds no list of quantities");
    }
    for (const PropertyList& quantity : quantities ? *quantities : PropertyArray()) {
        const PropertyArray* texts = quantity.asArray();
        const bool isHidden = texts && !texts->empty() && isExtended(texts->front()) && !m_moreUnits;
        if (isHidden) {
            continue;
        }
        auto converter =
            texts ? UnitConverter::newConverterWithArray(offeredTexts(*texts, m_moreUnits)) : nullptr;
        if (converter) {
            m_unitConverterArray.push_back(std::move(converter));
        } else {
            log("a quantity without units was left out");
        }
    }
    log("converter load done");
}

const std::vector<std::unique_ptr<UnitConverter>>& UnitConverterModel::unitConverterArray() {
    loadUnitConverterIfNeeded();
    return m_unitConverterArray;
}

void UnitConverterModel::setMoreUnits(bool moreUnits) {
    if (moreUnits == m_moreUnits) {
        return;
    }
    m_moreUnits = moreUnits;
    if (m_isLoaded) {
        loadUnitConverter();
    }
}

int UnitConverterModel::selectedQuantityIndex() {
    const auto& quantities = unitConverterArray();
    const auto selected = std::ranges::find_if(quantities, [this](const auto& quantity) {
        return m_selectedQuantityName && quantity->unitsOfWhat() == *m_selectedQuantityName;
    });
    return selected == quantities.end() ? 0 : static_cast<int>(selected - quantities.begin());
}

void UnitConverterModel::setSelectedQuantityIndex(int index) {
    const UnitConverter* selected = converter(index);
    m_selectedQuantityName = selected ? std::optional(selected->unitsOfWhat()) : std::nullopt;
}

UnitConverter* UnitConverterModel::converter(int quantity) {
    loadUnitConverterIfNeeded();
    const bool exists = quantity >= 0 && quantity < static_cast<int>(m_unitConverterArray.size());
    return exists ? m_unitConverterArray[static_cast<std::size_t>(quantity)].get() : nullptr;
}

void UnitConverterModel::selectPickerRow(int row, int component, int quantity) {
    const UnitConverter* selected = converter(quantity);
    if (!selected || row < 0 || row >= static_cast<int>(selected->unitNames().size()) || component < 1 ||
        component > kComponents) {
        assertionFailure("no unit " + std::to_string(row) + " of quantity " + std::to_string(quantity));
        return;
    }
    UnitPair& pair = m_selectedUnitDictionary[selected->unitsOfWhat()];
    pair[static_cast<std::size_t>(component) - 1] = selected->unitNames()[static_cast<std::size_t>(row)];
}

int UnitConverterModel::selectedPickerRowForComponent(int component, int quantity) {
    const UnitConverter* selected = converter(quantity);
    if (!selected || component < 1 || component > kComponents) {
        assertionFailure("no quantity " + std::to_string(quantity));
        return 0;
    }
    const auto pair = m_selectedUnitDictionary.find(selected->unitsOfWhat());
    if (pair == m_selectedUnitDictionary.end()) {
        return 0;
    }
    const auto& names = selected->unitNames();
    const auto unit = std::ranges::find(names, pair->second[static_cast<std::size_t>(component) - 1]);
    return unit == names.end() ? 0 : static_cast<int>(unit - names.begin());
}

std::optional<PropertyList> UnitConverterModel::valueForKey(std::string_view key) const {
    return key == kMoreUnitsSetting ? std::optional(PropertyList(m_moreUnits)) : std::nullopt;
}

bool UnitConverterModel::setValueForKey(std::string_view key, const PropertyList& value) {
    const auto index = value.asInteger();
    if (key != kMoreUnitsSetting || (!value.asBool() && index != 0 && index != 1)) {
        return false;
    }
    setMoreUnits(value.asBool().value_or(index == 1));
    return true;
}

} // namespace velmora
