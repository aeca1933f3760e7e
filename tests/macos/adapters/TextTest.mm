// Conversion of strings between the program and the frameworks.
// SPDX-License-Identifier: MIT
#import "platform/macos/Text.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

using namespace platform::macos;
using platform::FileURL;
using namespace std::string_literals;

class Text : public AdapterTest {};

TEST_F(Text, GoesThereAndBack) {
    for (const auto& text :
         {"plain"s, ""s, "Größe"s, "💾 👩‍👩‍👧"s, "a\0b\0"s, "%@\n\t\\"s})
        EXPECT_EQ(stdString(nsString(text)), text);
}

TEST_F(Text, OfAnEmojiIsASurrogatePair) {
    EXPECT_EQ([nsString("💾") length], 2U);
    EXPECT_TRUE([nsString("Größe") isEqualToString:@"Größe"]);
}

TEST_F(Text, ThatIsInvalidUTF8IsKeptAsLatin1) {
    NSString* const text = nsString("a\xFF\xC3");
    ASSERT_NE(text, nil);
    EXPECT_EQ(stdString(text), "aÿÃ");
    EXPECT_NE(nsString("\xED\xA0\x80"), nil);
}

TEST_F(Text, OfNilIsEmptyOrAbsent) {
    EXPECT_EQ(stdString(nil), "");
    EXPECT_EQ(optionalString(nil), std::nullopt);
    EXPECT_EQ(optionalString(@""), "");
    EXPECT_EQ(optionalString(@"é"), "é");
}

TEST_F(Text, OfAURLIsItsPath) {
    NSURL* const url = nsURL(FileURL("/Volumes/Größe 100% #1?"));
    EXPECT_TRUE([url isFileURL]);
    EXPECT_EQ(stdString([url path]), "/Volumes/Größe 100% #1?");
    EXPECT_TRUE([[url absoluteString] hasSuffix:@"/"]);
    EXPECT_EQ(nsURL(std::nullopt), nil);
}

TEST_F(Text, OfAnErrorIsNeverMissing) {
    EXPECT_EQ(errorFrom(nil).localizedDescription, "unknown error");
    EXPECT_EQ(errorFrom(nil).localizedFailureReason, std::nullopt);
    NSDictionary* const told = [NSDictionary dictionaryWithObject:@"Größe"
                                                           forKey:NSLocalizedDescriptionKey];
    NSError* const error = [NSError errorWithDomain:NSPOSIXErrorDomain code:1 userInfo:told];
    EXPECT_EQ(errorFrom(error).localizedDescription, "Größe");
}

}  // namespace
}  // namespace brisel::tests::macos
