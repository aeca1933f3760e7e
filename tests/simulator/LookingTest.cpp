// The commands that look at the program's state.
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "tests/simulator/ScriptedScenario.h"

namespace brisel::tests {
namespace {

class Looking : public ScriptedScenario {
  protected:
    /// What the last of these commands prints.
    std::vector<std::string> printedLast(const std::string& commands) {
        EXPECT_TRUE(run(commands));
        const auto echo = std::find_if(lines.rbegin(), lines.rend(),
                                       [](const auto& line) { return line.starts_with("> "); });
        return {echo.base(), lines.end()};
    }
};

TEST_F(Looking, ShowsTheMenu) {
    EXPECT_THAT(
        printedLast("default shouldStartAtLogin YES\n" + std::string(Started) +
                    "attach d kind=ntfs name=Data path=/Data writable=yes media-uuid=abc\n"
                    "show menu\n"),
        ElementsAre("item: tag=101 title=\"show Data in Finder\" action=showInFinder: volume=d",
                    "item: tag=102 title=\"unmount\" action=unmountVolume: volume=d align=1",
                    "item: tag=102 title=\"remove all extended attributes\" "
                    "action=cleanupFinderInfo: volume=d align=1",
                    "item: tag=102 title=\"mount automatically\" action=saveVolumeForAutomount: "
                    "volume=d align=1",
                    "item: tag=101 ---",
                    "item: tag=0 title=\"Start at Login\" action=toggleStartAtLogin: checked",
                    "item: tag=0 title=\"About Brisel\" action=bringToFront:", "item: tag=0 ---",
                    "item: tag=0 title=\"Quit Brisel\" action=terminate:"));
}

TEST_F(Looking, ShowsVolumes) {
    EXPECT_THAT(printedLast(std::string(Started) +
                            "attach d kind=ntfs name=Data path=/Volumes/Data media-uuid=abc\n"
                            "attach e kind=ntfs path=/Volumes/E\nchoose \"re-mount Data\"\n"
                            "password ok\nshow volumes\n"),
                ElementsAre("volume: e label=\"(null)\" uuid=(null) writable=no sent=yes "
                            "path=(null)",
                            "volume: d label=\"Data\" uuid=ABC writable=yes sent=no "
                            "path=file:///Users/user/.brisel/Data/"));
}

TEST_F(Looking, ShowsTheBusyState) {
    EXPECT_THAT(printedLast("show progress\n"), ElementsAre("progress: no"));
    EXPECT_THAT(
        printedLast(std::string(Started) + "attach d kind=ntfs name=Data path=/Volumes/Data\nhold\n"
                                           "choose \"re-mount Data\"\nshow progress\n"),
        ElementsAre("progress: yes"));
}

TEST_F(Looking, ShowsStoredPreferences) {
    EXPECT_THAT(printedLast("default volumeList A B\ndefault showDisclaimer NO\n"
                            "default a YES\nshow defaults\n"),
                ElementsAre("default: a = YES", "default: showDisclaimer = NO",
                            "default: volumeList = (A, B)"));
}

TEST_F(Looking, ShowsTheMountFolder) {
    EXPECT_THAT(printedLast("home /h\nfile /h/.brisel/b/x\nfile /h/.brisel/a\nfile /h/other/x\n"
                            "show folders\n"),
                ElementsAre("folder: /h/.brisel", "folder: /h/.brisel/b"));
}

}  // namespace
}  // namespace brisel::tests
