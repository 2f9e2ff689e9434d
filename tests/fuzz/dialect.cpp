// Statements are joined from what users type: the translator takes any text, or refuses it as a failure of the program.

#include <cstdint>
#include <string_view>

#include "datastore/dialect.h"
#include "values/failure.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const torvane::ShortDate style;
    try {
        torvane::translate(std::string_view(reinterpret_cast<const char*>(bytes), size), style);
    } catch (const torvane::RuntimeFailure&) {
    }
    return 0;
}
