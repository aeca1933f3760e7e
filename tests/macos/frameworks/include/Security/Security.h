// Security, as much of it as a small menu-bar program needs.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#include <Security/Authorization.h>
#include <Security/AuthorizationTags.h>
