// The program's arguments are handed on without the cast.
// SPDX-License-Identifier: MIT
//
// says: no matching function for call to 'NSApplicationMain'
#import <AppKit/AppKit.h>

int main(int argumentCount, char** arguments) {
    return NSApplicationMain(argumentCount, arguments);
}
