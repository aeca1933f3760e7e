// Includes the blocks runtime where GNUstep's headers expect it.
// SPDX-License-Identifier: MIT
#pragma once

#include <Block.h>
