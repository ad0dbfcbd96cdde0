#include "calculator/model/ModelFile.h"

#include "calculator/model/Model.h"
#include "calculator/model/ModelArchive.h"
#include "platform/machine/Alert.h"
#include "platform/machine/DocumentsFolder.h"
#include "platform/machine/StandardStreams.h"
#include "tests/engine/TokenLine.h"
#include "tests/platform/files/TemporaryFolder.h"
#include "tests/platform/text/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sys/resource.h>

namespace velmora {
namespace {

namespace fs = std::filesystem;

/// A model that starts and saves in a folder, and is told apart from an earlier run by its lines.
class ModelFileTest : public testing::Test {
protected:
    ModelFileTest() { start(); }
    ~ModelFileTest() override { Model::resetForTests(); }

    Model& start() {
        Model::resetForTests();
        alerts.clear();
        Model::m().load();
        return Model::m();
    }
    static void enter(const std::string& line) {
        Model::m().history().addExpressionTokenArray(tokens(line));
        Model::m().history().entryAtIndex(Model::m().history().nExpressions() - 1)->keepResult();
    }
    static std::string lines() {
        std::string lines;
        for (int row = 0; row < Model::m().history().nExpressions(); ++row) {
            lines += (row ? ", " : "") + Model::m().history().expressionString(row);
        }
        return lines;
    }
    std::string lastTitle() const { return alerts.alerts().empty() ? "" : alerts.alerts().back().title; }
    std::string lastMessage() const { return alerts.alerts().empty() ? "" : alerts.alerts().back().message; }

    TemporaryFolder home;
    LogRecorder log;
    RecordingAlertPresenter alerts;
    AlertPresenterScope alertScope{alerts};
    PlainDocumentsFolder folder{home.path() / "data"};
    DocumentsFolderScope folderScope{folder};
    fs::path data = home.path() / "data";
    fs::path file = data / "Calculator archive";
};

TEST_F(ModelFileTest, tellsUnderWhichNameADamagedFileIsKept) {
    enter("1 + 2");
    Model::m().save();
    std::fstream(file, std::ios::in | std::ios::out | std::ios::binary).seekp(-60, std::ios::end).put('\0');
    start();
    EXPECT_EQ(lastTitle(), "The saved file was damaged");
    EXPECT_THAT(lastMessage(), testing::HasSubstr("\"Calculator archive (damaged)\" in " + data.string()));
    EXPECT_TRUE(fs::exists(data / "Calculator archive (damaged)"));
    start();
    EXPECT_EQ(lastTitle(), "") << "told once";
}

TEST_F(ModelFileTest, aWrongDigestLosesNoLineThatCanBeRead) {
    enter("1 + 2");
    Model::m().save();
    PropertyDictionary content = *KeptFile(file).read("").content;
    content["displayDigitsKey"] = 7;
    content["ContentDigestKey"] = 1;
    const PropertyData bytes = binaryPropertyList(content);
    writeFileAtomically(file, bytes);
    start();
    EXPECT_EQ(lines(), "1+2");
    EXPECT_EQ(lastTitle(), "The saved file was damaged");
    EXPECT_THAT(lastMessage(), testing::HasSubstr("What could be read of it has been loaded"));
    Model::m().save();
    start();
    EXPECT_EQ(lines(), "1+2");
    EXPECT_EQ(lastTitle(), "");
}

TEST_F(ModelFileTest, aFolderThatComesLateKeepsItsLinesAndGetsTheNewOnes) {
    enter("1 + 2");
    Model::m().equations().setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("x")), false);
    Model::m().setDisplayDigits(7);
    Model::m().save();
    fs::rename(data, home.path() / "unmounted");
    start();
    enter("3 + 4");
    Model::m().setAngleMode(1);
    Model::m().equations().setExpressionAtIndex(1, ExpressionWithTokenArray(tokens("x 2")), false);
    fs::remove_all(data); // made by the start, as at a first one
    fs::rename(home.path() / "unmounted", data);
    int replaced = 0;
    const Subscription subscription = Model::m().replaced().subscribe([&] { ++replaced; });
    Model::m().save();
    EXPECT_EQ(replaced, 1) << "screens show what has come";
    for (const bool again : {false, true}) {
        const Model& model = again ? start() : Model::m();
        EXPECT_EQ(lines(), "1+2, 3+4");
        EXPECT_EQ(model.displayDigits(), 7);
        EXPECT_EQ(model.angleMode(), 1);
        EXPECT_EQ(Model::m().equations().expressionString(0), "x");
        EXPECT_EQ(Model::m().equations().expressionString(1), "x2");
    }
}

TEST_F(ModelFileTest, nothingIsSavedOverAFileThatCannotBeReached) {
    enter("1 + 2");
    Model::m().save();
    fs::rename(file, home.path() / "away");
    fs::create_symlink(home.path() / "target", file); // which leads nowhere today
    start();
    EXPECT_EQ(lastTitle(), "Saved work cannot be read");
    EXPECT_THAT(lastMessage(), testing::HasSubstr(file.string()));
    enter("3 + 4");
    Model::m().save();
    Model::m().save();
    EXPECT_EQ(alerts.alerts().size(), 1U) << "told once";
    EXPECT_FALSE(fs::exists(home.path() / "target"));
    fs::rename(home.path() / "away", home.path() / "target");
    Model::m().save();
    EXPECT_EQ(lastTitle(), "Saved");
    EXPECT_TRUE(fs::is_symlink(file));
    start();
    EXPECT_EQ(lines(), "1+2, 3+4");

    fs::remove(home.path() / "target");
    start();
    enter("5");
    EXPECT_TRUE(alerts.choose(1)); // "Start anew"
    EXPECT_TRUE(fs::exists(home.path() / "target"));
    start();
    EXPECT_EQ(lines(), "5");
}

TEST_F(ModelFileTest, theSecondOfTwoCopiesSaysSoAndLosesNothing) {
    enter("1");
    Model::m().save();
    PropertyDictionary others = *KeptFile(file).read("").content;
    Model::resetForTests();
    {
        FolderLock firstCopy;
        ASSERT_TRUE(firstCopy.take(data));
        start();
        EXPECT_EQ(lastTitle(), "Velmora is already open");
        enter("2");
        Model::m().save();
        EXPECT_EQ(alerts.alerts().size(), 1U);
        EXPECT_EQ(KeptFile(file).read("").content, others);
        // The first copy adds a line of its own and ends.
        PropertyArray history = *others["ModelHistoryTokenArrays"].asArray();
        history.push_back(PropertyArray{"9"});
        others["ModelHistoryTokenArrays"] = history;
        KeptFile theirs(file);
        static_cast<void>(theirs.read(""));
        ASSERT_TRUE(theirs.write(others));
    }
    Model::m().save();
    EXPECT_EQ(lastTitle(), "Saved");
    start();
    EXPECT_EQ(lines(), "1, 9, 2");
}

TEST_F(ModelFileTest, aFailedSaveIsToldAndTriedAgain) {
    enter("1");
    Model::m().save();
    secureStandardStreams(); // without which the limit would end the program
    rlimit former{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &former), 0);
    const rlimit small{100, former.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0); // a disk that is full
    enter("2");
    Model::m().save();
    Model::m().save();
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &former), 0);
    ASSERT_EQ(alerts.alerts().size(), 1U) << "told once";
    EXPECT_EQ(lastTitle(), "Not saved");
    EXPECT_EQ(KeptFile(file).read("").state, KeptFile::State::Read) << "what was saved before";
    Model::m().save();
    EXPECT_EQ(lastTitle(), "Saved");
    start();
    EXPECT_EQ(lines(), "1, 2");
}

TEST_F(ModelFileTest, aTabletsDisplayIsNotForgottenByAPhonesWindow) {
    PlainDevice device(DeviceClass::Tablet);
    const DeviceScope scope(device);
    start().setDisplayMode(0);
    device.setDeviceClass(DeviceClass::Phone);
    Model::m().save();
    EXPECT_EQ(KeptFile(file).read("").content->at("displayModeEnumKey"), PropertyList(4));
    start();
    device.setDeviceClass(DeviceClass::Tablet);
    EXPECT_EQ(Model::m().displayMode(), 0);
}

TEST_F(ModelFileTest, aLineOfAHundredThousandTokensIsKept) {
    TokenArray line;
    for (int token = 0; token < 50'000; ++token) {
        line.emplace_back(Token("1"));
        line.emplace_back(Token("+"));
    }
    Model::m().history().addExpressionTokenArray(line);
    Model::m().save();
    start();
    ASSERT_EQ(Model::m().history().nExpressions(), 1);
    EXPECT_EQ(Model::m().history().expressionTokenArray(0)->size(), line.size());
}

} // namespace
} // namespace velmora
