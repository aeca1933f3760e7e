// Authorization through polkit, and tools started as root by pkexec.
// SPDX-License-Identifier: MIT
#include "platform/headless/Authorization.h"

#include <polkit/polkit.h>
#include <unistd.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/common/ToolProcess.h"
#include "platform/headless/GLibOwners.h"
#include "platform/headless/MainContext.h"

namespace brisel::platform::headless {

namespace {

constexpr const char* ActionIdentifier = "org.brisel.run-mount-tool";
constexpr const char* Pkexec = "/usr/bin/pkexec";

bool isRoot() {
    return geteuid() == 0;
}

OSStatus statusOf(PolkitAuthorizationResult* result) {
    if (polkit_authorization_result_get_is_authorized(result) != FALSE) {
        return errAuthorizationSuccess;
    }
    const bool dismissed = polkit_authorization_result_get_dismissed(result) != FALSE;
    return dismissed ? errAuthorizationCanceled : errAuthorizationDenied;
}

// libpolkit uses GLib's shared bus connection, which by default exits the process when the bus
// closes (GDBusConnection:exit-on-close).
void outliveTheBus() {
    const OwnedObject<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SYSTEM, nullptr, nullptr));
    if (bus) g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
}

/// One authorization check, run on its own main loop.
class PolkitQuestion {
  public:
    /// Null if the check failed or was cancelled.
    using Answer = OwnedObject<PolkitAuthorizationResult>;

    Answer ask(PolkitAuthority* authority, int terminationSignals, CallError& error) {
        error_ = &error;
        Subscription ending;
        if (terminationSignals >= 0) {
            ending = whenReadable(terminationSignals,
                                  [this] { g_cancellable_cancel(cancellable_.get()); });
        }
        const OwnedObject<PolkitSubject> subject(
            polkit_unix_process_new_for_owner(getpid(), 0, static_cast<gint>(getuid())));
        polkit_authority_check_authorization(
            authority, subject.get(), ActionIdentifier, nullptr,
            POLKIT_CHECK_AUTHORIZATION_FLAGS_ALLOW_USER_INTERACTION, cancellable_.get(), &finish,
            this);
        loop_.run();
        return std::move(answer_);
    }

  private:
    static void finish(GObject* authority, GAsyncResult* result, gpointer self) {
        auto& question = *static_cast<PolkitQuestion*>(self);
        question.answer_.reset(polkit_authority_check_authorization_finish(
            POLKIT_AUTHORITY(authority), result, question.error_->receive()));
        question.loop_.quit();
    }

    OwnMainLoop loop_;
    OwnedObject<GCancellable> cancellable_{g_cancellable_new()};
    CallError* error_ = nullptr;
    Answer answer_;
};

}  // namespace

OSStatus Authorization::askPolkit() const {
    outliveTheBus();
    CallError error;
    const OwnedObject<PolkitAuthority> authority(
        polkit_authority_get_sync(nullptr, error.receive()));
    if (!authority) {
        log_.log("Cannot connect to polkit: %@", error.message());
        return errAuthorizationInternal;
    }
    const auto answer = PolkitQuestion().ask(authority.get(), terminationSignals_, error);
    if (g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_CANCELLED) != FALSE) {
        return errAuthorizationDenied;
    }
    if (!answer) {
        log_.log("The polkit authorization check failed: %@", error.message());
        return errAuthorizationInternal;
    }
    return statusOf(answer.get());
}

// polkit keeps authorizations per process; no reference is needed.
CreatedAuthorization Authorization::create(std::uint32_t /*flags*/) {
    return {.status = errAuthorizationSuccess, .authorization = nullptr};
}

OSStatus Authorization::copyRights(AuthorizationRef /*authorization*/,
                                   const AuthorizationItem& /*right*/, std::uint32_t /*flags*/) {
    return isRoot() ? errAuthorizationSuccess : askPolkit();
}

void Authorization::free(AuthorizationRef /*authorization*/, std::uint32_t /*flags*/) {}

bool Authorization::offersExecuteWithPrivileges() const {
    return isRoot() || access(Pkexec, X_OK) == 0;
}

StartedTool Authorization::executeWithPrivileges(AuthorizationRef /*authorization*/,
                                                 const char* pathToTool, std::uint32_t /*flags*/,
                                                 char* const* arguments) {
    // Allocates before the fork: the child may call only async-signal-safe functions.
    const std::string program = isRoot() ? pathToTool : Pkexec;
    std::vector<std::string> words{program};
    if (!isRoot()) words.emplace_back(pathToTool);
    for (; *arguments != nullptr; ++arguments)
        words.emplace_back(*arguments);
    std::vector<char*> vector;
    vector.reserve(words.size() + 1);
    for (auto& word : words)
        vector.push_back(word.data());
    vector.push_back(nullptr);
    return common::startToolProcess([&] { execv(program.c_str(), vector.data()); });
}

}  // namespace brisel::platform::headless
