// What the database and a backup hold after each call of the disk has failed, or has been the process's last.

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <map>

#include "estimates/cls_order.h"
#include "files/file_copy.h"
#include "masters/cls_category.h"
#include "masters/cls_customer.h"
#include "masters/cls_master.h"
#include "shell/backup.h"
#include "support/child.h"
#include "support/files.h"
#include "support/record_test.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// What happens at a call of the disk: that call fails; it and all that follow fail; writes fail from there on; the
// process is killed. A write that fails, or in which the process dies, has written half.
enum class Fault { Once, Gone, Full, Killed };

// A disk that fails at its n-th call, be it SQLite's or one of the program's own copies. SQLite opens its files here as
// long as the object lives, one at a time; the engine's other disks are reached by their names. Nothing is flushed: no
// power fails.
class FaultyDisk : public FileSystem {
public:
    FaultyDisk() : vfs_(*real_) {
        disk = this;
        vfs_.zName = "faulty";
        vfs_.xOpen = openFile;
        vfs_.xDelete = [](sqlite3_vfs*, const char* name, int) {
            return disk->fails() ? SQLITE_IOERR_DELETE : disk->real_->xDelete(disk->real_, name, 0);
        };
        sqlite3_vfs_register(&vfs_, 1);
    }
    ~FaultyDisk() override { sqlite3_vfs_unregister(&vfs_); }

    // Counts from now on; the first call is 1. Fault::Full counts writes alone.
    void arm(Fault fault, int call) {
        fault_ = fault;
        left_ = call;
        armed_ = true;
    }
    // All is well from here on.
    void disarm() { armed_ = false; }
    // Whether the call has come.
    bool struck() const { return left_ <= 0; }

    int openToRead(const std::string& name) override { return fails() ? -1 : FileSystem::openToRead(name); }
    int openFresh(const std::string& beside, std::string& fresh) override {
        return fails() ? -1 : FileSystem::openFresh(beside, fresh);
    }
    long read(int file, char* bytes, std::size_t count) override {
        return fails() ? -1 : FileSystem::read(file, bytes, count);
    }
    bool write(int file, std::string_view bytes) override {
        const bool failing = fails([&] { FileSystem::write(file, bytes.substr(0, bytes.size() / 2)); }, true);
        return !failing && FileSystem::write(file, bytes);
    }
    bool sync(int) override { return !fails(); }
    bool rename(const std::string& from, const std::string& to) override {
        return !fails() && FileSystem::rename(from, to);
    }
    bool syncFolder(const std::string&) override { return !fails(); }
    bool remove(const std::string& name) override { return !fails() && FileSystem::remove(name); }

private:
    // Whether this call fails; `half` is what a failing call does all the same.
    template <class Half = void (*)()>
    bool fails(
        Half half = [] {}, bool writes = false) {
        if (!armed_ || (fault_ == Fault::Full && !writes)) return false;
        --left_;
        if (left_ > 0 || (left_ < 0 && fault_ == Fault::Once)) return false;
        half();
        if (fault_ == Fault::Killed) ::kill(getpid(), SIGKILL);
        return true;
    }

    static int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
        file->pMethods = nullptr;
        if (disk->fails()) return SQLITE_CANTOPEN;
        const int result = disk->real_->xOpen(disk->real_, name, file, flags, outFlags);
        if (result != SQLITE_OK) return result;
        sqlite3_io_methods& faulty = faultyOf[file->pMethods];
        real = faulty = *file->pMethods;
        faulty.iVersion = 1;
        faulty.xRead = [](sqlite3_file* from, void* into, int count, sqlite3_int64 at) {
            return disk->fails() ? SQLITE_IOERR_READ : real.xRead(from, into, count, at);
        };
        faulty.xWrite = [](sqlite3_file* to, const void* bytes, int count, sqlite3_int64 at) {
            const bool failing = disk->fails([&] { real.xWrite(to, bytes, count / 2, at); }, true);
            if (!failing) return real.xWrite(to, bytes, count, at);
            return disk->fault_ == Fault::Full ? SQLITE_FULL : SQLITE_IOERR_WRITE;
        };
        faulty.xTruncate = [](sqlite3_file* of, sqlite3_int64 size) {
            return disk->fails() ? SQLITE_IOERR_TRUNCATE : real.xTruncate(of, size);
        };
        faulty.xSync = [](sqlite3_file*, int) { return disk->fails() ? SQLITE_IOERR_FSYNC : SQLITE_OK; };
        file->pMethods = &faulty;
        return result;
    }

    static inline FaultyDisk* disk = nullptr;  // the one that stands
    static inline sqlite3_io_methods real;     // SQLite's own calls on an open file
    // Each kind of files, which lock in different ways, with ours in their place.
    static inline std::map<const sqlite3_io_methods*, sqlite3_io_methods> faultyOf;

    sqlite3_vfs* real_ = sqlite3_vfs_find(nullptr);
    sqlite3_vfs vfs_;
    Fault fault_ = Fault::Once;
    int left_ = 1;
    bool armed_ = false;
};

TEST(FileCopyTest, KeepsPermissionsAndLeavesAloneWhatIsProtected) {
    const DataFolder data;
    const auto at = [&](const std::string& name) { return data.path() + "/" + name; };
    fs::permissions(data.path(), fs::perms(0777));
    write(at("to"), "another user's");
    fs::permissions(at("to"), fs::perms(0666));
    const Child user([&](auto say) {
        constexpr uid_t nobody = 65534;  // whom permissions bind
        if (geteuid() == 0 && setuid(nobody) != 0) return;
        umask(022);
        fs::create_directory(at("shut"));
        for (const auto& [name, permissions] :
             {std::pair{"from", 0640}, {"secret", 0000}, {"locked", 0444}, {"shut/to", 0666}}) {
            write(at(name), name);
            fs::permissions(at(name), fs::perms(permissions));
        }
        fs::permissions(at("shut"), fs::perms(0555));
        FileSystem files;
        for (const char* to : {"to", "fresh", "shut", "shut/to", "locked"})
            say(copyFile(files, at("from"), at(to)) ? 'y' : 'n');
        say(copyFile(files, at("secret"), at("to")) ? 'y' : 'n');
        for (const char* to : {"first", "report"}) say(writeFile(files, at(to), "report") ? 'y' : 'n');
    });
    for (const char done : std::string("yynnnnyy")) EXPECT_EQ(user.heard(), done);
    for (const auto& [name, content, permissions] : {std::tuple{"to", "from", 0666},
                                                     {"fresh", "from", 0640},
                                                     {"locked", "locked", 0444},
                                                     {"report", "report", 0644}}) {
        EXPECT_EQ(bytes(at(name)), content);
        EXPECT_EQ(fs::status(at(name)).permissions(), fs::perms(permissions)) << name;
    }
    fs::permissions(at("shut"), fs::perms(0777));
}

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

void changeEstimate(const DataAccess& access, const char* mode, std::int32_t number) {
    Mode screen;
    screen.mode = mode;
    ClsOrder order(access, screen);
    order.OrderNo = number;
    order.AddEditDel = mode;
    order.CustId = 3;
    order.OrderDate = {2024, 3, 15};
    order.Notes = "after";
    for (std::int64_t item = 1; item <= 20; ++item)
        order.ColnOrderItems().Add(item, 2.0, 1.25, std::int64_t{1}, std::int64_t{2}, 0.5, 1.5, 2.5);
    if (*mode == 'D')
        order.Delete();
    else
        order.Save();
}

template <class Record>
void add(Record record) {
    record.AddEditDel = "A";
    record.Save();
}

void addName(const DataAccess& access) {
    clsMaster rooms(access);
    rooms.Mastertable = "Rooms";
    add(rooms);
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
        EXPECT_FALSE(bytes(hot.database()) == bytes(calm.database()));
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

    // Whether all went well. What comes of a failure is done on the failing disk, too.
    bool act() {
        Store store;
        host.last.clear();
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
    enum Outcome : char { Killed = '\0', Failed = 'f', Well = 'w', Untouched = 'u' };
    Outcome actOver(const DataFolder& before, Fault fault, int call) {
        lay(before);
        disk.arm(fault, call);
        const bool well = act();
        disk.disarm();
        if (disk.struck()) return well ? Well : Failed;
        EXPECT_TRUE(well);
        return Untouched;
    }
    Outcome actInAChild(const DataFolder& before, Fault fault, int call) {
        const Child child([&](auto say) { say(actOver(before, fault, call)); });
        return Outcome(child.heard());
    }

    FaultyDisk disk;
    DataFolder calm;  // before the action
    DataFolder hot;   // the same, left by a process that was killed in the middle of a write
    DataFolder folder;
    NotingHost host{folder.path()};
};

TEST_P(FaultTest, LeavesTheOldOrTheNew) {
    lay(calm);
    const std::string before = state();
    actOver(calm, Fault::Once, 100000);  // a call that never comes
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
            Outcome outcome = Failed;
            for (int call = 1; outcome != Untouched; call += stride) {
                ASSERT_LT(call, 500);
                SCOPED_TRACE(std::string(name) + " at call " + std::to_string(call) +
                             (there == &hot ? " over a journal" : ""));
                outcome = fault == Fault::Killed ? actInAChild(*there, fault, call) : actOver(*there, fault, call);
                Store startedAnew;
                Connection({host, startedAnew}).execute("insert into Units (Name) values ('anew')");
                const std::string now = state();
                asBefore += now == before;
                EXPECT_TRUE(now == after || (now == before && (outcome == Failed || outcome == Killed)));
                Texts left = filesIn(folder.path());
                // A lost disk or a killed process may have kept a fresh file.
                if (fault == Fault::Killed || fault == Fault::Gone)
                    std::erase_if(left, [](const std::string& file) { return file.starts_with("Torvane-"); });
                EXPECT_EQ(left, files);
                if (GetParam().copies) {
                    EXPECT_TRUE(act() && state() == after) << "when the user does it again";
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
                      Action{"addItem", [](const auto& with, auto&) { add(ClsItem(with)); }},
                      Action{"addCategory", [](const auto& with, auto&) { add(clsCategory(with)); }},
                      Action{"addCustomer", [](const auto& with, auto&) { add(ClsCustomer(with)); }},
                      Action{"addName", [](const auto& with, auto&) { addName(with); }},
                      Action{"changePrice", [](const auto& with, auto&) { ClsItem(with).Updatelabourprice(1, "9"); }},
                      Action{"saveNewEstimate", [](const auto& with, auto&) { changeEstimate(with, "A", 77); }},
                      Action{"saveEditedEstimate", [](const auto& with, auto&) { changeEstimate(with, "E", 2); }},
                      Action{"deleteEstimate", [](const auto& with, auto&) { changeEstimate(with, "D", 2); }}),
    [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace torvane
