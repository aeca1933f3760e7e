// Brisel's XDG autostart entry.
// SPDX-License-Identifier: MIT
#include "platform/desktop/LoginItems.h"

#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include "platform/headless/GLibOwners.h"
#include "platform/headless/Installation.h"

namespace brisel::platform::desktop {

namespace {

namespace fs = std::filesystem;

constexpr const char* FileName = "/autostart/org.brisel.Brisel.desktop";
constexpr int PrivateFolder = 0700;

}  // namespace

std::string execWord(const std::string& path) {
    std::string word = "\"";
    for (const char character : path) {
        if (std::string_view("\"`$\\").find(character) != std::string_view::npos) word += '\\';
        if (character == '%') word += '%';
        word += character;
    }
    return word + '"';
}

LoginItems::Entry LoginItems::ownEntry() {
    return {.file = std::string(g_get_user_config_dir()) + FileName,
            .program = headless::ownPath()};
}

bool LoginItems::setEnabled(const std::string& /*identifier*/, bool enabled) {
    return enabled ? add() : remove();
}

// With TryExec, desktops ignore the entry once the program is removed.
bool LoginItems::add() const {
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)> file(g_key_file_new(),
                                                                      &g_key_file_unref);
    const auto set = [&file](const char* key, const std::string& value) {
        g_key_file_set_string(file.get(), G_KEY_FILE_DESKTOP_GROUP, key, value.c_str());
    };
    set(G_KEY_FILE_DESKTOP_KEY_TYPE, G_KEY_FILE_DESKTOP_TYPE_APPLICATION);
    set(G_KEY_FILE_DESKTOP_KEY_NAME, "Brisel");
    set(G_KEY_FILE_DESKTOP_KEY_ICON, "org.brisel.Brisel");
    set(G_KEY_FILE_DESKTOP_KEY_TRY_EXEC, entry_.program);
    set(G_KEY_FILE_DESKTOP_KEY_EXEC, execWord(entry_.program));
    g_mkdir_with_parents(fs::path(entry_.file).parent_path().c_str(), PrivateFolder);
    headless::CallError error;
    if (g_key_file_save_to_file(file.get(), entry_.file.c_str(), error.receive()) != FALSE)
        return true;
    log_.log("The login item cannot be written: %@", error.message());
    return false;
}

bool LoginItems::remove() const {
    std::error_code code;
    fs::remove(entry_.file, code);
    if (!code) return true;
    log_.log("The login item cannot be removed: %@", code.message());
    return false;
}

}  // namespace brisel::platform::desktop
