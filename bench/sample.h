#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <string>

#include "datastore/data_access.h"
#include "datastore/store.h"
#include "host/host.h"

namespace torvane::bench {

// SQLite alone.
class Raw {
public:
    explicit Raw(const std::string& file);
    ~Raw();
    Raw(const Raw&) = delete;
    Raw& operator=(const Raw&) = delete;

    // Runs statements, whatever they give.
    void execute(const std::string& statements);
    // Compiles and runs a select, taking each cell in its own type; gives the number of rows.
    long read(const std::string& select);

private:
    sqlite3* handle_ = nullptr;
};

// A host that answers every box at once.
class QuietHost : public Host {
public:
    explicit QuietHost(std::string folder) : folder_(std::move(folder)) {}
    Answer box(std::string_view, std::string_view, Buttons buttons) override {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
    void runtimeErrorBox(const RuntimeFailure& failure) override { std::fputs(failure.what(), stderr); }
    void beep() override {}
    std::optional<std::string> askSaveName(std::string_view, std::string_view) override { return std::nullopt; }
    std::optional<std::string> askOpenName(std::string_view) override { return std::nullopt; }
    void startProgram(const std::string&) override {}
    Date today() const override { return {2024, 3, 15}; }
    const ShortDate& shortDate() const override { return shortDate_; }
    const std::string& programDirectory() const override { return folder_; }
    std::int16_t NoInList() const override { return 15; }

private:
    std::string folder_;
    ShortDate shortDate_;
};

// A business as large as the 16-bit counts of the lists allow: 32,767 items in 500 categories, as many customers and
// estimates, 1,000,000 lines; or a tenth of that. Made anew in an empty folder: one database for us, the same one for
// SQLite alone, and one without items.
class Sample {
public:
    explicit Sample(const std::string& folder);

    // Before the first sample is made.
    static void takeATenth();

    static constexpr std::int32_t largeOrder = 7;  // the estimate of 1,000 lines
    static inline int largeOrderLines = 1000;
    static inline int most = 32767;
    static inline int categories = 500;
    static inline long lines = 1'000'000;
    // The items of the large estimate's lines are scattered over the catalogue.
    static int itemOfLine(int line) { return line * 31 % most + 1; }
    static int categoryOfItem(int item) { return item % categories + 1; }

    const std::string& folder() const { return folder_; }
    std::string emptyCatalogue() const { return folder_ + "/empty"; }

private:
    static std::string made(const std::string& folder);
    std::string folder_;

public:
    QuietHost host;
    Store store;
    DataAccess access;
    Raw raw;
};

}  // namespace torvane::bench
