// Core Foundation's umbrella header, with the parts that a small menu-bar program needs.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CFArray.h>
#include <CoreFoundation/CFAvailability.h>
#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFDictionary.h>
#include <CoreFoundation/CFNumber.h>
#include <CoreFoundation/CFRunLoop.h>
#include <CoreFoundation/CFString.h>
#include <CoreFoundation/CFURL.h>
#include <CoreFoundation/CFUUID.h>
