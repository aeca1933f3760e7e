// brisel-console as a child process.
// SPDX-License-Identifier: MIT
#include "tests/linux/ConsoleSession.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace brisel::tests {

namespace {

constexpr std::chrono::seconds Patience{20};

}  // namespace

ConsoleSession::ConsoleSession(const std::string& program, const std::string& home) {
    std::array<int, 2> toChild{};
    std::array<int, 2> fromChild{};
    if (pipe(toChild.data()) != 0 || pipe(fromChild.data()) != 0) throw std::runtime_error("pipe");
    child_ = fork();
    if (child_ == 0) {
        dup2(toChild[0], STDIN_FILENO);
        dup2(fromChild[1], STDOUT_FILENO);
        for (const int end : {toChild[0], toChild[1], fromChild[0], fromChild[1]})
            close(end);
        setenv("HOME", home.c_str(), 1);
        setenv("XDG_CONFIG_HOME", (home + "/.config").c_str(), 1);
        setenv("LC_ALL", "C.UTF-8", 1);
        execl(program.c_str(), program.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    close(toChild[0]);
    close(fromChild[1]);
    input_ = toChild[1];
    outputEnd_ = fromChild[0];
}

ConsoleSession::~ConsoleSession() {
    if (input_ >= 0) close(input_);
    close(outputEnd_);
    if (child_ > 0) {
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
    }
}

void ConsoleSession::type(const std::string& line) const {
    const auto text = line + '\n';
    static_cast<void>(write(input_, text.data(), text.size()) > 0);
}

bool ConsoleSession::readMore(std::chrono::steady_clock::time_point deadline) {
    using std::chrono::milliseconds;
    const auto left =
        std::chrono::duration_cast<milliseconds>(deadline - std::chrono::steady_clock::now());
    if (left <= milliseconds(0)) return false;
    pollfd ready{.fd = outputEnd_, .events = POLLIN, .revents = 0};
    if (poll(&ready, 1, static_cast<int>(left.count())) <= 0) return false;
    std::array<char, 4096> chunk{};
    const auto count = read(outputEnd_, chunk.data(), chunk.size());
    if (count <= 0) return false;
    output_.append(chunk.data(), static_cast<std::size_t>(count));
    return true;
}

bool ConsoleSession::waitFor(const std::string& text) {
    const auto deadline = std::chrono::steady_clock::now() + Patience;
    while (true) {
        const auto found = output_.find(text, seen_);
        if (found != std::string::npos) {
            seen_ = found + text.size();
            return true;
        }
        if (!readMore(deadline)) return false;
    }
}

std::string ConsoleSession::restOfLine() {
    const auto deadline = std::chrono::steady_clock::now() + Patience;
    while (output_.find('\n', seen_) == std::string::npos && readMore(deadline)) {
    }
    return output_.substr(seen_, output_.find('\n', seen_) - seen_);
}

bool ConsoleSession::choose(const std::string& title) {
    // The last item: the menu is complete.
    if (!waitFor("Quit Brisel")) return false;
    const auto end = output_.rfind("  " + title + "\n");
    if (end == std::string::npos) return false;
    const auto start = output_.rfind('\n', end) + 1;
    const auto number = output_.substr(start, end - start);
    type(number.substr(number.find_first_not_of(' ')));
    return true;
}

std::string ConsoleSession::menu() {
    // Skips menus printed earlier.
    while (readMore(std::chrono::steady_clock::now() + std::chrono::milliseconds(2))) {
    }
    if (output_.ends_with("1 = OK ? ")) type("1");
    seen_ = output_.size();
    type("menu");
    if (!waitFor("Quit Brisel\n")) return {};
    const auto start = output_.rfind("[Brisel: ", seen_);
    return output_.substr(start, seen_ - start);
}

int ConsoleSession::quit() {
    type("quit");
    close(input_);
    input_ = -1;
    while (readMore(std::chrono::steady_clock::now() + Patience)) {
    }
    int status = 0;
    waitpid(child_, &status, 0);
    child_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace brisel::tests
