#pragma once

#include "tests/platform/TemporaryFolder.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace velmora {

/// Puts a locale in force whose decimal mark is a comma, made from the machine's plain one.
class DecimalCommaLocale {
public:
    DecimalCommaLocale() {
        std::ifstream plain("/usr/lib/locale/C.utf8/LC_NUMERIC", std::ios::binary);
        std::string bytes{std::istreambuf_iterator<char>(plain), {}};
        std::replace(bytes.begin(), bytes.end(), '.', ',');
        std::filesystem::create_directory(m_folder.path() / "comma");
        std::ofstream(m_folder.path() / "comma" / "LC_NUMERIC", std::ios::binary) << bytes;
        ::setenv("LOCPATH", m_folder.path().c_str(), 1);
        const bool made = std::setlocale(LC_NUMERIC, "comma") != nullptr;
        m_inForce = (made || std::setlocale(LC_NUMERIC, "de_DE.UTF-8")) && std::strtod("1,5", nullptr) == 1.5;
    }
    ~DecimalCommaLocale() {
        std::setlocale(LC_NUMERIC, "C");
        ::unsetenv("LOCPATH");
    }
    DecimalCommaLocale(const DecimalCommaLocale&) = delete;
    DecimalCommaLocale& operator=(const DecimalCommaLocale&) = delete;

    bool inForce() const { return m_inForce; }

private:
    TemporaryFolder m_folder;
    bool m_inForce = false;
};

} // namespace velmora
