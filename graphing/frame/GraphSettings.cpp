#include "graphing/frame/GraphSettings.h"

#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/Model.h"
#include "graphing/plot/GraphMetaData.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr int kDegrees = 1;
constexpr int kFarApartGridLines = 1;

} // namespace

GraphSettings GraphSettings::ofModel(bool isWide) {
    const Model& model = Model::m();
    GraphSettings settings{.look = {model.graphBackgroundIsBlack(), isWide},
                           .oneLinePerMark = model.graphGridLineType() == kFarApartGridLines,
                           .sameScale = model.sameScaleXAndY(),
                           .acceptsAlmostReal = model.roundSmallPartsOfComplexNumbers(),
                           .inDegrees = model.angleMode() == kDegrees,
                           .showsLabels = model.putLabelsOnGraph(),
                           .type = graphTypeRow(model.graphType())};
    if (settings.type && settings.type->hasRange()) {
        settings.range = {(model.*settings.type->rangeStart)(), (model.*settings.type->rangeEnd)()};
    }
    for (const ExpressionList* list : graphedLists()) {
        settings.lists.push_back(list);
    }
    if (settings.lists.empty()) {
        return settings;
    }
    const auto slots =
        std::min(static_cast<std::size_t>(settings.lists.front()->nExpressions()), kGraphSlots);
    for (std::size_t slot = 0; slot < slots; ++slot) {
        Curve& curve = settings.curves.emplace_back(Curve{slot, {}});
        for (const ExpressionList* list : settings.lists) {
            curve.expressions.push_back(list->expression(static_cast<int>(slot)));
        }
    }
    return settings;
}

} // namespace velmora
