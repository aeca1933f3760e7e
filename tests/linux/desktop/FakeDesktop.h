// Fake desktop services: a tray, a notification server, the Settings portal.
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

/// org.kde.StatusNotifierWatcher, with or without a registered host.
class FakeTray {
  public:
    enum class Host { None, There };

    explicit FakeTray(Host host);

    void registerHost();
    /// The argument of each RegisterStatusNotifierItem call, in order.
    [[nodiscard]] const std::vector<std::string>& registered() const { return registered_; }

    FakeService service;

  private:
    std::vector<std::string> registered_;
};

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
    static constexpr std::uint32_t ClosedByCall = 3;

    explicit FakeNotifications(std::vector<std::string> capabilities);

    /// Sets the ID of the next new notification; later ones count up from it.
    void numberFrom(std::uint32_t number) { next_ = number; }
    [[nodiscard]] const std::vector<NotifyCall>& calls() const { return calls_; }
    /// The argument of each CloseNotification call, in order.
    [[nodiscard]] const std::vector<std::uint32_t>& withdrawn() const { return withdrawn_; }
    void invoke(std::uint32_t number, const char* action) const;
    void giveToken(std::uint32_t number, const char* token) const;
    void close(std::uint32_t number, std::uint32_t reason) const;

    FakeService service;

  private:
    void notify(const BusCall& call);

    std::uint32_t next_ = 1;
    std::vector<NotifyCall> calls_;
    std::vector<std::uint32_t> withdrawn_;
};

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
    /// Answers Read with `scheme`, in two variants as portals do.
    explicit FakePortal(std::uint32_t scheme);

    void change(std::uint32_t scheme);
    [[nodiscard]] int timesAsked() const { return timesAsked_; }

    FakeService service;

  private:
    std::uint32_t scheme_;
    int timesAsked_ = 0;
};

/// Keeps the entries; thread-safe.
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
