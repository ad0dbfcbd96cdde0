// The small services a machine offers: alerts, sounds, pasteboard and random numbers.

#include "platform/Alert.h"
#include "platform/Pasteboard.h"
#include "platform/RandomSource.h"
#include "platform/Sound.h"
#include "platform/StaticObjectManager.h"
#include "tests/platform/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Alert, waitsForAnAnswerInTheOrderPresented) {
    RecordingAlertPresenter presenter;
    const AlertPresenterScope scope(presenter);
    std::vector<int> answers;
    presentAlert({.title = "Choose", .buttons = {"Cancel", "Delete"}, .onChosen = [&](int button) {
                      EXPECT_THAT(presenter.alerts(), testing::SizeIs(1)) << "the answered one is gone";
                      answers.push_back(button);
                      presentAlert({.title = "Deleted"});
                  }});
    presentAlert({.title = "Note"});
    EXPECT_FALSE(presenter.choose(2) || presenter.choose(-1));
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_TRUE(presenter.choose(1));
    EXPECT_THAT(answers, ElementsAre(1));
    ASSERT_EQ(presenter.alerts().size(), 2U);
    EXPECT_EQ(presenter.alerts()[0].title, "Note");
    EXPECT_EQ(presenter.alerts()[1].title, "Deleted");
    EXPECT_TRUE(presenter.choose(0)) << "an alert without a callback has its OK";
}

TEST(Alert, isLoggedWhileNobodyCanShowIt) {
    const LogRecorder log;
    presentAlert({.title = "Title", .message = "Text"});
    EXPECT_THAT(log.lines(), ElementsAre("alert: Title: Text"));
}

TEST(StaticObjectManager, loadsEachSoundOnce) {
    StaticObjectManager& manager = StaticObjectManager::shared();
    manager.reset();
    RecordingSoundPlayer player;
    const SoundPlayerScope scope(player);
    manager.playSound("click");
    for (const double volume : {7.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        manager.playSound("click", volume);
    }
    manager.preloadSound("click");
    manager.preloadSound("chime");
    using Play = RecordingSoundPlayer::Play;
    EXPECT_THAT(player.preloaded(), ElementsAre("click", "chime"));
    EXPECT_THAT(player.played(),
                ElementsAre(Play{"click", 1}, Play{"click", 1}, Play{"click", 0}, Play{"click", 0}));
    manager.reset();
}

TEST(Pasteboard, holdsRepresentationsByType) {
    PlainPasteboard pasteboard;
    EXPECT_EQ(pasteboard.text(), std::nullopt);
    pasteboard.setItems(
        {{{"tokens", PropertyData{1}}}, {{"public.text", "2θ"}, {"tokens", PropertyData{2}}}});
    EXPECT_EQ(pasteboard.text(), "2θ");
    EXPECT_EQ(pasteboard.data("tokens"), PropertyData{1});
    EXPECT_EQ(pasteboard.data("public.text"), std::nullopt) << "text is not bytes";
    pasteboard.setText("new");
    EXPECT_EQ(pasteboard.text(), "new");
    EXPECT_EQ(pasteboard.data("tokens"), std::nullopt) << "copying replaces everything";
}

TEST(RandomSource, usesTheInstalledSourceForAScope) {
    {
        std::uint32_t next = 41;
        const RandomSourceScope scope([&] { return ++next; });
        EXPECT_EQ(randomNumber(), 42U);
        EXPECT_EQ(randomNumber(), 43U);
    }
    std::uint32_t everSet = 0;
    std::uint32_t alwaysSet = ~std::uint32_t{0};
    for (int draw = 0; draw < 200; ++draw) {
        const std::uint32_t number = randomNumber();
        everSet |= number;
        alwaysSet &= number;
    }
    EXPECT_TRUE(everSet == ~std::uint32_t{0} && alwaysSet == 0) << "all 32 bits vary";
}

} // namespace
} // namespace velmora
