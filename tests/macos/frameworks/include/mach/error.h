// Declares Mach error numbers: system, subsystem and code in one signed integer.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

typedef int kern_return_t;
typedef kern_return_t mach_error_t;

#define err_system(number) ((signed)((((unsigned)(number)) & 0x3f) << 26))
#define err_sub(number) ((signed)((((unsigned)(number)) & 0xfff) << 14))
#define err_local err_system(0x3e)
#define unix_err(number) (err_system(0) | err_sub(3) | (number))
