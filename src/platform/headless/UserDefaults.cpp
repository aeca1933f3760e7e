// Preferences in a GLib key file.
// SPDX-License-Identifier: MIT
#include "platform/headless/UserDefaults.h"

#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/headless/GLibOwners.h"

namespace brisel::platform::headless {

namespace {

namespace fs = std::filesystem;

constexpr const char* Group = "Brisel";
constexpr int PrivateFolder = 0700;

std::string freeNameBeside(const std::string& path) {
    std::error_code code;
    std::string name = path + ".malformed";
    for (int number = 2; fs::exists(name, code); ++number) {
        name = path + ".malformed-" + std::to_string(number);
    }
    return name;
}

bool matches(const std::string& text, const char* pattern) {
    return g_regex_match_simple(pattern, text.c_str(), {}, {}) != FALSE;
}

// True for FILE.XXXXXX, which GLib writes and renames to FILE. Spares a word with a number, such as
// `Backup`, `copy02` or `202611`: it may be a copy made by the user. GLib picks one in 40 times.
bool isTemporary(const std::string& name, const std::string& file) {
    if (!name.starts_with(file + ".")) return false;
    const auto suffix = name.substr(file.size() + 1);
    return matches(suffix, R"(^[A-Za-z0-9]{6}\z)") &&
           !matches(suffix, R"(^([A-Z]?[a-z]*|[A-Z]+)[0-9]*\z)");
}

// A killed write leaves its temporary file.
void removeTemporaryFilesOf(const fs::path& path) {
    std::error_code code;
    for (fs::directory_iterator entry(path.parent_path(), code); !code && entry != end(entry);
         entry.increment(code)) {
        std::error_code unknown;
        const bool isFile = fs::is_regular_file(entry->symlink_status(unknown));
        if (isFile && isTemporary(entry->path().filename(), path.filename())) {
            fs::remove(entry->path(), unknown);
        }
    }
}

}  // namespace

UserDefaults::UserDefaults(platform::SystemLog& log, std::string path)
    : log_(log), path_(std::move(path)) {
    load();
}

std::string UserDefaults::defaultPath() {
    return std::string(g_get_user_config_dir()) + "/brisel/preferences.conf";
}

void UserDefaults::load() {
    std::error_code code;
    // Resolves symbolic links: writing replaces the target and keeps the link.
    if (const auto target = fs::canonical(path_, code); !code) path_ = target;
    removeTemporaryFilesOf(path_);
    if (!fs::exists(fs::symlink_status(path_, code))) return;
    const auto complaint = read();
    if (complaint.empty()) return;
    log_.log("The preferences in %@ cannot be read: %@", path_, complaint);
    file_.reset(g_key_file_new());
    setAside();
}

std::string UserDefaults::read() {
    std::error_code code;
    if (!fs::is_regular_file(path_, code)) return "It is not a regular file.";
    CallError error;
    char* text = nullptr;
    gsize length = 0;
    if (g_file_get_contents(path_.c_str(), &text, &length, error.receive()) == FALSE) {
        return error.message();
    }
    const OwnedText owned(text);
    // GLib ends a line at a null byte and would drop the rest.
    if (std::string_view(text, length).find('\0') != std::string_view::npos) {
        return "It contains null bytes.";
    }
    g_key_file_load_from_data(file_.get(), text, length, G_KEY_FILE_KEEP_COMMENTS, error.receive());
    return error ? error.message() : "";
}

void UserDefaults::setAside() {
    const auto name = freeNameBeside(path_);
    std::error_code code;
    fs::rename(path_, name, code);
    mayWrite_ = !code;
    if (mayWrite_) {
        log_.log("Renamed the file to %@; starting with the defaults.", name);
    } else {
        log_.log("The file cannot be renamed; starting with the defaults and saving no changes.");
    }
}

void UserDefaults::registerDefaults(const std::map<std::string, bool>& defaults) {
    for (const auto& [key, value] : defaults)
        registered_.insert_or_assign(key, value);
}

bool UserDefaults::boolForKey(std::string_view key) const {
    CallError error;
    const bool stored = g_key_file_get_boolean(file_.get(), Group, std::string(key).c_str(),
                                               error.receive()) != FALSE;
    if (!error) return stored;
    const auto found = registered_.find(key);
    return found != registered_.end() && found->second;
}

UserDefaults::StringArray UserDefaults::stringArrayForKey(std::string_view key) const {
    gsize count = 0;
    const std::unique_ptr<char*, decltype(&g_strfreev)> texts(
        g_key_file_get_string_list(file_.get(), Group, std::string(key).c_str(), &count, nullptr),
        &g_strfreev);
    if (!texts) return nullptr;
    return std::make_shared<const std::vector<std::string>>(texts.get(), texts.get() + count);
}

void UserDefaults::setBool(std::string_view key, bool value) {
    g_key_file_set_boolean(file_.get(), Group, std::string(key).c_str(), value ? TRUE : FALSE);
    changed_ = true;
    synchronize();
}

void UserDefaults::setStringArray(std::string_view key, StringArray value) {
    std::vector<const char*> texts;
    for (const auto& text : *value)
        texts.push_back(text.c_str());
    // GLib requires an array even for an empty list.
    texts.push_back(nullptr);
    g_key_file_set_string_list(file_.get(), Group, std::string(key).c_str(), texts.data(),
                               texts.size() - 1);
    changed_ = true;
    synchronize();
}

void UserDefaults::synchronize() {
    if (!changed_ || !mayWrite_) return;
    g_mkdir_with_parents(fs::path(path_).parent_path().c_str(), PrivateFolder);
    CallError error;
    if (g_key_file_save_to_file(file_.get(), path_.c_str(), error.receive()) == FALSE) {
        log_.log("The preferences cannot be written: %@", error.message());
        return;
    }
    changed_ = false;
}

}  // namespace brisel::platform::headless
