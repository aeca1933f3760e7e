// The preferences in a key file of the user's configuration folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <map>
#include <memory>
#include <string>

#include "platform/SystemLog.h"
#include "platform/UserDefaults.h"

namespace brisel::platform::headless {

/// The file is written whole or not at all, at each change. A file that cannot be understood is
/// set aside beside itself under a free name, and the program goes on with its defaults.
class UserDefaults final : public platform::UserDefaults {
  public:
    /// `path` is the file, which need not be there yet; see `defaultPath`.
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
    /// What is wrong with the file; empty when it was read.
    [[nodiscard]] std::string read();
    void setAside();

    platform::SystemLog& log_;
    std::string path_;
    /// Writing would lose a file that could neither be read nor be set aside.
    bool mayWrite_ = true;
    bool changed_ = false;
    std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)> file_{g_key_file_new(),
                                                                 &g_key_file_unref};
    std::map<std::string, bool, std::less<>> registered_;
};

}  // namespace brisel::platform::headless
