// A system bus within the process, with a disk service that says what it is told to.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <future>
#include <mutex>
#include <string>
#include <thread>

#include "platform/headless/GLibOwners.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::tests {

/// What the disk service answers and does; floating or owned values are taken over.
struct DiskServiceAnswers {
    /// To GetManagedObjects, `a{oa{sa{sv}}}`.
    platform::headless::OwnedVariant objects;
    /// To Mount: a tuple of any type, or null for the error.
    platform::headless::OwnedVariant mounted;
    /// The name of the error that Mount and Unmount fail with.
    std::string errorName;
};

/// The bus and UDisks2 in one. The bus's own threads answer; everything else is for the main
/// thread.
class FakeBus {
  public:
    /// Becomes this process's system bus.
    FakeBus();
    FakeBus(const FakeBus&) = delete;
    FakeBus& operator=(const FakeBus&) = delete;
    ~FakeBus();

    /// Ends what was connected, and waits for the next program with these answers.
    void prepare(DiskServiceAnswers answers);
    /// Sends a signal of the disk service to the program that is connected.
    void emit(const char* path, const char* interface, const char* signal, GVariant* arguments);

  private:
    static gboolean welcome(GDBusServer* server, GDBusConnection* connection, gpointer bus);
    static GDBusMessage* receive(GDBusConnection* connection, GDBusMessage* message,
                                 gboolean incoming, gpointer bus);
    [[nodiscard]] GDBusMessage* replyTo(GDBusMessage* call);

    /// The bus's thread.
    void serve();

    TemporaryFolder folder_;
    std::string address_ = "unix:path=" + folder_.path() + "/bus";
    std::promise<void> served_;
    std::function<void()> end_;
    std::thread thread_;
    std::mutex mutex_;
    platform::headless::OwnedObject<GDBusConnection> connection_;
    DiskServiceAnswers answers_;
};

}  // namespace brisel::tests
