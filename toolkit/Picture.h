#pragma once

#include "platform/events/Signal.h"
#include "platform/screens/DrawingContext.h"
#include "toolkit/LabelRecord.h"

#include <vector>

namespace velmora {

/// A drawing with labels on a ground of its own, of whatever size the screen has for it.
class Picture {
public:
    virtual ~Picture() = default;

    Size size() const { return m_size; }
    void setSize(Size size) { m_size = size; }

    virtual Color backgroundColor() const = 0;
    virtual void draw(DrawingContext& context) const = 0;
    /// Written over the drawing, in this order.
    virtual std::vector<LabelRecord> labels() const = 0;

    /// Emitted when it is to be drawn anew.
    Signal<>& changed() { return m_changed; }

private:
    Size m_size;
    Signal<> m_changed;
};

} // namespace velmora
