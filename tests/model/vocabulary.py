# What random scenarios are written of: names, values and bad commands, some of them more often.
# SPDX-License-Identifier: MIT

DEVICES = ["disk4s1", "disk5s1", "disk6s2", "disk10s3"]
NAMES = ["Data", "Data", "Data", "My Data", "Data-disk4s1", "Data-disk5s1", "unmount", "---",
         "(null)", "%@ %s %n %%", 'a "quoted" name', "back\\slash", "two\nlines", "a/b",
         "'; $(reboot) `reboot` #", "Übung – größer", "データ", "📀 | [x]", " blank ",
         "~", "OK",
         "Brisel is operating ...", "e\u0301", "x" * 300, "..", ".", "a/../b", "/slashes/",
         "a\ttab"]
KINDS = ["ntfs"] * 12 + ["NTFS", "Ntfs", "com_ntfs_3g", "ufsd_NTFS 7", "exfat", "hfs", "nt fs"]
UUIDS = ["0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0", "11111111-2222-3333-4444-555555555555",
         "AAAAAAAA-BBBB-CCCC-DDDD-EEEEEEEEEEEE", "aaaaaaaa-bbbb-cccc-dddd-eeeeeeeeeeee"]
HOMES = ["/Users/user", "/Users/user/", "/Users/Jörg Müller", "/Volumes/Homes/o'neil",
         '/home "x"']
LANGUAGES = ["de", "en", "es", "fr", "it", "ja", "pt", "zh-Hans", "nl"]
APPEARANCES = ["NSAppearanceNameAqua", "NSAppearanceNameDarkAqua", "DARK", "light",
               "NSAppearanceNameAccessibilityHighContrastVibrantDark"]
STATUSES = [f"0xF8DA{code:04X}" for code in range(15)] + ["0", "1", "49168", "0xffffffff"]
CODES = ["-60005", "-60006", "-60007", "-60031", "-70001", "1", "-1"]
TEXTS = ["Permission denied", "No space left", "a \"b\" \\ c", "two\nlines", "%@ %s", "größer"]
OUTPUTS = ["", "done", "mounted\n", "one\ntwo", "%@ %n", "ä — ✓"]
ACTIONS = ["DO_MOUNT", "DO_MOUNT", "DO_MOUNT", "NOTHING", "default", "dismiss"]
SHOWS = ["menu", "volumes", "progress", "defaults", "folders"]
# Commands that are bad at any time, and some that are bad when they come too late.
BAD = ["explode", "start now", "attach", "attach disk9s9 color=red",
       "attach disk9s9 mountable=maybe",
       "detach disk99s1", "set disk99s1 name=x", "report disk99s1", "refuse mount disk99s1 0",
       "show everything", 'press "no such button"', "choose nothing", 'file "/open', "tool exit=x",
       "password perhaps", "respond MAYBE volume=disk4s1", "system 11", "home /", "language de",
       "default showDisclaimer NO", "launch missing", "start", "fail rename x", "hold on"]
