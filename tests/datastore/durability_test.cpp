#include <sqlite3.h>

#include "sample.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;

class DurabilityTest : public StoreTest {
protected:
    void addRoom() { connection.execute("insert into Rooms (Name) values ('Hall')"); }
};

TEST_F(DurabilityTest, AGroupIsSeenAtOnceAndFlushedAtItsEnd) {
    auto another = std::make_unique<Connection>(access);
    grouped(connection, [&] {
        addRoom();
        EXPECT_EQ(dump(another->query("select count(*) from Rooms")), "3;");
        grouped(*another, [&] { another->execute("delete from Rooms where Id = 1"); });
        EXPECT_EQ(rooms(), "2") << "as other programs see it";
        EXPECT_EQ(numberOf([&] { store.settle(file); }), SQLITE_BUSY);
        another.reset();
        addRoom();
    });
    EXPECT_EQ(rooms(), "3");
}

TEST_F(DurabilityTest, AGroupKeepsWhatWasExecutedBeforeAFailureAndBeforeTheEnd) {
    const auto twice = [&] { connection.execute("insert into Rooms values (1, 'twice')"); };
    EXPECT_EQ(numberOf([&] { grouped(connection, [&] { addRoom(), grouped(connection, twice); }); }),
              SQLITE_CONSTRAINT);
    EXPECT_EQ(rooms(), "3");
    grouped(connection, [&] {
        addRoom();
        store.commitOpenGroups();
        EXPECT_EQ(rooms(), "4") << "the program ends in the middle";
    });
}

TEST_F(DurabilityTest, AFilePutInItsPlaceIsReadByAllConnectionsAndNotReachedByAGroup) {
    Connection another{access};
    const std::string other = file + ".bak";
    const auto putOther = [&] {
        fs::copy_file(file, other);
        connection.execute("delete from Rooms");
        fs::rename(other, file);
    };
    putOther();
    EXPECT_EQ(rows("select count(*) from Rooms") + dump(another.query("select count(*) from Rooms")), "2;2;");
    EXPECT_EQ(numberOf([&] { grouped(connection, putOther); }), SQLITE_READONLY);
    EXPECT_EQ(rooms() + folder.cell("pragma integrity_check"), "2ok");
}

TEST_F(DurabilityTest, SettlingTakesAwayLogsThatHaveNoDatabase) {
    for (const char* what : {"an empty file", "another file", "no file"}) {
        const bool missing = std::string_view(what) == "no file";
        write(file, std::string_view(what) == "another file" ? std::string(9000, 'x') : "");
        if (missing) fs::remove(file);
        for (const char* end : {"-journal", "-wal", "-shm"}) write(file + end, "left behind");
        store.settle(file);
        EXPECT_EQ(filesIn(folder.path()).size(), missing ? 0U : 1U) << what;
    }
    fs::create_directory(file + "-journal");
    EXPECT_EQ(failureOf([&] { store.settle(file); }).text(), "a journal can't be removed");
}

TEST_F(DurabilityTest, SettlingLetsADamagedDatabaseBeReplaced) {
    std::string damaged = bytes(file);
    damaged.replace(100, 8, 8, 'x');  // where the list of tables begins
    write(file, damaged);
    EXPECT_EQ(numberOf([&] { rows("select * from Rooms"); }), SQLITE_CORRUPT);
    store.settle(file);
    EXPECT_TRUE(bytes(file) == damaged);
}

}  // namespace
}  // namespace torvane
