#include "ui/painting/SystemFont.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QScreen>

namespace velmora {

namespace {

// A face made for screens where the machine has it.
constexpr const char* kPreferredFamily = "Inter";

// The key faces ask for this one; where it is missing its stand-ins differ much in width, so it is the
// system font, and keys and lines look alike.
constexpr std::string_view kKeyFontName = "Helvetica";
constexpr std::string_view kBoldFontName = "Helvetica-Bold";

constexpr double kTypographicPointsPerInch = 72;

double dotsPerInch() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->logicalDotsPerInchY() : kTypographicPointsPerInch;
}

} // namespace

QString systemFontFamily() {
    static const QString family = [] {
        const QString found = QFontInfo(QFont(QString::fromLatin1(kPreferredFamily))).family();
        return found == QLatin1String(kPreferredFamily) ? found : QFontInfo(QFont()).family();
    }();
    return family;
}

QFont sceneFont(std::string_view name, double size) {
    const bool isSystemFont = name.empty() || name == kKeyFontName || name == kBoldFontName;
    QFont font(isSystemFont ? systemFontFamily() : QString::fromUtf8(name.data(), qsizetype(name.size())));
    font.setBold(name == kBoldFontName);
    // A font's own unit is 1/72 inch; the scene's point is a pixel before scaling. Only this way keeps
    // fractions of a size.
    font.setPointSizeF(size > 0 ? size * kTypographicPointsPerInch / dotsPerInch() : 1);
    // Scaled text has its widths in proportion to its size, which hinting would spoil.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace velmora
