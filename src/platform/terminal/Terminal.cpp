// Line input and output on the terminal.
// SPDX-License-Identifier: MIT
#include "platform/terminal/Terminal.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <utility>

#include "platform/common/VisibleText.h"
#include "platform/headless/MainContext.h"

namespace brisel::platform::terminal {

std::optional<std::size_t> numberUpTo(const std::string& text, std::size_t most) {
    std::size_t number = 0;
    const auto* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    const bool fits = result.ec == std::errc() && result.ptr == end && number >= 1;
    return fits && number <= most ? std::optional(number) : std::nullopt;
}

void Terminal::print(std::string_view text) {
    output_ << common::visible(text) << '\n';
    output_.flush();
}

std::optional<std::string> Terminal::ask(std::string_view question) {
    output_ << common::visible(question) << ' ';
    output_.flush();
    while (true) {
        if (auto line = takeLine()) {
            handOutSoon();
            return line;
        }
        if (ended_ || !wait()) return std::nullopt;
        readMore();
    }
}

bool Terminal::wait() const {
    constexpr int NoLimit = -1;
    std::array<pollfd, 2> awaited{pollfd{.fd = input_, .events = POLLIN, .revents = 0},
                                  pollfd{.fd = termination_, .events = POLLIN, .revents = 0}};
    while (poll(awaited.data(), awaited.size(), NoLimit) < 0 && errno == EINTR) {
    }
    return awaited[1].revents == 0;
}

Subscription Terminal::handleLines(LineHandler handler) {
    handler_ = std::move(handler);
    handOutSoon();
    reading_ = headless::whenReadable(input_, [this] {
        readMore();
        handOutLines();
        if (ended_) reading_.reset();
    });
    return Subscription([this] {
        handler_ = nullptr;
        reading_.reset();
        handingOut_.reset();
    });
}

// Lines read together with an answer would otherwise stay in the buffer.
void Terminal::handOutSoon() {
    if (!handler_ || typed_.empty()) return;
    handingOut_ = headless::whenMainLoopTurns([this] { handOutLines(); });
}

void Terminal::handOutLines() {
    while (handler_) {
        const auto line = takeLine();
        if (!line && !ended_) return;
        const auto handler = handler_;
        handler(line);
        if (!line) return;
    }
}

void Terminal::readMore() {
    constexpr std::size_t ChunkSize = 1024;
    std::array<char, ChunkSize> chunk{};
    const auto count = read(input_, chunk.data(), chunk.size());
    if (count > 0) {
        typed_.append(chunk.data(), static_cast<std::size_t>(count));
    } else {
        // Another process that shares the descriptor may have read the input first.
        ended_ = count == 0 || (errno != EINTR && errno != EAGAIN);
    }
}

// The last line may lack a newline.
std::optional<std::string> Terminal::takeLine() {
    const auto end = typed_.find('\n');
    if (end == std::string::npos) {
        if (!ended_ || typed_.empty()) return std::nullopt;
        return std::exchange(typed_, {});
    }
    auto line = typed_.substr(0, end);
    typed_.erase(0, end + 1);
    return line;
}

}  // namespace brisel::platform::terminal
