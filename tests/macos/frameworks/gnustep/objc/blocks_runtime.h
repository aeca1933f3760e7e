// Where GNUstep's headers look for the blocks runtime.
// SPDX-License-Identifier: MIT
#pragma once

#include <Block.h>
