// The table of failing calls and their consequences.
// SPDX-License-Identifier: MIT
#include "tests/faults/FaultExpectations.h"

#include <algorithm>

namespace brisel::tests {

namespace {

constexpr std::string_view Placeholder = "%@";

const std::vector<ExpectedLine>& launchFailure() {
    static const std::vector<ExpectedLine> lines{
        {"log: ", "something went wrong with mount command launch"}, {"delete: ", "%@/.brisel/%@"}};
    return lines;
}

const std::vector<FaultExpectation>& table() {
    static const std::vector<FaultExpectation> expectations{
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
        {"diskFromVolumePath", Comes::AtOnce, {{"log: ", "Unmount failed for volume at URL %@"}}},
        {"unmount",
         Comes::WithCompletion,
         {{"icon: ", "brisel-status-red-%@"},
          {"log: ", "kDAReturnError for volume %@"},
          {"alert: ", R"(Volume "%@" not unmountable)"},
          {"text: ",
           "The volume is not unmountable. Probably it is still used by another application."},
          {"buttons: ", "OK"},
          {"menu: ", "%@"},
          {"icon: ", "%@"}}},
        {"mount",
         Comes::WithCompletion,
         {{"icon: ", "brisel-status-red-%@"},
          {"log: ", "kDAReturnError for volume %@"},
          {"alert: ", R"(Volume "%@" not re-mountable)"},
          {"text: ",
           "The volume is not re-mountable in read/write mode. Probably it was not clean unmounted "
           "before."},
          {"buttons: ", "OK"},
          {"menu: ", "%@"},
          {"icon: ", "%@"}}},
        {"create",
         Comes::AtOnce,
         {{"log: ", "Unable to create folder: The call failed., reason: (null)"}}},
        {"list",
         Comes::AtOnce,
         {{"log: ", "Unable to list folder: The call failed., reason: (null)"}}},
        {"delete",
         Comes::AtOnce,
         {{"log: ", "Unable to delete folder: The call failed., reason: (null)"}}},
        {"createAuthorization", Comes::AtOnce, launchFailure()},
        {"copyRights", Comes::AtOnce, launchFailure()},
        {"execute", Comes::AtOnce, launchFailure()},
        {"script",
         Comes::AtOnce,
         {{"log: ", "Error executing Apple Script: (null)"},
          {"log: ", "key: NSAppleScriptErrorMessage, value: The call failed."},
          {"menu: ", "%@"}}},
        {"requestAuthorization",
         Comes::AtOnce,
         {{"log: ", "Requesting auth for Local Notification failed!"}}},
        {"addNotification", Comes::AtOnce, {{"log: ", "Adding Local Notification failed!"}}},
        {"loginItem",
         Comes::AtOnce,
         {{"alert: ", "An error ocurred"},
          {"text: ", "Couldn't %@ Helper App to launch at login item list."},
          {"buttons: ", "OK"}}},
    };
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
