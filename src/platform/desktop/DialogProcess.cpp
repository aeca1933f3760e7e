// A window, shown by a brisel-dialog process.
// SPDX-License-Identifier: MIT
#include "platform/desktop/DialogProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <csignal>
#include <string_view>
#include <utility>

#include "shared/DialogWords.h"

namespace brisel::platform::desktop {

namespace {

using shared::Descriptor;
using shared::PressedWord;
using shared::ShownWord;

// A memfd, not a pipe: writing never blocks. No file if it cannot be written.
Descriptor fileWith(const std::string& text) {
    Descriptor file(memfd_create("brisel-dialog-input", MFD_CLOEXEC));
    const auto written = pwrite(file.number(), text.data(), text.size(), 0);
    if (written != static_cast<ssize_t>(text.size())) file.reset();
    return file;
}

std::optional<int> numberIn(std::string_view text) {
    int number = 0;
    const auto* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

// The program's own environment, but for the token of its launch.
std::vector<std::string> environmentWith(const std::string& activationToken) {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable)
        variables.emplace_back(*variable);
    for (const char* const name : ActivationToken::LaunchVariables) {
        const auto assignment = std::string(name) + '=';
        std::erase_if(variables,
                      [&](const auto& variable) { return variable.starts_with(assignment); });
        if (!activationToken.empty()) variables.push_back(assignment + activationToken);
    }
    return variables;
}

// Null-terminated.
std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

class Streams {
  public:
    Streams(int input, int output) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_adddup2(&actions_, input, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
    }
    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;
    ~Streams() { posix_spawn_file_actions_destroy(&actions_); }

    [[nodiscard]] const posix_spawn_file_actions_t* actions() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

}  // namespace

DialogProcess::DialogProcess(const DialogProgram& program,
                             const std::vector<std::string>& arguments, const std::string& input) {
    std::vector<std::string> words{program.path};
    words.insert(words.end(), arguments.begin(), arguments.end());
    auto environment = environmentWith(program.activationToken.take());
    if (const auto file = fileWith(input))
        start(std::move(words), std::move(environment), file.number());
    if (child_ == 0) state_ = State::Ended;
}

DialogProcess::~DialogProcess() {
    end();
}

void DialogProcess::start(std::vector<std::string> words, std::vector<std::string> environment,
                          int input) {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return;
    output_ = Descriptor(ends[0]);
    const Descriptor theirs(ends[1]);
    const Streams streams(input, theirs.number());
    const int error = posix_spawn(&child_, words.front().c_str(), streams.actions(), nullptr,
                                  pointersTo(words).data(), pointersTo(environment).data());
    if (error != 0) end();
}

void DialogProcess::takeIn() {
    constexpr std::size_t MoreThanALine = 256;
    std::array<char, MoreThanALine> chunk{};
    const auto count = read(output_.number(), chunk.data(), chunk.size());
    if (count <= 0) {
        end();
        return;
    }
    told_.append(chunk.data(), static_cast<std::size_t>(count));
    for (auto end = told_.find('\n'); end != std::string::npos; end = told_.find('\n')) {
        understand(told_.substr(0, end));
        told_.erase(0, end + 1);
    }
}

void DialogProcess::understand(const std::string& line) {
    if (line == ShownWord) {
        shown_ = true;
        state_ = State::Shown;
    }
    if (!line.starts_with(PressedWord)) return;
    pressed_ = numberIn(std::string_view(line).substr(PressedWord.size()));
    if (pressed_) state_ = State::Pressed;
}

void DialogProcess::end() {
    if (child_ > 0) {
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
        child_ = 0;
    }
    output_.reset();
    if (state_ != State::Pressed) state_ = State::Ended;
}

}  // namespace brisel::platform::desktop
