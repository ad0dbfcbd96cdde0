#include "calculator/model/Model.h"

#include "calculator/model/Assertion.h"
#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/KeyboardGeometry.h"
#include "calculator/model/ModelArchive.h"
#include "calculator/model/ModelProperties.h"
#include "calculator/model/OrientationMode.h"
#include "engine/tree/Expression.h"
#include "platform/files/PropertyListFile.h"
#include "platform/files/SavingRegistry.h"
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
constexpr double kSmallestGraphWidth = 1e-9;
constexpr std::size_t kEquationsTab = 1;

void nameList(ExpressionList& list, const char* functionName, const char* variableName) {
    list.setFunctionName(functionName);
    list.setVariableNameString(variableName);
}

void repairMaximum(double& maximum, double minimum) {
    // Where either is NaN the comparison is false and the stored value stays; intended.
    if (maximum < minimum + kSmallestGraphWidth) {
        maximum = minimum + kSmallestGraphWidth;
    }
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
}

Model::~Model() = default;

std::optional<std::filesystem::path> Model::dataFilePath() { return documentPath("Calculator archive"); }

void Model::save() {
    SavingRegistry::shared().saveAll();
    if (const auto path = dataFilePath()) {
        writePropertyListAtomically(*path, archivedModel(*this));
    }
}

void Model::load() {
    setUnitConverterArray(std::nullopt);
    const auto path = dataFilePath();
    const auto archive = path ? readDictionaryFile(*path, "catch") : std::nullopt;
    loadArchivedModel(*this, archive.value_or(PropertyDictionary()));
}

void Model::setAngleMode(int mode) {
    m_angleMode = mode;
    m_environment.setAngleMode(mode == 1 ? AngleMode::Degrees : AngleMode::Radians);
}

std::string Model::angleModeAsString() const {
    if (m_angleMode != 0 && m_angleMode != 1) {
        assertionFailure("no angle mode " + std::to_string(m_angleMode));
    }
    return m_angleMode == 1 ? "Degrees" : "Radians";
}

double Model::complexRoundingThreshold() const { return m_roundSmallPartsOfComplexNumbers ? 1e-12 : 0; }

int Model::displayMode() const {
    if (!isTablet()) {
        return 4;
    }
    return m_displayMode >= 0 && m_displayMode <= 3 ? m_displayMode : 1;
}

bool Model::displayModeIsWide() const {
    const int mode = displayMode();
    return mode == 0 || mode == 2;
}

bool Model::shouldAutorotateToInterfaceOrientation(Orientation orientation) const {
    if (!isTablet()) {
        return isPortrait(orientation);
    }
    return isPortrait(orientation) ? orientationModeAllowsPortait(m_orientationMode)
                                   : orientationModeAllowsLandscape(m_orientationMode);
}

int Model::keyboardGeometry() const {
    if (!isTablet()) {
        return m_largeFontsOnPhone ? kGeometryPhoneLargeFonts : kGeometryPhone;
    }
    if (isLandscape(currentDevice().statusBarOrientation())) {
        return kGeometryTabletLandscape;
    }
    return displayModeIsWide() ? kGeometryTabletWide : kGeometryTabletNarrow;
}

int Model::fontSizeMode() const { return fontSizeModeForGeometry(keyboardGeometry()); }

double Model::xMaxForGraph() const {
    repairMaximum(m_xMaxForGraph, m_xMinForGraph);
    return m_xMaxForGraph;
}

double Model::yMaxForGraph() const {
    repairMaximum(m_yMaxForGraph, m_yMinForGraph);
    return m_yMaxForGraph;
}

void Model::resetGraphBounds() {
    m_yMinForGraph = -10;
    m_yMaxForGraph = 10;
    m_xMinForGraph = -10;
    m_xMaxForGraph = 10.062695924764892;
}

void Model::setGraphType(int type) {
    if (type == m_graphType) {
        return;
    }
    m_graphType = type;
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
    if (!m_equationsEditor || m_editorGraphType != m_graphType) {
        const GraphTypeRow* row = graphTypeRow(m_graphType);
        auto editor = row ? ScreenRegistry::shared().make(row->equationsScreen) : nullptr;
        if (!editor) {
            return nullptr;
        }
        m_equationsEditor = std::move(editor);
        m_editorGraphType = m_graphType;
    }
    return m_equationsEditor;
}

bool Model::explainFailureToGraph() const {
    if (m_graphType != static_cast<int>(GraphType::Function)) {
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
    return m_pickerSelectedUnitIndex > count ? count - 1 : m_pickerSelectedUnitIndex;
}

void Model::addActivations(int count) {
    m_nHasBecomeActive += std::min(count, std::numeric_limits<int>::max() - std::max(m_nHasBecomeActive, 0));
}

bool Model::shouldShowSettingsTip() const {
    return !m_settingsHaveBeenAccessed && m_nHasBecomeActive % kActivationsBetweenTips == 0;
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
