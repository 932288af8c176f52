// SPDX-License-Identifier: MIT
// A first line is read as an amount, the rest is a display format: what is read agrees with the C library, and what
// is shown never harms.
#include "values/displayformat.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char *>(data), size);
    const std::string amount = input.substr(0, input.find('\n'));
    const std::string format = input.substr(std::min(amount.size() + 1, input.size()));
    long double value = 0;
    try {
        value = values::parseAmount(std::string_view(amount));
    } catch (const std::invalid_argument &) {
        value = static_cast<long double>(size) / 8 - 3;
        (void)values::formatFloat(QString::fromStdString(format), value);
        return 0;
    }
    const std::size_t begin = amount.find_first_not_of(std::string("\0\x01\x02\x03\x04\x05\x06\x07\x08\t\v\f\r\x0e\x0f"
                                                                   "\x10\x11\x12\x13\x14\x15\x16\x17\x18\x19\x1a\x1b"
                                                                   "\x1c\x1d\x1e\x1f ",
                                                                   32));
    const long double expected = std::strtold(amount.c_str() + begin, nullptr);
    const bool tiny = value == 0 && std::fabs(expected) < 1e-4900L;
    if (value != expected && !tiny)
        std::abort();
    (void)values::formatFloat(QString::fromStdString(format), value);
    return 0;
}
