// Looking up symbols in what is loaded.
// SPDX-License-Identifier: MIT
#pragma once

#include <stdbool.h>

#ifdef __cplusplus
extern "C" {
#endif

#define RTLD_LAZY 0x1
#define RTLD_NOW 0x2
#define RTLD_LOCAL 0x4
#define RTLD_GLOBAL 0x8
#define RTLD_NOLOAD 0x10
#define RTLD_NODELETE 0x80
#define RTLD_FIRST 0x100

#define RTLD_NEXT ((void*)-1)
#define RTLD_DEFAULT ((void*)-2)
#define RTLD_SELF ((void*)-3)
#define RTLD_MAIN_ONLY ((void*)-5)

void* dlopen(const char* path, int mode);
void* dlsym(void* handle, const char* symbol);

#ifdef __cplusplus
}
#endif
