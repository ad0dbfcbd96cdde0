#pragma once

#include "platform/files/KeptFile.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The texts that were typed on a tool's screen, by key, kept between runs in a file of the tool's own.
class KeptTexts {
public:
    /// Those of the file of that name, read when it is first asked for.
    static KeptTexts& ofFile(const std::string& name);
    static void resetForTests();
    /// Writes every file whose texts have changed since it was read or written; none that holds what this
    /// program has not read.
    static void saveAll();

    /// Empty where there is none.
    std::string text(std::string_view key) const;
    void setText(std::string_view key, std::string text);

private:
    explicit KeptTexts(std::string fileName);
    void load();
    void save();

    std::string m_fileName;
    std::optional<KeptFile> m_file;
    std::map<std::string, std::string, std::less<>> m_texts;
    bool m_hasChanged = false;
};

} // namespace velmora
