#pragma once

#include "platform/machine/TextMeasure.h"

namespace velmora {

/// Text as Qt draws it in the scene.
class QtTextMeasure final : public TextMeasure {
public:
    double width(std::string_view text, double fontSize, std::string_view fontName) const override;
    double lineHeight(double fontSize, std::string_view fontName) const override;
};

} // namespace velmora
