// What the database and a backup hold after each call of the disk has failed, or has been the process's last.

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "estimates/cls_order.h"
#include "shell/backup.h"
#include "support/child.h"
#include "support/faulty_disk.h"
#include "support/files.h"
#include "support/record_test.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// --- Copies ----------------------------------------------------------------------------------------------------------

TEST(FileCopyTest, FollowsLinksKeepsPermissionsAndLeavesAloneWhatIsProtected) {
    const struct {
        const char* what;
        const char* from;
        const char* to;
        char copied;
    } rows[] = {
        {"through a link, over another user's file", "from", "link", 'y'},
        {"through a link to no file yet", "from", "dangling", 'y'},
        {"links in a circle", "from", "round", 'n'},
        {"over a device", "from", "device", 'n'},
        {"over a folder", "from", "shut", 'n'},
        {"a folder", "shut", "to", 'n'},
        {"a file that can't be read", "secret", "to", 'n'},
        {"over a write-protected file", "from", "locked", 'n'},
        {"into a write-protected folder", "from", "shut/to", 'n'},
    };
    const DataFolder data;
    const auto at = [&](const std::string& name) { return data.path() + "/" + name; };
    fs::permissions(data.path(), fs::perms(0777));
    write(at("to"), "old");
    fs::permissions(at("to"), fs::perms(0666));
    const Child user([&](auto say) {
        constexpr uid_t nobody = 65534;  // whom permissions bind
        if (geteuid() == 0 && setuid(nobody) != 0) return;
        umask(022);
        fs::create_directory(at("shut"));
        for (const auto& [name, permissions] :
             {std::pair{"from", 0640}, {"secret", 0000}, {"locked", 0444}, {"shut/to", 0666}, {"shut", 0555}}) {
            if (std::string_view(name) != "shut") write(at(name), name);
            fs::permissions(at(name), fs::perms(permissions));
        }
        for (const auto& [link, to] :
             {std::pair{"link", "to"}, {"dangling", "fresh"}, {"round", "round"}, {"device", "/dev/null"}})
            fs::create_symlink(to, at(link));
        FileSystem files;
        for (const auto& row : rows) say(copyFile(files, at(row.from), at(row.to)) ? 'y' : 'n');
        say(writeFile(files, at("report"), "report") ? 'y' : 'n');
    });
    for (const auto& row : rows) EXPECT_EQ(user.heard(), row.copied) << row.what;
    EXPECT_EQ(user.heard(), 'y') << "a report";
    for (const auto& [name, content, permissions] : {std::tuple{"to", "from", 0666},
                                                     {"fresh", "from", 0640},
                                                     {"locked", "locked", 0444},
                                                     {"report", "report", 0644}}) {
        EXPECT_EQ(bytes(at(name)), content);
        EXPECT_EQ(fs::status(at(name)).permissions(), fs::perms(permissions)) << name;
    }
    for (const char* link : {"link", "dangling", "device"}) EXPECT_TRUE(fs::is_symlink(at(link))) << link;
    fs::permissions(at("shut"), fs::perms(0777));
}

// --- The actions of the program --------------------------------------------------------------------------------------

// Answers every box, and notes its title.
class NotingHost : public TestHost {
public:
    using TestHost::TestHost;
    Answer box(std::string_view, std::string_view title, Buttons buttons) override {
        last = title;
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
    std::optional<std::string> askSaveName(std::string_view, std::string_view) override { return folder + "/mine.bak"; }
    std::optional<std::string> askOpenName(std::string_view) override { return folder + "/other.bak"; }
    std::string last;
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

void deleteEstimate(const DataAccess& access) {
    Mode screen;
    ClsOrder order(access, screen);
    order.OrderNo = 2;
    order.AddEditDel = "D";
    order.Delete();
}

struct Action {
    const char* name;
    void (*act)(const DataAccess& access, FileSystem& files);
    bool copies = false;  // a backup or a restore: no failure, and "Success" is the last box when all went well
};

class FaultTest : public ::testing::TestWithParam<Action> {
protected:
    FaultTest() {
        for (const DataFolder* one : {&calm, &hot}) {
            one->useEmpty();
            fs::copy_file(one->database(), one->path() + "/mine.bak");
            one->execute("insert into Rooms (Name) values ('Restored')");
            fs::rename(one->database(), one->path() + "/other.bak");
            one->useSample();
        }
        const Child writer([this](auto say) {
            sqlite3* handle = nullptr;
            sqlite3_open(hot.database().c_str(), &handle);
            sqlite3_exec(handle,
                         "pragma cache_size = 1; begin; update Category set CatName = 'half'; update Customer set "
                         "CustName = 'half'; update OrderInfo set Notes = hex(zeroblob(3000))",
                         nullptr, nullptr, nullptr);
            say('w');
        });
        EXPECT_EQ(writer.heard(), 'w');
    }

    // What the database and the backup hold, by the engine itself.
    std::string state() const {
        std::string all;
        for (const std::string& file : {folder.database(), folder.path() + "/mine.bak"}) {
            EXPECT_EQ(folder.rows("pragma integrity_check", file), Texts{"ok"}) << file;
            for (const std::string table :
                 {"OrderInfo", "OrderItem", "Item", "Category", "Customer", "Rooms", "BlankNotes"})
                for (const std::string& row : folder.rows("select rowid, * from " + table, file)) all += row + "\n";
        }
        return all;
    }

    struct Outcome {
        bool struck;
        bool well;
    };
    // What comes of a failure is done on the failing disk, too.
    bool act() {
        NotingHost host(folder.path());
        Store store;
        try {
            GetParam().act({host, store}, disk);
        } catch (const RuntimeFailure&) {
            EXPECT_FALSE(GetParam().copies);
            return false;
        }
        return !GetParam().copies || host.last == "Success";
    }
    void lay(const DataFolder& before) const {
        fs::remove_all(folder.path());
        fs::copy(before.path(), folder.path());
    }
    Outcome actOver(const DataFolder& before, Fault fault, int call) {
        lay(before);
        disk.arm(fault, call);
        const bool well = act();
        disk.disarm();
        return {disk.struck(), well};
    }
    Outcome actAndBeKilled(const DataFolder& before, int call) {
        const Child child([&](auto say) { say(actOver(before, Fault::Killed, call).well ? 'w' : 'f'); });
        const char sign = child.heard();
        return {sign == 0, sign == 'w'};
    }
    void startAnew() {
        NotingHost host(folder.path());
        Store store;
        Connection({host, store}).execute("insert into Units (Name) values ('anew')");
    }

    FaultyDisk disk;
    DataFolder calm;  // before the action
    DataFolder hot;   // the same, left by a process that was killed in the middle of a write
    DataFolder folder;
};

TEST_P(FaultTest, LeavesTheOldOrTheNew) {
    constexpr int never = 100000;
    lay(calm);
    const std::string before = state();
    EXPECT_TRUE(actOver(calm, Fault::Once, never).well);
    const std::string after = state();
    ASSERT_NE(before, after);
    const Texts files = filesIn(folder.path());

    for (const DataFolder* there : {&calm, &hot}) {
        // The calls that play a journal back are always the same.
        const int stride = there == &hot && !GetParam().copies ? 7 : 1;
        for (const auto& [fault, name] : {std::pair{Fault::Once, "once"},
                                          {Fault::Gone, "for good"},
                                          {Fault::Full, "full"},
                                          {Fault::Killed, "killed"}}) {
            int asBefore = 0;
            bool struck = true;
            for (int call = 1; struck; call += stride) {
                ASSERT_LT(call, 500);
                SCOPED_TRACE(std::string(name) + " at call " + std::to_string(call) +
                             (there == &hot ? " over a journal" : ""));
                const Outcome outcome =
                    fault == Fault::Killed ? actAndBeKilled(*there, call) : actOver(*there, fault, call);
                struck = outcome.struck;
                EXPECT_TRUE(struck || outcome.well);
                startAnew();
                const std::string now = state();
                asBefore += now == before;
                EXPECT_TRUE(now == after || (now == before && !outcome.well));
                Texts left = filesIn(folder.path());
                // A lost disk or a killed process may have kept a fresh file.
                if (fault == Fault::Killed || fault == Fault::Gone)
                    std::erase_if(left, [](const std::string& file) { return file.starts_with("Torvane-"); });
                EXPECT_EQ(left, files);
                if (GetParam().copies) {
                    EXPECT_TRUE(act());
                    EXPECT_TRUE(state() == after) << "when the user does it again";
                }
                if (HasFailure()) return;
            }
            EXPECT_GT(asBefore, 0);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Actions, FaultTest,
    ::testing::Values(Action{"backup", takeBackup, true}, Action{"restore", restoreBackup, true},
                      Action{"saveNewEstimate", [](const auto& with, auto&) { saveEstimate(with, "A", 77); }},
                      Action{"saveEditedEstimate", [](const auto& with, auto&) { saveEstimate(with, "E", 2); }},
                      Action{"deleteEstimate", [](const auto& with, auto&) { deleteEstimate(with); }}),
    [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace torvane
