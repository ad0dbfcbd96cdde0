#pragma once

#include <QQuickImageProvider>
#include <QUrl>

#include <string>

namespace velmora {

/// Drawn at the size in which it is shown, so it is sharp at every scale:
///   "button" and a colour class, "buttonBTall": the face of a key, with kPressedSuffix while it is pressed;
///   "panel": the rounded ground of what floats over a screen;
///   "root", "calculator.png": signs, in white;
///   "lengthicon", "swap": the picture in the file of that name in resources/pictures.
/// An "@2x" in a name asks for what is done here anyway and is left out.
inline constexpr const char* kPressedSuffix = "-pressed";

/// Where QML finds artwork. QML asks for a size in points; it is drawn for a scene that is scaled so, and
/// corners and strokes follow the pixels that a point has.
QUrl artworkUrl(const std::string& name, double sceneScale, double pixelsPerPoint);

/// Serves artwork to QML. An unknown name is logged and empty.
class Artwork final : public QQuickImageProvider {
public:
    static constexpr const char* kProviderName = "artwork";

    Artwork() : QQuickImageProvider(QQuickImageProvider::Image) {}
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace velmora
