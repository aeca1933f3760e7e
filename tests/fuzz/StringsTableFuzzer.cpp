// Fuzz target: any bytes as a table of localised texts.
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <string>

#include "platform/common/StringsTable.h"
#include "tests/fuzz/Must.h"

namespace {

using brisel::platform::common::StringsTable;
using brisel::tests::must;

std::string quoted(const std::string& text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') result += '\\';
        result += character;
    }
    return result + '"';
}

std::string written(const StringsTable& table) {
    std::string text;
    for (const auto& [key, value] : table.texts())
        text += quoted(key) + " = " + quoted(value) + ";\n";
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto table = StringsTable::parse(std::string(bytes, bytes + size));
    if (!table) return 0;
    for (const auto& [key, value] : table->texts())
        must(table->localizedString(key) == value);
    const auto again = StringsTable::parse(written(*table));
    must(again.has_value() && again->texts() == table->texts());
    return 0;
}
