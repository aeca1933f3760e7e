// Translates UDisks2's errors to Disk Arbitration's status codes.
// SPDX-License-Identifier: MIT
#include "platform/headless/UDisksErrors.h"

#include <algorithm>
#include <array>

namespace brisel::platform::headless {

namespace {

struct Row {
    std::string_view errorName;
    std::uint32_t status;
};

constexpr std::array Rows{
    Row{"org.freedesktop.UDisks2.Error.DeviceBusy", DAReturn::Busy},
    Row{"org.freedesktop.UDisks2.Error.AlreadyUnmounting", DAReturn::Busy},
    Row{"org.freedesktop.UDisks2.Error.AlreadyMounted", DAReturn::ExclusiveAccess},
    Row{"org.freedesktop.UDisks2.Error.NotMounted", DAReturn::NotMounted},
    Row{"org.freedesktop.UDisks2.Error.NotAuthorized", DAReturn::NotPermitted},
    Row{"org.freedesktop.UDisks2.Error.NotAuthorizedDismissed", DAReturn::NotPermitted},
    Row{"org.freedesktop.UDisks2.Error.MountedByOtherUser", DAReturn::NotPermitted},
    Row{"org.freedesktop.UDisks2.Error.NotAuthorizedCanObtain", DAReturn::NotPrivileged},
    Row{"org.freedesktop.UDisks2.Error.OptionNotPermitted", DAReturn::BadArgument},
    Row{"org.freedesktop.UDisks2.Error.NotSupported", DAReturn::Unsupported},
    Row{"org.freedesktop.UDisks2.Error.WouldWakeup", DAReturn::NotReady},
    // The disk's object or its file system has left the bus.
    Row{"org.freedesktop.DBus.Error.UnknownObject", DAReturn::NotFound},
    Row{"org.freedesktop.DBus.Error.UnknownInterface", DAReturn::NotFound},
    Row{"org.freedesktop.DBus.Error.UnknownMethod", DAReturn::NotFound}};

}  // namespace

std::uint32_t statusOfError(std::string_view errorName) {
    const auto* const found = std::find_if(Rows.begin(), Rows.end(), [errorName](const Row& row) {
        return row.errorName == errorName;
    });
    return found == Rows.end() ? DAReturn::Error : found->status;
}

}  // namespace brisel::platform::headless
