#include "datastore/gate.h"

#include <sqlite3.h>

#include <algorithm>
#include <string_view>

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

namespace {

std::string_view textOfArgument(sqlite3_value* argument) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(argument));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(argument))};
}

bool isNumber(sqlite3_value* argument) {
    const int type = sqlite3_value_type(argument);
    return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}

// The functions stand between two C callers: no failure may leave them as an exception.
template <typename Work>
void guarded(sqlite3_context* context, Work work) {
    try {
        work();
    } catch (const RuntimeFailure& failure) {
        sqlite3_result_error(context, failure.text().c_str(), -1);
    } catch (const std::exception&) {
        sqlite3_result_error_nomem(context);
    }
}

// A number stays, Null gives Null, a text is read by `read`.
template <double (*read)(std::string_view)>
void numberOf(sqlite3_context* context, int, sqlite3_value** arguments) {
    sqlite3_value* argument = arguments[0];
    guarded(context, [&] {
        if (sqlite3_value_type(argument) == SQLITE_NULL) return sqlite3_result_null(context);
        sqlite3_result_double(context,
                              isNumber(argument) ? sqlite3_value_double(argument) : read(textOfArgument(argument)));
    });
}

void isNumericText(sqlite3_context* context, int, sqlite3_value** arguments) {
    sqlite3_value* argument = arguments[0];
    guarded(context, [&] {
        const bool number =
            isNumber(argument) || (sqlite3_value_type(argument) != SQLITE_NULL && isNumeric(textOfArgument(argument)));
        sqlite3_result_int(context, number ? 1 : 0);
    });
}

bool isOneOf(const char* name, std::initializer_list<const char*> names) {
    return name != nullptr && std::any_of(names.begin(), names.end(),
                                          [&](const char* known) { return sqlite3_stricmp(name, known) == 0; });
}

int authorize(void* data, int action, const char* first, const char* second, const char*, const char*) {
    if (static_cast<const Gate*>(data)->ownWork) return SQLITE_OK;
    switch (action) {
        case SQLITE_SELECT:
        case SQLITE_READ:
            return SQLITE_OK;
        case SQLITE_INSERT:
        case SQLITE_UPDATE:
        case SQLITE_DELETE:
            return first != nullptr && sqlite3_strnicmp(first, "sqlite_", 7) == 0 ? SQLITE_DENY : SQLITE_OK;
        case SQLITE_FUNCTION:
            return isOneOf(second, {"val", "cdbl", "isnumeric", "like", "count", "max", "min", "sum", "avg", "abs",
                                    "round", "coalesce", "ifnull", "lower", "upper", "length", "substr", "trim"})
                       ? SQLITE_OK
                       : SQLITE_DENY;
        default:
            return SQLITE_DENY;
    }
}

}  // namespace

bool guardHandle(sqlite3* handle, Gate& gate) {
    constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    const auto add = [&](const char* name, void (*function)(sqlite3_context*, int, sqlite3_value**)) {
        return sqlite3_create_function_v2(handle, name, 1, pure, nullptr, function, nullptr, nullptr, nullptr) ==
               SQLITE_OK;
    };
    const auto configure = [&](int option, int value) {
        return sqlite3_db_config(handle, option, value, nullptr) == SQLITE_OK;
    };
    sqlite3_limit(handle, SQLITE_LIMIT_ATTACHED, 0);
    return add("Val", numberOf<lenientNumber>) && add("cdbl", numberOf<strictDouble>) &&
           add("isnumeric", isNumericText) && configure(SQLITE_DBCONFIG_DEFENSIVE, 1) &&
           configure(SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0) && configure(SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0) &&
           // A word between double quotes is a name and never, by a slip, a text.
           configure(SQLITE_DBCONFIG_DQS_DML, 0) && sqlite3_set_authorizer(handle, authorize, &gate) == SQLITE_OK;
}

}  // namespace torvane
