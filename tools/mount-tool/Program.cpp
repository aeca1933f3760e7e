// Runs a program to its end in a clean environment.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/Program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "shared/Descriptor.h"

namespace brisel::mounttool {

namespace {

using shared::Descriptor;

constexpr std::size_t OutputLimit = 65536;

// A memfd, not a pipe: the program never blocks on it, and its background processes need not close
// it. The seals fix its size.
Descriptor openOutput() {
    Descriptor output(memfd_create("output", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    const bool bounded = output && ftruncate(output.number(), OutputLimit) == 0 &&
                         fcntl(output.number(), F_ADD_SEALS, F_SEAL_GROW | F_SEAL_SHRINK) == 0;
    return bounded ? std::move(output) : Descriptor(-1);
}

std::string textIn(const Descriptor& output) {
    // The offset, shared with the program, is the end of its output.
    const off_t end = lseek(output.number(), 0, SEEK_CUR);
    const auto size = std::clamp<off_t>(end, 0, OutputLimit);
    std::string text(static_cast<std::size_t>(size), '\0');
    const auto count = pread(output.number(), text.data(), text.size(), 0);
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return withoutControlCharacters(text);
}

// File actions and attributes for posix_spawn.
class StartConditions {
  public:
    explicit StartConditions(int output) {
        posix_spawn_file_actions_init(&descriptors_);
        posix_spawn_file_actions_addopen(&descriptors_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&descriptors_, output, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&descriptors_, output, STDERR_FILENO);
        posix_spawnattr_init(&attributes_);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
        posix_spawnattr_setflags(
            &attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSID);
    }
    StartConditions(const StartConditions&) = delete;
    StartConditions& operator=(const StartConditions&) = delete;
    ~StartConditions() {
        posix_spawn_file_actions_destroy(&descriptors_);
        posix_spawnattr_destroy(&attributes_);
    }

    [[nodiscard]] const posix_spawn_file_actions_t* descriptors() const { return &descriptors_; }
    [[nodiscard]] const posix_spawnattr_t* attributes() const { return &attributes_; }

  private:
    posix_spawn_file_actions_t descriptors_{};
    posix_spawnattr_t attributes_{};
};

std::vector<char*> pointersTo(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (auto& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

int exitStatusOf(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0) {
        if (errno != EINTR) return -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// True if the second byte completes a C1 control, U+0080 to U+009F; some terminals obey these.
bool isFurtherControl(std::string_view text) {
    constexpr unsigned char First = 0x80;
    constexpr unsigned char Last = 0x9F;
    if (text.size() < 2) return false;
    const auto byte = static_cast<unsigned char>(text[1]);
    return byte >= First && byte <= Last;
}

}  // namespace

std::optional<Ended> run(const std::string& path, const std::vector<std::string>& arguments) {
    const auto output = openOutput();
    if (!output) return std::nullopt;
    const StartConditions conditions(output.number());
    std::vector<std::string> words{path};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> environment{"PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL=C"};
    pid_t process = 0;
    errno = posix_spawn(&process, path.c_str(), conditions.descriptors(), conditions.attributes(),
                        pointersTo(words).data(), pointersTo(environment).data());
    if (errno != 0) return std::nullopt;
    const int status = exitStatusOf(process);
    return Ended{status, textIn(output)};
}

std::string withoutControlCharacters(std::string text) {
    const auto isUnfit = [](char character) {
        constexpr unsigned char Delete = 0x7F;
        const auto byte = static_cast<unsigned char>(character);
        return (byte < ' ' && character != '\n') || byte == Delete;
    };
    std::replace_if(text.begin(), text.end(), isUnfit, '?');
    constexpr char Lead = '\xC2';
    for (auto at = text.find(Lead); at != std::string::npos; at = text.find(Lead, at + 1)) {
        if (isFurtherControl(std::string_view(text).substr(at))) text.replace(at, 2, "?");
    }
    return text;
}

}  // namespace brisel::mounttool
