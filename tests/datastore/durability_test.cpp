#include <sqlite3.h>

#include <functional>
#include <stdexcept>

#include "sample.h"
#include "support/full_disk.h"

namespace torvane {
namespace {

namespace fs = std::filesystem;

class DurabilityTest : public StoreTest {
protected:
    void insertRooms(int count, std::size_t length = 10) {
        for (int i = 0; i < count; ++i)
            connection.execute("insert into Rooms (Name) values ('" + std::string(length, 'r') + "')");
    }
    int endOfGroup(const std::function<void()>& body) {
        return numberOf([&] { grouped(connection, body); });
    }
};

// --- Write groups ----------------------------------------------------------------------------------------------------

TEST_F(DurabilityTest, AGroupIsSeenAtOnceAndFlushedAtItsEnd) {
    auto another = std::make_unique<Connection>(access);
    grouped(connection, [&] {
        insertRooms(2);
        EXPECT_EQ(dump(another->query("select count(*) from Rooms")), "4;");
        grouped(*another, [&] { another->execute("delete from Rooms where Id = 1"); });
        EXPECT_EQ(rooms(), "2");
        EXPECT_EQ(numberOf([&] { store.settle(file); }), SQLITE_BUSY);
        another.reset();
    });
    EXPECT_EQ(rooms(), "3");
}

TEST_F(DurabilityTest, AGroupKeepsWhatWasExecutedBeforeAFailure) {
    EXPECT_EQ(endOfGroup([&] {
                  insertRooms(1);
                  grouped(connection, [&] { connection.execute("insert into Rooms values (1, 'twice')"); });
              }),
              SQLITE_CONSTRAINT);
    EXPECT_EQ(rooms(), "3");
    EXPECT_THROW(grouped(connection, [&] { insertRooms(1), throw std::logic_error("other"); }), std::logic_error);
    EXPECT_EQ(rooms(), "4");
}

TEST_F(DurabilityTest, AGroupIsCommittedWhenTheProgramEnds) {
    grouped(connection, [&] {
        insertRooms(1);
        store.commitOpenGroups();
        EXPECT_EQ(rooms(), "3");
        insertRooms(1);
        EXPECT_EQ(rooms(), "4") << "what still follows takes effect by itself";
    });
    grouped(connection, [&] {
        insertRooms(1);
        EXPECT_EQ(rooms(), "4");
    });
    EXPECT_EQ(rooms(), "5");
}

TEST_F(DurabilityTest, AGroupThatTheDatabaseHasUndoneGoesOnWithNothing) {
    EXPECT_EQ(endOfGroup([&] {
                  const auto overflow = [&] {
                      const FullDisk full(bytes(file).size() + 8192);
                      insertRooms(5000, 1000);  // more than the cache holds
                  };
                  EXPECT_NE(numberOf(overflow), 0);
                  EXPECT_EQ(failureOf([&] { insertRooms(1); }).text(), "the write group was undone by the database");
              }),
              SQLITE_ABORT);
    EXPECT_EQ(rooms() + folder.cell("pragma integrity_check"), "2ok");
    insertRooms(1);
    EXPECT_EQ(rooms(), "3");
}

// --- Another file by the name ----------------------------------------------------------------------------------------

TEST_F(DurabilityTest, AFilePutInItsPlaceIsReadAndWrittenByAllConnections) {
    Connection another{access};
    const std::string other = file + ".bak";
    folder.execute("insert into Rooms values (7, 'Other')");
    fs::copy_file(file, other);
    connection.execute("delete from Rooms");
    fs::rename(other, file);
    EXPECT_EQ(rows("select max(Id) from Rooms") + dump(another.query("select count(*) from Rooms")), "7;3;");
    another.execute("update Rooms set Id = 6 where Id = 7");
    EXPECT_EQ(endOfGroup([&] {
                  connection.execute("delete from Rooms");
                  fs::copy_file(file, other);
                  fs::rename(other, file);
              }),
              SQLITE_READONLY);
    EXPECT_EQ(rooms() + folder.cell("pragma integrity_check"), "3ok") << "a group does not reach another file";
}

// --- Before a copy ---------------------------------------------------------------------------------------------------

TEST_F(DurabilityTest, SettlingTakesAwayLogsThatHaveNoDatabase) {
    for (const char* content : {"", "x", "missing"}) {
        write(file, *content == 'x' ? std::string(9000, 'x') : "");
        if (*content == 'm') fs::remove(file);
        for (const char* end : {"-journal", "-wal", "-shm"}) write(file + end, "left behind");
        store.settle(file);
        EXPECT_EQ(filesIn(folder.path()).size(), *content == 'm' ? 0U : 1U) << content;
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
