// A client of one D-Bus object: its methods, properties, signals and owner.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <string>

#include "platform/headless/GLibOwners.h"
#include "platform/Subscription.h"

namespace brisel::platform::desktop {

/// True if a call failed because the service, or this method of it, is not installed.
bool isMissing(const headless::CallError& error);

/// Single-threaded: callbacks run on the creating thread's default main context. Destroying the
/// client cancels pending calls; their `done` is not called.
class BusClient {
  public:
    /// `answer` is null if the call failed.
    using Done =
        std::function<void(const headless::OwnedVariant& answer, const headless::CallError& error)>;

    BusClient(GDBusConnection* bus, std::string name, std::string path, std::string interface);
    BusClient(const BusClient&) = delete;
    BusClient& operator=(const BusClient&) = delete;
    ~BusClient();

    /// Calls a method. `arguments` is a floating tuple or null, whose handles are indices into
    /// `files`; `done` may be empty.
    void call(const char* method, GVariant* arguments, Done done, GUnixFDList* files = nullptr);
    /// Calls a method and blocks up to 5 seconds. Null if the call failed.
    headless::OwnedVariant callAndWait(const char* method, GVariant* arguments);
    /// Reads a property; `answer` is the value without its variant.
    void readProperty(const char* name, Done done);

    /// Calls `received` with the arguments of each such signal of the object.
    [[nodiscard]] Subscription onSignal(const char* signal,
                                        std::function<void(GVariant* arguments)> received);
    /// Calls `appeared` or `vanished` for the current state of the service's name, and on each
    /// change.
    [[nodiscard]] Subscription watch(std::function<void()> appeared,
                                     std::function<void()> vanished);

  private:
    headless::OwnedObject<GDBusConnection> bus_;
    std::string name_;
    std::string path_;
    std::string interface_;
    headless::OwnedObject<GCancellable> cancellable_{g_cancellable_new()};
};

}  // namespace brisel::platform::desktop
