#pragma once

#include "platform/screens/Geometry.h"

#include <string>

namespace velmora {

/// A plain button: a place on the screen with a text.
class Button {
public:
    explicit Button(const Rect& frame) : m_frame(frame) {}
    virtual ~Button() = default;
    Button(const Button&) = delete;
    Button& operator=(const Button&) = delete;

    const Rect& frame() const { return m_frame; }
    void setFrame(const Rect& frame) { m_frame = frame; }
    /// The visible text.
    virtual std::string titleString() const { return m_title; }
    virtual void setTitleString(const std::string& title) { m_title = title; }

private:
    Rect m_frame;
    std::string m_title;
};

} // namespace velmora
