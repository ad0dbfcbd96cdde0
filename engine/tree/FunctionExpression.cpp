#include "engine/tree/FunctionExpression.h"

namespace velmora {

void FunctionExpression::makeRealProgram() const {
    m_realProgram = std::make_unique<const RealProgram>(*this);
}

} // namespace velmora
