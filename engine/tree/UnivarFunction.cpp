#include "engine/tree/UnivarFunction.h"

#include "engine/display/Fraction.h"
#include "engine/environment/Environment.h"
#include "engine/lines/Token.h"
#include "engine/tree/DescriptionWriter.h"
#include "engine/tree/Evaluation.h"
#include "engine/tree/RealProgram.h"
#include "engine/tree/TargetAndIndex.h"
#include "engine/tree/UnivarUserdefinedFunction.h"

#include <cmath>
#include <numbers>

namespace velmora {

namespace {

bool isInDegrees(const UnivarRow& row) {
    return row.angle != AngleUse::None && Environment::current().angleMode() == AngleMode::Degrees;
}

ComplexValue complexRule(const UnivarRow& row, ComplexValue z) {
    if (!isInDegrees(row)) {
        return row.complex(z);
    }
    constexpr double kCircle = 360; // whole turns are taken off while they are exact
    return row.angle == AngleUse::Taken
               ? row.complex(ComplexValue(std::fmod(z.real(), kCircle), z.imag()) * (std::numbers::pi / 180))
               : row.complex(z) * (180 / std::numbers::pi);
}

bool isReal(const UnivarRow& row, double a) { return row.real != nullptr && row.realDomain.contains(a); }

} // namespace

double univarRealRule(const UnivarRow& row, double a) {
    return isInDegrees(row) ? row.realInDegrees(a) : row.real(a);
}

UnivarFunction::UnivarFunction(UnivarType function)
    : FunctionExpression(Kind::OneInput), m_row(&univarRow(function)) {
    adoptTraits(nullptr);
}

UnivarFunction::UnivarFunction(UnivarType function, std::unique_ptr<const Expression> input)
    : FunctionExpression(Kind::OneInput), m_row(&univarRow(function)) {
    setInput(std::move(input));
}

UnivarType UnivarFunction::functionTypeWithToken(std::string_view token) {
    const UnivarType type = univarTypeWithToken(token);
    return type == UnivarType::NoFunction && TargetAndIndex::namesSlot(token) ? UnivarType::UserDefined
                                                                              : type;
}

std::unique_ptr<UnivarFunction>
UnivarFunction::newFunctionWithToken(const Token& token, std::unique_ptr<const Expression> input) {
    const UnivarType type = functionTypeWithToken(token.internalRepresentation());
    if (type == UnivarType::NoFunction) {
        return nullptr;
    }
    std::unique_ptr<UnivarFunction> function = type == UnivarType::UserDefined
                                                   ? std::make_unique<UnivarUserdefinedFunction>(token)
                                                   : std::make_unique<UnivarFunction>(type);
    if (input != nullptr) {
        function->setInput(std::move(input));
    }
    return function;
}

void UnivarFunction::setInput(std::unique_ptr<const Expression> input) {
    m_input = std::move(input);
    resetTraits(m_row->cost);
    adoptTraits(m_input.get());
    foldConstantInput();
}

void UnivarFunction::foldConstantInput() {
    if (function() == UnivarType::NoFunction) {
        setConstant(undefinedValue());
        return;
    }
    const bool isFixed = m_row->angle == AngleUse::None && function() != UnivarType::Random &&
                         function() != UnivarType::UserDefined;
    if (isFixed && !isConstant() && m_input->isConstant() &&
        (velmora::isReal(m_input->constant()) || m_row->complexMessage.empty())) {
        setConstant(UnivarFunction::valueWithComplex(m_input->constant()));
    }
}

std::string UnivarFunction::functionDescription() const { return std::string(m_row->name); }

double UnivarFunction::valueWithDouble(double a) const {
    return isReal(*m_row, a) ? univarRealRule(*m_row, a) : std::numeric_limits<double>::quiet_NaN();
}

ComplexValue UnivarFunction::valueWithComplex(ComplexValue z) const {
    const bool isRealInput = velmora::isReal(z);
    if (isRealInput && isReal(*m_row, z.real())) {
        return {univarRealRule(*m_row, z.real()), 0.0};
    }
    if (isNaN(z)) {
        return undefinedValue();
    }
    if (m_row->complex == nullptr) {
        if (!isRealInput && !m_row->complexMessage.empty()) {
            Environment::current().raiseOneShotAlert(m_row->complexMessage);
        }
        return undefinedValue();
    }
    if (!isRealInput) {
        return complexRule(*m_row, z);
    }
    // A real value stands on the upper side of a cut, and nothing made of real values shows "-0i".
    const ComplexValue value = complexRule(*m_row, {z.real(), 0.0});
    return {value.real(), value.imag() + 0.0};
}

std::string UnivarFunction::formattedValue(ComplexValue value) const {
    const bool isFraction = function() == UnivarType::ToFraction || function() == UnivarType::ToMixedNumber;
    if (isFraction && velmora::isReal(value) && !std::isnan(value.real())) {
        return fractionText(value.real(), function() == UnivarType::ToMixedNumber);
    }
    return Expression::formattedValue(value);
}

ComplexValue UnivarFunction::complexValue(ComplexEvaluation& evaluation) const {
    return valueWithComplex(complexOf(*m_input, evaluation));
}

void UnivarFunction::describeToProgram(RealProgramBuilder& builder) const {
    if (function() == UnivarType::Random) {
        builder.appendOtherNode(*this);
        return;
    }
    builder.append(*m_input);
    builder.appendFunction(*m_row);
}

const std::string* UnivarFunction::findErrorText() const { return errorTextOfInput(m_input.get()); }

void UnivarFunction::addReferences(References& references) const {
    if (m_input != nullptr) {
        m_input->addReferences(references);
    }
}

void UnivarFunction::describe(DescriptionWriter& writer) const {
    writer << functionDescription() << "[";
    if (m_input != nullptr) {
        m_input->describe(writer);
    }
    writer << "]";
}

} // namespace velmora
