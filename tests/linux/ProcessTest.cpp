// Process set-up: standard descriptors, language, tools, and mounted volumes.
// SPDX-License-Identifier: MIT
#include "platform/headless/Process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>

#include "platform/headless/Bundle.h"
#include "platform/headless/Installation.h"
#include "platform/headless/MountInfo.h"
#include "platform/headless/VolumeProbe.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::platform::headless {

namespace {

namespace fs = std::filesystem;

/// Runs `body` in a child process; returns its result, or -1 if the child was killed.
int inAnotherProcess(const std::function<int()>& body) {
    const pid_t child = fork();
    if (child == 0) _exit(body());
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class Variable {
  public:
    Variable(const char* name, const std::optional<std::string>& value) : name_(name) {
        if (const char* const before = std::getenv(name)) before_ = before;
        set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { set(before_); }

  private:
    void set(const std::optional<std::string>& value) const {
        value ? setenv(name_, value->c_str(), 1) : unsetenv(name_);
    }

    const char* name_;
    std::optional<std::string> before_;
};

TEST(TheProcess, ReopensClosedStandardDescriptors) {
    for (const unsigned closed : {0U, 1U, 2U, 4U, 5U, 7U}) {
        const int firstOpened = inAnotherProcess([closed] {
            for (int descriptor = 0; descriptor < 3; ++descriptor) {
                if ((closed >> static_cast<unsigned>(descriptor) & 1U) != 0) close(descriptor);
            }
            restoreProcessDefaults();
            return open("/dev/zero", O_RDONLY) > STDERR_FILENO ? 0 : 1;
        });
        EXPECT_EQ(firstOpened, 0) << closed;
    }
}

TEST(TheProcess, RestoresSIGCHLD) {
    EXPECT_EQ(inAnotherProcess([] {
                  std::signal(SIGCHLD, SIG_IGN);
                  restoreProcessDefaults();
                  return inAnotherProcess([] { return 3; });
              }),
              3);
}

TEST(TheUsersLanguages, AreNamedAsTheTablesAreAndComeInTheirOrder) {
    const Variable locale("LC_ALL", "");
    const std::vector<std::pair<const char*, const char*>> rows{
        {"de_DE.UTF-8", "de"}, {"pt_BR", "pt"}, {"sr_RS@latin", "sr"}, {"zh_CN.UTF-8", "zh-Hans"}};
    for (const auto& [value, name] : rows) {
        const Variable language("LANGUAGE", value);
        EXPECT_EQ(userLanguages().front(), name);
    }
    const Variable language("LANGUAGE", "nl:de_AT");
    EXPECT_THAT(userLanguages(), testing::ElementsAre("nl", "de", "de", "C"));
}

TEST(TheUsersLanguages, AreTriedUntilThereAreTexts) {
    Bundle bundle;
    bundle.setLanguages({"nl", "de", "fr"});
    EXPECT_EQ(bundle.language(), "de");
    bundle.setLanguages({"nl", "C"});
    EXPECT_EQ(bundle.language(), "en");
}

TEST(TheTexts, NameNoMac) {
    Bundle bundle;
    for (const auto& table : common::embeddedTables()) {
        bundle.setLanguage(table.language);
        const auto shared = common::StringsTable::parse(table.text);
        for (const auto& [key, text] : shared->texts()) {
            EXPECT_THAT(bundle.localizedString(key),
                        testing::Not(testing::ContainsRegex("Mac|macOS|Finder|访达")))
                << table.language;
        }
    }
}

TEST(TheTools, LieBesideTheProgramOrInItsLibexec) {
    const auto program = fs::path(ownPath());
    EXPECT_EQ(program, fs::read_symlink("/proc/self/exe"));
    const bool inBuild = fs::exists(program.parent_path() / "brisel-dialog");
    const auto installed = program.parent_path().parent_path() / "libexec/brisel";
    EXPECT_EQ(fs::path(toolFolder()), inBuild ? program.parent_path() : installed);
    EXPECT_EQ(toolPath("xattr"), toolFolder() + "/xattr");
}

TEST(AVolume, IsWritableIfAFileCanBeCreated) {
    static constexpr const char* MemoryFolder = "/dev/shm";
    if (currentMountState(MemoryFolder) != MountState::ReadWrite || access(MemoryFolder, W_OK) != 0)
        GTEST_SKIP() << MemoryFolder << " is no mount that can be written.";
    const auto count = [] {
        return std::distance(fs::directory_iterator(MemoryFolder), fs::directory_iterator());
    };
    const auto before = count();
    EXPECT_TRUE(takesWriting(MemoryFolder));
    EXPECT_EQ(count(), before);
}

TEST(AVolume, IsNotWritableMerelyByItsMountOptions) {
    if (currentMountState("/proc") != MountState::ReadWrite)
        GTEST_SKIP() << "/proc is not mounted read-write.";
    EXPECT_FALSE(takesWriting("/proc"));
}

TEST(AVolume, IsAMountPoint) {
    EXPECT_FALSE(takesWriting(tests::TemporaryFolder().path()));
    EXPECT_FALSE(takesWriting("/missing"));
}

TEST(AVolume, IsHibernatedIfItsHibernationFileIsActive) {
    const tests::TemporaryFolder folder;
    EXPECT_FALSE(isHibernated(folder.path()));
    const auto hibernatedWith = [&folder](const std::string& text) {
        std::ofstream(folder.path() + "/hiberfil.sys", std::ios::binary) << text;
        return isHibernated(folder.path());
    };
    EXPECT_TRUE(hibernatedWith("hibr and more"));
    EXPECT_TRUE(hibernatedWith("HIBR"));
    // A resumed session; a full file without a session; a truncated one.
    EXPECT_FALSE(hibernatedWith("RSTR and more"));
    EXPECT_FALSE(hibernatedWith(std::string(8192, '\0')));
    EXPECT_FALSE(hibernatedWith("hib"));
    EXPECT_FALSE(hibernatedWith(""));
}

}  // namespace

}  // namespace brisel::platform::headless
