#pragma once

#include "datastore/store.h"
#include "support/files.h"
#include "support/record_test.h"

namespace torvane {

// A database with a few rows, and one connection to it. What the engine itself reads and writes goes past the store, by
// `folder`.
class StoreTest : public RecordTest {
protected:
    StoreTest() {
        folder.execute(R"sql(
delete from Units; delete from Rooms; delete from sqlite_sequence;
insert into Rooms values (1, 'Kitchen'), (2, 'Attic');
insert into Item (ItemId, Itemname, CategoryId, UnitId, Material, Labor, Qty)
    values (1, 'Stud', 1, 1, 3.1, 1, 1), (2, 'nail', 2, 2, 0.125, null, 100);
insert into OrderInfo (OrderNo, CustId, OrderDate, Amount, Tax, Total, Overhead)
    values (1, 1, '2003-07-04', 200, 5, 230, 10), (2, 9, '2003-08-01', 1, 0, 1, 0);
)sql");
    }
    // The cells of a query, "~" for Null, "|" between cells, ";" behind rows.
    static std::string dump(const RowArray& rows) {
        std::string text;
        for (int row = 0; row < rows.rows(); ++row)
            for (int column = 0; column < rows.columns(); ++column)
                text += (isNull(rows(column, row)) ? "~" : textOf(rows(column, row))) +
                        (column + 1 < rows.columns() ? "|" : ";");
        return rows.empty() ? "none" : text;
    }
    std::string rows(std::string_view statement) { return dump(connection.query(statement)); }
    std::string rooms() const { return folder.cell("select count(*) from Rooms"); }

    const std::string file = folder.useEmpty();
    Connection connection{access};
};

}  // namespace torvane
