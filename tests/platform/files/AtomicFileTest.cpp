#include "platform/files/AtomicFile.h"

#include "platform/files/FileReading.h"
#include "platform/machine/DocumentsFolder.h"
#include "tests/platform/files/TemporaryFolder.h"
#include "tests/platform/text/LogRecorder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace velmora {
namespace {

namespace fs = std::filesystem;

std::ptrdiff_t entryCount(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

std::string bytesOf(const fs::path& file) { return readFile(file, 1'000'000).bytes; }

TEST(AtomicFile, replacesTheWholeFileAndLeavesNoOther) {
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "Calculator archive θ";
    ASSERT_TRUE(writeFileAtomically(file, "former"));
    std::ifstream reader(file, std::ios::binary);
    for (const std::string& content : {std::string("longer than what follows"), std::string("\0\xFF\n", 3),
                                       std::string(), std::string(300'000, 'x')}) {
        EXPECT_TRUE(writeFileAtomically(file, content));
        EXPECT_EQ(bytesOf(file), content);
        EXPECT_EQ(entryCount(folder.path()), 1);
    }
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "former")
        << "a reader keeps its bytes";
}

TEST(AtomicFile, leavesEverythingAsItWasOnFailure) {
    const TemporaryFolder folder;
    const LogRecorder log;
    EXPECT_FALSE(writeFileAtomically(folder.path() / "missing" / "file", "bytes"));
    // A folder that holds something cannot be replaced by a file.
    fs::create_directories(folder.path() / "taken" / "inner");
    EXPECT_FALSE(writeFileAtomically(folder.path() / "taken", "bytes"));
    EXPECT_TRUE(fs::is_directory(folder.path() / "taken" / "inner"));
    EXPECT_EQ(entryCount(folder.path()), 1) << "no temporary file may stay behind";
    EXPECT_EQ(log.lines().size(), 2U);
}

TEST(AtomicFile, setsDamagedFilesAsideOneByOne) {
    const TemporaryFolder folder;
    const LogRecorder log;
    const fs::path file = folder.path() / "archive";
    const char* names[] = {"archive (damaged)", "archive (damaged 2)", "archive (damaged 3)"};
    for (const char* name : names) {
        ASSERT_TRUE(writeFileAtomically(file, name));
        EXPECT_EQ(setAsideDamagedFile(file), folder.path() / name);
    }
    for (const char* name : names) {
        EXPECT_EQ(bytesOf(folder.path() / name), name);
    }
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(setAsideDamagedFile(file), std::nullopt);
    EXPECT_EQ(log.lines().size(), 1U);
    EXPECT_EQ(entryCount(folder.path()), 3);
}

TEST(AtomicFile, clearsAwayWhatAKilledWriterLeft) {
    const TemporaryFolder folder;
    for (const char* name : {"state.aB3dE9", "state.aB3dE", "other.aB3dE9", "state.young9"}) {
        std::ofstream(folder.path() / name) << name;
        const auto age = std::chrono::minutes(name == std::string("state.young9") ? 0 : 60);
        fs::last_write_time(folder.path() / name, fs::file_time_type::clock::now() - age);
    }
    EXPECT_TRUE(writeFileAtomically(folder.path() / "state", "new"));
    EXPECT_FALSE(fs::exists(folder.path() / "state.aB3dE9"));
    EXPECT_EQ(entryCount(folder.path()), 4) << "no other, nor what may still be written to";
}

TEST(DocumentsFolder, isMadeWhenAskedForAndAbsentByDefault) {
    EXPECT_EQ(documentPath("file"), std::nullopt);
    const TemporaryFolder folder;
    PlainDocumentsFolder documents(folder.path() / "a" / "b");
    const DocumentsFolderScope scope(documents);
    EXPECT_EQ(documentPath("Zustand θ"), folder.path() / "a" / "b" / "Zustand θ");
    EXPECT_TRUE(fs::is_directory(folder.path() / "a" / "b"));
    const LogRecorder log;
    ASSERT_TRUE(writeFileAtomically(folder.path() / "file", "in the way"));
    PlainDocumentsFolder blocked(folder.path() / "file");
    const DocumentsFolderScope blockedScope(blocked);
    EXPECT_EQ(documentsFolder(), std::nullopt);
    EXPECT_EQ(log.lines().size(), 1U);
}

} // namespace
} // namespace velmora
