#include "shell/backup.h"

#include <string>

#include "datastore/store.h"
#include "files/file_copy.h"
#include "values/failure.h"

namespace torvane {

namespace {

constexpr std::string_view ending = ".bak";
constexpr std::string_view filter = "Backup (*.bak)";

}  // namespace

void takeBackup(const DataAccess& access, FileSystem& files) {
    try {
        Host& host = access.host;
        auto name = host.askSaveName("Larkfen.bak", filter);
        if (!name) return;
        if (!name->ends_with(ending)) *name += ending;
        if (files.exists(*name) &&
            host.box("File already Exists. Overwrite it?", "Take Backup", Buttons::YesNo) != Answer::Yes)
            return;
        const std::string database = access.database();
        access.store.settle(database);
        if (copyFile(files, database, *name)) host.box("Data File Exported", "Success");
    } catch (const RuntimeFailure&) {
        // Silent on purpose: a backup that can't be made looks as if nothing had happened.
    }
}

void restoreBackup(const DataAccess& access, FileSystem& files) {
    try {
        Host& host = access.host;
        const auto name = host.askOpenName(filter);
        if (!name) return;
        if (!name->ends_with(ending)) {
            host.box("Not a Backup of database file", "Error while importing");
            return;
        }
        if (!files.exists(*name)) {
            host.box("File not found.", "File Import");
            return;
        }
        const std::string database = access.database();
        // No journal may stand beside the file that comes: it would be played into it.
        access.store.settle(database);
        if (copyFile(files, *name, database)) host.box("Data File Imported", "Success");
    } catch (const RuntimeFailure&) {
        // Silent on purpose, as above.
    }
}

}  // namespace torvane
