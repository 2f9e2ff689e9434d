// A character file of any content is loaded whole or refused.

#include <unistd.h>

#include <cstdint>
#include <fstream>
#include <string>

#include "assistant/character.h"
#include "values/failure.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const std::string file = "/tmp/fuzzed-character-" + std::to_string(::getpid());
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
    try {
        torvane::Character::load(file);
    } catch (const torvane::RuntimeFailure&) {
    }
    ::unlink(file.c_str());
    return 0;
}
