// The system log: the systemd journal, if present, and a listener.
// SPDX-License-Identifier: MIT
#include "platform/headless/SystemLog.h"

#include <glib.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace brisel::platform::headless {

namespace {

constexpr const char* JournalSocket = "/run/systemd/journal/socket";

}  // namespace

SystemLog::SystemLog(Listener listener)
    : listener_(std::move(listener)), hasJournal_(access(JournalSocket, W_OK) == 0) {}

void SystemLog::write(const std::string& text) {
    if (hasJournal_) {
        const std::array<GLogField, 2> fields{
            GLogField{
                .key = "MESSAGE", .value = text.data(), .length = static_cast<gssize>(text.size())},
            GLogField{.key = "SYSLOG_IDENTIFIER", .value = "brisel", .length = -1}};
        g_log_writer_journald(G_LOG_LEVEL_MESSAGE, fields.data(), fields.size(), nullptr);
    }
    listener_(text);
}

}  // namespace brisel::platform::headless
