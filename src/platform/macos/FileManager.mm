// The file system.
// SPDX-License-Identifier: MIT
#import "platform/macos/FileManager.h"

#import <Foundation/Foundation.h>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Owned.h"
#include "platform/macos/Text.h"

/// Lets a file manager delete one folder and nothing that is in it.
@interface BriselEmptyFolderGuard : NSObject <NSFileManagerDelegate> {
  @private
    NSString* folder_;
}
- (instancetype)initWithFolder:(NSString*)folder;
@end

@implementation BriselEmptyFolderGuard

- (instancetype)initWithFolder:(NSString*)folder {
    self = [super init];
    if (self != nil) folder_ = [folder copy];
    return self;
}

- (void)dealloc {
    [folder_ release];
    [super dealloc];
}

- (BOOL)fileManager:(NSFileManager*)fileManager shouldRemoveItemAtPath:(NSString*)path {
    (void)fileManager;
    // Not by the characters: the system may hand over the path as it is on disk, where an "ö" is an
    // "o" and a diaeresis.
    return [path compare:folder_] == NSOrderedSame;
}

@end

namespace brisel::platform::macos {

namespace {

/// Calls `work` with a place for an error; the error where `work` says that it failed, or where the
/// system raised an exception instead.
template <typename Work>
std::optional<Error> errorOf(const char* purpose, const Work& work) {
    NSError* error = nil;
    bool done = false;
    guarded(purpose, [&] { done = work(&error); });
    return done ? std::nullopt : std::optional(errorFrom(error));
}

}  // namespace

std::string FileManager::homeDirectory() const {
    return stdString(NSHomeDirectory());
}

std::string FileManager::currentDirectoryPath() const {
    return stdString([[NSFileManager defaultManager] currentDirectoryPath]);
}

bool FileManager::isWritableFileAtPath(const std::optional<std::string>& path) {
    return path && [[NSFileManager defaultManager] isWritableFileAtPath:nsString(*path)];
}

FolderListing FileManager::contentsOfDirectory(const FileURL& folder) {
    FolderListing listing;
    listing.error = errorOf("list a folder", [&](NSError** error) {
        NSArray<NSURL*>* const entries =
            [[NSFileManager defaultManager] contentsOfDirectoryAtURL:nsURL(folder)
                                          includingPropertiesForKeys:nil
                                                             options:0
                                                               error:error];
        listing.entryCount = [entries count];
        return entries != nil;
    });
    return listing;
}

std::optional<Error> FileManager::createDirectory(const std::string& path) {
    return errorOf("create a folder", [&](NSError** error) {
        return [[NSFileManager defaultManager] createDirectoryAtPath:nsString(path)
                                         withIntermediateDirectories:YES
                                                          attributes:nil
                                                               error:error];
    });
}

// The system's own call takes a folder with all that is in it. The path ends in a volume's label,
// which is anybody's text, and a volume may still be mounted there: nothing but the folder itself
// may go, also when something appears in it meanwhile.
std::optional<Error> FileManager::removeItem(const std::string& path) {
    NSString* const folder = nsString(path);
    return errorOf("delete a folder", [&](NSError** error) {
        const Owned<BriselEmptyFolderGuard*> guard(
            [[BriselEmptyFolderGuard alloc] initWithFolder:folder]);
        const Owned<NSFileManager*> manager([[NSFileManager alloc] init]);
        [manager.get() setDelegate:guard.get()];
        const bool removed = [manager.get() removeItemAtPath:folder error:error];
        [manager.get() setDelegate:nil];
        // What the guard did not let go may yet count as deleted.
        return removed && ![manager.get() fileExistsAtPath:folder];
    });
}

}  // namespace brisel::platform::macos
