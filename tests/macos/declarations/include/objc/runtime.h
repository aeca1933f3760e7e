// Looking at classes and changing them.
// SPDX-License-Identifier: MIT
#pragma once

#include <objc/objc.h>

#ifdef __cplusplus
extern "C" {
#endif

// False where the class itself has such a method already.
BOOL class_addMethod(Class _Nullable cls, SEL _Nonnull name, IMP _Nonnull implementation,
                     const char* _Nullable types);

#ifdef __cplusplus
}
#endif
