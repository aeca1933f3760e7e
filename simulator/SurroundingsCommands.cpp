// Commands that control the simulated services, except disks.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <csignal>
#include <utility>

#include "simulator/Commands.h"

namespace brisel::simulator {

namespace {

namespace simulated = platform::simulated;

constexpr std::int64_t MostExitStatus = 255;
// Signals whose default action is to stop, to continue or to ignore.
constexpr std::array<std::int64_t, 8> HarmlessSignals{SIGCHLD, SIGCONT, SIGSTOP, SIGTSTP,
                                                      SIGTTIN, SIGTTOU, SIGURG,  SIGWINCH};

bool endsProcess(std::int64_t signal) {
    constexpr std::int64_t MostSignal = 31;
    return signal >= 1 && signal <= MostSignal &&
           std::find(HarmlessSignals.begin(), HarmlessSignals.end(), signal) ==
               HarmlessSignals.end();
}

Complaint tool(Stage& stage, const Words& arguments) {
    simulated::Authorization::ToolEnd end;
    const auto ending = arguments.empty() ? std::nullopt : splitKeyAndValue(arguments[0]);
    const auto number = ending ? parseNumber(ending->second) : std::nullopt;
    if (!number) return misused("tool");
    if (ending->first == "exit" && *number >= 0 && *number <= MostExitStatus) {
        end.exitStatus = static_cast<int>(*number);
    } else if (ending->first == "signal" && endsProcess(*number)) {
        end.signal = static_cast<int>(*number);
    } else {
        return misused("tool");
    }
    if (arguments.size() == 2 && ending->first == "exit") {
        const auto output = splitKeyAndValue(arguments[1]);
        if (!output || output->first != "output") return misused("tool");
        end.output = output->second;
    } else if (arguments.size() != 1) {
        return misused("tool");
    }
    stage.mac.authorization.setToolEnd(end);
    return std::nullopt;
}

Complaint launch(Stage& stage, const Words& arguments) {
    if (arguments == Words{"missing"}) {
        if (stage.program.started()) return "the program has been started already";
        stage.mac.authorization.removeExecuteWithPrivileges();
        return std::nullopt;
    }
    const bool fails = arguments.size() == 2 && arguments[0] == "fail";
    const auto code = fails ? parseStatus(arguments[1]) : std::nullopt;
    if (!code || *code == 0) return misused("launch");
    stage.mac.authorization.failLaunch(static_cast<platform::OSStatus>(*code));
    return std::nullopt;
}

Complaint makeFile(Stage& stage, const Words& arguments) {
    if (arguments.size() != 1) return misused("file");
    stage.mac.fileSystem.makeFile(arguments[0]);
    return std::nullopt;
}

Complaint removeFolder(Stage& stage, const Words& arguments) {
    if (arguments.size() != 1) return misused("rmdir");
    stage.mac.fileSystem.removeFolder(arguments[0]);
    return std::nullopt;
}

std::optional<simulated::FileManager::Call> fileManagerCall(const std::string& word) {
    using Call = simulated::FileManager::Call;
    if (word == "create") return Call::Create;
    if (word == "list") return Call::List;
    if (word == "delete") return Call::Delete;
    return std::nullopt;
}

Complaint fail(Stage& stage, const Words& arguments) {
    if (arguments.size() != 2 && arguments.size() != 3) return misused("fail");
    const auto call = fileManagerCall(arguments[0]);
    if (!call) return misused("fail");
    const auto reason = arguments.size() == 3 ? std::optional(arguments[2]) : std::nullopt;
    stage.mac.fileManager.fail(
        *call, {.localizedDescription = arguments[1], .localizedFailureReason = reason});
    return std::nullopt;
}

Complaint script(Stage& stage, const Words& arguments) {
    if (arguments.empty() || arguments[0] != "fail") return misused("script");
    simulated::ScriptRunner::ErrorDictionary error;
    for (std::size_t index = 1; index < arguments.size(); ++index) {
        auto pair = splitKeyAndValue(arguments[index]);
        if (!pair) return misused("script");
        error.push_back(std::move(*pair));
    }
    stage.mac.scriptRunner.failNext(std::move(error));
    return std::nullopt;
}

Complaint notifications(Stage& stage, const Words& arguments) {
    using Permission = simulated::UserNotificationCenter::Permission;
    auto& center = stage.mac.userNotificationCenter;
    if (arguments == Words{"allow"}) {
        center.setPermission(Permission::Allow);
    } else if (arguments == Words{"deny"}) {
        center.setPermission(Permission::Deny);
    } else if (arguments == Words{"error"}) {
        center.setPermission(Permission::Error);
    } else if (arguments == Words{"add-error"}) {
        center.refuseNextRequest();
    } else {
        return misused("notifications");
    }
    return std::nullopt;
}

Complaint loginItems(Stage& stage, const Words& arguments) {
    using Answer = simulated::LoginItems::Answer;
    const bool accept = arguments == Words{"accept"};
    if (!accept && arguments != Words{"refuse"}) return misused("login-items");
    stage.mac.loginItems.setAnswer(accept ? Answer::Accept : Answer::Refuse);
    return std::nullopt;
}

Complaint appearance(Stage& stage, const Words& arguments) {
    if (arguments.size() != 1) return misused("appearance");
    stage.mac.statusItem.setAppearance(arguments[0]);
    return std::nullopt;
}

constexpr std::array SurroundingsTable{
    Command{"tool", When::AnyTime, "tool exit=N [output=TEXT], tool signal=N",
            "how the mount tool ends from now on", tool},
    Command{"launch", When::AnyTime, "launch fail CODE, launch missing",
            "the next start of a tool fails; no tool can be started at all", launch},
    Command{"file", When::AnyTime, "file PATH", "makes a file and the folders above it", makeFile},
    Command{"rmdir", When::AnyTime, "rmdir PATH", "removes a folder", removeFolder},
    Command{"fail", When::AnyTime, "fail create|list|delete DESCRIPTION [REASON]",
            "the file manager's next such call fails", fail},
    Command{"script", When::AnyTime, "script fail [KEY=VALUE...]", "the next script run fails",
            script},
    Command{"notifications", When::AnyTime, "notifications allow|deny|error|add-error",
            "how the notification center answers", notifications},
    Command{"login-items", When::AnyTime, "login-items accept|refuse",
            "how Service Management answers", loginItems},
    Command{"appearance", When::AnyTime, "appearance NAME",
            "the appearance of the status item's button", appearance},
};

}  // namespace

std::span<const Command> surroundingsCommands() {
    return SurroundingsTable;
}

}  // namespace brisel::simulator
