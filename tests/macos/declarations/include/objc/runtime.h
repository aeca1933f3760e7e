// Looking at classes and changing them.
// SPDX-License-Identifier: MIT
#pragma once

#include <objc/objc.h>
#include <stddef.h>

typedef struct objc_method* Method;
typedef struct objc_ivar* Ivar;
typedef struct objc_property* objc_property_t;
@class Protocol;

enum {
    OBJC_ASSOCIATION_ASSIGN = 0,
    OBJC_ASSOCIATION_RETAIN_NONATOMIC = 1,
    OBJC_ASSOCIATION_COPY_NONATOMIC = 3,
    OBJC_ASSOCIATION_RETAIN = 01401,
    OBJC_ASSOCIATION_COPY = 01403,
};
typedef unsigned long objc_AssociationPolicy;

#ifdef __cplusplus
extern "C" {
#endif

// False where the class itself has such a method already.
BOOL class_addMethod(Class _Nullable cls, SEL _Nonnull name, IMP _Nonnull implementation,
                     const char* _Nullable types);

#ifdef __cplusplus
}
#endif
