// The stand-in Authorization Services: the look-up by name, which it can leave without an answer.
// SPDX-License-Identifier: MIT
#pragma once

#include <dlfcn.h>

extern "C" void* StageDlsym(void* handle, const char* symbol);
