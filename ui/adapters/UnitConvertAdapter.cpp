#include "ui/adapters/UnitConvertAdapter.h"

#include "platform/events/ActionScope.h"
#include "tools/units/UnitConvertKeypad.h"
#include "tools/units/UnitConvertViewController.h"
#include "ui/adapters/HardwareKeyName.h"
#include "ui/adapters/SceneAdapter.h"
#include "ui/painting/Artwork.h"

#include <QVariantMap>

#include <array>

namespace velmora {

namespace {

constexpr std::array kWheelNames{"Quantity", "From", "To"};

} // namespace

UnitConvertAdapter::UnitConvertAdapter(std::shared_ptr<UnitConvertViewController> controller,
                                       const SceneAdapter& scene)
    : m_controller(std::move(controller)), m_scene(scene) {
    m_controller->loadViewIfNeeded();
    for (int wheel = 0; wheel < UnitConvertViewController::kWheelCount; ++wheel) {
        m_wheels.push_back(std::make_unique<WheelModel>(wheelSource(wheel)));
    }
    m_subscriptions.push_back(m_controller->updated().subscribe([this] { Q_EMIT updated(); }));
    m_subscriptions.push_back(m_controller->componentReloaded().subscribe(
        [this](int wheel) { m_wheels[static_cast<std::size_t>(wheel)]->reload(); }));
    connect(&scene, &SceneAdapter::changed, this, &UnitConvertAdapter::layoutRefreshed);
}

UnitConvertAdapter::~UnitConvertAdapter() = default;

WheelModel::Source UnitConvertAdapter::wheelSource(int wheel) {
    // The models live no longer than the adapter, which holds the controller.
    UnitConvertViewController* controller = m_controller.get();
    WheelModel::Source source{.name = tr(kWheelNames[static_cast<std::size_t>(wheel)]),
                              .rowCount = [=] { return controller->numberOfRowsInComponent(wheel); },
                              .text = [=](int row) { return controller->titleForRow(row, wheel); },
                              .selected = [=] { return controller->selectedRowInComponent(wheel); },
                              .select = [=](int row) { controller->pickerViewDidSelectRow(row, wheel); },
                              .picture = {}};
    if (wheel == UnitConvertViewController::kQuantityWheel) {
        source.picture = [this](int row) { return m_scene.artwork(m_controller->imageNameForRow(row)); };
    }
    return source;
}

QString UnitConvertAdapter::leftSide() const { return QString::fromStdString(m_controller->leftSideText()); }

QString UnitConvertAdapter::rightSide() const {
    return QString::fromStdString(m_controller->rightSideText());
}

QString UnitConvertAdapter::fault() const { return QString::fromStdString(m_controller->faultText()); }

QUrl UnitConvertAdapter::panelArtwork() const { return m_scene.panelArtwork(); }

QUrl UnitConvertAdapter::swapArtwork() const { return m_scene.artwork("swap"); }

QRectF UnitConvertAdapter::leftSideFrame() const { return m_scene.snappedToPixels(m_layout.leftSideLabel); }

QRectF UnitConvertAdapter::rightSideFrame() const { return m_scene.snappedToPixels(m_layout.rightSideLabel); }

QRectF UnitConvertAdapter::faultFrame() const { return m_scene.snappedToPixels(m_layout.faultLabel); }

QRectF UnitConvertAdapter::swapFrame() const { return m_scene.snappedToPixels(m_layout.swapButton); }

QVariantList UnitConvertAdapter::wheels() const {
    QVariantList list;
    for (std::size_t wheel = 0; wheel < m_wheels.size(); ++wheel) {
        list.append(QVariantMap{{QStringLiteral("model"), QVariant::fromValue(m_wheels[wheel].get())},
                                {QStringLiteral("frame"), m_scene.snappedToPixels(m_layout.wheels[wheel])}});
    }
    return list;
}

QVariantList UnitConvertAdapter::keys() const {
    QVariantList list;
    const auto keys = unitConvertKeys();
    for (std::size_t i = 0; i < keys.size() && i < m_layout.keys.size(); ++i) {
        const std::string title = titleOfUnitConvertKey(keys[i].character);
        const std::string face = std::string("button") + backgroundUnicharWithTitleUnichar(keys[i].character);
        list.append(QVariantMap{
            {QStringLiteral("frame"), m_scene.snappedToPixels(m_layout.keys[i])},
            {QStringLiteral("title"), QString::fromStdString(title)},
            {QStringLiteral("spokenName"), QString::fromStdString(spokenNameOfUnitConvertKey(title))},
            {QStringLiteral("face"), m_scene.artwork(face)},
            {QStringLiteral("pressedFace"), m_scene.artwork(face + kPressedSuffix)}});
    }
    return list;
}

void UnitConvertAdapter::setViewSize(QSizeF size) {
    m_layout = unitConvertLayout({size.width(), size.height()});
    Q_EMIT layoutRefreshed();
}

void UnitConvertAdapter::pressKey(const QString& title) {
    const ActionScope action;
    m_controller->buttonPressed(title.toStdString());
}

bool UnitConvertAdapter::pressHardwareKey(int key, const QString& text, int modifiers) {
    const ActionScope action;
    return m_controller->hardwareKey(hardwareKeyName(key, text, modifiers));
}

void UnitConvertAdapter::swapUnits() {
    const ActionScope action;
    m_controller->swapUnits();
}

} // namespace velmora
