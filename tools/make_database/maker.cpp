#include "make_database/maker.h"

#include <sqlite3.h>

#include <cmath>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "datastore/schema.h"
#include "make_database/data_files.h"
#include "values/numbers.h"

namespace torvane {

namespace {

using Cell = std::variant<std::nullptr_t, int, double, std::string>;

class Database {
public:
    explicit Database(const std::filesystem::path& file) {
        sqlite3* handle = nullptr;
        const int result = sqlite3_open(file.c_str(), &handle);
        handle_.reset(handle);
        check(result);
    }

    void run(const std::string& statements) {
        check(sqlite3_exec(handle_.get(), statements.c_str(), nullptr, nullptr, nullptr));
    }

    // Adds a row to a table, its columns in the table's order; gives the key of the row.
    int add(const std::string& table, const std::vector<Cell>& cells) {
        std::string statement = "insert into " + table + " values (?";
        for (std::size_t i = 1; i < cells.size(); ++i) statement += ",?";
        sqlite3_stmt* prepared = nullptr;
        check(sqlite3_prepare_v2(handle_.get(), (statement + ")").c_str(), -1, &prepared, nullptr));
        const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> holder(prepared, sqlite3_finalize);
        int place = 0;
        for (const Cell& cell : cells) bind(prepared, ++place, cell);
        if (sqlite3_step(prepared) != SQLITE_DONE) check(SQLITE_ERROR);
        return static_cast<int>(sqlite3_last_insert_rowid(handle_.get()));
    }

private:
    void bind(sqlite3_stmt* prepared, int place, const Cell& cell) {
        if (const auto* whole = std::get_if<int>(&cell))
            check(sqlite3_bind_int(prepared, place, *whole));
        else if (const auto* number = std::get_if<double>(&cell))
            check(sqlite3_bind_double(prepared, place, *number));
        else if (const auto* text = std::get_if<std::string>(&cell))
            check(sqlite3_bind_text(prepared, place, text->c_str(), static_cast<int>(text->size()), SQLITE_TRANSIENT));
        else
            check(sqlite3_bind_null(prepared, place));
    }

    void check(int result) {
        if (result != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(handle_.get()));
    }

    std::unique_ptr<sqlite3, int (*)(sqlite3*)> handle_{nullptr, sqlite3_close};
};

// What the program's own statements would have written: single precision, as text of at most 7 digits.
double asStored(double amount) {
    return decimalOf(narrowToSingle(amount));
}

double cents(double amount) {
    return std::round(amount * 100) / 100;
}

struct CatalogueItem {
    int key = 0;
    int unit = 0;
    double material = 0;
    double labor = 0;
    double subLabor = 0;
    double equipment = 0;
    double qty = 0;
};

// Names given so far, by the name; `what` stands in the messages.
template <class Entry>
class Names {
public:
    explicit Names(std::string what) : what_(std::move(what)) {}

    void add(const DataRow& row, const std::string& name, Entry entry) {
        if (!entries_.emplace(name, std::move(entry)).second)
            row.fault("the " + what_ + " \"" + name + "\" is given twice");
    }
    const Entry& find(const DataRow& row, const std::string& name) const {
        const auto found = entries_.find(name);
        if (found == entries_.end()) row.fault("there is no " + what_ + " \"" + name + "\"");
        return found->second;
    }

private:
    std::string what_;
    std::map<std::string, Entry> entries_;
};

class Maker {
public:
    Maker(std::filesystem::path dataFolder, Database& database)
        : data_(std::move(dataFolder)), sample_(data_ / "sample"), database_(database) {}

    void addStarters() {
        for (const DataRow& row : readRows(data_ / "states.tsv")) {
            row.require(2, 2);
            const int key = row.key(0);
            stateKeys_.add(row, std::to_string(key), key);
            states_.add(row, row.text(1), key);
            database_.add("States", {key, row.columns[1]});
        }
        addNames("Units", "units.tsv", units_);
        addNames("Rooms", "rooms.tsv", rooms_);
    }

    void addNotes(const std::string& text) { database_.add("BlankNotes", {text}); }

    void addSample() {
        addCategories();
        addItems();
        addCustomers();
        addEstimates();
        addNotes(readText(sample_ / "notes.txt"));
    }

private:
    void addNames(const std::string& table, const std::string& file, Names<int>& names) {
        for (const DataRow& row : readRows(data_ / file)) {
            row.require(1, 1);
            names.add(row, row.text(0), database_.add(table, {nullptr, row.columns[0]}));
        }
    }

    void addCategories() {
        const std::string separator = " / ";
        for (const DataRow& row : readRows(sample_ / "categories.tsv")) {
            row.require(1, 1);
            const std::string& path = row.text(0);
            const auto last = path.rfind(separator);
            Cell parent = nullptr;
            if (last != std::string::npos) parent = categories_.find(row, path.substr(0, last));
            const std::string name = last == std::string::npos ? path : path.substr(last + separator.size());
            categories_.add(row, path, database_.add("Category", {nullptr, name, parent}));
        }
    }

    void addItems() {
        for (const DataRow& row : readRows(sample_ / "items.tsv")) {
            row.require(9, 9);
            CatalogueItem item;
            item.unit = units_.find(row, row.text(3));
            item.material = row.number(4);
            item.labor = row.number(5);
            item.subLabor = row.number(6);
            item.equipment = row.number(7);
            item.qty = row.number(8);
            if (item.material == 0) row.fault("the material price is 0");
            if (item.qty == 0) row.fault("the default quantity is 0");
            const std::string number = std::to_string(row.key(0));
            item.key =
                database_.add("Item", {nullptr, number, row.text(1), categories_.find(row, row.text(2)), item.unit,
                                       asStored(item.material), asStored(item.labor), asStored(item.subLabor),
                                       asStored(item.equipment), asStored(item.qty), std::string()});
            items_.add(row, number, item);
        }
    }

    void addCustomers() {
        for (const DataRow& row : readRows(sample_ / "customers.tsv")) {
            row.require(13, 13);
            std::vector<Cell> cells{nullptr};
            cells.insert(cells.end(), row.columns.begin(), row.columns.end());
            cells[1] = row.text(0);
            cells[5] = states_.find(row, row.text(4));
            customers_.add(row, row.columns[0], database_.add("Customer", cells));
        }
    }

    // An estimate is put together line by line, and its header written when its lines are all there.
    struct Estimate {
        DataRow start;
        int number = 0;
        std::map<std::string, DataRow> parts;  // by their kind
        int lines = 0;
        float amount = 0;

        const DataRow& part(const std::string& kind) const {
            const auto found = parts.find(kind);
            if (found == parts.end()) start.fault("the estimate has no " + kind);
            return found->second;
        }
        std::string textOr(const std::string& kind) const {
            return parts.contains(kind) ? parts.at(kind).text(1) : std::string();
        }
    };

    void addEstimates() {
        const std::map<std::string, std::size_t> columnsOf{{"site", 10}, {"rates", 3}, {"tracking", 2}, {"notes", 2}};
        std::optional<Estimate> estimate;
        for (const DataRow& row : readRows(sample_ / "estimates.tsv")) {
            const std::string& kind = row.columns[0];
            if (kind == "estimate") {
                if (estimate) finish(*estimate);
                row.require(4, 4);
                estimate = Estimate{row, row.key(1), {}};
                estimates_.add(row, std::to_string(estimate->number), estimate->number);
            } else if (!estimate) {
                row.fault("stands before the first estimate");
            } else if (kind == "line") {
                addLine(row, *estimate);
            } else if (const auto part = columnsOf.find(kind); part != columnsOf.end()) {
                row.require(part->second, part->second);
                estimate->parts[kind] = row;
            } else {
                row.fault("\"" + kind + "\" is no kind of line");
            }
        }
        if (estimate) finish(*estimate);
    }

    void addLine(const DataRow& row, Estimate& estimate) {
        row.require(4, 7);
        if (row.columns.size() != 4 && row.columns.size() != 7) row.fault("give all three costs or none");
        const int room = rooms_.find(row, row.text(1));
        const CatalogueItem& item = items_.find(row, row.text(2));
        const double qty = row.number(3);
        if (qty == 0) row.fault("the quantity is 0");
        const bool costsGiven = row.columns.size() == 7;
        const double share = qty / item.qty;
        const double material = asStored(cents(qty * item.material));
        const double labor = asStored(costsGiven ? row.number(4) : cents(share * item.labor));
        const double subLabor = asStored(costsGiven ? row.number(5) : cents(share * item.subLabor));
        const double others = asStored(costsGiven ? row.number(6) : cents(share * item.equipment));
        database_.add("OrderItem",
                      {estimate.number, item.key, asStored(qty), material, room, item.unit, subLabor, labor, others});
        // Summed in single precision row by row, as the estimate screen does, so that saving it again changes nothing.
        estimate.amount = narrowToSingle(estimate.amount + material + subLabor + labor + others);
        ++estimate.lines;
    }

    void finish(const Estimate& estimate) {
        const DataRow& start = estimate.start;
        std::vector<Cell> cells{estimate.number, customers_.find(start, start.text(3)), 0, start.date(2)};
        const DataRow& site = estimate.part("site");
        cells.insert(cells.end(), site.columns.begin() + 1, site.columns.end());
        cells[7] = states_.find(site, site.text(4));
        const DataRow& rates = estimate.part("rates");
        const double tax = rates.number(1), overhead = rates.number(2), amount = decimalOf(estimate.amount);
        if (estimate.lines == 0) start.fault("the estimate has no lines");
        const double total = amount + amount * tax / 100 + amount * overhead / 100;
        cells.insert(cells.end(), {0, amount, asStored(tax), asStored(total), estimate.textOr("tracking"),
                                   estimate.textOr("notes"), asStored(overhead)});
        database_.add("OrderInfo", cells);
    }

    std::filesystem::path data_;
    std::filesystem::path sample_;
    Database& database_;
    Names<int> stateKeys_{"state key"};
    Names<int> states_{"state"};
    Names<int> units_{"unit"};
    Names<int> rooms_{"takeoff name"};
    Names<int> categories_{"category"};
    Names<CatalogueItem> items_{"item"};
    Names<int> customers_{"customer"};
    Names<int> estimates_{"estimate"};
};

void fill(const std::filesystem::path& dataFolder, const std::filesystem::path& file, Contents contents) {
    Database database(file);
    database.run(
        "pragma page_size = 4096; pragma journal_mode = delete; pragma encoding = 'UTF-8';"
        "pragma application_id = " +
        std::to_string(applicationId) + "; pragma user_version = " + std::to_string(schemaVersion) + "; begin;" +
        schemaText());
    Maker maker(dataFolder, database);
    maker.addStarters();
    if (contents == Contents::Sample)
        maker.addSample();
    else
        maker.addNotes({});
    database.run("commit; vacuum;");
}

}  // namespace

void makeDatabase(const std::filesystem::path& dataFolder, const std::filesystem::path& file, Contents contents) {
    std::filesystem::path unfinished = file;
    unfinished += ".new";
    const auto journal = std::filesystem::path(unfinished) += "-journal";
    std::filesystem::remove(unfinished);
    std::filesystem::remove(journal);
    try {
        fill(dataFolder, unfinished, contents);
    } catch (...) {
        std::error_code ignored;
        std::filesystem::remove(unfinished, ignored);
        throw;
    }
    std::filesystem::rename(unfinished, file);
}

}  // namespace torvane
