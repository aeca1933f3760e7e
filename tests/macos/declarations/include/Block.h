// Declares Block_copy and Block_release.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

void* _Block_copy(const void* block);
void _Block_release(const void* block);

#ifdef __cplusplus
}
#endif

// The result has the block's type.
#define Block_copy(...) ((__typeof(__VA_ARGS__))_Block_copy((const void*)(__VA_ARGS__)))
#define Block_release(...) _Block_release((const void*)(__VA_ARGS__))
