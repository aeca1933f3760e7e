// The file URL of a folder: percent-encoding.
// SPDX-License-Identifier: MIT
#include "platform/FileURL.h"

#include <string_view>
#include <utility>

namespace brisel::platform {

namespace {

constexpr std::string_view Unencoded =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/!$&'()*+,-.:=@_~";
constexpr std::string_view HexDigits = "0123456789ABCDEF";

void appendEncoded(std::string& text, char character) {
    if (Unencoded.find(character) != std::string_view::npos) {
        text += character;
        return;
    }
    const auto byte = static_cast<unsigned char>(character);
    text += '%';
    text += HexDigits[byte / HexDigits.size()];
    text += HexDigits[byte % HexDigits.size()];
}

}  // namespace

FileURL::FileURL(std::string path) : path_(std::move(path)) {
    while (path_.size() > 1 && path_.back() == '/')
        path_.pop_back();
}

std::string FileURL::absoluteString() const {
    std::string text = "file://";
    for (const char character : path_)
        appendEncoded(text, character);
    if (text.back() != '/') text += '/';
    return text;
}

}  // namespace brisel::platform
