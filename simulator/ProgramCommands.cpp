// Commands that configure, start and use the program.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <memory>

#include "simulator/Commands.h"

namespace brisel::simulator {

namespace {

Complaint chooseSystem(Stage& stage, const Words& arguments) {
    const bool known = arguments.size() == 1 && (arguments[0] == "11" || arguments[0] == "12");
    if (!known) return misused("system");
    stage.mac.systemVersion.setMacOS12OrLater(arguments[0] == "12");
    return std::nullopt;
}

Complaint chooseHome(Stage& stage, const Words& arguments) {
    if (arguments.size() != 1) return misused("home");
    stage.mac.fileManager.setHomeDirectory(arguments[0]);
    return std::nullopt;
}

Complaint chooseLanguage(Stage& stage, const Words& arguments) {
    if (arguments.size() != 1) return misused("language");
    stage.mac.bundle.setLanguage(arguments[0]);
    return std::nullopt;
}

Complaint storeDefault(Stage& stage, const Words& arguments) {
    if (arguments.empty()) return misused("default");
    auto& defaults = stage.mac.userDefaults;
    if (arguments[0] == "volumeList") {
        defaults.store(arguments[0], std::make_shared<const std::vector<std::string>>(
                                         arguments.begin() + 1, arguments.end()));
        return std::nullopt;
    }
    const bool flag = arguments.size() == 2 && (arguments[1] == "YES" || arguments[1] == "NO");
    if (!flag) return misused("default");
    defaults.store(arguments[0], arguments[1] == "YES");
    return std::nullopt;
}

Complaint start(Stage& stage, const Words& arguments) {
    if (!arguments.empty()) return misused("start");
    stage.program.start();
    return std::nullopt;
}

Complaint choose(Stage& stage, const Words& arguments) {
    const bool counted = arguments.size() == 2;
    const auto number = counted ? parseNumber(arguments[1]) : 1;
    if ((arguments.size() != 1 && !counted) || !number || *number < 1) return misused("choose");
    auto left = *number;
    const auto items = stage.program.menuItems();
    for (std::size_t index = 0; index < items.size(); ++index) {
        const auto& item = items[index];
        if (item.separator || item.title != arguments[0] || --left > 0) continue;
        if (item.action.empty()) return "that menu item has no action";
        stage.program.choose(index);
        return std::nullopt;
    }
    return "there is no such menu item";
}

Complaint press(Stage& stage, const Words& arguments) {
    if (arguments.size() != 1) return misused("press");
    if (stage.alert == nullptr) return "no alert is up";
    const auto& buttons = stage.alert->buttons;
    const auto found = std::find(buttons.begin(), buttons.end(), arguments[0]);
    if (found == buttons.end()) return "the alert has no such button";
    stage.answer = static_cast<int>(found - buttons.begin());
    return std::nullopt;
}

std::optional<int> passwordStatus(const Words& arguments) {
    if (arguments == Words{"ok"}) return platform::errAuthorizationSuccess;
    if (arguments == Words{"cancel"}) return platform::errAuthorizationCanceled;
    if (arguments.size() != 2 || arguments[0] != "fail") return std::nullopt;
    const auto code = parseStatus(arguments[1]);
    return code ? std::optional(static_cast<int>(*code)) : std::nullopt;
}

Complaint password(Stage& stage, const Words& arguments) {
    const auto status = passwordStatus(arguments);
    if (!status) return misused("password");
    if (!stage.passwordPromptIsUp) return "no administrator prompt is up";
    stage.answer = *status;
    return std::nullopt;
}

std::optional<std::string> actionIdentifier(const std::string& word) {
    if (word == "DO_MOUNT" || word == "NOTHING") return word;
    if (word == "default") return platform::NotificationDefaultActionIdentifier;
    if (word == "dismiss") return platform::NotificationDismissActionIdentifier;
    return std::nullopt;
}

Complaint respond(Stage& stage, const Words& arguments) {
    const auto action = arguments.empty() ? std::nullopt : actionIdentifier(arguments[0]);
    if (!action) return misused("respond");
    const auto& prompt = stage.mac.userNotificationCenter.lastPrompt();
    platform::NotificationResponse response{
        .requestIdentifier = prompt ? prompt->identifier : "mount",
        .actionIdentifier = *action,
        .userInfo = prompt ? prompt->userInfo : platform::UserInfo()};
    for (std::size_t index = 1; index < arguments.size(); ++index) {
        const auto pair = splitKeyAndValue(arguments[index]);
        if (pair && pair->first == "id") {
            response.requestIdentifier = pair->second;
        } else if (pair && pair->first == "volume") {
            response.userInfo["volume"] = pair->second;
        } else {
            return misused("respond");
        }
    }
    if (response.userInfo.empty()) return "no prompt was shown yet";
    stage.program.respond(response);
    return std::nullopt;
}

Complaint quit(Stage& stage, const Words& arguments) {
    if (!arguments.empty()) return misused("quit");
    stage.program.terminate();
    return std::nullopt;
}

constexpr std::array ProgramTable{
    Command{"system", When::BeforeStart, "system 11|12", "the running macOS", chooseSystem},
    Command{"home", When::BeforeStart, "home PATH", "the user's home directory", chooseHome},
    Command{"language", When::BeforeStart, "language CODE", "the user's language", chooseLanguage},
    Command{"default", When::BeforeStart, "default KEY YES|NO, default volumeList [UUID...]",
            "a stored preference", storeDefault},
    Command{"start", When::BeforeStart, "start", "starts the program", start},
    Command{"choose", When::Running, "choose TITLE [N]", "chooses the N-th menu item of that title",
            choose},
    Command{"press", When::AnyTime, "press TITLE", "presses a button of the alert", press},
    Command{"password", When::AnyTime, "password ok|cancel, password fail CODE",
            "answers the administrator prompt", password},
    Command{"respond", When::Running,
            "respond DO_MOUNT|NOTHING|default|dismiss [id=ID] [volume=DEVICE]",
            "responds to the last remount prompt", respond},
    Command{"quit", When::Running, "quit", "terminates the application", quit},
};

}  // namespace

std::span<const Command> programCommands() {
    return ProgramTable;
}

}  // namespace brisel::simulator
