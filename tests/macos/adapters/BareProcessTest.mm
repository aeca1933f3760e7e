// The adapters outside an application bundle, and on an older system.
// SPDX-License-Identifier: MIT
#include "platform/macos/Authorization.h"
#include "platform/macos/SystemVersion.h"
#include "platform/macos/UserNotificationCenter.h"
#include "privileged/KJPrivilegedTask.h"
#import "tests/macos/adapters/AdapterTest.h"
#include "tests/support/PlatformWith.h"

namespace brisel::tests::macos {
namespace {

class BareProcess : public AdapterTest {
  protected:
    BareProcess() {
        mac.authorization.removeExecuteWithPrivileges();
        mac.systemVersion.setMacOS12OrLater(false);
    }

    platform::macos::Authorization authorization;
    platform::macos::UserNotificationCenter center;
};

TEST_F(BareProcess, DoesNotOfferACallThatIsNotFound) {
    EXPECT_FALSE(authorization.offersExecuteWithPrivileges());
    char* const arguments[] = {nullptr};
    const auto tool = authorization.executeWithPrivileges(nullptr, "/bin/tool", 0, arguments);
    EXPECT_EQ(tool.status, platform::errAuthorizationInternal);
    EXPECT_EQ(tool.communicationsPipe, nullptr);
}

TEST_F(BareProcess, ReportsTheMissingCallInATask) {
    const auto withAdapter = platformWith(mac.platform, {.authorization = &authorization});
    const auto task = KJPrivilegedTask::initWithLaunchPath(withAdapter, "/bin/tool");
    EXPECT_EQ(task->launch(), -70001);
    EXPECT_THAT(lines(), ElementsAre("log: AuthorizationExecuteWithPrivileges() function not "
                                     "available on this system"));
}

TEST_F(BareProcess, KnowsAnOlderSystem) {
    EXPECT_FALSE(platform::macos::SystemVersion().isMacOS12OrLater());
}

TEST_F(BareProcess, IsNoApplicationWithOrWithoutAnIdentifier) {
#ifdef HAS_IDENTIFIER
    EXPECT_NE([[NSBundle mainBundle] bundleIdentifier], nil);
#else
    EXPECT_EQ([[NSBundle mainBundle] bundleIdentifier], nil);
#endif
    EXPECT_FALSE([[[NSBundle mainBundle] bundlePath] hasSuffix:@".app"]);
}

TEST_F(BareProcess, NeverAsksTheNotificationCenter) {
    std::vector<std::string> errors;
    center.requestAuthorization(6, [&](bool granted, const auto& error) {
        EXPECT_FALSE(granted);
        if (error) errors.push_back(error->localizedDescription);
    });
    platform::NotificationRequest request;
    request.identifier = "x";
    request.delay = std::chrono::seconds(1);
    center.addNotificationRequest(request, [&](const auto& error) {
        if (error) errors.push_back(error->localizedDescription);
    });
    EXPECT_THAT(errors, ElementsAre("This process cannot show notifications.",
                                    "This process cannot show notifications."));
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(BareProcess, RegistersNothingWithTheNotificationCenter) {
    auto delegate = center.setDelegate([](const auto&, const auto&) {});
    center.setNotificationCategories({{.identifier = "REMOUNT", .actions = {}}});
    delegate.reset();
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_THAT(mac.userNotificationCenter.categories(), IsEmpty());
}

}  // namespace
}  // namespace brisel::tests::macos
