#include "platform/files/KeptFile.h"

#include "platform/files/FolderLock.h"
#include "tests/platform/files/TemporaryFolder.h"
#include "tests/platform/text/LogRecorder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sys/stat.h>

namespace velmora {
namespace {

namespace fs = std::filesystem;

using State = KeptFile::State;

class KeptFileTest : public testing::Test {
protected:
    static PropertyData bytesOf(const fs::path& path) {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static void put(const fs::path& path, const PropertyData& bytes) {
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }

    TemporaryFolder folder;
    LogRecorder log;
    fs::path path = folder.path() / "state";
    const PropertyDictionary state{{"text\xFF", "θ\xFF"},
                                   {"whole", -1},
                                   {"none", PropertyList()},
                                   {"list", PropertyArray{1.5, true, "", PropertyData{0, 255}}}};
};

TEST_F(KeptFileTest, bringsBackWhatWasWritten) {
    KeptFile writer(path);
    EXPECT_EQ(writer.read("catch").state, State::Absent);
    EXPECT_TRUE(writer.write(state));
    EXPECT_TRUE(writer.write({{"key", 1}}));
    EXPECT_TRUE(writer.write(state)) << "its own file";
    const auto writtenAt = fs::last_write_time(path);
    EXPECT_TRUE(writer.write(state));
    EXPECT_EQ(fs::last_write_time(path), writtenAt) << "the same is not written twice";
    const KeptFile::Reading reading = KeptFile(path).read("catch");
    EXPECT_EQ(reading.state, State::Read) << "the digest holds for what is not UTF-8 as well";
    EXPECT_EQ(reading.content->at("whole"), PropertyList(-1));
    put(path, binaryPropertyList(PropertyDictionary{{"key", 1}}));
    EXPECT_EQ(KeptFile(path).read("catch").state, State::Read) << "an earlier release wrote no digest";
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(KeptFileTest, noFlippedBitPassesForAnotherState) {
    KeptFile writer(path);
    static_cast<void>(writer.read("catch"));
    ASSERT_TRUE(writer.write(state));
    const PropertyDictionary whole = *KeptFile(path).read("catch").content;
    const PropertyData bytes = bytesOf(path);
    int damaged = 0;
    for (std::size_t i = 0; i < bytes.size() * 8; ++i) {
        PropertyData flipped = bytes;
        flipped[i / 8] ^= static_cast<std::uint8_t>(1U << (i % 8));
        put(path, flipped);
        const KeptFile::Reading reading = KeptFile(path).read("catch");
        if (reading.state == State::Read) {
            PropertyDictionary content = *reading.content;
            std::erase_if(content, [&](const auto& field) { return !whole.contains(field.first); });
            EXPECT_EQ(content, whole) << "bit " << i;
        } else {
            ASSERT_EQ(reading.state, State::SetAside);
            EXPECT_EQ(bytesOf(reading.keptAs), flipped);
            fs::remove(reading.keptAs);
            ++damaged;
        }
    }
    EXPECT_GT(damaged, 1000);
}

TEST_F(KeptFileTest, neverReplacesWhatItHasNotRead) {
    const PropertyDictionary other{{"other", 1}};
    KeptFile file(path);
    EXPECT_FALSE(file.write(state)) << "before it has looked";
    static_cast<void>(file.read("catch"));
    KeptFile second(path);
    static_cast<void>(second.read("catch"));
    ASSERT_TRUE(second.write(other));
    EXPECT_FALSE(file.write(state)) << "a file that came later, or another program's";
    EXPECT_EQ(file.read("catch").content, other);
    EXPECT_TRUE(file.write(state));
    EXPECT_FALSE(second.write(other));
}

TEST_F(KeptFileTest, aFileThatCannotBeReachedStaysWhereItIs) {
    // A link that leads nowhere, a circle of links, and a path through what is no folder: each may be whole
    // again tomorrow.
    fs::create_symlink(folder.path() / "away" / "state", path);
    fs::create_symlink(folder.path() / "circle", folder.path() / "circle");
    std::ofstream(folder.path() / "file") << "in the way";
    for (const fs::path& unreachable : {path, folder.path() / "circle", folder.path() / "file" / "state"}) {
        KeptFile file(unreachable);
        const KeptFile::Reading reading = file.read("catch");
        EXPECT_EQ(reading.state, State::Unreachable) << unreachable;
        EXPECT_FALSE(reading.reason.empty());
        EXPECT_FALSE(file.write(state));
    }
    fs::create_directory(folder.path() / "away");
    KeptFile file(path);
    static_cast<void>(file.read("catch"));
    file.giveUp();
    EXPECT_TRUE(file.write(state)) << "the user says so";
    EXPECT_TRUE(fs::is_symlink(path)) << "a link is followed";
    EXPECT_TRUE(file.write({{"key", 2}}));
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(KeptFile(folder.path() / "away" / "state").read("catch").content,
              (PropertyDictionary{{"key", 2}}));
}

TEST_F(KeptFileTest, setsAsideWhatIsNoFileOfItsOwn) {
    const auto makeFolder = [this] { fs::create_directories(path / "inner"); };
    const auto makePipe = [this] { ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0); };
    const auto linkToDamage = [this] {
        std::ofstream(folder.path() / "target") << "no list";
        fs::create_symlink("target", path);
    };
    const std::function<void()> obstacles[] = {makeFolder, makePipe,
                                               [this] { std::ofstream(path) << "bplist00"; }, linkToDamage};
    for (const auto& make : obstacles) {
        make();
        KeptFile file(path);
        const KeptFile::Reading reading = file.read("catch"); // which must not wait for a pipe
        EXPECT_EQ(reading.state, State::SetAside);
        EXPECT_TRUE(fs::exists(fs::symlink_status(reading.keptAs)));
        EXPECT_EQ(log.lines().back(), "catch");
        EXPECT_TRUE(file.write(state));
        EXPECT_EQ(KeptFile(path).read("catch").state, State::Read);
        if (!fs::is_symlink(path)) {
            fs::remove(path);
        }
    }
    EXPECT_TRUE(fs::is_symlink(path)) << "what the link leads to was damaged, not the link";
}

TEST_F(KeptFileTest, keepsToBoundsThatNoFileOfItsOwnReaches) {
    std::string keys = "<plist><dict>";
    for (int key = 0; key < 200'000; ++key) {
        keys += "<key>k" + std::to_string(key / 2) + "</key><true/>";
    }
    std::string references;
    for (int count = 0; count < 4'200'000; ++count) {
        references += "&amp;";
    }
    PropertyDictionary many;
    for (int key = 0; key < 5'000; ++key) {
        many[std::to_string(key)] = 1;
    }
    const PropertyData binary = binaryPropertyList(many);
    for (const std::string& bytes :
         {keys + "</dict></plist>", "<plist><string>" + references + "</string></plist>",
          std::string(binary.begin(), binary.end())}) {
        EXPECT_EQ(readPropertyList(bytes), std::nullopt);
    }
    std::ofstream(path).close();
    fs::resize_file(path, std::uintmax_t{1} << 40U); // without a block on the disk
    EXPECT_EQ(KeptFile(path).read("catch").state, State::SetAside);
}

TEST_F(KeptFileTest, aFolderIsLockedForOneCopyAtATime) {
    FolderLock second;
    {
        FolderLock first;
        EXPECT_TRUE(first.take(folder.path()));
        EXPECT_TRUE(first.take(folder.path())) << "it has it";
        EXPECT_FALSE(second.take(folder.path()));
    }
    EXPECT_TRUE(second.take(folder.path()));
    EXPECT_TRUE(FolderLock().take(folder.path() / "missing")) << "nothing to wait for";
}

} // namespace
} // namespace velmora
