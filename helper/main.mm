// The login item: starts the application that contains it, then exits.
// SPDX-License-Identifier: MIT
#import <AppKit/AppKit.h>

#include "helper/EnclosingApplication.h"

namespace {

NSURL* fileURL(const std::filesystem::path& path) {
    NSString* text =
        [[NSFileManager defaultManager] stringWithFileSystemRepresentation:path.c_str()
                                                                    length:path.native().size()];
    return [NSURL fileURLWithPath:text isDirectory:YES];
}

void startApplication() {
    NSString* own = [[NSBundle mainBundle] bundlePath];
    const auto application = brisel::helper::enclosingApplication([own fileSystemRepresentation]);
    if (!application) {
        NSLog(@"This login item lies in no application, so there is nothing to start: %@", own);
        return;
    }
    NSURL* url = fileURL(*application);
    if (![[NSWorkspace sharedWorkspace] openURL:url]) {
        NSLog(@"The application could not be started: %@", [url path]);
    }
}

}  // namespace

// Always exits with 0: the system may restart a failed login item again and again.
int main() {
    @autoreleasepool {
        startApplication();
    }
    return 0;
}
