#include "sample.h"

#include <filesystem>
#include <stdexcept>

#include "datastore/schema.h"

namespace torvane::bench {

namespace {

// The numbers are scattered by prime factors, so that no list is sorted by chance.
constexpr const char* names = R"sql(
create temp table Number (n integer primary key);
with recursive a(n) as (select 1 union all select n+1 from a where n < @most) insert into Number select n from a;
insert into Category select n, 'Category ' || (n * 7919 % @categories), case when n > 50 then n % 50 + 1 end from Number
    where n <= @categories;
insert into Units select n, 'Unit ' || n from Number where n <= 30;
insert into Rooms select n, 'Room ' || n from Number where n <= 30;
insert into States select n, 'State ' || n from Number where n <= 51;
)sql";
constexpr const char* rows = R"sql(
insert into Item select n, n * 7919 % 32768, 'Item ' || (n * 104729 % 32768), n % @categories + 1, n % 30 + 1,
    (n * 31 % 10000) / 100.0, (n * 17 % 5000) / 100.0, n % 90, (n % 400) / 8.0, n % 12 + 1, 'Each' from Number;
insert into Customer (CustId, CustName, BStreet1, BCity, BState, BPhone, BEmail)
    select n, 'Customer ' || (n * 7919 % 32768), n || ' Main Street', 'City ' || n % 500, n % 51 + 1, '555-' || n,
           'c' || n || '@example.com' from Number;
insert into OrderInfo (OrderNo, CustId, RepId, OrderDate, SStreet1, SCity, SState, ShipId, Amount, Tax, Total,
                       UPSTracking, Notes, Overhead)
    select n, n * 7919 % @most + 1, 0, date('2003-01-01', (n % 3650) || ' days'), n || ' Side Street',
           'City ' || n % 500, n % 51 + 1, 0, n, 5, n * 1.05, '', 'As agreed', 10 from Number;
insert into OrderItem
    select o.n, (o.n * 131 + l.n) % @most + 1, l.n % 9 + 1, (l.n * 37 % 1000) / 4.0, l.n % 30 + 1, l.n % 30 + 1,
           l.n % 7, l.n * 1.25, l.n / 8.0
    from Number o, Number l where l.n <= 31 and o.n <> 7 order by o.n, l.n limit @others;
)sql";

std::string sized(std::string sql) {
    const std::pair<std::string, long> sizes[] = {{"@most", Sample::most},
                                                  {"@categories", Sample::categories},
                                                  {"@others", Sample::lines - Sample::largeOrderLines}};
    for (const auto& [name, size] : sizes)
        for (auto place = sql.find(name); place != std::string::npos; place = sql.find(name))
            sql.replace(place, name.size(), std::to_string(size));
    return sql;
}

std::string largeOrderStatement() {
    std::string sql = "insert into OrderItem values ";
    for (int line = 0; line < Sample::largeOrderLines; ++line) {
        const auto text = [](int number) { return std::to_string(number); };
        sql += (line == 0 ? "(" : ",(") + text(Sample::largeOrder) + "," + text(Sample::itemOfLine(line)) + "," +
               text(line % 9 + 1) + "," + text(line % 977) + ".25," + text(line % 30 + 1) + "," + text(line % 30 + 1) +
               "," + text(line % 7) + ".5," + text(line % 90) + ".75," + text(line % 8) + ")";
    }
    return sql;
}

}  // namespace

Raw::Raw(const std::string& file) {
    if (sqlite3_open(file.c_str(), &handle_) != SQLITE_OK) throw std::runtime_error("raw open");
    const auto val = [](sqlite3_context* context, int, sqlite3_value** arguments) {
        sqlite3_result_double(context, sqlite3_value_double(arguments[0]));
    };
    sqlite3_create_function_v2(handle_, "Val", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, val, nullptr, nullptr,
                               nullptr);
}

Raw::~Raw() {
    sqlite3_close(handle_);
}

void Raw::execute(const std::string& statements) {
    if (sqlite3_exec(handle_, statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(handle_));
}

long Raw::read(const std::string& select) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, select.c_str(), static_cast<int>(select.size()), &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(handle_));
    long rowCount = 0;
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        ++rowCount;
        for (int i = 0; i < columns; ++i) {
            switch (sqlite3_column_type(statement, i)) {
                case SQLITE_INTEGER:
                    static_cast<void>(sqlite3_column_int64(statement, i));
                    break;
                case SQLITE_FLOAT:
                    static_cast<void>(sqlite3_column_double(statement, i));
                    break;
                default:
                    static_cast<void>(sqlite3_column_text(statement, i));
            }
        }
    }
    sqlite3_finalize(statement);
    return rowCount;
}

Sample::Sample(const std::string& folder)
    : folder_(made(folder)), host(folder_), access{host, store}, raw(folder_ + "/raw.db") {}

void Sample::takeATenth() {
    largeOrderLines /= 10;
    most /= 10;
    categories /= 10;
    lines /= 10;
}

std::string Sample::made(const std::string& folder) {
    const std::filesystem::path base(folder);
    const std::filesystem::path full = base / "Larkfen.mdb";
    {
        Raw maker(full);
        maker.execute("pragma synchronous = off; pragma journal_mode = off");
        maker.execute("begin; " + schemaText() + sized(names) + "commit");
        std::filesystem::create_directory(base / "empty");
        std::filesystem::copy_file(full, base / "empty/Larkfen.mdb");
        maker.execute("begin; " + sized(rows) + largeOrderStatement() + "; commit");
        if (maker.read("select 1 from OrderItem") != lines) throw std::runtime_error("the sample has other lines");
    }
    std::filesystem::copy_file(full, base / "raw.db");
    return folder;
}

}  // namespace torvane::bench
