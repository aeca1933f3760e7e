// Brisel for macOS.
// SPDX-License-Identifier: MIT
#import <AppKit/AppKit.h>

int main(int argumentCount, char** arguments) {
    return NSApplicationMain(argumentCount, const_cast<const char**>(arguments));
}
