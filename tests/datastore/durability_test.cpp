#include <stdexcept>
#include <string>

#include "sample.h"
#include "support/child.h"
#include "support/full_disk.h"

namespace torvane {
namespace {

constexpr const char* roomCount = "select count(*) from Rooms";

class GroupTest : public StoreTest {
protected:
    void insertRooms(int count, std::size_t length = 10) {
        const std::string text(length, 'r');
        for (int i = 0; i < count; ++i) connection.execute("insert into Rooms (Name) values ('" + text + "')");
    }

    // A process that works on the file by a store of its own and is killed when it says so through `ready`.
    template <typename Work>
    void killed(Work work) {
        Child child([&](auto say) {
            Store own;
            Connection line({host, own});
            work(line, [&] {
                say('r');
                pause();
            });
        });
        ASSERT_EQ(child.heard(), 'r');
        child.kill();
    }
};

TEST_F(GroupTest, IsSeenAtOnceAndFlushedAtItsEnd) {
    auto another = std::make_unique<Connection>(access);
    grouped(connection, [&] {
        insertRooms(2);
        EXPECT_EQ(rows(roomCount, *another), "4;");
        grouped(*another, [&] { another->execute("delete from Rooms where Id = 1"); });
        EXPECT_EQ(raw(file, roomCount), "2;");
        another.reset();
    });
    EXPECT_EQ(raw(file, roomCount), "3;");
}

TEST_F(GroupTest, KeepsWhatWasExecutedBeforeAFailure) {
    EXPECT_EQ(failureOf([&] {
                  grouped(connection, [&] {
                      insertRooms(1);
                      grouped(connection, [&] { connection.execute("insert into Rooms values (1, 'twice')"); });
                  });
              }),
              SQLITE_CONSTRAINT);
    EXPECT_EQ(raw(file, roomCount), "3;");
    EXPECT_THROW(grouped(connection,
                         [&] {
                             insertRooms(1);
                             throw std::logic_error("other");
                         }),
                 std::logic_error);
    EXPECT_EQ(raw(file, roomCount), "4;");
}

TEST_F(GroupTest, IsCommittedWhenTheProgramEnds) {
    grouped(connection, [&] {
        insertRooms(1);
        store.commitOpenGroups();
        EXPECT_EQ(raw(file, roomCount), "3;");
        insertRooms(1);
        EXPECT_EQ(raw(file, roomCount), "4;");
    });
    grouped(connection, [&] {
        insertRooms(1);
        EXPECT_EQ(raw(file, roomCount), "4;");
    });
    EXPECT_EQ(raw(file, roomCount), "5;");
}

TEST_F(GroupTest, OfAKilledProcessIsWholeOrNothing) {
    const std::string before = raw(file, roomCount);
    for (const int last : {0, 1, 500, 999}) {
        for (const std::size_t length : {std::size_t{10}, std::size_t{5000}}) {
            killed([&](Connection& line, const auto& ready) {
                grouped(line, [&] {
                    const std::string text(length, 'k');
                    for (int i = 0; i < 1000; ++i) {
                        line.execute("insert into Rooms (Name) values ('" + text + "')");
                        if (i == last) ready();
                    }
                });
            });
            EXPECT_EQ(rows(roomCount), before) << last;
            EXPECT_EQ(raw(file, "pragma integrity_check"), "ok;");
        }
    }
    killed([&](Connection& line, const auto& ready) {
        grouped(line, [&] {
            for (int i = 0; i < 1000; ++i) line.execute("insert into Rooms (Name) values ('k')");
        });
        ready();
    });
    EXPECT_EQ(rows(roomCount), "1002;");
}

TEST_F(GroupTest, LeavesNothingWhenTheDiskIsFull) {
    const struct {
        const char* name;
        int rows;  // 5,000 rows don't fit the cache and fail in the middle, 100 fail at the commit
    } cases[] = {{"at the commit", 100}, {"in the middle", 5000}};
    for (const auto& row : cases) {
        int failure = 0;
        {
            const FullDisk full(contents(file).size() + 8192);
            failure = failureOf([&] { grouped(connection, [&] { insertRooms(row.rows, 1000); }); });
        }
        EXPECT_NE(failure, 0) << row.name;
        EXPECT_EQ(rows(roomCount), "2;") << row.name;
        EXPECT_EQ(raw(file, "pragma integrity_check"), "ok;") << row.name;
    }
    insertRooms(1);
    EXPECT_EQ(raw(file, roomCount), "3;");
}

TEST_F(GroupTest, GoesOnWithNothingOnceTheDatabaseHasUndoneIt) {
    EXPECT_EQ(failureOf([&] {
                  grouped(connection, [&] {
                      {
                          const FullDisk full(contents(file).size() + 8192);
                          EXPECT_NE(failureOf([&] { insertRooms(5000, 1000); }), 0);
                      }
                      EXPECT_EQ(failureOf([&] { insertRooms(1); }), SQLITE_ABORT);
                      EXPECT_EQ(said, "the write group was undone by the database");
                  });
              }),
              SQLITE_ABORT);
    EXPECT_EQ(rows(roomCount), "2;");
}

class ReplacedFileTest : public StoreTest {
protected:
    std::string other = makeRaw(folder + "/Other.bak", "insert into Rooms values (3, 'Other')");
    Connection lines[3] = {Connection{access}, Connection{access}, Connection{access}};
};

TEST_F(ReplacedFileTest, IsReadAndWrittenByAllConnections) {
    const struct {
        const char* name;
        std::function<void()> replace;
    } ways[] = {
        {"renamed over", [&] { std::filesystem::rename(other, file); }},
        {"overwritten in place",
         [&] {
             makeRaw(other, "insert into Rooms values (3, 'Other')");
             std::string bytes = contents(other);
             // The change counter, by which SQLite would know, is that of the live file.
             for (const std::size_t at : {24U, 92U}) bytes.replace(at, 4, contents(file).substr(at, 4));
             write(file, bytes);
             std::filesystem::last_write_time(file,
                                              std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
         }},
    };
    for (const auto& way : ways) {
        for (Connection& line : lines) line.execute("insert into Rooms (Name) values ('old')");
        way.replace();
        for (Connection& line : lines) EXPECT_EQ(rows(roomCount, line), "3;") << way.name;
        lines[2].execute("update Rooms set Name = 'new' where Id = 3");
        EXPECT_EQ(raw(file, "select Name from Rooms where Id = 3; pragma integrity_check"), "new;ok;") << way.name;
    }
}

TEST_F(ReplacedFileTest, WritesOfAnotherProgramAreSeen) {
    for (int i = 0; i < 3; ++i) {
        raw(file, "insert into Rooms (Name) values ('x')");
        EXPECT_EQ(rows(roomCount), std::to_string(3 + i) + ";");
    }
}

TEST_F(ReplacedFileTest, MissingOrDamagedFileFailsTheNextStatementOnly) {
    std::filesystem::rename(file, folder + "/away");
    EXPECT_EQ(failureOf([&] { rows(roomCount); }), SQLITE_CANTOPEN);
    EXPECT_EQ(failureOf([&] { connection.execute("delete from Rooms"); }), SQLITE_CANTOPEN);
    EXPECT_FALSE(std::filesystem::exists(file));
    write(file, std::string(9000, 'x'));
    EXPECT_EQ(failureOf([&] { rows(roomCount); }), SQLITE_NOTADB);
    std::filesystem::rename(folder + "/away", file);
    EXPECT_EQ(rows(roomCount), "2;");
}

TEST_F(ReplacedFileTest, ReplacedDuringAGroupFailsTheGroup) {
    EXPECT_EQ(failureOf([&] {
                  grouped(connection, [&] {
                      connection.execute("delete from Rooms");
                      std::filesystem::rename(other, file);
                  });
              }),
              SQLITE_READONLY);
    EXPECT_EQ(said, "the database file was replaced during a write group");
    EXPECT_EQ(rows(roomCount), "3;");
    EXPECT_EQ(raw(file, "pragma integrity_check"), "ok;");
}

class SettleTest : public GroupTest {
protected:
    std::string journal = file + "-journal";

    // More than the cache holds, so the file itself has been written to when the process dies.
    void leaveHotJournal() {
        killed([&](Connection& line, const auto& ready) {
            grouped(line, [&] {
                const std::string text(20000, 'j');
                line.execute("update Rooms set Name = 'changed'");
                for (int i = 0; i < 300; ++i) line.execute("insert into Rooms (Name) values ('" + text + "')");
                ready();
            });
        });
        ASSERT_GT(std::filesystem::file_size(journal), 0U);
    }
};

TEST_F(SettleTest, PlaysAnInterruptedWriteBack) {
    leaveHotJournal();
    EXPECT_GT(contents(file).size(), 4'000'000U);
    store.settle(file);
    EXPECT_FALSE(std::filesystem::exists(journal));
    write(folder + "/copy", contents(file));
    EXPECT_EQ(raw(folder + "/copy", "select Name from Rooms; pragma integrity_check"), "Kitchen;Attic;ok;");
}

TEST_F(SettleTest, TakesAwayLogsThatHaveNoDatabase) {
    const struct {
        const char* name;
        std::function<void()> prepare;
    } cases[] = {
        {"missing", [&] { std::filesystem::remove(file); }},
        {"no database", [&] { write(file, std::string(9000, 'x')); }},
        {"empty", [&] { write(file, ""); }},
    };
    for (const auto& row : cases) {
        row.prepare();
        for (const char* end : {"-journal", "-wal", "-shm"}) write(file + end, "left behind");
        store.settle(file);
        for (const char* end : {"-journal", "-wal", "-shm"}) {
            EXPECT_FALSE(std::filesystem::exists(file + end)) << row.name << end;
        }
    }
}

TEST_F(SettleTest, LetsADamagedDatabaseBeReplaced) {
    std::string damaged = contents(file);
    damaged.replace(100, 8, 8, 'x');  // where the list of tables begins
    write(file, damaged);
    EXPECT_EQ(failureOf([&] { rows(roomCount); }), SQLITE_CORRUPT);
    EXPECT_EQ(failureOf([&] { store.settle(file); }), 0);
    EXPECT_EQ(contents(file), damaged);
}

TEST_F(SettleTest, RefusesAJournalThatStays) {
    std::filesystem::create_directory(journal);
    std::filesystem::remove(file);
    EXPECT_EQ(failureOf([&] { store.settle(file); }), SQLITE_IOERR);
    EXPECT_EQ(said, "a journal can't be removed");
}

TEST_F(SettleTest, RefusesAnOpenGroup) {
    grouped(connection, [&] {
        insertRooms(1);
        EXPECT_EQ(failureOf([&] { store.settle(file); }), SQLITE_BUSY);
        EXPECT_EQ(said, "a write group is open");
        insertRooms(1);
    });
    EXPECT_EQ(raw(file, roomCount), "4;");
}

}  // namespace
}  // namespace torvane
