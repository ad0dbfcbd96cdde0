#include "calculator/model/Model.h"

#include "calculator/model/Assertion.h"
#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/KeyboardGeometry.h"
#include "calculator/model/ModelProperties.h"
#include "calculator/model/OrientationMode.h"
#include "engine/tree/Expression.h"
#include "platform/machine/DocumentsFolder.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/screens/TabBarController.h"

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

constexpr int kHistoryLength = 50;
constexpr int kConstantCount = 50;
constexpr int kSlotCount = 4;
constexpr int kActivationsBetweenTips = 20;
constexpr std::size_t kEquationsTab = 1;

void nameList(ExpressionList& list, const char* functionName, const char* variableName) {
    list.setFunctionName(functionName);
    list.setVariableNameString(variableName);
}

} // namespace

std::unique_ptr<Model>& Model::instance() {
    static std::unique_ptr<Model> instance(new Model);
    return instance;
}

Model& Model::m() { return *instance(); }

void Model::resetForTests() {
    std::unique_ptr<Model>& model = instance();
    model.reset(); // first, so that environments are installed and removed like brackets
    model.reset(new Model);
}

Model::Model()
    : m_history(kHistoryLength, 0), m_equations(kSlotCount), m_parametricX(kSlotCount),
      m_parametricY(kSlotCount), m_polarR(kSlotCount), m_impliedFunctions(kSlotCount),
      m_constants(kConstantCount), m_inequalityArray(kSlotCount) {
    nameList(m_equations, "y", "x");
    nameList(m_parametricX, "x", "t");
    nameList(m_parametricY, "y", "t");
    nameList(m_polarR, "r", "θ");
    nameList(m_impliedFunctions, "f", "x, y");
    nameList(m_constants, "@k", "");
    for (ExpressionList* list :
         std::initializer_list<ExpressionList*>{&m_history, &m_equations, &m_parametricX, &m_parametricY,
                                                &m_polarR, &m_impliedFunctions, &m_constants}) {
        list->setObserver([this] { changed().emit(ModelChange::Committed); });
    }
    for (const ModelProperty& property : modelProperties()) {
        property.set(*this, property.byDefault);
    }
    resetGraphBounds();
}

Model::~Model() = default;

std::optional<std::filesystem::path> Model::dataFilePath() { return documentPath("Calculator archive"); }

void Model::save() { m_file.save(*this); }

void Model::load() { m_file.load(*this); }

void Model::setHalfTypedLine(HalfTypedLine line) {
    m_halfTypedLine = std::move(line);
    changed().emit(ModelChange::Typed);
}

void Model::setAngleMode(int mode) {
    m_environment.setAngleMode(mode == 1 ? AngleMode::Degrees : AngleMode::Radians);
    ModelSettings::setAngleMode(mode); // who hears of the change finds the engine in the new mode
}

std::string Model::angleModeAsString() const {
    if (angleMode() != 0 && angleMode() != 1) {
        assertionFailure("no angle mode " + std::to_string(angleMode()));
    }
    return angleMode() == 1 ? "Degrees" : "Radians";
}

double Model::complexRoundingThreshold() const { return roundSmallPartsOfComplexNumbers() ? 1e-12 : 0; }

bool Model::displayModeIsWide() const {
    const int mode = displayMode();
    return mode == 0 || mode == 2;
}

bool Model::shouldAutorotateToInterfaceOrientation(Orientation orientation) const {
    if (!isTablet()) {
        return isPortrait(orientation);
    }
    return isPortrait(orientation) ? orientationModeAllowsPortait(orientationMode())
                                   : orientationModeAllowsLandscape(orientationMode());
}

int Model::keyboardGeometry() const {
    if (!isTablet()) {
        return largeFontsOnPhone() ? kGeometryPhoneLargeFonts : kGeometryPhone;
    }
    if (isLandscape(currentDevice().statusBarOrientation())) {
        return kGeometryTabletLandscape;
    }
    return displayModeIsWide() ? kGeometryTabletWide : kGeometryTabletNarrow;
}

int Model::fontSizeMode() const { return fontSizeModeForGeometry(keyboardGeometry()); }

void Model::setGraphType(int type) {
    if (!storeGraphType(type)) {
        return;
    }
    m_graphTypeChanged.emit();
    const auto tabBar = m_tabBarController.lock();
    if (!tabBar || tabBar->viewControllers().size() <= kEquationsTab) {
        return;
    }
    const auto stack =
        std::dynamic_pointer_cast<NavigationController>(tabBar->viewControllers()[kEquationsTab]);
    if (const auto editor = stack ? currentEquationsViewController() : nullptr) {
        stack->replaceRoot(editor);
    }
}

std::shared_ptr<ViewController> Model::currentEquationsViewController() {
    if (!m_equationsEditor || m_editorGraphType != graphType()) {
        const GraphTypeRow* row = graphTypeRow(graphType());
        auto editor = row ? ScreenRegistry::shared().make(row->equationsScreen) : nullptr;
        if (!editor) {
            return nullptr;
        }
        m_equationsEditor = std::move(editor);
        m_editorGraphType = graphType();
    }
    return m_equationsEditor;
}

bool Model::explainFailureToGraph() const {
    if (graphType() != static_cast<int>(GraphType::Function)) {
        return false;
    }
    for (int i = 0; i < m_equations.nExpressions(); ++i) {
        const auto equation = m_equations.expression(i);
        if (equation && equation->isGraphable()) {
            return false;
        }
    }
    return true;
}

int Model::pickerSelectedUnitIndex() const {
    const int count = m_unitConverterArray ? static_cast<int>(m_unitConverterArray->size()) : 0;
    return storedUnitIndex() > count ? count - 1 : storedUnitIndex();
}

void Model::addActivations(int count) {
    const int before = nHasBecomeActive();
    setNHasBecomeActive(before + std::min(count, std::numeric_limits<int>::max() - std::max(before, 0)));
}

bool Model::shouldShowSettingsTip() const {
    return !settingsHaveBeenAccessed() && nHasBecomeActive() % kActivationsBetweenTips == 0;
}

std::optional<PropertyList> Model::valueForKey(std::string_view key) const {
    const ModelProperty* property = modelProperty(key);
    return property ? std::optional(property->get(*this)) : std::nullopt;
}

bool Model::setValueForKey(std::string_view key, const PropertyList& value) {
    const ModelProperty* property = modelProperty(key);
    if (!property || !accepts(*property, value)) {
        return false;
    }
    property->set(*this, value);
    return true;
}

} // namespace velmora
