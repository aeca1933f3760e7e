// Fuzz target: any bytes as the preferences file.
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "platform/headless/SystemLog.h"
#include "platform/headless/UserDefaults.h"
#include "tests/fuzz/Must.h"
#include "tests/linux/TemporaryFolder.h"

namespace {

using brisel::tests::must;
using namespace brisel::platform::headless;

// Each change is written through to the disk, and there is no need for one here.
constexpr const char* Memory = "/dev/shm";

std::filesystem::path fastFolder() {
    std::error_code code;
    return std::filesystem::is_directory(Memory, code) ? std::filesystem::path(Memory)
                                                       : std::filesystem::temp_directory_path();
}

std::string contentsOf(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// A preferences file in a folder of its own, opened again and again as by runs of the program.
class Preferences {
  public:
    explicit Preferences(const std::string& text) {
        std::ofstream(path_, std::ios::binary) << text;
    }

    [[nodiscard]] UserDefaults open() {
        UserDefaults defaults(log_, path_);
        defaults.registerDefaults({{"showDisclaimer", true}, {"shouldStartAtLogin", false}});
        return defaults;
    }
    [[nodiscard]] bool complained() const { return complained_; }
    [[nodiscard]] std::string contents() const { return contentsOf(path_); }
    [[nodiscard]] std::string setAside() const { return contentsOf(path_ + ".malformed"); }

  private:
    brisel::tests::TemporaryFolder folder_{fastFolder()};
    std::string path_ = folder_.path() + "/preferences.conf";
    bool complained_ = false;
    SystemLog log_{[this](const std::string& /*text*/) { complained_ = true; }};
};

void checkThatChangesLast(Preferences& preferences) {
    auto before = preferences.open();
    const auto list = before.stringArrayForKey("volumeList");
    const bool showDisclaimer = before.boolForKey("showDisclaimer");
    const bool startAtLogin = before.boolForKey("shouldStartAtLogin");
    before.setBool("showDisclaimer", !showDisclaimer);
    if (list) before.setStringArray("volumeList", list);
    const auto after = preferences.open();
    must(after.boolForKey("showDisclaimer") == !showDisclaimer);
    must(after.boolForKey("shouldStartAtLogin") == startAtLogin);
    const auto kept = after.stringArrayForKey("volumeList");
    must((kept != nullptr) == (list != nullptr));
    if (list) must(*kept == *list);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(bytes, bytes + size);
    Preferences preferences(text);
    static_cast<void>(preferences.open());
    must((preferences.complained() ? preferences.setAside() : preferences.contents()) == text);
    checkThatChangesLast(preferences);
    if (preferences.complained()) must(preferences.setAside() == text);
    return 0;
}
