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

Class _Nullable object_getClass(id _Nullable object);
Class _Nullable object_setClass(id _Nullable object, Class _Nonnull cls);
Class _Nullable objc_getClass(const char* _Nonnull name);
Class _Nullable objc_lookUpClass(const char* _Nonnull name);

const char* _Nonnull class_getName(Class _Nullable cls);
Class _Nullable class_getSuperclass(Class _Nullable cls);
Method _Nullable class_getInstanceMethod(Class _Nullable cls, SEL _Nonnull name);
Method _Nullable class_getClassMethod(Class _Nullable cls, SEL _Nonnull name);
BOOL class_respondsToSelector(Class _Nullable cls, SEL _Nonnull selector);
BOOL class_conformsToProtocol(Class _Nullable cls, Protocol* _Nullable protocol);
// False where the class itself has such a method already.
BOOL class_addMethod(Class _Nullable cls, SEL _Nonnull name, IMP _Nonnull implementation,
                     const char* _Nullable types);
IMP _Nullable class_replaceMethod(Class _Nullable cls, SEL _Nonnull name,
                                  IMP _Nonnull implementation, const char* _Nullable types);

IMP _Nonnull method_getImplementation(Method _Nonnull method);
SEL _Nonnull method_getName(Method _Nonnull method);
BOOL sel_isEqual(SEL _Nonnull one, SEL _Nonnull other);

id _Nullable objc_getAssociatedObject(id _Nonnull object, const void* _Nonnull key);
void objc_setAssociatedObject(id _Nonnull object, const void* _Nonnull key, id _Nullable value,
                              objc_AssociationPolicy policy);

#ifdef __cplusplus
}
#endif
