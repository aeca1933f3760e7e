// Preferences in a GLib key file in the user's configuration folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <map>
#include <memory>
#include <string>

#include "platform/SystemLog.h"
#include "platform/UserDefaults.h"

namespace brisel::platform::headless {

/// Writes the file atomically at each change; removes what killed writes of earlier runs left.
/// Renames an unreadable file to a free name ending in `.malformed` or `.malformed-N`, and starts
/// with the defaults.
class UserDefaults final : public platform::UserDefaults {
  public:
    /// `path` need not exist yet; see defaultPath.
    UserDefaults(platform::SystemLog& log, std::string path);

    /// `brisel/preferences.conf` in the XDG configuration folder.
    [[nodiscard]] static std::string defaultPath();

    void registerDefaults(const std::map<std::string, bool>& defaults) override;
    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    [[nodiscard]] StringArray stringArrayForKey(std::string_view key) const override;
    void setBool(std::string_view key, bool value) override;
    void setStringArray(std::string_view key, StringArray value) override;
    void synchronize() override;

  private:
    void load();
    /// Returns an error message, empty on success.
    [[nodiscard]] std::string read();
    void setAside();

    platform::SystemLog& log_;
    std::string path_;
    /// False if an unreadable file could not be renamed: writing would destroy it.
    bool mayWrite_ = true;
    bool changed_ = false;
    std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)> file_{g_key_file_new(),
                                                                 &g_key_file_unref};
    std::map<std::string, bool, std::less<>> registered_;
};

}  // namespace brisel::platform::headless
