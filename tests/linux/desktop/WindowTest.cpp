// Modeless windows: the About panel, and the menu without a tray.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

#include "platform/desktop/Application.h"
#include "platform/desktop/MenuWindow.h"
#include "platform/desktop/ModelessWindow.h"
#include "tests/linux/desktop/DialogScript.h"
#include "tests/linux/desktop/StatusItemOnBus.h"

namespace brisel::platform::desktop {

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using tests::DialogScript;
using tests::turnUntil;

class AWindow : public testing::Test {
  protected:
    ModelessWindow::Pressed note() {
        return [this](int number) { pressed_.push_back(number); };
    }
    static void waitForEnd(const DialogScript& dialog) {
        turnUntil([&dialog] { return dialog.isGone(); });
    }

    tests::TestLoop loop_;
    tests::RecordedLog log_;
    std::vector<int> pressed_;
};

TEST_F(AWindow, ReportsThePressedItem) {
    const DialogScript dialog("cat >input; echo \"$@\" >given; echo shown; echo pressed 42");
    ModelessWindow window(log_, dialog.program());
    window.show({"menu", "Title"}, "some input\n", note());
    turnUntil([this] { return !pressed_.empty(); });
    EXPECT_THAT(pressed_, ElementsAre(42));
    EXPECT_EQ(dialog.textIn("input"), "some input\n");
    EXPECT_EQ(dialog.textIn("given"), "menu Title\n");
    waitForEnd(dialog);
}

TEST_F(AWindow, IsReplacedByANewerOne) {
    const DialogScript dialog(
        "echo shown; echo $$ >>pids; [ -e second ] && echo pressed 2; exec sleep 100");
    ModelessWindow window(log_, dialog.program());
    window.show({"menu"}, {}, note());
    turnUntil([&] { return !dialog.textIn("pids").empty(); });
    const auto first = std::stoi(dialog.textIn("pids"));
    std::ofstream(dialog.file("second"));
    window.show({"menu"}, {}, note());
    EXPECT_NE(kill(first, 0), 0);
    turnUntil([this] { return !pressed_.empty(); });
    EXPECT_THAT(pressed_, ElementsAre(2));
    waitForEnd(dialog);
}

TEST_F(AWindow, ClosesWithItsOwner) {
    const DialogScript dialog("exec sleep 100");
    {
        ModelessWindow window(log_, dialog.program());
        window.show({"menu"}, {}, note());
        turnUntil([&] { return !dialog.textIn("pid").empty(); });
        EXPECT_FALSE(dialog.isGone());
    }
    EXPECT_TRUE(dialog.isGone());
}

TEST_F(AWindow, WithoutADialogProgramIsOnlyLogged) {
    ActivationToken token;
    ModelessWindow window(log_, {.path = "/nonexistent/dialog", .activationToken = token});
    const auto before = tests::openDescriptors();
    constexpr int Times = 20;
    for (int time = 0; time < Times; ++time)
        window.show({"menu"}, {}, note());
    EXPECT_LT(tests::openDescriptors(), before + Times);
    EXPECT_THAT(log_.entries(), SizeIs(Times));
    EXPECT_THAT(log_.entries(), Each("/nonexistent/dialog could not show a window."));
    EXPECT_THAT(pressed_, IsEmpty());
}

TEST_F(AWindow, TakesMoreInputThanAPipeHolds) {
    const DialogScript dialog("wc -c >count; echo pressed 1");
    ModelessWindow window(log_, dialog.program());
    window.show({"menu"}, std::string(1 << 20, 'x'), note());
    turnUntil([this] { return !pressed_.empty(); });
    EXPECT_EQ(std::stoi(dialog.textIn("count")), 1 << 20);
}

TEST_F(AWindow, MayBeShownAgainByWhatIsPressedInIt) {
    const DialogScript dialog("echo shown; echo pressed 1");
    ModelessWindow window(log_, dialog.program());
    window.show({"menu"}, {}, [&](int number) {
        pressed_.push_back(number);
        window.show({"menu"}, {}, note());
    });
    turnUntil([this] { return pressed_.size() == 2; });
    waitForEnd(dialog);
}

TEST_F(AWindow, ShowsTheAboutPanelAndReportsNothingWhenItIsClosed) {
    const DialogScript dialog("echo \"$@\" >given; echo shown");
    Application application(log_, dialog.program());
    application.orderFrontStandardAboutPanel();
    waitForEnd(dialog);
    EXPECT_EQ(dialog.textIn("given"), "about\n");
    ModelessWindow window(log_, dialog.program());
    window.show({"menu"}, {}, note());
    turnUntil([&] { return dialog.textIn("given") == "menu\n"; });
    waitForEnd(dialog);
    EXPECT_THAT(pressed_, IsEmpty());
    EXPECT_THAT(log_.entries(), IsEmpty());
}

class TheMenuWindow : public tests::StatusItemOnBus {
  protected:
    MenuItem item(const std::string& title, std::string_view action) {
        const auto target = [this](const MenuItem& sender) { chosen_.push_back(sender.title); };
        return {.title = title, .action = action, .target = target};
    }

    std::vector<std::string> chosen_;
};

TEST_F(TheMenuWindow, ShowsTheMenuAndChoosesInIt) {
    const MenuItem separator{.separator = true};
    const MenuItem title{.title = "Status\tand\nmore"};
    auto login = item("Start at Login", "toggle:");
    login.checked = true;
    menu_.load({title, separator, login, item("My_Data", "mount:")});
    const DialogScript dialog("cat >input; echo shown; echo pressed 4");
    MenuWindow window(*item_, log_, dialog.program());
    window.show();
    turnUntil([this] { return !chosen_.empty(); });
    EXPECT_THAT(chosen_, ElementsAre("My_Data"));
    EXPECT_EQ(dialog.textIn("input"),
              "1\ttext\tStatus^Iand^Jmore\n2\tseparator\t\n3\tchecked\tStart at Login\n"
              "4\titem\tMy_Data\n");
}

TEST_F(TheMenuWindow, ChoosesNothingThatHasLeftTheMenu) {
    menu_.load({item("Data", "mount:")});
    const DialogScript dialog(
        "echo shown; for try in $(seq 500); do\n"
        "[ -e gone ] && { echo pressed 1; exit; }; sleep 0.02; done");
    MenuWindow window(*item_, log_, dialog.program());
    window.show();
    menu_.load({item("Other", "mount:")});
    std::ofstream(dialog.file("gone"));
    turnUntil([&dialog] { return dialog.isGone(); });
    EXPECT_THAT(chosen_, IsEmpty());
}

}  // namespace

}  // namespace brisel::platform::desktop
