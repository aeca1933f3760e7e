// The kernel's error numbers: a system, a subsystem and a code in one signed number.
// SPDX-License-Identifier: MIT
#pragma once

typedef int kern_return_t;
typedef kern_return_t mach_error_t;

#define err_system(number) ((signed)((((unsigned)(number)) & 0x3f) << 26))
#define err_sub(number) ((signed)((((unsigned)(number)) & 0xfff) << 14))
#define err_local err_system(0x3e)
#define unix_err(number) (err_system(0) | err_sub(3) | (number))
