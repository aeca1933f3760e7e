// The table of failing calls and their consequences.
// SPDX-License-Identifier: MIT
#include "tests/faults/FaultExpectations.h"

#include <algorithm>

namespace brisel::tests {

namespace {

constexpr std::string_view Placeholder = "%@";

FaultExpectation logged(std::string_view call, std::string_view text) {
    return {call, Comes::AtOnce, {{"log: ", text}}};
}

FaultExpectation refused(std::string_view request, std::string_view message,
                         std::string_view text) {
    return {request,
            Comes::WithCompletion,
            {{"icon: ", "brisel-status-red-%@"},
             {"log: ", "kDAReturnError for volume %@"},
             {"alert: ", message},
             {"text: ", text},
             {"buttons: ", "OK"},
             {"menu: ", "%@"},
             {"icon: ", "%@"}}};
}

FaultExpectation notLaunched(std::string_view call) {
    return {call,
            Comes::AtOnce,
            {{"log: ", "something went wrong with mount command launch"},
             {"delete: ", "%@/.brisel/%@"}}};
}

std::vector<FaultExpectation> callsToDisks() {
    return {
        // Deliberately not looked at: such a session reports nothing.
        {"createSession", Comes::AtOnce, {}},
        // A volume whose writability is not known counts as read-only, and nothing is said.
        {"isWritable", Comes::AtOnce, {}},
        {"diskFromBSDName",
         Comes::AtOnce,
         {{"icon: ", "brisel-status-red-%@"},
          {"alert: ", "Volume not mounted"},
          {"text: ",
           "The volume %@ is not mounted currently at the specified path. Please remove and "
           "re-attach the device."},
          {"buttons: ", "OK"}}},
        logged("diskFromVolumePath", "Unmount failed for volume at URL %@"),
        refused("unmount", R"(Volume "%@" not unmountable)",
                "The volume is not unmountable. Probably it is still used by another application."),
        refused("mount", R"(Volume "%@" not re-mountable)",
                "The volume is not re-mountable in read/write mode. Probably it was not clean "
                "unmounted before."),
    };
}

std::vector<FaultExpectation> callsToFolders() {
    return {
        logged("create", "Unable to create folder: The call failed., reason: (null)"),
        logged("list", "Unable to list folder: The call failed., reason: (null)"),
        logged("delete", "Unable to delete folder: The call failed., reason: (null)"),
    };
}

std::vector<FaultExpectation> callsToLaunchTheTool() {
    return {notLaunched("createAuthorization"), notLaunched("copyRights"), notLaunched("execute")};
}

std::vector<FaultExpectation> callsToOtherServices() {
    return {
        {"script",
         Comes::AtOnce,
         {{"log: ", "Error executing Apple Script: (null)"},
          {"log: ", "key: NSAppleScriptErrorMessage, value: The call failed."},
          {"menu: ", "%@"}}},
        logged("requestAuthorization", "Requesting auth for Local Notification failed!"),
        logged("addNotification", "Adding Local Notification failed!"),
        {"loginItem",
         Comes::AtOnce,
         {{"alert: ", "An error ocurred"},
          {"text: ", "Couldn't %@ Helper App to launch at login item list."},
          {"buttons: ", "OK"}}},
    };
}

const std::vector<FaultExpectation>& table() {
    static const auto expectations = [] {
        std::vector<FaultExpectation> joined;
        for (const auto& part :
             {callsToDisks(), callsToFolders(), callsToLaunchTheTool(), callsToOtherServices()})
            joined.insert(joined.end(), part.begin(), part.end());
        return joined;
    }();
    return expectations;
}

// Whether `line` is `pattern` with some text for each of its placeholders.
bool matches(std::string_view line, std::string_view pattern) {
    const auto placeholder = pattern.find(Placeholder);
    if (placeholder == std::string_view::npos) return line == pattern;
    if (!line.starts_with(pattern.substr(0, placeholder))) return false;
    line.remove_prefix(placeholder);
    pattern.remove_prefix(placeholder + Placeholder.size());
    for (std::size_t skipped = 0; skipped <= line.size(); ++skipped) {
        if (matches(line.substr(skipped), pattern)) return true;
    }
    return false;
}

}  // namespace

const FaultExpectation* expectationFor(std::string_view call) {
    const auto found = std::find_if(table().begin(), table().end(),
                                    [call](const auto& entry) { return entry.call == call; });
    return found == table().end() ? nullptr : &*found;
}

bool isMet(const FaultExpectation& expectation, std::span<const std::string> linesAfter,
           const platform::Bundle& bundle) {
    auto line = linesAfter.begin();
    for (const auto& expected : expectation.lines) {
        const auto pattern = std::string(expected.event) + bundle.localizedString(expected.text);
        const auto end = expectation.comes == Comes::WithCompletion || line == linesAfter.end()
                             ? linesAfter.end()
                             : std::next(line);
        line = std::find_if(line, end, [&](const auto& text) { return matches(text, pattern); });
        if (line == end) return false;
        ++line;
    }
    return true;
}

}  // namespace brisel::tests
