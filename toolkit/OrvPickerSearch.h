#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The rows of a wheel to search: how many there are and what each one says.
struct PickerRows {
    int count = 0;
    std::function<std::string(int row)> text;
};

/// Finds rows of a wheel by what is typed. Characters that follow each other within a second belong
/// together, so "1969" finds that year, and "ca" the first name that begins so.
class OrvPickerSearch {
public:
    /// The row for one more character: the one that says just what was typed, otherwise the next one, round
    /// from the last to the first, that begins with it. A single letter leads on from the selected row, so
    /// typing it again visits every row that begins with it. Nothing when no row does. Small and capital
    /// letters of the Latin alphabet are alike.
    std::optional<int> rowFor(std::string_view character, const PickerRows& rows, int selected);

private:
    std::string m_typed;
    double m_lastTime = 0;
};

} // namespace velmora
