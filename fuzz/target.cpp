// The entry of a fuzzer; CMake says which law it tests.

#include <cstddef>
#include <cstdint>
#include <string>

#include "laws.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    borvik::fuzzing::BORVIK_LAW(std::string(data, data + size));
    return 0;
}
