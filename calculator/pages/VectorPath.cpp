#include "calculator/pages/VectorPath.h"

#include <charconv>
#include <optional>

namespace velmora {

namespace {

/// Takes numbers from the front of a text.
class NumberReader {
public:
    explicit NumberReader(std::string_view text) : m_text(text) {}

    void skipSeparators() {
        while (!m_text.empty() && (m_text.front() == ' ' || m_text.front() == ',')) {
            m_text.remove_prefix(1);
        }
    }
    std::optional<char> letter() {
        skipSeparators();
        if (m_text.empty() || m_text.front() < 'A' || m_text.front() > 'Z') {
            return std::nullopt;
        }
        const char letter = m_text.front();
        m_text.remove_prefix(1);
        return letter;
    }
    bool read(double& number) {
        skipSeparators();
        const auto [end, problem] = std::from_chars(m_text.data(), m_text.data() + m_text.size(), number);
        m_text.remove_prefix(static_cast<std::size_t>(end - m_text.data()));
        return problem == std::errc();
    }
    bool read(Point& point) { return read(point.x) && read(point.y); }
    bool isAtEnd() const { return m_text.empty(); }

private:
    std::string_view m_text;
};

Point mirrored(Point point, Point centre) { return {2 * centre.x - point.x, 2 * centre.y - point.y}; }

/// Where the pen is while an outline is read.
struct Pen {
    Point at;
    Point control; ///< of the last curve; where the pen is behind anything else
};

bool readStep(char command, NumberReader& reader, Pen& pen, VectorPath& path) {
    Point end = pen.at;
    Point control;
    switch (command) {
    case 'M':
    case 'L':
        if (!reader.read(end)) {
            return false;
        }
        command == 'M' ? path.moveTo(end) : path.lineTo(end);
        pen = {end, end};
        return true;
    case 'H':
    case 'V':
        if (!reader.read(command == 'H' ? end.x : end.y)) {
            return false;
        }
        path.lineTo(end);
        pen = {end, end};
        return true;
    case 'Q':
    case 'T':
        control = mirrored(pen.control, pen.at);
        if ((command == 'Q' && !reader.read(control)) || !reader.read(end)) {
            return false;
        }
        path.quadraticTo(control, end);
        pen = {end, control};
        return true;
    case 'Z':
        path.close();
        return true;
    default:
        return false;
    }
}

} // namespace

VectorPath vectorPathWithOutline(std::string_view outline) {
    VectorPath path;
    NumberReader reader(outline);
    Pen pen;
    char command = 0;
    while (true) {
        // A command may be followed by more numbers than it needs, and then is meant once more.
        if (const auto next = reader.letter()) {
            command = *next;
        } else if (command == 'Z') {
            return path;
        }
        if (reader.isAtEnd() && command != 'Z') {
            return path;
        }
        if (!readStep(command, reader, pen, path)) {
            return path;
        }
    }
}

} // namespace velmora
