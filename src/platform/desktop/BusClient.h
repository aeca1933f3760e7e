// One object of a service on a bus: its methods, its signals, its coming and going.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <string>

#include "platform/headless/GLibOwners.h"
#include "platform/Subscription.h"

namespace brisel::platform::desktop {

/// One thread, which must turn its own default context: everything is called back there. Nothing is
/// called back once the client is gone.
class BusClient {
  public:
    /// The answer is null when the call has failed.
    using Done =
        std::function<void(const headless::OwnedVariant& answer, const headless::CallError& error)>;

    BusClient(GDBusConnection* bus, std::string name, std::string path, std::string interface);
    BusClient(const BusClient&) = delete;
    BusClient& operator=(const BusClient&) = delete;
    ~BusClient();

    /// Calls a method of the object's interface. `arguments` is a tuple, floating or null for none.
    void call(const char* method, GVariant* arguments, Done done);
    /// The same while the calling thread does nothing else, for some seconds at most. Null when the
    /// call has failed.
    headless::OwnedVariant callAndWait(const char* method, GVariant* arguments);
    /// Reads a property of the object's interface; the answer is the bare value.
    void readProperty(const char* name, Done done);

    /// Gets the arguments of a signal of the object's interface, sent by the service.
    [[nodiscard]] Subscription onSignal(const char* signal,
                                        std::function<void(GVariant* arguments)> received);
    /// Tells whenever the service has an owner, also now, and whenever it has lost it.
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
