// What is found by name: resources and savers; and keyed archives.

#include "platform/KeyedArchive.h"
#include "platform/Resources.h"
#include "platform/SavingRegistry.h"
#include "tests/platform/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using testing::ElementsAre;

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
    registry.registerSaver("last", saver("last"));
    registry.registerSaver("converter", saver("converter"));
    registry.saveAll();
    EXPECT_THAT(saved, ElementsAre("converter", "last"));
    registry.reset();
    registry.saveAll();
    EXPECT_EQ(saved.size(), 2U);
}

TEST(KeyedArchive, tellsAbsentFromZeroAndFromOtherTypes) {
    KeyedArchiver archiver;
    archiver.encode("zero", 0);
    archiver.encode("off", false);
    archiver.encode("empty", "");
    archiver.encode("half", 0.25);
    archiver.encode("half", 0.5);
    archiver.encode("none", PropertyList());
    archiver.encode("list", PropertyArray{1, 2});
    const auto read = readPropertyList(binaryPropertyList(archiver.propertyList()));
    ASSERT_TRUE(read);
    const KeyedUnarchiver unarchiver(*read);
    EXPECT_EQ(unarchiver.integer("zero"), 0);
    EXPECT_EQ(unarchiver.number("zero"), 0.0);
    EXPECT_EQ(unarchiver.boolean("off"), false);
    EXPECT_EQ(unarchiver.text("empty"), "");
    EXPECT_EQ(unarchiver.number("half"), 0.5); // the later one
    EXPECT_EQ(unarchiver.array("list")->size(), 2U);
    EXPECT_FALSE(unarchiver.boolean("zero") || unarchiver.integer("half") || unarchiver.number("empty"));
    EXPECT_FALSE(unarchiver.array("half") || unarchiver.text("off") || unarchiver.integer("absent"));
    EXPECT_FALSE(unarchiver.containsValueForKey("none") || unarchiver.containsValueForKey("absent"));
}

} // namespace
} // namespace velmora
