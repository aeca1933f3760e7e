// The stand-in dlsym and dlopen, which can hide AuthorizationExecuteWithPrivileges.
// SPDX-License-Identifier: MIT
#pragma once

#include <dlfcn.h>

extern "C" void* StageDlsym(void* handle, const char* symbol);
/// Knows the Security framework alone.
extern "C" void* StageDlopen(const char* path, int mode);
