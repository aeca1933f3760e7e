// Declares NSMenu.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSMenuItem.h>

NS_ASSUME_NONNULL_BEGIN

@protocol NSMenuDelegate;

@interface NSMenu : NSObject <NSCopying, NSCoding>
- (instancetype)initWithTitle:(NSString*)title NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(copy) NSString* title;
@property(nullable, assign) NSMenu* supermenu;
// These raise an exception for an index out of range, an item of another menu, or nil.
- (void)insertItem:(NSMenuItem*)item atIndex:(NSInteger)index;
- (void)addItem:(NSMenuItem*)item;
- (NSMenuItem*)insertItemWithTitle:(NSString*)title
                            action:(nullable SEL)action
                     keyEquivalent:(NSString*)character
                           atIndex:(NSInteger)index;
- (NSMenuItem*)addItemWithTitle:(NSString*)title
                         action:(nullable SEL)action
                  keyEquivalent:(NSString*)character;
- (void)removeItemAtIndex:(NSInteger)index;
- (void)removeItem:(NSMenuItem*)item;
- (void)removeAllItems API_AVAILABLE(macos(10.6));
@property(copy) NSArray<NSMenuItem*>* itemArray;
@property(readonly) NSInteger numberOfItems;
- (nullable NSMenuItem*)itemAtIndex:(NSInteger)index;
- (NSInteger)indexOfItem:(NSMenuItem*)item;
- (NSInteger)indexOfItemWithTag:(NSInteger)tag;
- (nullable NSMenuItem*)itemWithTitle:(NSString*)title;
- (nullable NSMenuItem*)itemWithTag:(NSInteger)tag;
@property BOOL autoenablesItems;
- (void)update;
- (void)performActionForItemAtIndex:(NSInteger)index;
@property(nullable, weak) id<NSMenuDelegate> delegate;
- (void)cancelTracking API_AVAILABLE(macos(10.5));
@end

@protocol NSMenuDelegate <NSObject>
@optional
- (void)menuNeedsUpdate:(NSMenu*)menu;
- (void)menuWillOpen:(NSMenu*)menu;
- (void)menuDidClose:(NSMenu*)menu;
@end

@protocol NSMenuItemValidation <NSObject>
- (BOOL)validateMenuItem:(NSMenuItem*)menuItem;
@end

NS_ASSUME_NONNULL_END
