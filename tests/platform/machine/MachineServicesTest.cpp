// The small services a machine offers: alerts, sounds, pasteboard, random numbers,
// resources, savers and timers.

#include "platform/files/Resources.h"
#include "platform/files/SavingRegistry.h"
#include "platform/machine/Alert.h"
#include "platform/machine/Pasteboard.h"
#include "platform/machine/RandomSource.h"
#include "platform/machine/Sound.h"
#include "platform/machine/StaticObjectManager.h"
#include "platform/machine/Timer.h"
#include "tests/platform/text/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

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
    EXPECT_EQ(presenter.alerts().at(0).title + ", " + presenter.alerts().at(1).title, "Note, Deleted");
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
    for (const double volume : {7.0, -1.0, kNotANumber}) {
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

TEST(RandomSource, varies32Bits) {
    std::uint32_t everSet = 0;
    std::uint32_t alwaysSet = ~std::uint32_t{0};
    for (int draw = 0; draw < 200; ++draw) {
        const std::uint32_t number = randomNumber();
        everSet |= number;
        alwaysSet &= number;
    }
    EXPECT_TRUE(everSet == ~std::uint32_t{0} && alwaysSet == 0);
}

TEST(Resources, readPropertyListsAndLogWhatTheyCannot) {
    const ResourcesScope scope;
    const LogRecorder log;
    registerResource("Units.plist", "<plist version=\"1.0\"><array><true/></array></plist>");
    registerResource("Broken.plist", "<plist><array>");
    registerResource("Notes.txt", "plain θ");
    EXPECT_EQ(readPropertyListResource("Units.plist"), PropertyList(PropertyArray{true}));
    EXPECT_EQ(resourceText("Notes", "txt"), "plain θ");
    EXPECT_EQ(resourceText("Notes", "plist"), std::nullopt);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(readPropertyListResource("Broken.plist"), std::nullopt);
    EXPECT_EQ(readPropertyListResource("Absent.plist"), std::nullopt);
    EXPECT_THAT(log.lines(),
                ElementsAre("malformed resource: Broken.plist", "missing resource: Absent.plist"));
}

TEST(SavingRegistry, runsEachSaverOnceInOrder) {
    SavingRegistry& registry = SavingRegistry::shared();
    registry.reset();
    std::vector<std::string> saved;
    const auto saver = [&](const char* name) { return [&saved, name] { saved.emplace_back(name); }; };
    registry.registerSaver("converter", saver("former"));
    registry.registerSaver("late", [&] { registry.registerSaver("later", saver("later")); });
    registry.registerSaver("third", saver("third"));
    registry.registerSaver("last", saver("last"));
    registry.registerSaver("converter", saver("converter"));
    registry.saveAll();
    EXPECT_THAT(saved, ElementsAre("converter", "third", "last"));
    registry.reset();
    registry.saveAll();
    EXPECT_EQ(saved.size(), 3U);
}

class Timers : public testing::Test {
protected:
    Subscription start(double seconds, TimerKind kind, const std::string& name) {
        return startTimer(seconds, kind, [this, name] { fired.push_back(name); });
    }
    std::vector<std::string> advance(double seconds) {
        service.advance(seconds);
        return std::exchange(fired, {});
    }

    ManualTimerService service;
    TimerServiceScope scope{service};
    std::vector<std::string> fired;
};

TEST_F(Timers, fireWhenDueInOrder) {
    const Subscription late = start(2, TimerKind::OneShot, "late");
    const Subscription early = start(1, TimerKind::OneShot, "early");
    const Subscription repeating = start(0.75, TimerKind::Repeating, "tick");
    const Subscription alsoEarly = start(1, TimerKind::OneShot, "also early");
    { const Subscription stopped = start(0.5, TimerKind::OneShot, "stopped"); }
    EXPECT_THAT(advance(0.5), IsEmpty());
    EXPECT_THAT(advance(0.5), ElementsAre("tick", "early", "also early"));
    EXPECT_THAT(advance(2), ElementsAre("tick", "late", "tick", "tick"));
    EXPECT_EQ(service.pendingCount(), 1U);
}

TEST_F(Timers, mayStopThemselves) {
    Subscription ticking;
    ticking = startTimer(1, TimerKind::Repeating, [&] {
        fired.emplace_back("tick");
        if (fired.size() == 2) {
            ticking.cancel(); // frees the callback that is running
        }
    });
    EXPECT_THAT(advance(10), ElementsAre("tick", "tick"));
    EXPECT_EQ(service.pendingCount(), 0U);
}

TEST_F(Timers, bearUselessDelays) {
    const Subscription negative = start(-1, TimerKind::OneShot, "negative");
    const Subscription undefined = start(kNotANumber, TimerKind::OneShot, "undefined");
    EXPECT_THAT(advance(0), ElementsAre("negative", "undefined"));
    const Subscription frantic = start(0, TimerKind::Repeating, "frantic");
    EXPECT_EQ(advance(0.0105).size(), 10U);
    EXPECT_THAT(advance(kNotANumber), IsEmpty());
}

TEST(ManualTimerService, mayBeDestroyedByACallback) {
    auto service = std::make_unique<ManualTimerService>();
    int calls = 0;
    const Subscription subscription = service->start(1, TimerKind::OneShot, [&] {
        ++calls;
        service.reset();
    });
    service->advance(1);
    EXPECT_EQ(calls, 1);
}

} // namespace
} // namespace velmora
