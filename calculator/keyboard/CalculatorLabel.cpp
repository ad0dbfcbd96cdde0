#include "calculator/keyboard/CalculatorLabel.h"

#include "engine/lines/ExpressionWithTokenArray.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr double kMenuTargetSize = 10;
constexpr double kMenuTargetFromRightEnd = 30;
constexpr double kHighlightAlpha = 0.3;

} // namespace

void CalculatorLabel::update(bool edited) {
    if (onUpdate) {
        onUpdate(edited);
    }
}

bool CalculatorLabel::canPerformAction(EditCommand command) const {
    if (!m_model) {
        return false;
    }
    switch (command) {
    case EditCommand::Cut:
        return ExpressionWithTokenArray::canPerformCut();
    case EditCommand::Copy:
        return ExpressionWithTokenArray::canPerformCopy();
    case EditCommand::Paste:
        return ExpressionWithTokenArray::canPerformPaste();
    }
    return false;
}

bool CalculatorLabel::perform(EditCommand command) {
    if (!canPerformAction(command)) {
        return false;
    }
    switch (command) {
    case EditCommand::Cut:
        cut();
        break;
    case EditCommand::Copy:
        copy();
        break;
    case EditCommand::Paste:
        paste();
        break;
    }
    return true;
}

void CalculatorLabel::cut() {
    if (m_model) {
        m_model->cutToPasteboard();
    }
    resign();
    update(true);
}

void CalculatorLabel::copy() {
    if (m_model) {
        m_model->copyToPasteboard();
    }
    resign();
    update();
}

void CalculatorLabel::paste() {
    if (m_model) {
        m_model->paste();
    }
    resign();
    update();
}

void CalculatorLabel::doubleTapped() {
    highlight();
    m_showsMenu = true;
    if (onMenuChanged) {
        onMenuChanged();
    }
}

bool CalculatorLabel::tapped() {
    if (!m_showsMenu) {
        return false;
    }
    resign();
    return true;
}

Rect CalculatorLabel::menuTarget() const {
    const Rect& frame = m_record.frame;
    const double x = frame.x + frame.width - kMenuTargetFromRightEnd;
    return {std::max(x, frame.x), frame.y + (frame.height - kMenuTargetSize) / 2, kMenuTargetSize,
            kMenuTargetSize};
}

void CalculatorLabel::highlight() { m_record.backgroundColor.alpha = kHighlightAlpha; }

void CalculatorLabel::unHighlight() { m_record.backgroundColor.alpha = 1; }

void CalculatorLabel::resign() {
    unHighlight();
    if (m_showsMenu) {
        m_showsMenu = false;
        if (onMenuChanged) {
            onMenuChanged();
        }
    }
}

} // namespace velmora
