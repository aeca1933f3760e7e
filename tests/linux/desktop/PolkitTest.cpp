// The administrator's password prompt, against a fake polkit authority.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <polkit/polkit.h>
#include <unistd.h>

#include <array>

#include "platform/headless/Authorization.h"
#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::platform::headless {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const tests::FakeService::Interface Authority{.busName = "org.freedesktop.PolicyKit1",
                                              .path = "/org/freedesktop/PolicyKit1/Authority",
                                              .name = "org.freedesktop.PolicyKit1.Authority",
                                              .introspection = R"(
<node><interface name='org.freedesktop.PolicyKit1.Authority'>
  <method name='CheckAuthorization'>
    <arg type='(sa{sv})' direction='in'/><arg type='s' direction='in'/>
    <arg type='a{ss}' direction='in'/><arg type='u' direction='in'/><arg type='s' direction='in'/>
  </method>
  <method name='CancelCheckAuthorization'><arg type='s' direction='in'/></method>
</interface></node>)"};

/// Drops the effective user to nobody: polkit does not prompt root.
class Nobody {
  public:
    Nobody() { EXPECT_TRUE(before_ != 0 || seteuid(NobodysNumber) == 0); }
    Nobody(const Nobody&) = delete;
    Nobody& operator=(const Nobody&) = delete;
    ~Nobody() { EXPECT_EQ(seteuid(before_), 0); }

  private:
    static constexpr uid_t NobodysNumber = 65534;
    uid_t before_ = geteuid();
};

class ThePasswordQuestion : public testing::Test {
  protected:
    ThePasswordQuestion() {
        EXPECT_EQ(pipe2(terminationSignals_.data(), O_CLOEXEC), 0);
        program_.run([this] {
            authority_.emplace(Authority);
            authority_->on("CancelCheckAuthorization", [this](const auto& call) {
                call.answer(nullptr);
                if (waiting_) waiting_->refuse("org.freedesktop.PolicyKit1.Error.Cancelled");
            });
        });
    }
    ~ThePasswordQuestion() override {
        program_.run([this] { authority_.reset(); });
        for (const int end : terminationSignals_)
            close(end);
    }
    void authorityDoes(const tests::FakeService::Method& method) {
        program_.run([&] {
            authority_->on("CheckAuthorization", method);
            authority_->appear();
        });
    }
    void authorityAnswers(const std::string& result) {
        authorityDoes(
            [result](const auto& call) { call.answer(g_variant_new_parsed(result.c_str())); });
    }
    OSStatus ask() {
        // Connects to the bus before the user changes.
        static_cast<void>(tests::SessionBus::shared());
        const Nobody nobody;
        return Authorization(log_, terminationSignals_[0]).copyRights(nullptr, {}, 0);
    }

    tests::TestLoop loop_;
    tests::RecordedLog log_;
    tests::OtherProgram program_;
    std::optional<tests::FakeService> authority_;
    std::optional<tests::BusCall> waiting_;
    std::array<int, 2> terminationSignals_{};
};

TEST_F(ThePasswordQuestion, IsAskedForThisProgramsAction) {
    std::string action;
    std::uint32_t flags = 0;
    authorityDoes([&](const tests::BusCall& call) {
        const char* name = nullptr;
        g_variant_get_child(call.arguments(), 1, "&s", &name);
        g_variant_get_child(call.arguments(), 3, "u", &flags);
        action = name;
        call.answer(g_variant_new_parsed("((true, false, @a{ss} {}),)"));
    });
    EXPECT_EQ(ask(), errAuthorizationSuccess);
    EXPECT_EQ(action, "org.brisel.run-mount-tool");
    EXPECT_EQ(flags, 1U);
}

TEST_F(ThePasswordQuestion, IsRefused) {
    authorityAnswers("((false, false, @a{ss} {}),)");
    EXPECT_EQ(ask(), errAuthorizationDenied);
}

TEST_F(ThePasswordQuestion, IsDismissed) {
    authorityAnswers("((false, false, {'polkit.dismissed': 'true'}),)");
    EXPECT_EQ(ask(), errAuthorizationCanceled);
}

TEST_F(ThePasswordQuestion, FailsWithTheAuthority) {
    authorityDoes([](const auto& call) { call.refuse("org.freedesktop.PolicyKit1.Error.Failed"); });
    EXPECT_EQ(ask(), errAuthorizationInternal);
    EXPECT_THAT(log_.entries(), ElementsAre(HasSubstr("polkit authorization check failed")));
}

TEST_F(ThePasswordQuestion, FailsWithoutAnAuthority) {
    EXPECT_EQ(ask(), errAuthorizationInternal);
    EXPECT_THAT(log_.entries(), ElementsAre(HasSubstr("polkit")));
}

TEST_F(ThePasswordQuestion, IsCancelledOnTermination) {
    authorityDoes([this](const auto& call) {
        waiting_ = call;
        EXPECT_EQ(write(terminationSignals_[1], "x", 1), 1);
    });
    // After a cancelled check, polkit's library (122) uses a freed object when the authority
    // vanishes. The program exits before that; this test keeps the authority alive.
    static const tests::OwnedObject<PolkitAuthority> kept(
        polkit_authority_get_sync(nullptr, nullptr));
    EXPECT_EQ(ask(), errAuthorizationDenied);
    program_.run([] {});
    EXPECT_TRUE(waiting_.has_value());
}

}  // namespace

}  // namespace brisel::platform::headless
