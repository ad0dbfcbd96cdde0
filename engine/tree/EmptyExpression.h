#pragma once

#include "engine/tree/Expression.h"

namespace velmora {

/// The tree of an empty line: no value, nothing to draw, no error.
class EmptyExpression final : public Expression {
public:
    EmptyExpression() { m_isGraphable = false; }

    void describe(DescriptionWriter&) const override {}
};

} // namespace velmora
