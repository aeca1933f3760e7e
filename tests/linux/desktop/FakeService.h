// A fake D-Bus service with scripted answers.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/linux/desktop/SessionBus.h"

namespace brisel::tests {

/// A pending method call; it may be answered at any time, or never.
class BusCall {
  public:
    explicit BusCall(GDBusMethodInvocation* invocation) : invocation_(invocation) {}

    [[nodiscard]] GVariant* arguments() const {
        return g_dbus_method_invocation_get_parameters(invocation_);
    }
    /// The path of the file behind the first descriptor that was passed.
    [[nodiscard]] std::string file() const;
    /// Replies with `tuple`, floating, or null for an empty one; it need not match the
    /// introspection.
    void answer(GVariant* tuple) const;
    void refuse(const std::string& errorName) const;
    void drop() const { g_object_unref(invocation_); }

  private:
    GDBusMethodInvocation* invocation_;
};

/// One object with one interface, served by the main loop of the creating thread. Owns its bus name
/// from appear() to vanish().
class FakeService {
  public:
    using Method = std::function<void(const BusCall& call)>;

    struct Interface {
        std::string busName;
        std::string path;
        std::string name;
        std::string introspection;
    };

    explicit FakeService(Interface interface);
    FakeService(const FakeService&) = delete;
    FakeService& operator=(const FakeService&) = delete;
    ~FakeService();

    void appear() { requestName(bus_.get(), interface_.busName); }
    void vanish();
    [[nodiscard]] GDBusConnection* bus() const { return bus_.get(); }

    /// Handles calls of `name` with `method`; one that does not answer leaves the caller waiting.
    void on(const std::string& name, Method method) { methods_[name] = std::move(method); }
    void setProperty(const std::string& name, GVariant* value);
    void emit(const char* signal, GVariant* arguments) const;

  private:
    static void answerMethod(GDBusConnection* bus, const gchar* sender, const gchar* path,
                             const gchar* interface, const gchar* method, GVariant* arguments,
                             GDBusMethodInvocation* invocation, gpointer service);
    static GVariant* answerProperty(GDBusConnection* bus, const gchar* sender, const gchar* path,
                                    const gchar* interface, const gchar* name, GError** error,
                                    gpointer service);

    Interface interface_;
    OwnedObject<GDBusConnection> bus_ = SessionBus::shared().connect();
    std::map<std::string, Method> methods_;
    std::map<std::string, OwnedVariant> properties_;
    guint object_ = 0;
};

}  // namespace brisel::tests
