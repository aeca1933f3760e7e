// The stand-in dlsym, which can hide AuthorizationExecuteWithPrivileges.
// SPDX-License-Identifier: MIT
#pragma once

#include <dlfcn.h>

extern "C" void* StageDlsym(void* handle, const char* symbol);
