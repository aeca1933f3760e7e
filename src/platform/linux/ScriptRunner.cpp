// The one AppleScript command that the program uses.
// SPDX-License-Identifier: MIT
#include "platform/linux/ScriptRunner.h"

#include <sys/wait.h>

#include <array>
#include <string_view>
#include <utility>

#include "platform/linux/GLibOwners.h"
#include "platform/linux/Installation.h"

namespace brisel::platform::linux {

namespace {

constexpr std::string_view CommandStart = "do shell script \"";
constexpr const char* MessageKey = "NSAppleScriptErrorMessage";
constexpr const char* NumberKey = "NSAppleScriptErrorNumber";
// errOSASyntaxError and errOSASystemError (OSA.h's numbers, as AppleScript gives them).
constexpr const char* SyntaxError = "-2741";
constexpr const char* SystemError = "-1750";

ScriptResult failed(std::string message, std::string number) {
    while (message.ends_with('\n'))
        message.pop_back();
    return {.error = {{{MessageKey, std::move(message)}, {NumberKey, std::move(number)}}}};
}

// The commands that scripts use and Linux lacks are ours, so that each line does its work.
OwnedTexts environmentWithOurTools() {
    const OwnedTexts inherited(g_get_environ());
    const char* const path = g_environ_getenv(inherited.get(), "PATH");
    const auto folders = toolFolder() + ":" + (path != nullptr ? path : "/usr/bin:/bin");
    return OwnedTexts(g_environ_setenv(g_strdupv(inherited.get()), "PATH", folders.c_str(), TRUE));
}

int exitCode(int waitStatus) {
    constexpr int SignalBase = 128;
    return WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : SignalBase + WTERMSIG(waitStatus);
}

}  // namespace

std::optional<std::string> shellCommandOf(const std::string& source) {
    if (!source.starts_with(CommandStart)) return std::nullopt;
    std::string command;
    for (std::size_t index = CommandStart.size(); index < source.size(); ++index) {
        if (source[index] == '"') {
            return index + 1 == source.size() ? std::optional(command) : std::nullopt;
        }
        if (source[index] == '\\' && ++index == source.size()) return std::nullopt;
        command += source[index];
    }
    return std::nullopt;
}

ScriptResult ScriptRunner::execute(const std::string& source) {
    auto command = shellCommandOf(source);
    if (!command) return failed("A syntax error in: " + source, SyntaxError);
    std::string shell = "/bin/sh";
    std::string option = "-c";
    std::array<char*, 4> arguments{shell.data(), option.data(), command->data(), nullptr};
    char* output = nullptr;
    int waitStatus = 0;
    CallError error;
    const auto environment = environmentWithOurTools();
    g_spawn_sync(nullptr, arguments.data(), environment.get(), G_SPAWN_STDOUT_TO_DEV_NULL, nullptr,
                 nullptr, nullptr, &output, &waitStatus, error.receive());
    const OwnedText ownedOutput(output);
    if (error) return failed(error.message(), SystemError);
    if (exitCode(waitStatus) == 0) return {.error = std::nullopt};
    const std::string text = output;
    return failed(text.empty() ? "The command exited with a non-zero status." : text,
                  std::to_string(exitCode(waitStatus)));
}

}  // namespace brisel::platform::linux
