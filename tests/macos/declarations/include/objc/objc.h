// The types of the Objective-C language.
// SPDX-License-Identifier: MIT
#pragma once

#include <stdbool.h>

typedef struct objc_class* Class;
typedef struct objc_object* id;
typedef struct objc_selector* SEL;
// Called only through a pointer cast to the method's own type.
typedef void (*IMP)(void);

// A signed char on Intel, a bool on Apple silicon: the compiler knows.
#if __OBJC_BOOL_IS_BOOL
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif

#define YES __objc_yes
#define NO __objc_no
#define Nil __null
#define nil __null

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
