#pragma once

#include "calculator/keyboard/CalculatorLabel.h"
#include "calculator/keyboard/KeyboardScreen.h"
#include "ui/adapters/HistoryListModel.h"
#include "ui/adapters/KeyListModel.h"
#include "ui/adapters/LabelAdapter.h"

#include <QObject>
#include <QSizeF>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class KeyboardView;
class KeyboardViewController;
class SceneAdapter;

/// A keyboard screen as QML sees it: keys, entry line, edit menu and history. All places are in points, in
/// the coordinates of the screen's view.
class KeyboardScreenAdapter final : public QObject, public KeyboardScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QAbstractItemModel* keys READ keys CONSTANT)
    Q_PROPERTY(QAbstractItemModel* history READ history CONSTANT)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor CONSTANT)
    Q_PROPERTY(QUrl panelArtwork READ panelArtwork NOTIFY layoutRefreshed)
    Q_PROPERTY(QString leftButtonName READ leftButtonName CONSTANT)
    Q_PROPERTY(QString rightButtonName READ rightButtonName CONSTANT)
    // Frames that follow the view's size and the geometry.
    Q_PROPERTY(QRectF backingFrame READ backingFrame NOTIFY layoutRefreshed)
    Q_PROPERTY(QRectF historyFrame READ historyFrame NOTIFY layoutRefreshed)
    // The rows of the history; every one is laid out alike.
    Q_PROPERTY(double rowHeight READ rowHeight NOTIFY historyRefreshed)
    Q_PROPERTY(double rowsHeight READ rowsHeight NOTIFY historyRefreshed) ///< of all rows together
    Q_PROPERTY(QString hint READ hint NOTIFY historyRefreshed)            ///< while there are no rows
    Q_PROPERTY(bool tipShown READ isTipShown NOTIFY historyRefreshed)
    Q_PROPERTY(velmora::LabelAdapter tip READ tip NOTIFY historyRefreshed)
    Q_PROPERTY(velmora::LabelAdapter rowInput READ rowInput NOTIFY historyRefreshed)
    Q_PROPERTY(velmora::LabelAdapter rowOutput READ rowOutput NOTIFY historyRefreshed)
    Q_PROPERTY(QRectF rowLeftButton READ rowLeftButton NOTIFY historyRefreshed)
    Q_PROPERTY(QRectF rowRightButton READ rowRightButton NOTIFY historyRefreshed)
    // The entry line and its edit menu.
    Q_PROPERTY(velmora::LabelAdapter entry READ entry NOTIFY entryRefreshed)
    Q_PROPERTY(QString entryLines READ entryLines NOTIFY entryRefreshed) ///< as they are drawn
    Q_PROPERTY(velmora::LabelAdapter angleSign READ angleSign NOTIFY entryRefreshed)
    Q_PROPERTY(bool angleSignShown READ isAngleSignShown NOTIFY entryRefreshed)
    Q_PROPERTY(QString angleModeName READ angleModeName NOTIFY entryRefreshed)
    Q_PROPERTY(QString wholeLine READ wholeLine NOTIFY entryRefreshed) ///< as a screen reader tells it
    Q_PROPERTY(bool cursorAtEnd READ isCursorAtEnd NOTIFY entryRefreshed)
    Q_PROPERTY(bool editMenuShown READ isEditMenuShown NOTIFY editMenuRefreshed)
    Q_PROPERTY(bool pasteOffered READ isPasteOffered NOTIFY editMenuRefreshed)
    Q_PROPERTY(QRectF editMenuTarget READ editMenuTarget NOTIFY editMenuRefreshed)

public:
    KeyboardScreenAdapter(std::shared_ptr<KeyboardViewController> controller, const SceneAdapter& scene);
    ~KeyboardScreenAdapter() override;

    QAbstractItemModel* keys() { return &m_keys; }
    QAbstractItemModel* history() { return &m_history; }
    QColor backgroundColor() const;
    QUrl panelArtwork() const;
    QString leftButtonName() const;
    QString rightButtonName() const;
    QRectF backingFrame() const;
    QRectF historyFrame() const;
    double rowHeight() const;
    double rowsHeight() const;
    bool isTipShown() const;
    LabelAdapter tip() const;
    LabelAdapter rowInput() const;
    LabelAdapter rowOutput() const;
    QRectF rowLeftButton() const;
    QRectF rowRightButton() const;
    LabelAdapter entry() const;
    QString entryLines() const;
    LabelAdapter angleSign() const;
    bool isAngleSignShown() const;
    QString angleModeName() const;
    QString wholeLine() const;
    bool isPasteOffered() const;
    QString hint() const;
    bool isCursorAtEnd() const;
    bool isEditMenuShown() const;
    QRectF editMenuTarget() const;

    Q_INVOKABLE void setViewSize(QSizeF size);
    Q_INVOKABLE void pressKey(int row);
    /// A tap on one end of a row of the history: the line's (left) or the result's.
    Q_INVOKABLE void tapHistoryRow(int row, bool left);
    /// Copies the line (left) or the result of a row of the history.
    Q_INVOKABLE void copyHistoryRow(int row, bool left);
    Q_INVOKABLE void tapEntryLine(double x, double y);
    Q_INVOKABLE void openEditMenu();
    Q_INVOKABLE void closeEditMenu();
    Q_INVOKABLE void copy();
    Q_INVOKABLE void paste();
    Q_INVOKABLE void switchAngleMode();
    /// The answer to undoOffered.
    Q_INVOKABLE void undoOffer();
    /// A key of a hardware keyboard as a key event tells it. False when it means nothing here.
    Q_INVOKABLE bool pressHardwareKey(int key, const QString& text, int modifiers);

    void reloadHistory() override;
    void scrollHistoryToEnd(bool animated) override;
    void showEntry() override;
    void showEqualsKey() override;
    void showChosenSign() override;
    void keysChanged() override;
    void layoutChanged() override;
    void showEditMenu(bool shown) override;
    void showNotice(const std::string& text) override;
    void offerUndo(const std::string& text, double seconds) override;

Q_SIGNALS:
    void layoutRefreshed();
    void historyRefreshed();
    void entryRefreshed();
    void editMenuRefreshed();
    void scrolledToEnd(bool animated);
    /// Something to tell the user that needs no answer.
    void notice(const QString& text);
    /// The same with a way back for so many seconds.
    void undoOffered(const QString& text, double seconds);

private:
    KeyboardView& view() const;
    bool pressShortcut(int key, int modifiers);

    std::shared_ptr<KeyboardViewController> m_controller;
    const SceneAdapter& m_scene;
    KeyListModel m_keys;
    HistoryListModel m_history;
};

} // namespace velmora
