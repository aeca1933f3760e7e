// Names, values and bad commands for random scenarios; repeated ones are likelier.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace brisel::tests::vocabulary {

using Texts = std::vector<std::string>;

inline const Texts Devices{"disk4s1", "disk5s1", "disk6s2", "disk10s3"};
inline const Texts Names{"Data",
                         "Data",
                         "Data",
                         "My Data",
                         "Data-disk4s1",
                         "Data-disk5s1",
                         "unmount",
                         "---",
                         "(null)",
                         "%@ %s %n %%",
                         "a \"quoted\" name",
                         "back\\slash",
                         "two\nlines",
                         "a/b",
                         "'; $(reboot) `reboot` #",
                         "Übung – größer",
                         "データ",
                         "📀 | [x]",
                         " blank ",
                         "~",
                         "OK",
                         "Brisel is operating ...",
                         "e\u0301",
                         std::string(300, 'x'),
                         "..",
                         ".",
                         "a/../b",
                         "/slashes/",
                         "a\ttab"};
inline const Texts Kinds{"ntfs",        "ntfs",        "ntfs",  "ntfs", "ntfs", "ntfs", "ntfs",
                         "ntfs",        "ntfs",        "ntfs",  "ntfs", "ntfs", "NTFS", "Ntfs",
                         "com_ntfs_3g", "ufsd_NTFS 7", "exfat", "hfs",  "nt fs"};
inline const Texts UUIDs{
    "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0", "11111111-2222-3333-4444-555555555555",
    "AAAAAAAA-BBBB-CCCC-DDDD-EEEEEEEEEEEE", "aaaaaaaa-bbbb-cccc-dddd-eeeeeeeeeeee"};
inline const Texts Homes{"/Users/user", "/Users/user/", "/Users/Jörg Müller",
                         "/Volumes/Homes/o'neil", "/home \"x\""};
inline const Texts Languages{"de", "en", "es", "fr", "it", "ja", "pt", "zh-Hans", "nl"};
inline const Texts Appearances{"NSAppearanceNameAqua", "NSAppearanceNameDarkAqua", "DARK", "light",
                               "NSAppearanceNameAccessibilityHighContrastVibrantDark"};
inline const Texts Statuses{"0xF8DA0000", "0xF8DA0001", "0xF8DA0002", "0xF8DA0003", "0xF8DA0004",
                            "0xF8DA0005", "0xF8DA0006", "0xF8DA0007", "0xF8DA0008", "0xF8DA0009",
                            "0xF8DA000A", "0xF8DA000B", "0xF8DA000C", "0xF8DA000D", "0xF8DA000E",
                            "0",          "1",          "49168",      "0xffffffff"};
inline const Texts Codes{"-60005", "-60006", "-60007", "-60031", "-70001", "1", "-1"};
inline const Texts Errors{"Permission denied", "No space left", "a \"b\" \\ c",
                          "two\nlines",        "%@ %s",         "größer"};
inline const Texts Outputs{"", "done", "mounted\n", "one\ntwo", "%@ %n", "ä — ✓"};
inline const Texts Responses{"DO_MOUNT", "DO_MOUNT", "DO_MOUNT", "NOTHING", "default", "dismiss"};
inline const Texts Shows{"menu", "volumes", "progress", "defaults", "folders"};
inline const Texts BadCommands{"explode",
                               "start now",
                               "attach",
                               "attach disk9s9 color=red",
                               "attach disk9s9 mountable=maybe",
                               "detach disk99s1",
                               "set disk99s1 name=x",
                               "report disk99s1",
                               "refuse mount disk99s1 0",
                               "show everything",
                               "press \"no such button\"",
                               "choose nothing",
                               "file \"/open",
                               "tool exit=x",
                               "password perhaps",
                               "respond MAYBE volume=disk4s1",
                               "system 11",
                               "home /",
                               "language de",
                               "default showDisclaimer NO",
                               "launch missing",
                               "start",
                               "fail rename x",
                               "hold on"};

}  // namespace brisel::tests::vocabulary
