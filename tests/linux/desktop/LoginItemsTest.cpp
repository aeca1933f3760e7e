// The XDG autostart entry.
// SPDX-License-Identifier: MIT
#include "platform/desktop/LoginItems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "platform/headless/GLibOwners.h"
#include "tests/linux/desktop/FakeDesktop.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::platform::desktop {

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* Identifier = "org.brisel.Helper";

class TheLoginItem : public testing::Test {
  protected:
    bool set(const std::string& program, bool enabled) {
        return LoginItems(log_, {.file = file_, .program = program})
            .setEnabled(Identifier, enabled);
    }
    /// The value as GKeyFile reads it, with the first level of escapes resolved.
    [[nodiscard]] std::string value(const char* key) const {
        auto* const file = g_key_file_new();
        g_key_file_load_from_file(file, file_.c_str(), G_KEY_FILE_NONE, nullptr);
        const headless::OwnedText text(g_key_file_get_string(file, "Desktop Entry", key, nullptr));
        g_key_file_unref(file);
        return text ? text.get() : "none";
    }
    [[nodiscard]] bool isValid() const {
        return std::system(("desktop-file-validate --warn-kde '" + file_ + "'").c_str()) == 0;
    }

    tests::TemporaryFolder folder_;
    std::string file_ = folder_.path() + "/config/autostart/org.brisel.Brisel.desktop";
    tests::RecordedLog log_;
};

TEST_F(TheLoginItem, IsAnEntryThatStartsTheProgram) {
    ASSERT_TRUE(set("/usr/bin/brisel", true));
    EXPECT_EQ(value("Type"), "Application");
    EXPECT_EQ(value("Name"), "Brisel");
    EXPECT_EQ(value("Exec"), "\"/usr/bin/brisel\"");
    EXPECT_EQ(value("TryExec"), "/usr/bin/brisel");
    EXPECT_THAT(log_.entries(), IsEmpty());
}

TEST_F(TheLoginItem, IsValidForProgramsInOddFolders) {
    if (std::system("command -v desktop-file-validate >/dev/null") != 0)
        GTEST_SKIP() << "desktop-file-validate is not here.";
    for (const char* const program :
         {"/usr/bin/brisel", "/opt/My Programs/brisel", "/opt/a\"b/brisel", "/opt/50%/brisel",
          "/opt/$HOME/`x`/brisel", "/opt/back\\slash/brisel", "/opt/\xc3\xa9t\xc3\xa9/brisel",
          "/opt/it's/brisel"}) {
        ASSERT_TRUE(set(program, true)) << program;
        EXPECT_TRUE(isValid()) << program;
        EXPECT_EQ(value("TryExec"), program);
    }
}

// GLib splits command lines as desktops do.
TEST_F(TheLoginItem, ReplacesAnEarlierOneAndStartsTheProgramInWhateverFolder) {
    for (const char* const name :
         {"My Programs", "a\"b", "50%f", "$HOME`id`", "back\\slash", "it's"}) {
        const auto program = folder_.path() + "/" + name + "/brisel";
        fs::create_directories(fs::path(program).parent_path());
        std::ofstream(program) << "#!/bin/sh\n: >\"${0%/*}/started\"\n";
        fs::permissions(program, fs::perms::owner_all);
        ASSERT_TRUE(set(program, true));
        headless::OwnedText command(g_strdup(value("Exec").c_str()));
        std::string line;
        // Desktops expand field codes before they split words.
        for (const char* at = command.get(); *at != '\0'; ++at) {
            line += *at;
            if (at[0] == '%' && at[1] == '%') ++at;
        }
        EXPECT_EQ(g_spawn_command_line_sync(line.c_str(), nullptr, nullptr, nullptr, nullptr),
                  TRUE);
        EXPECT_TRUE(fs::exists(fs::path(program).parent_path() / "started")) << name;
    }
}

TEST_F(TheLoginItem, MayBeRemovedTwice) {
    ASSERT_TRUE(set("/usr/bin/brisel", true));
    EXPECT_TRUE(set("/usr/bin/brisel", false));
    EXPECT_FALSE(fs::exists(file_));
    EXPECT_TRUE(set("/usr/bin/brisel", false));
    EXPECT_THAT(log_.entries(), IsEmpty());
}

TEST_F(TheLoginItem, IsRefusedWhereItCannotBeWritten) {
    // A file in place of the folder: root ignores permissions.
    std::ofstream(folder_.path() + "/config") << "no folder";
    EXPECT_FALSE(set("/usr/bin/brisel", true));
    EXPECT_THAT(log_.entries(), testing::ElementsAre(HasSubstr("cannot be written")));
}

TEST_F(TheLoginItem, IsRefusedWhereItCannotBeRemoved) {
    fs::create_directories(file_ + "/not empty");
    EXPECT_FALSE(set("/usr/bin/brisel", false));
    EXPECT_THAT(log_.entries(), testing::ElementsAre(HasSubstr("cannot be removed")));
}

}  // namespace

}  // namespace brisel::platform::desktop
