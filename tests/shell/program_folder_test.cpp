#include "shell/program_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "files/file_copy.h"
#include "shell/folder_lock.h"
#include "support/data_folder.h"
#include "support/files.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;

class ProgramFolderTest : public ::testing::Test {
protected:
    ProgramFolderTest() {
        fs::create_directories(installed);
        install("1", {"torvane", "Larkfen.mdb", "Sample.bak", "Merlin.ACS"});
    }
    void install(std::string_view version, std::initializer_list<const char*> names) const {
        for (const char* name : names) write(installed / name, version);
    }
    std::string folder() { return programFolder(files, installed, ofUser); }
    std::string read(const char* name) const { return bytes(ofUser / name); }

    DataFolder root;
    fs::path installed = root.path() + "/lib";
    fs::path ofUser = root.path() + "/home/data";
    FileSystem files;
};

TEST_F(ProgramFolderTest, AllIsBesideTheProgramOrEachUserHasHisOwn) {
    EXPECT_EQ(folder(), installed);
    EXPECT_FALSE(fs::exists(ofUser));
    install("", {"per-user"});
    // A first start that was cut short is made good.
    fs::create_directories(ofUser.string() + ".new");
    write(ofUser.string() + ".new/Larkfen.mdb.new", "half");
    const auto owners = [](const fs::path& file) { return fs::status(file).permissions() & fs::perms::owner_all; };
    fs::permissions(installed / "Larkfen.mdb", fs::perms::owner_read);  // as packages deliver it
    EXPECT_EQ(folder(), ofUser);
    EXPECT_EQ(read("Larkfen.mdb"), "1");
    EXPECT_EQ(owners(ofUser / "Larkfen.mdb"), fs::perms::owner_read | fs::perms::owner_write);
    fs::permissions(installed / "Larkfen.mdb", fs::perms::owner_all);
    EXPECT_FALSE(fs::exists(ofUser / "torvane") || fs::exists(ofUser / "per-user"));

    // An upgrade: new files come, the data and what took the place of a link stay.
    fs::remove(ofUser / "Sample.bak");
    write(ofUser / "Sample.bak", "my backup");
    install("2", {"Larkfen.mdb", "Sample.bak", "Merlin.ACS", "Help", "Lost"});
    fs::create_symlink("nowhere", ofUser / "Lost");
    fs::create_symlink("Help", ofUser / "Help");  // round in circles: it can't be told where this one leads
    folder();
    EXPECT_EQ(read("Larkfen.mdb") + read("Sample.bak") + read("Merlin.ACS") + read("Lost"), "1my backup22");
    EXPECT_EQ(fs::read_symlink(ofUser / "Help"), "Help");
    // A database that the user has taken away is not replaced by an empty one.
    fs::remove(ofUser / "Larkfen.mdb");
    folder();
    EXPECT_FALSE(fs::exists(ofUser / "Larkfen.mdb"));
    // Nothing to copy, nothing made.
    fs::remove_all(ofUser);
    fs::remove(installed / "Larkfen.mdb");
    folder();
    EXPECT_FALSE(fs::exists(ofUser));
}

TEST(FolderLockTest, SeesAnotherCopyOnTheSameFolderAsLongAsItLives) {
    const DataFolder data;
    const DataFolder other;
    const auto taken = [](const std::string& folder) { return FolderLock(folder).previousInstance(); };
    {
        const FolderLock first(data.path());
        EXPECT_FALSE(first.previousInstance());
        EXPECT_TRUE(taken(data.path() + "/../" + fs::path(data.path()).filename().string()));
        EXPECT_FALSE(taken(other.path()));
    }
    EXPECT_FALSE(taken(data.path())) << "after the first has gone";
    EXPECT_FALSE(taken(data.path() + "/nowhere"));
}

}  // namespace
}  // namespace torvane
