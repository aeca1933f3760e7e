// The mount tool's tests on real volumes; prints why it skips them.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <iostream>
#include <string_view>

#include "tests/linux/NTFSImage.h"
#include "tests/tools/mount-tool/OldKernel.h"
#include "tests/tools/mount-tool/Stage.h"

namespace {

std::string reasonToSkip() {
    using brisel::tests::shell;
    using brisel::tests::succeeds;
    const std::string scripts = BRISEL_SCRIPTS;
    auto reason = shell(scripts + "/real-volumes-possible beside-others");
    for (const char* const tool : {"useradd", "userdel", "setpriv", "unshare", "findmnt", "ntfscp",
                                   "mke2fs", "pgrep", "python3"}) {
        if (reason.empty() && !succeeds(std::string("command -v ") + tool))
            reason = std::string("there is no ") + tool;
    }
    if (reason.empty() && !succeeds("unshare --mount true"))
        reason = "no mount namespace can be made";
    if (reason.empty() && !succeeds(scripts + "/disk-services start"))
        reason = "the disk services do not start";
    return reason;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    constexpr int Skipped = 77;
    using namespace brisel::tests;
    if (argumentCount > 2 && arguments[1] == OldKernelMode) return startOnOldKernel(arguments + 2);
    testing::InitGoogleTest(&argumentCount, arguments);
    if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
    if (const auto reason = reasonToSkip(); !reason.empty()) {
        std::cout << "Skipped, nothing can be mounted here: " << reason << '\n';
        return Skipped;
    }
    const TestUser user;
    MountToolStage::user = &user;
    return RUN_ALL_TESTS();
}
