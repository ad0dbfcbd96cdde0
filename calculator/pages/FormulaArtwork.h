#pragma once

#include "calculator/pages/VectorPath.h"
#include "platform/screens/Geometry.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A formula as it is drawn, read aloud and copied. Lengths are in thousandths of the type size, y upward
/// from the line that the formula stands on.
struct FormulaArtwork {
    struct Glyph {
        std::string name;
        Point origin;
        double scaleX = 1;
        double scaleY = 1;
        std::optional<Rect> visiblePart{}; ///< all of it, if nothing
    };

    std::string texHash; ///< hashOfTex of what it was made from
    double width = 0;
    double ascent = 0;
    double descent = 0;
    std::string plain;
    std::string spoken;
    std::vector<Glyph> glyphs;
    std::vector<Rect> rules; ///< bars of fractions and roots, from their lower left corner
};

/// The artwork of a page's formulas in their order, from the resource "NAME.formulas" (made by
/// scripts/make-formulas.sh), which holds for each
///
///     formula HASH WIDTH ASCENT DESCENT
///     plain TEXT
///     spoken TEXT
///     draw STEPS
///
/// where the steps are "NAME x y" for a glyph, "r x y w h" for a rule, and before a glyph "s scale" (for it
/// and those behind it), "z scaleX scaleY" (for it alone) and "c x y w h" (only that part shows).
/// A page without formulas has no such resource and gives none.
std::vector<FormulaArtwork> loadFormulaArtwork(const std::string& pageName);

/// FNV-1a with 64 bits of the text's bytes, in 16 hexadecimal digits.
std::string hashOfTex(std::string_view tex);

/// The outlines of the glyphs that formulas share, in the same units. Each is read when it is first asked
/// for and kept as long as the table.
class GlyphOutlines {
public:
    /// The table in the resource "Glyphs.outlines": a line "NAME OUTLINE" a glyph.
    GlyphOutlines();

    /// Null for a name that the table lacks.
    const VectorPath* find(const std::string& name);

private:
    std::map<std::string_view, std::string_view, std::less<>> m_texts;
    std::map<std::string, VectorPath, std::less<>> m_paths;
};

} // namespace velmora
