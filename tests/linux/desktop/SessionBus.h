// A private message bus for this test program.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <sys/types.h>

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "platform/headless/GLibOwners.h"
#include "platform/headless/MainContext.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::tests {

using platform::headless::CallError;
using platform::headless::OwnedObject;
using platform::headless::OwnedVariant;

/// Started on first use, stopped at exit. Serves as session bus and as system bus.
class SessionBus {
  public:
    static SessionBus& shared();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus();

    /// The connection of the program under test and its libraries.
    [[nodiscard]] GDBusConnection* program() const { return program_.get(); }
    [[nodiscard]] OwnedObject<GDBusConnection> connect() const;

  private:
    SessionBus();

    [[nodiscard]] std::string start();

    TemporaryFolder folder_;
    pid_t daemon_ = 0;
    std::string address_;
    OwnedObject<GDBusConnection> program_;
    OwnedObject<GDBusConnection> system_;
};

/// Requests a well-known name for the connection; fails the test on error.
void requestName(GDBusConnection* bus, const std::string& name);

/// Turns the calling thread's main loop until `reached`; on timeout, fails the test and returns
/// false.
bool turnUntil(const std::function<bool()>& reached);

/// The main loop of the test's thread. The destructor dispatches pending work, so that GLib
/// releases its memory.
class TestLoop {
  public:
    TestLoop() = default;
    TestLoop(const TestLoop&) = delete;
    TestLoop& operator=(const TestLoop&) = delete;
    ~TestLoop();

    void turn() const;
    [[nodiscard]] GMainContext* context() const { return loop_.context(); }

  private:
    platform::headless::OwnMainLoop loop_;
};

/// Waits until the thread of the default context has dispatched its pending work.
void waitForDesk();

/// A thread with its own main loop, for services that answer while the test's thread blocks.
class OtherProgram {
  public:
    OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram();

    void run(const std::function<void()>& work) const;

  private:
    GMainContext* context_ = nullptr;
    std::function<void()> end_;
    std::thread thread_;
};

class BusCaller {
  public:
    BusCaller(std::string name, std::string path, std::string interface);
    BusCaller(const BusCaller&) = delete;
    BusCaller& operator=(const BusCaller&) = delete;
    ~BusCaller();

    /// Calls a method and returns its answer; null on error. Turns the calling thread's loop.
    [[nodiscard]] OwnedVariant call(const char* method, GVariant* arguments) {
        return ask({name_, interface_}, method, arguments).value;
    }
    /// Calls a method and returns the name of its D-Bus error; empty on success.
    [[nodiscard]] std::string errorOf(const char* method, GVariant* arguments) {
        return ask({name_, interface_}, method, arguments).errorName;
    }
    /// Calls a method and blocks the calling thread; fails the test on error.
    [[nodiscard]] OwnedVariant callBlocking(const char* method, GVariant* arguments);
    [[nodiscard]] OwnedVariant property(const char* name);
    [[nodiscard]] std::string text(const char* property);

    /// The names of the interface's signals since the last call, in order.
    [[nodiscard]] std::vector<std::string> newSignals();

  private:
    struct Callee {
        std::string name;
        std::string interface;
    };

    struct Answer {
        OwnedVariant value;
        std::string errorName;
    };

    [[nodiscard]] Answer ask(const Callee& callee, const char* method, GVariant* arguments);

    OwnedObject<GDBusConnection> bus_ = SessionBus::shared().connect();
    std::string name_;
    std::string path_;
    std::string interface_;
    std::vector<std::string> signals_;
    guint subscription_ = 0;
};

}  // namespace brisel::tests
