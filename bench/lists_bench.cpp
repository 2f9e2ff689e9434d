#include <functional>
#include <string>
#include <vector>

#include "benches.h"
#include "estimates/cls_order.h"
#include "harness.h"
#include "masters/cls_category.h"
#include "masters/cls_customer.h"
#include "masters/cls_item.h"
#include "sample.h"

// A page of each list by its record, against the count and the 15 rows of the same statement through SQLite alone.

namespace torvane::bench {

namespace {

// The first page of a sort may take what SQLite takes, with a tenth for chance; a further page the same everywhere.
constexpr Mark firstPage{.least = 16, .ratio = 1.1};
constexpr Mark furtherPage{.least = 5};
constexpr long pageSize = 15;

struct NoScreen : EstimateScreen {
    std::string mode;
    const std::string& estimateMode() const override { return mode; }
    void showEstimate() override {}
};

struct ListCase {
    const char* name;
    DataClass& record;
    std::function<void(long page, long& pageCount, const char* direction)> read;
    std::string statement;
    std::string order;
};

void comparePages(const ListCase& list, Raw& raw) {
    long PageCount = 0;
    const std::string count = "select count(*) from (" + list.statement + ")";
    const auto compareAt = [&](const char* place, long page, Mark mark, const auto& ours) {
        const std::string rows =
            list.statement + " order by " + list.order + ", 1 limit 15 offset " + std::to_string((page - 1) * pageSize);
        compare(std::string(list.name) + place, mark, ours, [&] {
            raw.read(rows);
            raw.read(count);
        });
    };
    compareAt(", first page", 1, firstPage, [&] {
        list.read(1, PageCount, "D");  // another sort in between
        auto first = [&] { list.read(1, PageCount, "A"); };
        return timed(first);
    });
    // What the screen does in an idle moment is none of the waiting.
    compareAt(", second page", 2, furtherPage, [&] {
        list.read(1, PageCount, "D");
        list.read(1, PageCount, "A");
        list.record.readAhead();
        auto second = [&] { list.read(2, PageCount, "A"); };
        return timed(second);
    });
    compareAt(", middle", PageCount / 2, furtherPage, [&] { list.read(PageCount / 2, PageCount, "A"); });
    compareAt(", last page", PageCount, furtherPage, [&] { list.read(PageCount, PageCount, "A"); });
}

}  // namespace

void lists(Sample& sample) {
    ClsItem item(sample.access);
    item.SearchFld = "All";
    item.SearchVal = "Item 1";
    clsCategory category(sample.access);
    ClsCustomer customer(sample.access);
    customer.SearchFld = "All";
    customer.SearchVal = "C";
    NoScreen screen;
    ClsOrder order(sample.access, screen);
    order.SearchFld = "orderno";

    const std::string items =
        "SELECT Item.ItemID,Item.ItemName,Category.CatName,item.Material,Item.Qty,Item.Itemcode,Units.Name FROM "
        "Item,Category,Units  where  Item.CategoryID = Category.CatId and Item.UnitId=Units.Id";
    const std::string foundItems =
        "SELECT Item.ItemID,Item.ItemName as  ItmName,Category.CatName as CatName, "
        "item.Material,Item.Qty,Item.Itemcode,Units.Name FROM Item,Category,Units  where  Item.CategoryID "
        "= Category.CatId and Item.UnitId=Units.Id and  (ItemName like 'Item 1%' or CatName like 'Item 1%') ";
    const std::string customers = "Select CustId,CustName,BCity,BPhone,BEmail,BCCNo  from Customer";
    const std::string foundCustomers =
        customers +
        "  where CustName like 'C%' or BCity like 'C%'  or BPhone like 'C%' or BEmail like 'C%'  or "
        "BCCNo like 'C%' ";
    const std::string orders =
        "SELECT Orderinfo.orderno, Orderinfo.Orderdate, Customer.Custname as CustName, "
        "Orderinfo.upstracking,orderinfo.total,orderinfo.overhead,orderinfo.tax FROM orderinfo left join customer  on "
        "orderinfo.custid = customer.custid where  orderno like '%%'";

    const auto itemsBy = [&](const char* field) {
        return [&item, field](long page, long& pages, const char* by) { item.GetAllItemsN(page, pages, field, by); };
    };
    const auto categoriesBy = [&](const char* field) {
        return [&category, field](long page, long& pages, const char* by) {
            category.GetAllCategories(page, pages, field, by);
        };
    };
    const auto customersBy = [&](const char* field) {
        return [&customer, field](long page, long& pages, const char* by) {
            customer.GetAllCustomers(page, pages, field, by);
        };
    };
    const auto ordersBy = [&](const char* field) {
        return
            [&order, field](long page, long& pages, const char* by) { order.GetSearchOrders(page, pages, field, by); };
    };
    const ListCase cases[] = {
        {"items by name", item, itemsBy("ItemName"), items, "ItemName"},
        {"items by category", item, itemsBy("CatName"), items, "CatName"},
        {"items by price", item, itemsBy("Material"), items, "Material"},
        {"items by code", item, itemsBy("ItemCode"), items, "Val(itemcode),itemcode"},
        {"items found", item,
         [&](long page, long& pages, const char* by) { item.GetSearchItems(page, pages, "ItemName", by); }, foundItems,
         "ItemName"},
        {"categories by name", category, categoriesBy("CatName"), "Select * from Categories ", "CatName"},
        {"categories by items", category, categoriesBy("totitm"), "Select * from Categories ", "totitm"},
        {"customers by name", customer, customersBy("CustName"), customers, "CustName"},
        {"customers by city", customer, customersBy("BCity"), customers, "BCity"},
        {"customers found", customer,
         [&](long page, long& pages, const char* by) { customer.GetSearchCustomers(page, pages, "CustName", by); },
         foundCustomers, "CustName"},
        {"estimates by number", order, ordersBy("orderno"), orders, "orderno"},
        {"estimates by customer", order, ordersBy("CustName"), orders, "CustName"},
    };
    for (const ListCase& list : cases) comparePages(list, sample.raw);
}

}  // namespace torvane::bench
