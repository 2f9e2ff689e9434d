#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "datastore/schema.h"
#include "datastore/store.h"
#include "support/test_host.h"

namespace torvane {

// A few rows of every table that the statements of the system touch.
inline constexpr const char* sampleText = R"sql(
insert into Category values (1, 'Lumber', null), (2, 'Nails', 1);
insert into Units values (1, 'each'), (2, 'box');
insert into Rooms values (1, 'Kitchen'), (2, 'Attic');
insert into Customer (CustId, CustName, BCity, BPhone, BEmail, BCCNo)
    values (1, 'Stone', 'Boston', '555-1', null, null), (2, 'abel', 'Austin', '777', 'a@b', '9');
insert into Item (ItemId, Itemcode, Itemname, CategoryId, UnitId, Material, Labor, Qty)
    values (1, '10', 'Stud', 1, 1, 3.1, 1, 1), (2, '9', 'nail', 2, 2, 0.125, null, 100),
    (3, 'A1', 'Beam', 1, 1, 80, 2, 1);
insert into OrderInfo (OrderNo, CustId, OrderDate, Amount, Tax, Total, Overhead)
    values (1, 1, '2003-07-04', 200, 5, 230, 10), (2, 9, '2003-08-01', 1, 0, 1, 0),
    (12, 2, null, 2, 0, 2, 0);
insert into OrderItem values (1, 1, 2, 6.2, 1, 1, 1, 2, 3), (1, 2, 1, 1, 2, 2, 0, 0, null);
insert into Tax values (1, 6.25);
insert into BlankNotes values ('');
)sql";

// A folder with a database in it, and one connection to that. The helpers of "raw" go past the store.
class StoreTest : public testing::Test {
protected:
    ~StoreTest() override { std::filesystem::remove_all(folder); }

    static std::string makeFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "torvane-XXXXXX").string();
        return mkdtemp(pattern.data());
    }
    static std::string makeRaw(const std::string& name, const std::string& more = {}) {
        raw(name, schemaText() + sampleText + more, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        return name;
    }

    // The cells of a query from a handle of its own, "~" for Null, "|" between cells, ";" behind rows.
    static std::string raw(const std::string& name, const std::string& sql, int flags = SQLITE_OPEN_READWRITE) {
        sqlite3* handle = nullptr;
        std::string result;
        const auto collect = [](void* text, int count, char** cells, char**) {
            for (int i = 0; i < count; ++i) {
                static_cast<std::string*>(text)
                    ->append(cells[i] == nullptr ? "~" : cells[i])
                    .append(i + 1 < count ? "|" : ";");
            }
            return 0;
        };
        EXPECT_EQ(sqlite3_open_v2(name.c_str(), &handle, flags, nullptr), SQLITE_OK) << name;
        sqlite3_busy_timeout(handle, 5000);
        EXPECT_EQ(sqlite3_exec(handle, sql.c_str(), collect, &result, nullptr), SQLITE_OK) << sqlite3_errmsg(handle);
        sqlite3_close(handle);
        return result;
    }

    static std::string dump(const RowArray& rows) {
        std::string text;
        for (int row = 0; row < rows.rows(); ++row) {
            for (int column = 0; column < rows.columns(); ++column) {
                const Value& value = rows(column, row);
                text.append(isNull(value) ? "~" : textOf(value)).append(column + 1 < rows.columns() ? "|" : ";");
            }
        }
        return rows.empty() ? "none" : text;
    }

    std::string rows(std::string_view statement) { return rows(statement, connection); }
    static std::string rows(std::string_view statement, Connection& through) { return dump(through.query(statement)); }

    // The number of the failure that the work ends with; 0 when it ends well.
    template <typename Work>
    int failureOf(Work work) {
        try {
            work();
            return 0;
        } catch (const RuntimeFailure& failure) {
            said = failure.text();
            return failure.number();
        }
    }

    static std::string contents(const std::string& name) {
        std::ifstream stream(name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static void write(const std::string& name, std::string_view bytes) {
        std::ofstream stream(name, std::ios::binary | std::ios::trunc);
        stream << bytes;
        ASSERT_TRUE(stream.flush().good());
    }

    std::string folder = makeFolder();
    std::string file = makeRaw(folder + "/Larkfen.mdb");
    TestHost host{folder};
    Store store;
    DataAccess access{host, store};
    Connection connection{access};
    std::string said;  // the text of the last failure
};

}  // namespace torvane
