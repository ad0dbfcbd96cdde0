#pragma once

#include "tests/platform/files/TemporaryFolder.h"

#include <gtest/gtest.h>

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
        std::setlocale(LC_NUMERIC, "comma");
        EXPECT_EQ(std::strtod("1,5", nullptr), 1.5) << "no locale with a decimal comma could be made";
    }
    ~DecimalCommaLocale() {
        std::setlocale(LC_NUMERIC, "C");
        ::unsetenv("LOCPATH");
    }
    DecimalCommaLocale(const DecimalCommaLocale&) = delete;
    DecimalCommaLocale& operator=(const DecimalCommaLocale&) = delete;

private:
    TemporaryFolder m_folder;
};

} // namespace velmora
