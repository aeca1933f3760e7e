// Stand-ins for classes of Foundation.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/Foundation.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/macos/Text.h"
#include "tests/macos/frameworks/Raising.h"
#include "tests/macos/frameworks/World.h"

using brisel::tests::macos::complain;
using brisel::tests::macos::orders;
using brisel::tests::macos::raiseIfTold;
using brisel::platform::macos::nsString;
using brisel::platform::macos::stdString;
using brisel::tests::macos::world;
namespace platform = brisel::platform;

namespace {

// GNUstep's NSError takes the failure reason from the user info.
NSError* errorFrom(const platform::Error& error) {
    NSMutableDictionary* const userInfo = [NSMutableDictionary dictionary];
    [userInfo setObject:nsString(error.localizedDescription) forKey:NSLocalizedDescriptionKey];
    if (error.localizedFailureReason) {
        [userInfo setObject:nsString(*error.localizedFailureReason)
                     forKey:NSLocalizedFailureReasonErrorKey];
    }
    return [NSError errorWithDomain:NSCocoaErrorDomain code:512 userInfo:userInfo];
}

// Deletes `path` recursively and asks the delegate for each item, which GNUstep does not. The
// delegate receives decomposed paths, as they are on disk.
std::optional<platform::Error> deleteReally(NSFileManager* manager, const std::string& path) {
    const id delegate = [manager delegate];
    NSString* const item = [nsString(path) decomposedStringWithCanonicalMapping];
    const bool goes = delegate == nil || [delegate fileManager:manager shouldRemoveItemAtPath:item];
    if (!goes) return std::nullopt;
    std::error_code failure;
    if (std::filesystem::is_directory(std::filesystem::symlink_status(path))) {
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            if (auto error = deleteReally(manager, entry.path())) return error;
        }
    }
    std::filesystem::remove(path, failure);
    if (!failure) return std::nullopt;
    return platform::Error{.localizedDescription = "It could not be removed.",
                           .localizedFailureReason = failure.message()};
}

}  // namespace

@implementation NSProcessInfo (StageVersion)

- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version {
    const NSInteger running = world().systemVersion.isMacOS12OrLater() ? 12 : 11;
    return running >= version.majorVersion ? YES : NO;
}

@end

@implementation StageFileManager

+ (NSFileManager*)defaultManager {
    static StageFileManager* const manager = [[StageFileManager alloc] init];
    return manager;
}

- (BOOL)fileExistsAtPath:(NSString*)path {
    return world().fileSystem.hasFolder(stdString(path)) ? YES : NO;
}

- (NSString*)currentDirectoryPath {
    return nsString(world().fileManager.currentDirectoryPath());
}

- (BOOL)isWritableFileAtPath:(NSString*)path {
    return path != nil && world().fileManager.isWritableFileAtPath(stdString(path)) ? YES : NO;
}

- (NSArray*)contentsOfDirectoryAtURL:(NSURL*)url
          includingPropertiesForKeys:(NSArray*)keys
                             options:(NSDirectoryEnumerationOptions)mask
                               error:(NSError**)error {
    (void)keys;
    raiseIfTold();
    if (mask != 0) complain("a listing that leaves something out");
    const auto listing =
        world().fileManager.contentsOfDirectory(platform::FileURL(stdString([url path])));
    if (listing.error) {
        if (error != nullptr) *error = errorFrom(*listing.error);
        return nil;
    }
    NSMutableArray* const entries = [NSMutableArray array];
    for (std::size_t index = 0; index < listing.entryCount; ++index)
        [entries addObject:[url URLByAppendingPathComponent:@"entry"]];
    return entries;
}

- (BOOL)createDirectoryAtPath:(NSString*)path
    withIntermediateDirectories:(BOOL)intermediates
                     attributes:(NSDictionary*)attributes
                          error:(NSError**)error {
    (void)attributes;
    raiseIfTold();
    if (!intermediates) complain("a folder without those above it");
    const auto failure = world().fileManager.createDirectory(stdString(path));
    if (failure && error != nullptr) *error = errorFrom(*failure);
    return failure ? NO : YES;
}

- (BOOL)removeItemAtPath:(NSString*)path error:(NSError**)error {
    raiseIfTold();
    if (orders().onlySaysItDeletes) return YES;
    const auto failure = orders().deletesRealFiles
                             ? deleteReally(self, stdString(path))
                             : world().fileManager.removeItem(stdString(path));
    if (failure && error != nullptr) *error = errorFrom(*failure);
    return failure ? NO : YES;
}

@end

@implementation StageUserDefaults

+ (StageUserDefaults*)standardUserDefaults {
    static StageUserDefaults* const defaults = [[StageUserDefaults alloc] init];
    return defaults;
}

- (void)registerDefaults:(NSDictionary<NSString*, id>*)defaults {
    std::map<std::string, bool> values;
    for (NSString* key in [defaults allKeys])
        values[stdString(key)] = [[defaults objectForKey:key] boolValue];
    world().userDefaults.registerDefaults(values);
}

- (BOOL)boolForKey:(NSString*)key {
    return world().userDefaults.boolForKey(stdString(key)) ? YES : NO;
}

- (NSArray<NSString*>*)stringArrayForKey:(NSString*)key {
    const auto stored = world().userDefaults.stringArrayForKey(stdString(key));
    if (stored == nullptr) return nil;
    NSMutableArray* const list = [NSMutableArray array];
    for (const auto& element : *stored)
        [list addObject:nsString(element)];
    return list;
}

- (void)setBool:(BOOL)value forKey:(NSString*)key {
    world().userDefaults.setBool(stdString(key), value);
}

- (void)setObject:(id)value forKey:(NSString*)key {
    if (![value isKindOfClass:[NSArray class]]) {
        [NSException raise:NSInvalidArgumentException format:@"not a property list of this world"];
    }
    auto list = std::make_shared<std::vector<std::string>>();
    for (NSString* element in static_cast<NSArray*>(value))
        list->push_back(stdString(element));
    world().userDefaults.setStringArray(stdString(key), list);
}

- (BOOL)synchronize {
    world().userDefaults.synchronize();
    return YES;
}

@end

Class StageClassFromString(NSString* name) {
    const bool isMissing = [name isEqualToString:@"SMAppService"] && !orders().appServiceAnswer;
    return isMissing ? Nil : NSClassFromString(name);
}

NSString* StageHomeDirectory(void) {
    return nsString(world().fileManager.homeDirectory());
}

void StageLog(NSString* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    NSString* const line = [[NSString alloc] initWithFormat:format arguments:arguments];
    va_end(arguments);
    world().systemLog.write(stdString(line));
    [line release];
}
