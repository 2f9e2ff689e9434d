#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace torvane {

// A temporary program folder with a database in it, looked at and prepared by the engine itself and not by the
// program's own data store. Gone with the object.
class DataFolder {
public:
    DataFolder();
    ~DataFolder();

    const std::string& path() const { return path_; }
    std::string database() const { return path_ + "/Larkfen.mdb"; }
    std::string helpBook() const { return path_ + "/LARKFENVERSION2.HLP"; }

    // Puts a delivered file in place, the empty database or the sample business, and gives its name.
    std::string useEmpty() const { return put("Larkfen.mdb", database()); }
    std::string useSample() const { return put("Sample.bak", database()); }
    // Puts the help book beside it.
    void useHelpBook() const { put("LARKFENVERSION2.HLP", helpBook()); }

    // Carries out statements; a failure fails the test.
    void execute(std::string_view statements) const { rows(statements); }
    // The rows of a select on the database, or on another file: cells joined by '|', Null as "null".
    std::vector<std::string> rows(std::string_view select) const { return rows(select, database()); }
    std::vector<std::string> rows(std::string_view select, const std::string& file) const;
    // The one cell of a select.
    std::string cell(std::string_view select) const;

private:
    static std::string put(const char* delivered, const std::string& as);
    std::string path_;
};

}  // namespace torvane
