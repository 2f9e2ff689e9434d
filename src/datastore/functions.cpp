#include "datastore/functions.h"

#include <sqlite3.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "values/failure.h"
#include "values/letters.h"
#include "values/numbers.h"

namespace torvane {

namespace {

std::string_view textOfArgument(sqlite3_value* argument) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(argument));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(argument))};
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

// Null gives Null, a text is read by `read`.
template <double (*read)(std::string_view)>
void numberOf(sqlite3_context* context, int, sqlite3_value** arguments) {
    sqlite3_value* argument = arguments[0];
    guarded(context, [&] {
        if (sqlite3_value_type(argument) == SQLITE_NULL) return sqlite3_result_null(context);
        sqlite3_result_double(context, read(textOfArgument(argument)));
    });
}

void isNumericText(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] { sqlite3_result_int(context, isNumeric(textOfArgument(arguments[0])) ? 1 : 0); });
}

void isLike(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        for (int i = 0; i < 2; ++i)
            if (sqlite3_value_type(arguments[i]) == SQLITE_NULL) return sqlite3_result_null(context);
        // Made once for all rows of the statement.
        auto* pattern = static_cast<std::string*>(sqlite3_get_auxdata(context, 0));
        std::unique_ptr<std::string> fresh;
        if (pattern == nullptr)
            pattern = (fresh = std::make_unique<std::string>(withoutCase(textOfArgument(arguments[0])))).get();
        // ASCII alone needs no other form.
        const std::string_view text = textOfArgument(arguments[1]);
        const bool plain = std::ranges::all_of(text, isAscii);
        const std::string folded = plain ? std::string() : withoutCase(text);
        const int different = sqlite3_strlike(pattern->c_str(), plain ? text.data() : folded.c_str(), 0);
        sqlite3_result_int(context, different == 0 ? 1 : 0);
        if (fresh)
            sqlite3_set_auxdata(context, 0, fresh.release(),
                                [](void* unused) { delete static_cast<std::string*>(unused); });
    });
}

int collate(void*, int lengthOfA, const void* a, int lengthOfB, const void* b) {
    return compareWithoutCase({static_cast<const char*>(a), static_cast<std::size_t>(lengthOfA)},
                              {static_cast<const char*>(b), static_cast<std::size_t>(lengthOfB)});
}

}  // namespace

bool addFunctions(sqlite3* handle) {
    const auto add = [&](const char* name, int arguments, void (*function)(sqlite3_context*, int, sqlite3_value**)) {
        constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
        return sqlite3_create_function_v2(handle, name, arguments, pure, nullptr, function, nullptr, nullptr,
                                          nullptr) == SQLITE_OK;
    };
    return add("Val", 1, numberOf<lenientNumber>) && add("cdbl", 1, numberOf<strictDouble>) &&
           add("isnumeric", 1, isNumericText) && add("like", 2, isLike) &&
           sqlite3_create_collation_v2(handle, "NOCASE", SQLITE_UTF8, nullptr, collate, nullptr) == SQLITE_OK;
}

}  // namespace torvane
