// A 64-bit number is taken for a long, which is another type on a Mac.
// SPDX-License-Identifier: MIT
//
// says: cannot initialize a variable of type 'long *const'
#include <cstdint>

long first(std::int64_t* numbers) {
    long* const all = numbers;
    return all[0];
}
