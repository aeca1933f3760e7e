// Prefix header of the program's sources when they are built on the stand-in frameworks.
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/macos/frameworks/AppKit.h"
#include "tests/macos/frameworks/Foundation.h"
#include "tests/macos/frameworks/Security.h"

// Replaces the names of Apple's classes and functions in the program.
#define NSAlert StageAlert
#define NSAppearance StageAppearance
#define NSAppleScript StageAppleScript
#define NSClassFromString StageClassFromString
#define NSFileManager StageFileManager
#define NSHomeDirectory StageHomeDirectory
#define NSLog StageLog
#define NSMenuItem StageMenuItem
#define NSStatusBar StageStatusBar
#define NSStatusBarButton StageStatusBarButton
#define NSStatusItem StageStatusItem
#define NSUserDefaults StageUserDefaults
#define NSWorkspace StageWorkspace
#define dlopen StageDlopen
#define dlsym StageDlsym
