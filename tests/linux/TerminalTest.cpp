// The terminal as a screen: input, output, and escaping of control characters.
// SPDX-License-Identifier: MIT
#include <glib.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <sstream>

#include "platform/common/VisibleText.h"
#include "platform/headless/TerminationSignals.h"
#include "platform/terminal/Alert.h"
#include "platform/terminal/StatusItem.h"
#include "platform/terminal/Terminal.h"
#include "platform/terminal/UserNotificationCenter.h"

namespace brisel::platform::terminal {

namespace {

using testing::HasSubstr;

class Screen : public testing::Test {
  protected:
    Screen() {
        static_cast<void>(pipe(ends_.data()) == 0);
        terminal_ = std::make_unique<Terminal>(ends_[0], output_);
    }
    ~Screen() override {
        close(ends_[0]);
        endInput();
    }
    void type(const std::string& text) const {
        static_cast<void>(write(ends_[1], text.data(), text.size()) > 0);
    }
    void endInput() {
        if (ends_[1] >= 0) close(ends_[1]);
        ends_[1] = -1;
    }
    [[nodiscard]] std::string shown() const { return output_.str(); }

    std::array<int, 2> ends_{};
    std::ostringstream output_;
    std::unique_ptr<Terminal> terminal_;
};

TEST_F(Screen, EscapesControlCharactersAndBidirectionalOnes) {
    EXPECT_EQ(common::visible("a\x1b[2Jb\x7f\n"), "a^[[2Jb^?^J");
    EXPECT_EQ(common::visible("a\xc2\x9b"
                              "2J"),
              "a?2J");
    EXPECT_EQ(common::visible("a\u202a\u202b\u202c\u202d\u202e\u2066\u2067\u2068\u2069z"),
              "a?????????z");
    for (const std::string text :
         {"Fotos \xc3\xa9", "\xc2", "\xe2\x80", "\u2029\u202f\u2065\u206a\u05d0"})
        EXPECT_EQ(common::visible(text), text);
}

TEST_F(Screen, ReadsNumbersInRangeOnly) {
    EXPECT_EQ(numberUpTo("2", 2), 2U);
    EXPECT_EQ(numberUpTo("3", 2), std::nullopt);
    EXPECT_EQ(numberUpTo("0", 2), std::nullopt);
    EXPECT_EQ(numberUpTo("1x", 2), std::nullopt);
    EXPECT_EQ(numberUpTo("", 2), std::nullopt);
    EXPECT_EQ(numberUpTo("99999999999999999999", 2), std::nullopt);
}

TEST_F(Screen, AnswersQuestionsLineByLine) {
    type("one\ntw");
    EXPECT_EQ(terminal_->ask("?"), "one");
    type("o\n");
    EXPECT_EQ(terminal_->ask("?"), "two");
    endInput();
    EXPECT_EQ(terminal_->ask("?"), std::nullopt);
}

TEST_F(Screen, KeepsTheLinesTypedAfterAnAnswer) {
    std::vector<std::string> lines;
    const auto subscription =
        terminal_->handleLines([&](const auto& line) { lines.push_back(line.value_or("end")); });
    type("answer\nfirst\nsecond\nthi");
    EXPECT_EQ(terminal_->ask("?"), "answer");
    EXPECT_TRUE(lines.empty());
    while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
    }
    EXPECT_THAT(lines, testing::ElementsAre("first", "second"));
    type("rd\nlast");
    endInput();
    while (lines.size() < 5 && g_main_context_iteration(nullptr, TRUE) != FALSE) {
    }
    EXPECT_THAT(lines, testing::ElementsAre("first", "second", "third", "last", "end"));
}

TEST_F(Screen, LeavesAQuestionUnansweredOnceInterrupted) {
    std::array<int, 2> interruption{};
    ASSERT_EQ(pipe(interruption.data()), 0);
    Terminal terminal(ends_[0], output_, interruption[0]);
    ASSERT_EQ(write(interruption[1], "x", 1), 1);
    EXPECT_EQ(terminal.ask("?"), std::nullopt);
    for (const int end : interruption)
        close(end);
}

TEST(TerminationSignals, ReportEachTerminationSignal) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const headless::TerminationSignals interruption;
        pollfd ready{.fd = interruption.descriptor(), .events = POLLIN, .revents = 0};
        EXPECT_EQ(poll(&ready, 1, 0), 0);
        ASSERT_EQ(raise(signal), 0);
        EXPECT_EQ(poll(&ready, 1, 0), 1);
    }
}

TEST_F(Screen, AsksAnAlertUntilAButtonIsPressed) {
    type("3\nmaybe\n2\n");
    EXPECT_EQ(Alert(*terminal_).runModal({"Message", "First\nSecond", {"Yes", "No"}}),
              AlertFirstButtonReturn + 1);
    EXPECT_THAT(shown(), HasSubstr("! Message\n  First\n  Second\n"));
}

TEST_F(Screen, TakesAnEmptyLineForTheDefaultButton) {
    type("\n");
    EXPECT_EQ(Alert(*terminal_).runModal({"Message", "", {}}), AlertFirstButtonReturn);
    EXPECT_THAT(shown(), HasSubstr("1 = OK"));
}

TEST_F(Screen, PressesNothingAtTheEndOfInput) {
    endInput();
    EXPECT_LT(Alert(*terminal_).runModal({"Message", "", {"Yes", "No"}}), AlertFirstButtonReturn);
}

TEST_F(Screen, NumbersTheMenuItemsThatCanBeChosen) {
    common::Menu menu;
    menu.load({{.title = "Status"},
               {.separator = true},
               {.title = "First", .action = "first:"},
               {.title = "Second", .action = "second:", .checked = true}});
    StatusItem display(*terminal_, menu, [](const auto&) { return Subscription(); });
    display.show();
    EXPECT_THAT(shown(), HasSubstr("      Status\n      ----\n   1  First\n   2  Second [x]\n"));
    EXPECT_EQ(display.itemWithNumber("2")->title, "Second");
    EXPECT_EQ(display.itemWithNumber("3"), nullptr);
}

TEST_F(Screen, PassesAPromptsAnswerToTheDelegateOnce) {
    UserNotificationCenter center(*terminal_);
    std::vector<std::string> actions;
    const auto subscription = center.setDelegate(
        [&](const auto& response, const auto&) { actions.push_back(response.actionIdentifier); });
    center.setNotificationCategories(
        {{.identifier = "C", .actions = {{"DO", "Yes, sure!"}, {"NOT", "No, thanks."}}}});
    EXPECT_FALSE(center.answer("y"));
    center.addNotificationRequest({.identifier = "i",
                                   .title = "Found",
                                   .body = "Go?",
                                   .soundName = "",
                                   .categoryIdentifier = "C",
                                   .userInfo = {},
                                   .delay = {}},
                                  [](const auto& error) { EXPECT_FALSE(error.has_value()); });
    EXPECT_THAT(shown(), HasSubstr("? Found. Go?  y = Yes, sure!  n = No, thanks.\n"));
    EXPECT_FALSE(center.answer("x"));
    EXPECT_TRUE(center.answer("n"));
    EXPECT_FALSE(center.answer("y"));
    EXPECT_THAT(actions, testing::ElementsAre("NOT"));
}

}  // namespace

}  // namespace brisel::platform::terminal
