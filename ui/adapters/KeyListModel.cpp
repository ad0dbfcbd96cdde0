#include "ui/adapters/KeyListModel.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "platform/events/ActionScope.h"
#include "ui/adapters/QtConversions.h"
#include "ui/adapters/SceneAdapter.h"
#include "ui/painting/Artwork.h"
#include "ui/painting/SystemFont.h"

#include <QUrl>

#include <algorithm>
#include <array>

namespace velmora {

namespace {

/// The keys whose signs are drawn: the root has no title, and a font's operators are small and stand off
/// the middle.
struct KeySign {
    std::string_view title;
    const char* artwork;
};
constexpr std::array kKeySigns{KeySign{"", "root"},   KeySign{"+", "plus"},  KeySign{"-", "minus"},
                               KeySign{"*", "times"}, KeySign{"/", "slash"}, KeySign{"^", "caret"}};

const char* keySign(std::string_view title) {
    const auto* found = std::ranges::find(kKeySigns, title, &KeySign::title);
    return found == kKeySigns.end() ? nullptr : found->artwork;
}

} // namespace

KeyListModel::KeyListModel(std::shared_ptr<KeyboardViewController> controller, const SceneAdapter& scene)
    : m_controller(std::move(controller)), m_scene(scene) {}

int KeyListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_controller->keyboardView().buttonArray().size());
}

QVariant KeyListModel::data(const QModelIndex& index, int role) const {
    const auto& keys = m_controller->keyboardView().buttonArray();
    if (!index.isValid() || index.row() >= static_cast<int>(keys.size())) {
        return {};
    }
    const CalculatorButton& key = *keys[static_cast<std::size_t>(index.row())];
    const KeyAppearance& appearance = key.appearance();
    const auto face = [&](const std::string& suffix) {
        return key.isShown() ? m_scene.artwork(appearance.backgroundImageName + suffix) : QUrl();
    };
    switch (role) {
    case FrameRole:
        return m_scene.snappedToPixels(key.frame());
    case ShownRole:
        return key.isShown();
    case TitleRole:
        return QString::fromStdString(key.titleString());
    case TitleFontRole:
        return sceneFont(appearance.fontName, appearance.fontSize);
    case TitleColorRole:
        return toQColor(appearance.titleColor);
    case FaceRole:
        return face({});
    case PressedFaceRole:
        return face(kPressedSuffix);
    case SignRole: {
        const char* sign = key.isShown() ? keySign(key.titleString()) : nullptr;
        return sign != nullptr ? m_scene.artwork(sign) : QUrl();
    }
    case RepeatsRole:
        return appearance.repeats;
    case ChosenRole:
        return appearance.chosen;
    case SpokenNameRole:
        return QString::fromStdString(appearance.accessibleName);
    default:
        return {};
    }
}

QHash<int, QByteArray> KeyListModel::roleNames() const {
    return {{FrameRole, "frame"},
            {ShownRole, "shown"},
            {TitleRole, "title"},
            {TitleFontRole, "titleFont"},
            {TitleColorRole, "titleColor"},
            {FaceRole, "face"},
            {PressedFaceRole, "pressedFace"},
            {SignRole, "sign"},
            {RepeatsRole, "repeats"},
            {ChosenRole, "chosen"},
            {SpokenNameRole, "spokenName"}};
}

void KeyListModel::exchange() {
    beginResetModel();
    endResetModel();
}

void KeyListModel::refresh() {
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

void KeyListModel::refreshEqualsKey() {
    KeyboardView& view = m_controller->keyboardView();
    const auto& keys = view.buttonArray();
    const auto found = std::ranges::find(keys, view.equalsButton());
    if (found != keys.end()) {
        const QModelIndex changed = index(static_cast<int>(found - keys.begin()));
        Q_EMIT dataChanged(changed, changed, {TitleRole, FaceRole, PressedFaceRole, SpokenNameRole});
    }
}

void KeyListModel::press(int row) {
    const auto& keys = m_controller->keyboardView().buttonArray();
    if (row < 0 || row >= static_cast<int>(keys.size())) {
        return;
    }
    const ActionScope action;
    // A copy: the press may exchange the keys.
    const std::shared_ptr<CalculatorButton> key = keys[static_cast<std::size_t>(row)];
    if (key->isShown()) {
        key->pressed();
    }
}

} // namespace velmora
