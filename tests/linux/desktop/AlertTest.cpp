// Alerts shown by a dialog program, including one that fails.
// SPDX-License-Identifier: MIT
#include "platform/desktop/Alert.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "tests/linux/desktop/DialogScript.h"
#include "tests/linux/desktop/FakeDesktop.h"
#include "tests/linux/desktop/StatusItemOnBus.h"

namespace brisel::platform::desktop {

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::DialogScript;

constexpr int NothingPressed = -1;
constexpr int NoInterruption = -1;
constexpr milliseconds Brief{50};
const AlertContent Question{"Sure?", "Really?", {"Yes", "No"}};
const AlertContent Statement{"Oh", "It failed.", {}};

class AnAlert : public testing::Test {
  protected:
    int ask(const AlertContent& content, const std::string& dialog,
            milliseconds patience = Alert::UsualPatience, int interruption = NoInterruption) {
        return Alert({.log = log_,
                      .mainThread = mainThread_,
                      .notifications = notifications_,
                      .terminationSignals = interruption,
                      .dialog = {.path = dialog, .activationToken = activationToken_},
                      .patience = patience})
            .runModal(content);
    }
    int ask(const AlertContent& content, const DialogScript& dialog) {
        return ask(content, dialog.path());
    }
    /// The text reached neither the log nor the notification server.
    void expectNothingTold() {
        EXPECT_THAT(log_.entries(), IsEmpty());
        EXPECT_THAT(desktop_.calls(), IsEmpty());
    }
    void expectToldOtherwise(const AlertContent& content) {
        EXPECT_THAT(log_.entries(), ElementsAre("Cannot show an alert: " + content.messageText +
                                                " " + content.informativeText));
        const auto calls = desktop_.calls();
        ASSERT_EQ(calls.size(), 1U);
        EXPECT_EQ(calls.front().summary, content.messageText);
        EXPECT_EQ(calls.front().body, content.informativeText);
        EXPECT_EQ(calls.front().hints.at("urgency"), "0x02");
    }

    tests::TestLoop loop_;
    tests::RecordedLog log_;
    MainThreadQueue mainThread_;
    ActivationToken activationToken_;
    tests::BusyNotifications desktop_{{}};
    NotificationServer notifications_{tests::SessionBus::shared().program()};
};

TEST_F(AnAlert, AnswersWithTheButtonThatIsPressed) {
    EXPECT_EQ(ask(Question, DialogScript("echo shown; echo pressed 0")), AlertFirstButtonReturn);
    EXPECT_EQ(ask(Question, DialogScript("echo shown; echo pressed 1")),
              AlertFirstButtonReturn + 1);
    expectNothingTold();
}

TEST_F(AnAlert, GivesItsTextsToTheWindow) {
    const DialogScript dialog("printf '%s\\n' \"$@\" >given; echo shown; echo pressed 0");
    ask({"Sure?", "First\nSecond; $(x) 'y'", {"Yes", "No"}}, dialog);
    EXPECT_EQ(dialog.textIn("given"), "alert\nSure?\nFirst\nSecond; $(x) 'y'\nYes\nNo\n");
    ask(Statement, dialog);
    EXPECT_EQ(dialog.textIn("given"), "alert\nOh\nIt failed.\nOK\n");
}

TEST_F(AnAlert, ThatIsClosedHasNoAnswerButIsNoFailure) {
    const DialogScript dialog("echo shown");
    EXPECT_EQ(ask(Question, dialog), NothingPressed);
    EXPECT_EQ(ask(Statement, dialog), AlertFirstButtonReturn);
    expectNothingTold();
}

TEST_F(AnAlert, OfOneButtonCountsAsPressedWhenItCannotBeShown) {
    EXPECT_EQ(ask(Statement, DialogScript("exit 1")), AlertFirstButtonReturn);
    expectToldOtherwise(Statement);
}

TEST_F(AnAlert, OfTwoButtonsHasNoAnswerWhenItCannotBeShown) {
    EXPECT_EQ(ask(Question, DialogScript("kill -SEGV $$")), NothingPressed);
    expectToldOtherwise(Question);
}

TEST_F(AnAlert, IsLoggedAndPostedWithoutADialogProgram) {
    EXPECT_EQ(ask(Question, "/nonexistent/dialog"), NothingPressed);
    expectToldOtherwise(Question);
}

TEST_F(AnAlert, IsLoggedAndPostedIfItsWindowDoesNotAppear) {
    const DialogScript dialog("exec sleep 100");
    EXPECT_EQ(ask(Question, dialog.path(), Brief), NothingPressed);
    expectToldOtherwise(Question);
}

TEST_F(AnAlert, WaitsForAnAnswerAsLongAsItTakes) {
    const DialogScript dialog("echo shown; sleep 1.2; echo pressed 1");
    EXPECT_EQ(ask(Question, dialog.path(), milliseconds(1000)), AlertFirstButtonReturn + 1);
}

TEST_F(AnAlert, TreatsMalformedOutputAsNoAnswer) {
    for (const char* const word :
         {"hello", "pressed", "pressed x", "pressed 1x", "pressed 99999999999", "pressed 2",
          "pressed -1", "\377\000", "shown pressed 0"}) {
        const DialogScript dialog(std::string("echo shown; printf '") + word + "\\n'");
        EXPECT_EQ(ask(Question, dialog), NothingPressed) << word;
    }
    expectNothingTold();
}

TEST_F(AnAlert, ReadsAnAnswerInPieces) {
    const DialogScript dialog(
        "printf sho; sleep 0.05; printf 'wn\\npres'; sleep 0.05; "
        "printf 'sed 1\\n'; exec sleep 100");
    EXPECT_EQ(ask(Question, dialog), AlertFirstButtonReturn + 1);
}

TEST_F(AnAlert, EndsWithoutAnAnswerOnceInterrupted) {
    std::array<int, 2> interruption{};
    ASSERT_EQ(pipe2(interruption.data(), O_CLOEXEC), 0);
    mainThread_.post([&] { EXPECT_EQ(write(interruption[1], "x", 1), 1); });
    const DialogScript dialog("echo shown; exec sleep 100");
    EXPECT_EQ(ask(Question, dialog.path(), Alert::UsualPatience, interruption[0]), NothingPressed);
    for (const int end : interruption)
        close(end);
}

TEST_F(AnAlert, LeavesNeitherProcessesNorDescriptors) {
    const DialogScript pressed("echo shown; echo pressed 0; exec sleep 100");
    const DialogScript closed("echo shown");
    const DialogScript broken("exit 3");
    const DialogScript silent("exec sleep 100");
    // Opens the descriptors that stay open, before they are counted.
    ask(Question, broken);
    const auto before = tests::openDescriptors();
    constexpr int Rounds = 5;
    for (int round = 0; round < Rounds; ++round) {
        for (const auto* const dialog : {&pressed, &closed, &broken})
            ask(Question, *dialog);
        ask(Question, "/nonexistent/dialog");
        ask(Question, silent.path(), Brief);
    }
    // GLib's threads may have one open for a moment.
    EXPECT_LT(tests::openDescriptors(), before + Rounds);
    EXPECT_LE(waitpid(-1, nullptr, WNOHANG), 0);
    EXPECT_TRUE(pressed.isGone());
}

TEST_F(AnAlert, RunsTheMainThreadsUrgentWork) {
    const DialogScript dialog(
        "echo shown; for try in $(seq 500); do\n"
        "[ -e done ] && { echo pressed 0; exit; }; sleep 0.02; done");
    mainThread_.post([&] { std::ofstream(dialog.file("done")); });
    EXPECT_EQ(ask(Question, dialog), AlertFirstButtonReturn);
}

class TheAppearanceUnderAnAlert : public tests::StatusItemOnBus {};

TEST_F(TheAppearanceUnderAnAlert, FollowsTheDesktop) {
    constexpr std::uint32_t PreferDark = 1;
    const tests::OtherProgram program;
    std::optional<tests::FakePortal> portal;
    const DialogScript dialog(
        "echo shown; for try in $(seq 500); do\n"
        "[ -e dark ] && { echo pressed 0; exit; }; sleep 0.02; done");
    const auto observation = item_->observeEffectiveAppearance([&] {
        if (item_->effectiveAppearanceName() == "NSAppearanceNameDarkAqua")
            std::ofstream(dialog.file("dark"));
    });
    item_->setImage("brisel-status-blue-light");
    program.run([&] {
        portal.emplace(PreferDark);
        portal->service.appear();
    });
    NotificationServer notifications(bus_);
    Alert alert({.log = log_,
                 .mainThread = mainThread_,
                 .notifications = notifications,
                 .terminationSignals = NoInterruption,
                 .dialog = dialog.program()});
    EXPECT_EQ(alert.runModal(Question), AlertFirstButtonReturn);
    program.run([&] { portal.reset(); });
}

}  // namespace

}  // namespace brisel::platform::desktop
