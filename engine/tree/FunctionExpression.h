#pragma once

#include "engine/tree/Expression.h"
#include "engine/tree/RealProgram.h"

#include <memory>

namespace velmora {

/// A node with inputs. As the root of a line it keeps the program by which the line is evaluated in real
/// arithmetic; leaves need none.
class FunctionExpression : public Expression {
public:
    /// The program of the tree below this node, made when first asked for.
    const RealProgram& realProgram() const {
        if (m_realProgram == nullptr) {
            makeRealProgram();
        }
        return *m_realProgram;
    }

protected:
    using Expression::Expression;

private:
    void makeRealProgram() const;

    mutable std::unique_ptr<const RealProgram> m_realProgram;
};

} // namespace velmora
