#include "platform/machine/Sound.h"

namespace velmora {

namespace {

class SilentSoundPlayer final : public SoundPlayer {
public:
    void setCategory(std::string_view) override {}
    void preload(std::string_view) override {}
    void play(std::string_view, double) override {}
};

} // namespace

SoundPlayer& soundPlayer() {
    static SilentSoundPlayer silent;
    return SoundPlayerScope::installedOr(silent);
}

} // namespace velmora
