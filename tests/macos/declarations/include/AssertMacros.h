// Declares the assertion macros of Foundation, which reserve names such as check and verify.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
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
