// Looking up symbols in what is loaded.
// SPDX-License-Identifier: MIT
#pragma once

#include <stdbool.h>

#ifdef __cplusplus
extern "C" {
#endif

#define RTLD_LAZY 0x1

#define RTLD_DEFAULT ((void*)-2)

void* dlopen(const char* path, int mode);
void* dlsym(void* handle, const char* symbol);

#ifdef __cplusplus
}
#endif
