// Any text may stand in a box: reading it never fails but where it should, and what is written is read back.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "values/failure.h"
#include "values/numbers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace torvane;
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    const double number = lenientNumber(text);
    bool sound = std::isfinite(number) && !(number == 0 && std::signbit(number));
    // 15 digits may round the largest numbers out of the range; all others keep their text.
    const std::string written = generalText(number);
    sound = sound && (std::abs(number) > 1e308 || generalText(lenientNumber(written)) == written);
    try {
        sound = sound && strictDouble(text) == number && isNumeric(text);
    } catch (const RuntimeFailure&) {
        sound = sound && !isNumeric(text);
    }
    for (const int places : {0, 2, 5}) sound = sound && std::isfinite(roundHalfEven(number, places));
    if (!sound) std::abort();
    return 0;
}
