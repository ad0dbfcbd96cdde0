#pragma once

#include "engine/tree/DescriptionWriter.h"
#include "engine/tree/Expression.h"

namespace velmora {

/// The marks that group a line. They are consumed by the parse; one that is left over has no value.
class LeftParen final : public Expression {
public:
    bool canBeFollowedBySubtraction() const override { return false; }
    bool needsToBePairedWithARightParen() const override { return true; }
    bool isMark() const override { return true; }
    void describe(DescriptionWriter& writer) const override { writer << "("; }
};

class RightParen final : public Expression {
public:
    RightParen() : Expression(Kind::RightParen) {}
    bool canBePrecededByImpliedMultiplication() const override { return false; }
    bool canBeFollowedByImpliedMultiplication() const override { return true; }
    bool isMark() const override { return true; }
    void describe(DescriptionWriter& writer) const override { writer << ")"; }
};

class Comma final : public Expression {
public:
    Comma() : Expression(Kind::Comma) {}
    bool canBePrecededByImpliedMultiplication() const override { return false; }
    bool canBeFollowedBySubtraction() const override { return false; }
    bool isMark() const override { return true; }
    void describe(DescriptionWriter& writer) const override { writer << ","; }
};

} // namespace velmora
