// Addresses are taken for paths.
// SPDX-License-Identifier: MIT
//
// says: NSArray<NSURL *> *
#import <Foundation/Foundation.h>

NSArray<NSString*>* pathsIn(NSURL* folder) {
    return [[NSFileManager defaultManager] contentsOfDirectoryAtURL:folder
                                         includingPropertiesForKeys:nil
                                                            options:0
                                                              error:nil];
}
