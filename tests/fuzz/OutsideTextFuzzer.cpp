// Fuzz target: texts that other programs and people write, through all that reads them.
// SPDX-License-Identifier: MIT
#include <array>
#include <cstdint>
#include <string>

#include "platform/common/VisibleText.h"
#include "platform/headless/DiskDescriptions.h"
#include "platform/headless/ScriptRunner.h"
#include "simulator/Words.h"
#include "tests/fuzz/Must.h"

namespace {

using namespace brisel;
using brisel::tests::must;

void readScript(const std::string& text) {
    const auto command = platform::headless::shellCommandOf("do shell script \"" + text);
    must(!command || command->size() < text.size());
}

void readUUID(const std::string& text) {
    const auto uuid = platform::headless::uuidText(text);
    must(uuid.has_value() == !text.empty());
    // What is a UUID already stays what it is.
    if (uuid) must(uuid->size() == 36 && platform::headless::uuidText(*uuid) == uuid);
}

void showOnTerminal(const std::string& text) {
    for (const char character : platform::common::visible(text)) {
        const auto byte = static_cast<unsigned char>(character);
        must(byte >= ' ' && byte != 0x7F);
    }
}

void readWords(const std::string& text) {
    if (const auto words = simulator::splitIntoWords(text)) {
        for (const auto& word : *words)
            must(word.size() <= text.size());
    }
    if (const auto status = simulator::parseStatus(text)) {
        must(simulator::parseNumber(text).has_value());
    }
}

constexpr std::array Readers{&readScript, &readUUID, &showOnTerminal, &readWords};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    if (size == 0) return 0;
    const std::string text(reinterpret_cast<const char*>(bytes) + 1, size - 1);
    Readers.at(bytes[0] % Readers.size())(text);
    return 0;
}
