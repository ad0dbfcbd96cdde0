#pragma once

#include <QAbstractListModel>

#include <memory>

namespace velmora {

class KeyboardViewController;
class SceneAdapter;

/// The keys of a keyboard screen, in the order of the layout.
class KeyListModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        FrameRole = Qt::UserRole + 1,
        ShownRole,
        TitleRole,
        TitleFontRole,
        TitleColorRole,
        FaceRole,        ///< artwork behind the title
        PressedFaceRole, ///< the same while a finger is on it
        SignRole,        ///< artwork in place of a title; empty for most
        RepeatsRole,     ///< whether it acts again while a finger rests on it
        ChosenRole,      ///< whether it looks as with a finger on it
        SpokenNameRole,
    };

    KeyListModel(std::shared_ptr<KeyboardViewController> controller, const SceneAdapter& scene);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Other keys than before.
    void exchange();
    /// The same keys, placed or drawn differently.
    void refresh();
    /// Only the tall key has changed.
    void refreshEqualsKey();
    void press(int row);

private:
    std::shared_ptr<KeyboardViewController> m_controller;
    const SceneAdapter& m_scene;
};

} // namespace velmora
