#pragma once

#include "engine/BivarTable.h"
#include "engine/UnivarTable.h"

namespace velmora {

/// What a node of that type computes: the real rule inside the real domain, the complex one elsewhere.
inline ComplexValue tableValue(UnivarType type, ComplexValue z) {
    const UnivarRow& row = univarRow(type);
    if (isReal(z) && row.realDomain.contains(z.real())) {
        return row.real(z.real());
    }
    return row.complex == nullptr ? undefinedValue() : row.complex(z);
}

inline ComplexValue tableValue(BivarType type, ComplexValue a, ComplexValue b) {
    const BivarRow& row = bivarRow(type);
    if (isReal(a) && isReal(b) && (row.inRealDomain == nullptr || row.inRealDomain(a.real(), b.real()))) {
        return row.real(a.real(), b.real());
    }
    return row.complex == nullptr ? undefinedValue() : row.complex(a, b);
}

} // namespace velmora
