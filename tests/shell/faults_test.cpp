// What the database and a backup hold after each call of the disk has failed, or has been the process's last.

#include <unistd.h>

#include <filesystem>

#include "estimates/cls_order.h"
#include "masters/cls_item.h"
#include "shell/backup.h"
#include "support/child.h"
#include "support/faulty_disk.h"
#include "support/files.h"
#include "support/record_test.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

void lay(const std::string& from, const std::string& to) {
    fs::copy_file(from, to, fs::copy_options::overwrite_existing);
}

// Takes away what a lost disk or a killed process has kept of a fresh file.
void sweep(const std::string& folder) {
    for (const std::string& name : filesIn(folder))
        if (name.starts_with("Torvane-")) fs::remove(folder + "/" + name);
}

constexpr Fault faults[] = {Fault::Once, Fault::Gone, Fault::Full, Fault::Killed};
const char* const faultNames[] = {"once", "for good", "full", "killed"};

// --- Copies ----------------------------------------------------------------------------------------------------------

TEST(FileCopyTest, KeepsPermissionsAndFollowsLinks) {
    const DataFolder data;
    const auto at = [&](const char* name) { return data.path() + "/" + name; };
    FileSystem files;
    write(at("from"), "new");
    write(at("to"), "old");
    fs::permissions(at("from"), fs::perms(0600));
    fs::permissions(at("to"), fs::perms(0640));
    fs::create_symlink("to", at("link"));
    fs::create_symlink("fresh", at("dangling"));
    fs::create_symlink("round", at("round"));
    fs::create_symlink("/dev/null", at("device"));
    EXPECT_TRUE(copyFile(files, at("from"), at("link")));
    EXPECT_TRUE(copyFile(files, at("from"), at("dangling")));
    for (const char* refused : {"round", "device", "."}) EXPECT_FALSE(copyFile(files, at("from"), at(refused)));
    EXPECT_FALSE(copyFile(files, data.path(), at("to")));
    EXPECT_EQ(bytes(at("to")) + bytes(at("fresh")), "newnew");
    EXPECT_EQ(fs::status(at("to")).permissions(), fs::perms(0640));
    EXPECT_EQ(fs::status(at("fresh")).permissions(), fs::perms(0600));
    for (const char* link : {"link", "dangling", "device"}) EXPECT_TRUE(fs::is_symlink(at(link))) << link;
}

TEST(FileCopyTest, LeavesAloneWhatIsProtected) {
    const DataFolder data;
    const auto at = [&](const std::string& name) { return data.path() + "/" + name; };
    fs::permissions(data.path(), fs::perms(0777));
    for (const char* folder : {"open", "shut"}) {
        fs::create_directory(at(folder));
        for (const char* name : {"/from", "/to", "/locked", "/secret"}) write(at(folder) + name, name);
        for (const char* name : {"", "/to"}) fs::permissions(at(folder) + name, fs::perms(0777));
        fs::permissions(at(folder) + "/locked", fs::perms(0444));
        fs::permissions(at(folder) + "/secret", fs::perms(0000));
    }
    fs::permissions(at("shut"), fs::perms(0555));
    const Child user([&](auto say) {
        constexpr uid_t nobody = 65534;  // whom permissions bind
        if (geteuid() == 0 && setuid(nobody) != 0) return;
        FileSystem files;
        for (const char* folder : {"open", "shut"}) {
            say(copyFile(files, at(folder) + "/from", at(folder) + "/to") ? 'y' : 'n');
            say(copyFile(files, at(folder) + "/from", at(folder) + "/locked") ? 'y' : 'n');
            say(copyFile(files, at(folder) + "/secret", at(folder) + "/to") ? 'y' : 'n');
        }
    });
    for (const char expected : std::string("ynnnnn")) EXPECT_EQ(user.heard(), expected);
    EXPECT_EQ(bytes(at("open/locked")) + bytes(at("shut/to")), "/locked/to");
    fs::permissions(at("shut"), fs::perms(0777));
}

// --- The actions of the program --------------------------------------------------------------------------------------

// Answers every box, and notes its title.
class NotingHost : public TestHost {
public:
    using TestHost::TestHost;
    Answer box(std::string_view, std::string_view title, Buttons buttons) override {
        said.emplace_back(title);
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
    std::optional<std::string> askSaveName(std::string_view, std::string_view) override { return folder + "/mine.bak"; }
    std::optional<std::string> askOpenName(std::string_view) override { return folder + "/other.bak"; }
    Texts said;
};

struct Mode : EstimateScreen {
    std::string mode;
    const std::string& estimateMode() const override { return mode; }
    void showEstimate() override {}
};

void saveEstimate(const DataAccess& access, const char* mode, std::int32_t number) {
    Mode screen;
    screen.mode = mode;
    ClsOrder order(access, screen);
    order.OrderNo = number;
    order.CustId = 3;
    order.OrderDate = {2024, 3, 15};
    order.Notes = "after";
    for (std::int64_t item = 1; item <= 20; ++item)
        order.ColnOrderItems().Add(item, 2.0, 1.25, std::int64_t{1}, std::int64_t{2}, 0.5, 1.5, 2.5);
    order.Save();
}

struct Action {
    const char* name;
    void (*act)(const DataAccess& access, FileSystem& files);
    bool copies = false;  // a backup or a restore: no failure, and "Success" is the last box when all went well
};
void PrintTo(const Action& action, std::ostream* out) {
    *out << action.name;
}

class FaultTest : public ::testing::TestWithParam<Action> {
protected:
    // The database, and it again as a process has left it that was killed in the middle of a write.
    FaultTest() {
        kept.useEmpty();
        lay(kept.database(), kept.path() + "/older");
        kept.execute("insert into Rooms (Name) values ('Restored')");
        lay(kept.database(), at("other.bak"));
        kept.useSample();
        lay(kept.database(), kept.path() + "/clean");
        Child writer([this](auto say) {
            sqlite3* handle = nullptr;
            sqlite3_open(kept.database().c_str(), &handle);
            sqlite3_exec(handle,
                         "pragma cache_size = 1; begin; update Category set CatName = 'half'; update Customer set "
                         "CustName = 'half'; update OrderInfo set Notes = hex(zeroblob(3000))",
                         nullptr, nullptr, nullptr);
            say('w');
        });
        EXPECT_EQ(writer.heard(), 'w');
        writer.kill();
        EXPECT_FALSE(bytes(kept.database()) == bytes(kept.path() + "/clean"));
        EXPECT_GT(fs::file_size(kept.database() + "-journal"), 4096U);
    }

    std::string at(const char* name) const { return folder.path() + "/" + name; }
    void putBack(bool hot) const {
        lay(kept.path() + "/older", at("mine.bak"));
        lay(hot ? kept.database() : kept.path() + "/clean", folder.database());
        fs::remove(folder.database() + "-journal");
        if (hot) lay(kept.database() + "-journal", folder.database() + "-journal");
    }
    Texts filesThere() const { return filesIn(folder.path()); }

    // All that the database and the backup hold, by the engine itself.
    std::string contentOf(const std::string& file) const {
        EXPECT_EQ(folder.rows("pragma integrity_check", file), Texts{"ok"}) << file;
        std::string all;
        for (const std::string table :
             {"OrderInfo", "OrderItem", "Item", "Category", "Customer", "Rooms", "BlankNotes"})
            for (const std::string& row : folder.rows("select rowid, * from " + table, file)) all += row + "\n";
        return all;
    }
    std::string state() const {
        return contentOf(folder.database()) + (GetParam().copies ? contentOf(at("mine.bak")) : "");
    }

    struct Outcome {
        bool struck = false;
        bool well = false;
    };
    // Acts over a database that stands open already and gets its content, perhaps with a journal, under it. What comes
    // of a failure is done on the failing disk.
    Outcome act(Fault fault, int call, bool hot) {
        Outcome outcome;
        {
            NotingHost host(folder.path());
            Store store;
            Connection main({host, store});
            putBack(hot);
            disk.arm(fault, call);
            try {
                GetParam().act({host, store}, disk);
                outcome.well = !GetParam().copies || (!host.said.empty() && host.said.back() == "Success");
            } catch (const RuntimeFailure&) {
                EXPECT_FALSE(GetParam().copies);
            }
            outcome.struck = disk.struck();
        }
        disk.disarm();
        return outcome;
    }
    Outcome actAndBeKilled(int call, bool hot) {
        Child child([&](auto say) { say(act(Fault::Killed, call, hot).well ? 'w' : 'f'); });
        const char sign = child.heard();
        child.kill();
        return {sign == 0, sign == 'w'};
    }
    // The next start of the program; the user does again what can be done again.
    void startAnew() {
        NotingHost host(folder.path());
        Store store;
        Connection main({host, store});
        main.execute("insert into Units (Name) values ('anew')");
        if (GetParam().copies) GetParam().act({host, store}, disk);
    }

    FaultyDisk disk;
    DataFolder kept;
    DataFolder folder;
};

TEST_P(FaultTest, LeavesTheOldOrTheNew) {
    putBack(false);
    const std::string before = state();
    EXPECT_TRUE(act(Fault::Once, 100000, false).well);
    const std::string after = state();
    ASSERT_NE(before, after);
    const Texts files = filesThere();

    for (const bool hot : {false, true}) {
        const int stride = hot && !GetParam().copies ? 7 : 1;  // the calls that play a journal back are always the same
        for (const Fault fault : faults) {
            int asBefore = 0;
            bool struck = true;
            for (int call = 1; struck; call += stride) {
                ASSERT_LT(call, 500);
                SCOPED_TRACE(std::string(faultNames[static_cast<int>(fault)]) + " at call " + std::to_string(call) +
                             (hot ? " over a journal" : ""));
                const Outcome outcome = fault == Fault::Killed ? actAndBeKilled(call, hot) : act(fault, call, hot);
                struck = outcome.struck;
                EXPECT_TRUE(struck || outcome.well);
                if (!GetParam().copies) startAnew();
                const std::string now = state();
                asBefore += now == before;
                EXPECT_TRUE(now == after || (now == before && !outcome.well));
                if (GetParam().copies) {
                    startAnew();
                    EXPECT_TRUE(state() == after);
                }
                if (fault == Fault::Killed || fault == Fault::Gone) sweep(folder.path());
                EXPECT_EQ(filesThere(), files);
                if (HasFailure()) return;
            }
            EXPECT_GT(asBefore, 0);
        }
    }
}

const Action copies[] = {{"backup", takeBackup, true}, {"restore", restoreBackup, true}};
const auto nameOfAction = [](const auto& one) { return std::string(one.param.name); };

INSTANTIATE_TEST_SUITE_P(Copies, FaultTest, ::testing::ValuesIn(copies), nameOfAction);
INSTANTIATE_TEST_SUITE_P(
    Actions, FaultTest,
    ::testing::Values(Action{"saveNewEstimate", [](const auto& with, auto&) { saveEstimate(with, "A", 77); }},
                      Action{"saveEditedEstimate", [](const auto& with, auto&) { saveEstimate(with, "E", 2); }},
                      Action{"deleteEstimate",
                             [](const auto& with, auto&) {
                                 Mode screen;
                                 ClsOrder order(with, screen);
                                 order.OrderNo = 2;
                                 order.AddEditDel = "D";
                                 order.Delete();
                             }},
                      Action{"writePriceBack",
                             [](const auto& with, auto&) { ClsItem(with).Updatematerialprice(1, "9.75"); }}),
    nameOfAction);

}  // namespace
}  // namespace torvane
