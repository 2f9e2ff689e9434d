#include "datastore/dialect.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>

#include "values/failure.h"

namespace torvane {
namespace {

TEST(Dialect, Translation) {
    const struct {
        const char* statement;
        const char* sql;
    } rows[] = {
        {"Delete * from Item where ItemId = 3", "delete  from Item where ItemId = 3"},
        {" DELETE\t*from Item", "delete from Item"},
        {"delete from Item", "delete from Item"},
        {"select * from delete_log", "select * from delete_log"},
        {"Update OrderInfo Set OrderDate = #7/4/2003#, SZip = '#1'",
         "Update OrderInfo Set OrderDate = '2003-07-04', SZip = '#1'"},
        {"orderdate>=#13.5.03# and orderdate <= # 4 Juli 2003 #",
         "orderdate>='2003-05-13' and orderdate <= '2003-07-04'"},
        {"where a = 'it''s -- ; /* # */' and b = \"#;\" and c = [x--] and d = `;`",
         "where a = 'it''s -- ; /* # */' and b = \"#;\" and c = [x--] and d = `;`"},
        {"select 1 ; \r\n", "select 1 "},
        {"select 3-1/2", "select 3-1/2"},
        {"values ('open", "values ('open"},
        {"", ""},
    };
    ShortDate style;
    style.monthNames[6] = "Juli";
    for (const auto& row : rows) EXPECT_EQ(translate(row.statement, style), row.sql);
}

TEST(Dialect, RefusedTexts) {
    const struct {
        std::string statement;
        const char* why;
    } rows[] = {
        {"select #13/13/2003#", "not a date"},
        {"select ##", "not a date"},
        {"select #7/4/2003", "a date has no end"},
        {"select 1 -- all", "a remark in the statement"},
        {"select 1 /* all */", "a remark in the statement"},
        {"select 'a'-- '", "a remark in the statement"},
        {"select 1; select 2", "text behind the statement"},
        {"select 1;;", "text behind the statement"},
        {std::string("select 1\0", 9), "a statement holds no zero byte"},
        {std::string("select 1\0; drop table Item", 26), "a statement holds no zero byte"},
        {std::string("select '\0'", 10), "a statement holds no zero byte"},
    };
    for (const auto& row : rows) {
        try {
            translate(row.statement, {});
            ADD_FAILURE() << "accepted: " << row.statement;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), SQLITE_ERROR);
            EXPECT_EQ(failure.text(), row.why) << row.statement;
            EXPECT_EQ(failure.refused(), row.statement);
        }
    }
}

}  // namespace
}  // namespace torvane
