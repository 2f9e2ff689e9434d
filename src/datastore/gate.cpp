#include "datastore/gate.h"

#include <sqlite3.h>

#include <initializer_list>

namespace torvane {

namespace {

int authorize(void* data, int action, const char* first, const char* second, const char*, const char*) {
    if (static_cast<const Gate*>(data)->open) return SQLITE_OK;
    switch (action) {
        case SQLITE_SELECT:
        case SQLITE_READ:
            return SQLITE_OK;
        case SQLITE_INSERT:
        case SQLITE_UPDATE:
        case SQLITE_DELETE:
            return first != nullptr && sqlite3_strnicmp(first, "sqlite_", 7) == 0 ? SQLITE_DENY : SQLITE_OK;
        case SQLITE_FUNCTION:
            for (const char* known : {"val", "cdbl", "isnumeric", "like", "count", "max"})
                if (sqlite3_stricmp(second, known) == 0) return SQLITE_OK;
            return SQLITE_DENY;
        default:
            return SQLITE_DENY;
    }
}

}  // namespace

bool guardHandle(sqlite3* handle, Gate& gate) {
    const auto configure = [&](int option, int value) {
        return sqlite3_db_config(handle, option, value, nullptr) == SQLITE_OK;
    };
    sqlite3_limit(handle, SQLITE_LIMIT_ATTACHED, 0);
    return configure(SQLITE_DBCONFIG_DEFENSIVE, 1) && configure(SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0) &&
           // A word between double quotes is a name and never, by a slip, a text.
           configure(SQLITE_DBCONFIG_DQS_DML, 0) && sqlite3_set_authorizer(handle, authorize, &gate) == SQLITE_OK;
}

}  // namespace torvane
