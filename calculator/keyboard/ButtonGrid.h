#pragma once

#include "platform/screens/Geometry.h"

#include <algorithm>

namespace velmora {

/// A rectangular block of equal cells, one key each, save that the last key may be taller and the first key
/// of the bottom row wider than a cell.
class ButtonGrid {
public:
    ButtonGrid() = default;
    /// The gaps between keys are truncated to whole points.
    ButtonGrid(Rect frame, int columns, int rows, double vSpace, double hSpace);

    const Rect& frame() const { return m_frame; }
    void setFrame(const Rect& frame) { m_frame = frame; }
    int nColumns() const { return m_nColumns; }
    void setNColumns(int columns) { m_nColumns = columns; }
    int nRows() const { return m_nRows; }
    void setNRows(int rows) { m_nRows = rows; }
    int hSpace() const { return m_hSpace; }
    void setHSpace(int space) { m_hSpace = space; }
    int vSpace() const { return m_vSpace; }
    void setVSpace(int space) { m_vSpace = space; }
    /// How many rows the last key spans at the bottom of the rightmost column; at least 1.
    int heightOfButtonInLowerRight() const { return m_heightOfButtonInLowerRight; }
    void setHeightOfButtonInLowerRight(int rows) { m_heightOfButtonInLowerRight = std::max(rows, 1); }
    /// Whether the first key of the bottom row spans two columns.
    bool doubleButtonInLowerLeft() const { return m_doubleButtonInLowerLeft; }
    void setDoubleButtonInLowerLeft(bool on) { m_doubleButtonInLowerLeft = on; }

    int nButtons() const;
    double buttonWidth() const { return m_frame.width / m_nColumns; }
    double buttonHeight() const { return m_frame.height / m_nRows; }
    /// The frame of key i, 0 to nButtons() - 1.
    Rect frameForButtonAtIndex(int index) const;

private:
    int cellOfButton(int index) const;

    Rect m_frame;
    int m_nColumns = 1;
    int m_nRows = 1;
    int m_vSpace = 10;
    int m_hSpace = 8;
    int m_heightOfButtonInLowerRight = 1;
    bool m_doubleButtonInLowerLeft = false;
};

} // namespace velmora
