#include "calculator/keyboard/ButtonGrid.h"

namespace velmora {

ButtonGrid::ButtonGrid(Rect frame, int columns, int rows, double vSpace, double hSpace)
    : m_frame(frame), m_nColumns(columns), m_nRows(rows), m_vSpace(static_cast<int>(vSpace)),
      m_hSpace(static_cast<int>(hSpace)) {}

int ButtonGrid::nButtons() const {
    return m_nColumns * m_nRows + 1 - (m_doubleButtonInLowerLeft ? 1 : 0) - m_heightOfButtonInLowerRight;
}

int ButtonGrid::cellOfButton(int index) const {
    // Steps over the cells under the tall key from the bottom row upward, on the running value. Under a key
    // of three rows this leaves one key in a cell that the tall key covers. The layout strings hold a blank
    // there, so they line up only with exactly this mapping.
    int cell = index;
    int cellUnderTallKey = m_nColumns * (m_nRows - 1) - 1;
    for (int row = 1; row < m_heightOfButtonInLowerRight; ++row) {
        if (cell >= cellUnderTallKey) {
            ++cell;
        }
        cellUnderTallKey -= m_nColumns;
    }
    return cell;
}

Rect ButtonGrid::frameForButtonAtIndex(int index) const {
    const int width = static_cast<int>(buttonWidth());
    const int height = static_cast<int>(buttonHeight());
    const int halfHSpace = m_hSpace / 2; // whole points
    const int halfVSpace = m_vSpace / 2;
    const double left = m_frame.x + halfHSpace;
    const double top = m_frame.y + halfVSpace;

    if (index == nButtons() - 1) {
        const int tall = m_heightOfButtonInLowerRight;
        return {left + width * (m_nColumns - 1), top + height * (m_nRows - tall),
                static_cast<double>(width - m_hSpace), static_cast<double>(height * tall - m_vSpace)};
    }
    const int cell = cellOfButton(index);
    const int row = cell / m_nColumns;
    int column = cell % m_nColumns;
    int columns = 1;
    if (m_doubleButtonInLowerLeft && row == m_nRows - 1) {
        if (column == 0) {
            columns = 2;
        } else {
            ++column;
        }
    }
    return {left + width * column, top + height * row, static_cast<double>(width * columns - m_hSpace),
            static_cast<double>(height - m_vSpace)};
}

} // namespace velmora
