// The file system, by NSFileManager.
// SPDX-License-Identifier: MIT
#import "platform/macos/FileManager.h"

#import <Foundation/Foundation.h>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Owned.h"
#include "platform/macos/Text.h"

/// Lets NSFileManager delete one folder but not its contents.
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
    // Not isEqualToString: the path may arrive in decomposed Unicode, which compare: treats as
    // equal.
    return [path compare:folder_] == NSOrderedSame;
}

@end

namespace brisel::platform::macos {

namespace {

/// Calls `work` with a place for an NSError. Returns the error if `work` returns false or raises an
/// exception.
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

// NSFileManager deletes a folder with its contents. The path ends in a volume's label, which is
// untrusted, and a volume may still be mounted there. So only an empty folder may be deleted, even
// if entries appear meanwhile.
std::optional<Error> FileManager::removeItem(const std::string& path) {
    NSString* const folder = nsString(path);
    return errorOf("delete a folder", [&](NSError** error) {
        const Owned<BriselEmptyFolderGuard*> guard(
            [[BriselEmptyFolderGuard alloc] initWithFolder:folder]);
        const Owned<NSFileManager*> manager([[NSFileManager alloc] init]);
        [manager.get() setDelegate:guard.get()];
        const bool removed = [manager.get() removeItemAtPath:folder error:error];
        [manager.get() setDelegate:nil];
        // NSFileManager may report success although the delegate kept the folder.
        return removed && ![manager.get() fileExistsAtPath:folder];
    });
}

}  // namespace brisel::platform::macos
