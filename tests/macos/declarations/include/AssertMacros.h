// Short words that Foundation brings along as macros: no function may have such a name.
// SPDX-License-Identifier: MIT
#pragma once

#define BRISEL_LOOKED_AT(value) \
    do {                        \
        (void)(value);          \
    } while (false)
#define check(assertion) BRISEL_LOOKED_AT(assertion)
#define check_noerr(error) BRISEL_LOOKED_AT(error)
#define verify(assertion) BRISEL_LOOKED_AT(assertion)
#define verify_noerr(error) BRISEL_LOOKED_AT(error)
#define ncheck(assertion) BRISEL_LOOKED_AT(assertion)
#define nverify(assertion) BRISEL_LOOKED_AT(assertion)
#define require(assertion, label)     \
    do {                              \
        if (!(assertion)) goto label; \
    } while (false)
#define require_noerr(error, label)   \
    do {                              \
        if ((error) != 0) goto label; \
    } while (false)
#define require_action(assertion, label, action) \
    do {                                         \
        if (!(assertion)) {                      \
            action;                              \
            goto label;                          \
        }                                        \
    } while (false)
