#include "shell/program_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "files/file_copy.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;

class ProgramFolderTest : public ::testing::Test {
protected:
    ProgramFolderTest() {
        std::string made = ::testing::TempDir() + "program-folder-XXXXXX";
        root = ::mkdtemp(made.data());
        fs::create_directories(installed());
        for (const char* name : {"torvane", "Larkfen.mdb", "Sample.bak", "Merlin.ACS"}) write(installed() / name, "1");
    }
    ~ProgramFolderTest() override { fs::remove_all(root); }

    fs::path installed() const { return root / "lib"; }
    fs::path ofUser() const { return root / "home/data"; }
    std::string folder() { return programFolder(files, installed().string(), ofUser().string()); }
    static void write(const fs::path& file, const std::string& text) { std::ofstream(file) << text; }
    static std::string read(const fs::path& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    fs::path root;
    FileSystem files;
};

TEST_F(ProgramFolderTest, PortableKeepsAllBesideTheProgram) {
    EXPECT_EQ(folder(), installed());
    EXPECT_FALSE(fs::exists(ofUser()));
}

TEST_F(ProgramFolderTest, EachUserHasHisOwnData) {
    write(installed() / "per-user", "");
    // A first start that was cut short is made good.
    fs::create_directories(ofUser().string() + ".new");
    write(ofUser().string() + ".new/Larkfen.mdb.new", "half");
    EXPECT_EQ(folder(), ofUser());
    EXPECT_EQ(read(ofUser() / "Larkfen.mdb"), "1");
    EXPECT_FALSE(fs::is_symlink(ofUser() / "Larkfen.mdb"));
    EXPECT_FALSE(fs::exists(ofUser() / "torvane"));

    // An upgrade: new files come, the data and what took the place of a link stay.
    fs::remove(ofUser() / "Sample.bak");
    write(ofUser() / "Sample.bak", "my backup");
    for (const char* name : {"Larkfen.mdb", "Sample.bak", "Merlin.ACS", "Help", "Lost"}) write(installed() / name, "2");
    fs::create_symlink("nowhere", ofUser() / "Lost");
    fs::create_symlink("Help", ofUser() / "Help");  // round in circles: it can't be told where this one leads
    folder();
    EXPECT_EQ(read(ofUser() / "Larkfen.mdb"), "1");
    EXPECT_EQ(read(ofUser() / "Sample.bak"), "my backup");
    EXPECT_EQ(read(ofUser() / "Merlin.ACS"), "2");
    EXPECT_EQ(read(ofUser() / "Lost"), "2");
    EXPECT_EQ(fs::read_symlink(ofUser() / "Help"), "Help");
    // A database that the user has taken away is not replaced by an empty one.
    fs::remove(ofUser() / "Larkfen.mdb");
    folder();
    EXPECT_FALSE(fs::exists(ofUser() / "Larkfen.mdb"));
    // Nothing to copy, nothing made.
    fs::remove_all(ofUser());
    fs::remove(installed() / "Larkfen.mdb");
    folder();
    EXPECT_FALSE(fs::exists(ofUser()));
}

}  // namespace
}  // namespace torvane
