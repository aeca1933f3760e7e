// Runs the one AppleScript command that Brisel uses.
// SPDX-License-Identifier: MIT
#include "platform/headless/ScriptRunner.h"

#include <sys/wait.h>

#include <algorithm>
#include <sstream>
#include <string_view>
#include <utility>

#include "platform/headless/GLibOwners.h"
#include "platform/headless/MountFolder.h"

namespace brisel::platform::headless {

namespace {

constexpr std::string_view CommandStart = "do shell script \"";
constexpr const char* MessageKey = "NSAppleScriptErrorMessage";
constexpr const char* NumberKey = "NSAppleScriptErrorNumber";
// OSASyntaxTypeError, errOSASystemError and errAEPrivilegeError.
constexpr const char* SyntaxError = "-2741";
constexpr const char* SystemError = "-1750";
constexpr const char* PrivilegeError = "-10004";

ScriptResult failed(std::string message, std::string number) {
    while (message.ends_with('\n'))
        message.pop_back();
    return {.error = {{{MessageKey, std::move(message)}, {NumberKey, std::move(number)}}}};
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

std::vector<std::string> wordsOf(const std::string& command) {
    std::istringstream text(command);
    std::vector<std::string> words;
    for (std::string word; text >> word;)
        words.push_back(word);
    return words;
}

ScriptRunner::ScriptRunner(const platform::FileManager& files, std::string xattr)
    : files_(files), xattr_(std::move(xattr)) {}

ScriptResult ScriptRunner::execute(const std::string& source) {
    const auto command = shellCommandOf(source);
    if (!command) return failed("Syntax error in: " + source, SyntaxError);
    auto words = wordsOf(*command);
    if (words.size() < 3 || words[0] != "xattr" || words[1] != "-cr") {
        return failed("Only xattr -cr is allowed, not: " + *command, PrivilegeError);
    }
    const auto stray = std::find_if(words.begin() + 2, words.end(),
                                    [this](const auto& path) { return !isOnAVolume(path); });
    if (stray != words.end()) {
        return failed("Not in a folder that volumes are mounted in: " + *stray, PrivilegeError);
    }
    return removeAttributes(std::move(words));
}

bool ScriptRunner::isOnAVolume(const std::string& path) const {
    return isBelow(path, mountFolderIn(files_.homeDirectory())) ||
           isBelow(path, files_.volumesDirectory());
}

ScriptResult ScriptRunner::removeAttributes(std::vector<std::string> arguments) const {
    arguments[0] = xattr_;
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (auto& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    char* output = nullptr;
    int waitStatus = 0;
    CallError error;
    g_spawn_sync(nullptr, pointers.data(), nullptr, G_SPAWN_STDOUT_TO_DEV_NULL, nullptr, nullptr,
                 nullptr, &output, &waitStatus, error.receive());
    const OwnedText ownedOutput(output);
    if (error) return failed(error.message(), SystemError);
    if (exitCode(waitStatus) == 0) return {.error = std::nullopt};
    const std::string text = output;
    return failed(text.empty() ? "The command exited with a non-zero status." : text,
                  std::to_string(exitCode(waitStatus)));
}

}  // namespace brisel::platform::headless
