// Removes extended attributes from files and trees.
// SPDX-License-Identifier: MIT
#include "tools/xattr/Stripper.h"

#include <fcntl.h>

#include <cerrno>
#include <iomanip>
#include <sstream>
#include <system_error>

#include "shared/Descriptor.h"
#include "tools/xattr/Attributes.h"
#include "tools/xattr/Entry.h"
#include "tools/xattr/TreeWalk.h"

namespace brisel::xattr {

namespace {

constexpr unsigned char Delete = 0x7f;
/// UTF-8 encodes the C1 controls, U+0080 to U+009F, as Lead and a byte of this range.
constexpr unsigned char Lead = 0xc2;
constexpr unsigned char FirstSecond = 0x80;
constexpr unsigned char LastSecond = 0x9f;

/// True if the byte at `index` is a control character or part of one.
bool isControl(const std::string& text, std::size_t index) {
    const auto byteAt = [&text](std::size_t at) {
        return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
    };
    const auto isPair = [&](std::size_t at) {
        const auto second = byteAt(at + 1);
        return byteAt(at) == Lead && second >= FirstSecond && second <= LastSecond;
    };
    const auto byte = byteAt(index);
    return byte < ' ' || byte == Delete || isPair(index) || (index > 0 && isPair(index - 1));
}

}  // namespace

std::string escaped(const std::string& text) {
    std::ostringstream shown;
    shown << std::hex << std::setfill('0');
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (isControl(text, index)) {
            shown << "\\x" << std::setw(2) << int{static_cast<unsigned char>(text[index])};
        } else {
            shown << text[index];
        }
    }
    return shown.str();
}

void Stripper::complain(const std::string& path, const std::string& reason) {
    hasFailed_ = true;
    complaints_ << "xattr: " + escaped(path) + ": " + reason + "\n";
}

void Stripper::strip(const std::string& path, Depth depth) {
    const auto stripOne = [this](const Entry& entry, const std::string& itsPath) {
        if (const auto reason = removeUserAttributes(entry)) complain(itsPath, *reason);
    };
    Descriptor start = openAt(AT_FDCWD, path, O_PATH | O_NOFOLLOW);
    if (!start) {
        complain(path, std::generic_category().message(errno));
    } else if (depth == Depth::EverythingBelow) {
        TreeWalk walk(stripOne,
                      [this](const auto& where, const auto& why) { complain(where, why); });
        walk.run(std::move(start), path);
    } else {
        stripOne(Entry(start), path);
    }
}

}  // namespace brisel::xattr
