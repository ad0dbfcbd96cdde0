#include "ui/adapters/KeyboardScreenAdapter.h"

#include "calculator/history/DisplayHistoryTableViewController.h"
#include "calculator/keyboard/EntryLineText.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "platform/events/ActionScope.h"
#include "ui/adapters/HardwareKeyName.h"
#include "ui/adapters/QtConversions.h"
#include "ui/adapters/SceneAdapter.h"

namespace velmora {

namespace {

/// A row of the history without a text, for its frames and fonts.
DisplayHistoryCell plainRow(const KeyboardViewController& controller, double width) {
    const DisplayHistoryTableViewController* table = controller.displayTableViewController();
    constexpr int noRow = -1;
    return table ? table->historyCell(noRow, width) : DisplayHistoryCell(nullptr, noRow);
}

} // namespace

KeyboardScreenAdapter::KeyboardScreenAdapter(std::shared_ptr<KeyboardViewController> controller,
                                             const SceneAdapter& scene)
    : m_controller(std::move(controller)), m_scene(scene), m_keys(m_controller, scene),
      m_history(m_controller) {
    m_controller->loadViewIfNeeded();
    m_controller->setScreen(this);
    m_history.reload();
}

KeyboardScreenAdapter::~KeyboardScreenAdapter() {
    if (m_controller->screen() == this) {
        m_controller->setScreen(nullptr);
    }
}

KeyboardView& KeyboardScreenAdapter::view() const { return m_controller->keyboardView(); }

QColor KeyboardScreenAdapter::backgroundColor() const { return toQColor(view().backgroundColor()); }

QUrl KeyboardScreenAdapter::panelArtwork() const { return m_scene.panelArtwork(); }

QString KeyboardScreenAdapter::leftButtonName() const {
    return QString::fromUtf8(plainRow(*m_controller, 0).leftButton().accessibleName);
}

QString KeyboardScreenAdapter::rightButtonName() const {
    return QString::fromUtf8(plainRow(*m_controller, 0).rightButton().accessibleName);
}

QRectF KeyboardScreenAdapter::backingFrame() const {
    return m_scene.snappedToPixels(view().backingLabelFrame());
}

QRectF KeyboardScreenAdapter::historyFrame() const {
    return m_scene.snappedToPixels(view().displayTableFrame());
}

double KeyboardScreenAdapter::rowHeight() const {
    const DisplayHistoryTableViewController* table = m_controller->displayTableViewController();
    return table ? table->rowHeight() : 0;
}

double KeyboardScreenAdapter::rowsHeight() const {
    const DisplayHistoryTableViewController* table = m_controller->displayTableViewController();
    return table ? table->numberOfRows() * table->rowHeight() : 0;
}

bool KeyboardScreenAdapter::isTipShown() const {
    const DisplayHistoryTableViewController* table = m_controller->displayTableViewController();
    return table && table->nTipCells() > 0;
}

LabelAdapter KeyboardScreenAdapter::tip() const {
    const DisplayHistoryTableViewController* table = m_controller->displayTableViewController();
    return table ? LabelAdapter(table->tipCell(view().size().width).tipLabel()) : LabelAdapter();
}

LabelAdapter KeyboardScreenAdapter::rowInput() const {
    return LabelAdapter(plainRow(*m_controller, view().size().width).inputLabel());
}

LabelAdapter KeyboardScreenAdapter::rowOutput() const {
    return LabelAdapter(plainRow(*m_controller, view().size().width).outputLabel());
}

QRectF KeyboardScreenAdapter::rowLeftButton() const {
    return toQRectF(plainRow(*m_controller, view().size().width).leftButton().frame);
}

QRectF KeyboardScreenAdapter::rowRightButton() const {
    return toQRectF(plainRow(*m_controller, view().size().width).rightButton().frame);
}

LabelAdapter KeyboardScreenAdapter::entry() const {
    return LabelAdapter(view().currentEntryLabel().record());
}

QString KeyboardScreenAdapter::entryLines() const {
    return QString::fromStdString(view().currentEntryLines());
}

bool KeyboardScreenAdapter::isCursorAtEnd() const { return view().isCursorAtEndOfEntry(); }

LabelAdapter KeyboardScreenAdapter::angleSign() const { return LabelAdapter(view().angleSign()); }

bool KeyboardScreenAdapter::isAngleSignShown() const { return !view().angleSign().hidden; }

QString KeyboardScreenAdapter::angleModeName() const {
    return QString::fromStdString(Model::m().angleModeAsString());
}

QString KeyboardScreenAdapter::wholeLine() const {
    return QString::fromStdString(view().entryText().whole());
}

bool KeyboardScreenAdapter::isPasteOffered() const { return KeyboardViewController::canPaste(); }

QString KeyboardScreenAdapter::hint() const {
    const DisplayHistoryTableViewController* table = m_controller->displayTableViewController();
    return table ? QString::fromStdString(table->hint()) : QString();
}

bool KeyboardScreenAdapter::isEditMenuShown() const { return view().currentEntryLabel().showsMenu(); }

QRectF KeyboardScreenAdapter::editMenuTarget() const {
    return toQRectF(view().currentEntryLabel().menuTarget());
}

// What the user does.

void KeyboardScreenAdapter::setViewSize(QSizeF size) {
    const ActionScope action;
    view().setSize(size.width(), size.height());
}

void KeyboardScreenAdapter::pressKey(int row) { m_keys.press(row); }

void KeyboardScreenAdapter::tapHistoryRow(int row, bool left) {
    if (const DisplayHistoryTableViewController* table = m_controller->displayTableViewController()) {
        const ActionScope action;
        table->historyCell(row + table->nTipCells(), view().size().width).buttonPressed(left);
    }
}

void KeyboardScreenAdapter::copyHistoryRow(int row, bool left) {
    if (const DisplayHistoryTableViewController* table = m_controller->displayTableViewController()) {
        table->copyFromRow(row + table->nTipCells(), left);
    }
}

void KeyboardScreenAdapter::tapEntryLine(double x, double y) {
    const ActionScope action;
    m_controller->entryLineTapped({x, y});
}

void KeyboardScreenAdapter::openEditMenu() {
    const ActionScope action;
    view().currentEntryLabel().doubleTapped();
}

void KeyboardScreenAdapter::closeEditMenu() {
    const ActionScope action;
    view().currentEntryLabel().tapped();
}

void KeyboardScreenAdapter::copy() {
    const ActionScope action;
    if (m_controller->finishTypedName()) {
        view().currentEntryLabel().perform(EditCommand::Copy);
    }
}

void KeyboardScreenAdapter::paste() {
    const ActionScope action;
    view().currentEntryLabel().tapped(); // the menu has done its work
    m_controller->paste();
}

void KeyboardScreenAdapter::switchAngleMode() {
    const ActionScope action;
    m_controller->switchAngleMode();
}

void KeyboardScreenAdapter::undoOffer() {
    const ActionScope action;
    m_controller->bringHistoryBack();
}

bool KeyboardScreenAdapter::pressHardwareKey(int key, const QString& text, int modifiers) {
    const ActionScope action;
    if ((modifiers & Qt::ControlModifier) != 0 && pressShortcut(key, modifiers)) {
        return true;
    }
    const std::string name = hardwareKeyName(key, text, modifiers);
    return !name.empty() && m_controller->hardwareKey(name);
}

bool KeyboardScreenAdapter::pressShortcut(int key, int modifiers) {
    const bool withShift = (modifiers & Qt::ShiftModifier) != 0;
    switch (key) {
    case Qt::Key_C:
        copy();
        return true;
    case Qt::Key_Z:
        withShift ? m_controller->redo() : m_controller->undo();
        return true;
    case Qt::Key_Y:
        m_controller->redo();
        return true;
    case Qt::Key_V:
        paste();
        return true;
    default:
        return false;
    }
}

// What the controller tells.

void KeyboardScreenAdapter::reloadHistory() {
    // The frames of the rows first: rows that come are drawn with them.
    Q_EMIT historyRefreshed();
    m_history.reload();
}

void KeyboardScreenAdapter::scrollHistoryToEnd(bool animated) { Q_EMIT scrolledToEnd(animated); }

void KeyboardScreenAdapter::showEntry() { Q_EMIT entryRefreshed(); }

void KeyboardScreenAdapter::showEqualsKey() { m_keys.refreshEqualsKey(); }

void KeyboardScreenAdapter::showChosenSign() { m_keys.refresh(); }

void KeyboardScreenAdapter::keysChanged() { m_keys.exchange(); }

void KeyboardScreenAdapter::layoutChanged() {
    m_keys.refresh();
    Q_EMIT layoutRefreshed();
    Q_EMIT entryRefreshed();
    Q_EMIT editMenuRefreshed();
}

void KeyboardScreenAdapter::showEditMenu(bool /*shown*/) { Q_EMIT editMenuRefreshed(); }

void KeyboardScreenAdapter::showNotice(const std::string& text) {
    Q_EMIT notice(QString::fromStdString(text));
}

void KeyboardScreenAdapter::offerUndo(const std::string& text, double seconds) {
    Q_EMIT undoOffered(QString::fromStdString(text), seconds);
}

} // namespace velmora
