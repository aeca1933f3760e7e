// What every source of the program sees first where it is built on the stand-in frameworks.
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/macos/frameworks/AppKit.h"
#include "tests/macos/frameworks/Foundation.h"
#include "tests/macos/frameworks/Security.h"

// The program names Apple's classes and functions; these are what it gets.
#define NSAlert StageAlert
#define NSAppearance StageAppearance
#define NSAppleScript StageAppleScript
#define NSFileManager StageFileManager
#define NSHomeDirectory StageHomeDirectory
#define NSLog StageLog
#define NSMenuItem StageMenuItem
#define NSStatusBar StageStatusBar
#define NSStatusBarButton StageStatusBarButton
#define NSStatusItem StageStatusItem
#define NSUserDefaults StageUserDefaults
#define NSWorkspace StageWorkspace
#define dlsym StageDlsym
