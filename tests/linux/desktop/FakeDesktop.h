// The services of a desktop: a tray, a notification server, the Settings portal.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/SystemLog.h"
#include "tests/linux/desktop/FakeService.h"

namespace brisel::tests {

/// What watches for status icons, with or without a host that shows them.
class FakeTray {
  public:
    enum class Host { None, There };

    explicit FakeTray(Host host);

    /// A panel starts.
    void registerHost();
    /// The bus names of the icons, in the order of their calls, each call once.
    [[nodiscard]] const std::vector<std::string>& registered() const { return registered_; }

    FakeService service;

  private:
    std::vector<std::string> registered_;
};

/// What came in with one call of Notify.
struct NotifyCall {
    std::string program;
    std::uint32_t replaces = 0;
    std::string icon;
    std::string summary;
    std::string body;
    std::vector<std::string> actions;
    std::map<std::string, std::string> hints;
    std::int32_t time = 0;
};

class FakeNotifications {
  public:
    explicit FakeNotifications(std::vector<std::string> capabilities);

    /// Gives a new pop-up this number, and each later one the next.
    void numberFrom(std::uint32_t number) { next_ = number; }
    [[nodiscard]] const std::vector<NotifyCall>& calls() const { return calls_; }
    void invoke(std::uint32_t number, const char* action) const;
    void close(std::uint32_t number, std::uint32_t reason) const;

    FakeService service;

  private:
    void notify(const BusCall& call);

    std::uint32_t next_ = 1;
    std::vector<NotifyCall> calls_;
};

/// The same on a thread of its own.
class BusyNotifications {
  public:
    explicit BusyNotifications(std::vector<std::string> capabilities);
    BusyNotifications(const BusyNotifications&) = delete;
    BusyNotifications& operator=(const BusyNotifications&) = delete;
    ~BusyNotifications();

    [[nodiscard]] std::vector<NotifyCall> calls() const;

  private:
    OtherProgram program_;
    std::optional<FakeNotifications> server_;
};

class FakePortal {
  public:
    /// Answers with this value, wrapped as portals do.
    explicit FakePortal(std::uint32_t scheme);

    void change(std::uint32_t scheme);
    [[nodiscard]] int timesAsked() const { return timesAsked_; }

    FakeService service;

  private:
    std::uint32_t scheme_;
    int timesAsked_ = 0;
};

/// Keeps the entries, from any thread.
class RecordedLog final : public platform::SystemLog {
  public:
    void write(const std::string& text) override {
        const std::lock_guard lock(mutex_);
        entries_.push_back(text);
    }
    [[nodiscard]] std::vector<std::string> entries() const {
        const std::lock_guard lock(mutex_);
        return entries_;
    }

  private:
    mutable std::mutex mutex_;
    std::vector<std::string> entries_;
};

}  // namespace brisel::tests
