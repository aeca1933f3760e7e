// A message bus that only this test program is on.
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

/// Started with the first use, ended with the process. It is the session's bus to whoever asks, and
/// the system's.
class SessionBus {
  public:
    static SessionBus& shared();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus();

    /// The connection of the program under test, and of the libraries it uses.
    [[nodiscard]] GDBusConnection* program() const { return program_.get(); }
    /// Another program's.
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

/// Turns the calling thread's loop until that is so. False, and a failure of the test, when it does
/// not come to that.
bool turnUntil(const std::function<bool()>& reached);

/// The loop of a test's thread. Whatever still waits there at the test's end is done, so that GLib
/// can give up all that belonged to it.
class TestLoop {
  public:
    TestLoop() = default;
    TestLoop(const TestLoop&) = delete;
    TestLoop& operator=(const TestLoop&) = delete;
    ~TestLoop();

    /// Does all that waits now.
    void turn() const;
    [[nodiscard]] GMainContext* context() const { return loop_.context(); }

  private:
    platform::headless::OwnMainLoop loop_;
};

/// Waits until the default context, on whatever thread it turns, has done all that waits there.
void waitForDesk();

/// A thread with a loop of its own, for services that answer while the test's thread waits.
class OtherProgram {
  public:
    OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram();

    /// Runs it on the thread and waits for its end.
    void run(const std::function<void()>& work) const;

  private:
    GMainContext* context_ = nullptr;
    std::function<void()> end_;
    std::thread thread_;
};

/// A program that asks others on the bus.
class BusCaller {
  public:
    BusCaller(std::string name, std::string path, std::string interface);
    BusCaller(const BusCaller&) = delete;
    BusCaller& operator=(const BusCaller&) = delete;
    ~BusCaller();

    /// The answer; null for an error. The calling thread's loop turns meanwhile.
    [[nodiscard]] OwnedVariant call(const char* method, GVariant* arguments);
    /// The same while the calling thread does nothing else.
    [[nodiscard]] OwnedVariant callBlocking(const char* method, GVariant* arguments);
    /// The value of a property of the interface, null if it has none.
    [[nodiscard]] OwnedVariant property(const char* name);
    [[nodiscard]] std::string text(const char* property);

    /// The names of the interface's signals since this was asked last, in order.
    [[nodiscard]] std::vector<std::string> newSignals();

  private:
    struct Question {
        const char* name;
        const char* interface;
        const char* method;
        GVariant* arguments;
    };

    [[nodiscard]] OwnedVariant ask(const Question& question);

    OwnedObject<GDBusConnection> bus_ = SessionBus::shared().connect();
    std::string name_;
    std::string path_;
    std::string interface_;
    std::vector<std::string> signals_;
    guint subscription_ = 0;
};

}  // namespace brisel::tests
