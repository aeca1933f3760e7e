// A private message bus for this test program.
// SPDX-License-Identifier: MIT
#include "tests/linux/desktop/SessionBus.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <future>
#include <iostream>
#include <memory>
#include <optional>
#include <utility>

#include "platform/Format.h"

namespace brisel::tests {

namespace {

using std::chrono::milliseconds;

constexpr std::chrono::seconds Patience{20};

// No service files: the bus must not activate the machine's services.
constexpr const char* Configuration = R"(<busconfig>
  <type>session</type>
  <listen>unix:dir=%@</listen>
  <policy context='default'>
    <allow user='*'/>
    <allow send_destination='*' eavesdrop='true'/>
    <allow eavesdrop='true'/>
    <allow own='*'/>
  </policy>
</busconfig>)";

}  // namespace

SessionBus& SessionBus::shared() {
    static SessionBus bus;
    return bus;
}

SessionBus::SessionBus() : address_(start()) {
    // GLib's criticals are programming errors; abort on them.
    g_log_set_always_fatal(static_cast<GLogLevelFlags>(G_LOG_FATAL_MASK | G_LOG_LEVEL_CRITICAL));
    g_setenv("DBUS_SESSION_BUS_ADDRESS", address_.c_str(), TRUE);
    g_setenv("DBUS_SYSTEM_BUS_ADDRESS", address_.c_str(), TRUE);
    CallError error;
    program_.reset(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, error.receive()));
    // Libraries share this connection while it exists.
    system_.reset(g_bus_get_sync(G_BUS_TYPE_SYSTEM, nullptr, nullptr));
    if (!program_) std::cerr << "There is no message bus: " << error.message() << '\n';
    g_dbus_connection_set_exit_on_close(program_.get(), FALSE);
}

SessionBus::~SessionBus() {
    kill(daemon_, SIGTERM);
    waitpid(daemon_, nullptr, 0);
}

// Starts dbus-daemon and returns its address.
std::string SessionBus::start() {
    const auto file = folder_.path() + "/bus.conf";
    std::ofstream(file) << platform::stringWithFormat(Configuration, folder_.path());
    const auto option = "--config-file=" + file;
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return {};
    daemon_ = fork();
    if (daemon_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        dup2(ends[1], STDOUT_FILENO);
        // dbus-daemon complains about resource limits that do not matter here.
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
        execlp("dbus-daemon", "dbus-daemon", "--nofork", "--print-address", option.c_str(),
               nullptr);
        _exit(EXIT_FAILURE);
    }
    close(ends[1]);
    std::array<char, 512> line{};
    const auto length = read(ends[0], line.data(), line.size());
    close(ends[0]);
    const std::string address(line.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
    return address.substr(0, address.find('\n'));
}

OwnedObject<GDBusConnection> SessionBus::connect() const {
    const auto flags =
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    return OwnedObject<GDBusConnection>(
        g_dbus_connection_new_for_address_sync(address_.c_str(), flags, nullptr, nullptr, nullptr));
}

void requestName(GDBusConnection* bus, const std::string& name) {
    const OwnedVariant answer(g_dbus_connection_call_sync(
        bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
        g_variant_new("(su)", name.c_str(), 0), nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr,
        nullptr));
    EXPECT_TRUE(answer) << name;
}

bool turnUntil(const std::function<bool()>& reached) {
    // Wakes the loop to check `reached`, which another thread may change.
    const auto tick = platform::headless::RunLoop().scheduledTimer(milliseconds(2), [] {});
    const auto end = std::chrono::steady_clock::now() + Patience;
    while (!reached()) {
        if (std::chrono::steady_clock::now() > end) {
            ADD_FAILURE() << "It never came to that.";
            return false;
        }
        g_main_context_iteration(g_main_context_get_thread_default(), TRUE);
    }
    return true;
}

TestLoop::~TestLoop() {
    // Pings the program's connection; earlier messages to it arrive before the reply.
    BusCaller("org.freedesktop.DBus", "/", "org.freedesktop.DBus");
    turn();
}

void TestLoop::turn() const {
    while (g_main_context_iteration(loop_.context(), FALSE) != FALSE) {
    }
}

void waitForDesk() {
    using Done = std::shared_ptr<std::promise<void>>;
    const auto done = std::make_shared<std::promise<void>>();
    const auto signalDone = [](gpointer promise) {
        (*static_cast<Done*>(promise))->set_value();
        return G_SOURCE_REMOVE;
    };
    g_idle_add_full(G_PRIORITY_LOW, signalDone, new Done(done),
                    [](gpointer promise) { delete static_cast<Done*>(promise); });
    EXPECT_EQ(done->get_future().wait_for(Patience), std::future_status::ready);
}

OtherProgram::OtherProgram() {
    // PR_SET_PDEATHSIG ends the bus with the thread that starts it.
    static_cast<void>(SessionBus::shared());
    std::promise<GMainContext*> started;
    thread_ = std::thread([this, &started] {
        platform::headless::OwnMainLoop loop;
        end_ = [&loop] { loop.quit(); };
        started.set_value(loop.context());
        loop.run();
    });
    context_ = started.get_future().get();
}

OtherProgram::~OtherProgram() {
    platform::headless::handTo(context_, end_);
    thread_.join();
}

void OtherProgram::run(const std::function<void()>& work) const {
    const auto done = std::make_shared<std::promise<void>>();
    platform::headless::handTo(context_, [&work, done] {
        work();
        done->set_value();
    });
    done->get_future().wait();
}

BusCaller::BusCaller(std::string name, std::string path, std::string interface)
    : name_(std::move(name)), path_(std::move(path)), interface_(std::move(interface)) {
    const auto note = [](GDBusConnection*, const char*, const char*, const char*,
                         const char* signal, GVariant*, gpointer signals) {
        static_cast<std::vector<std::string>*>(signals)->emplace_back(signal);
    };
    subscription_ = g_dbus_connection_signal_subscribe(
        bus_.get(), nullptr, interface_.c_str(), nullptr, path_.c_str(), nullptr,
        G_DBUS_SIGNAL_FLAGS_NONE, note, &signals_, nullptr);
    static_cast<void>(newSignals());
}

BusCaller::~BusCaller() {
    g_dbus_connection_signal_unsubscribe(bus_.get(), subscription_);
    g_dbus_connection_close_sync(bus_.get(), nullptr, nullptr);
}

BusCaller::Answer BusCaller::ask(const Callee& callee, const char* method, GVariant* arguments) {
    std::optional<Answer> answer;
    const auto finish = [](GObject* bus, GAsyncResult* result, gpointer data) {
        CallError error;
        OwnedVariant value(
            g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, error.receive()));
        const platform::headless::OwnedText name(error ? g_dbus_error_get_remote_error(error.get())
                                                       : nullptr);
        static_cast<std::optional<Answer>*>(data)->emplace(
            Answer{.value = std::move(value), .errorName = name ? name.get() : ""});
    };
    g_dbus_connection_call(bus_.get(), callee.name.c_str(), path_.c_str(), callee.interface.c_str(),
                           method, arguments, nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, finish,
                           &answer);
    if (!turnUntil([&answer] { return answer.has_value(); })) std::abort();
    return std::move(*answer);
}

OwnedVariant BusCaller::callBlocking(const char* method, GVariant* arguments) {
    CallError error;
    OwnedVariant answer(g_dbus_connection_call_sync(
        bus_.get(), name_.c_str(), path_.c_str(), interface_.c_str(), method, arguments, nullptr,
        G_DBUS_CALL_FLAGS_NONE, -1, nullptr, error.receive()));
    if (!answer) ADD_FAILURE() << method << ": " << error.message();
    return answer;
}

OwnedVariant BusCaller::property(const char* name) {
    const auto answer = ask({name_, "org.freedesktop.DBus.Properties"}, "Get",
                            g_variant_new("(ss)", interface_.c_str(), name))
                            .value;
    GVariant* value = nullptr;
    if (answer) g_variant_get(answer.get(), "(v)", &value);
    return OwnedVariant(value);
}

std::string BusCaller::text(const char* property) {
    const auto value = this->property(property);
    const bool isText = value && g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING) != FALSE;
    return isText ? g_variant_get_string(value.get(), nullptr) : "no text";
}

std::vector<std::string> BusCaller::newSignals() {
    // The reply to a ping arrives after all earlier signals.
    const auto* const program = g_dbus_connection_get_unique_name(SessionBus::shared().program());
    EXPECT_TRUE(ask({program, "org.freedesktop.DBus.Peer"}, "Ping", nullptr).value);
    return std::exchange(signals_, {});
}

}  // namespace brisel::tests
