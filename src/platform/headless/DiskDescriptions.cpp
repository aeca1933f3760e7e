// Converts UDisks2's block device properties to disk descriptions.
// SPDX-License-Identifier: MIT
#include "platform/headless/DiskDescriptions.h"

#include <glib.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

namespace brisel::platform::headless {

namespace {

constexpr std::size_t UUIDBytes = 16;
constexpr std::size_t UUIDLength = 36;
constexpr std::string_view DevicePrefix = "/dev/";

std::optional<std::string> orAbsent(const std::string& text) {
    return text.empty() ? std::nullopt : std::optional(text);
}

bool isHyphenPlace(std::size_t index) {
    return index == 8 || index == 13 || index == 18 || index == 23;
}

bool isUUID(std::string_view text) {
    if (text.size() != UUIDLength) return false;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const bool fits = isHyphenPlace(index) ? text[index] == '-' : g_ascii_isxdigit(text[index]);
        if (!fits) return false;
    }
    return true;
}

std::string uppercased(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), g_ascii_toupper);
    return result;
}

using Bytes = std::array<std::uint8_t, UUIDBytes>;

Bytes bytesOf(std::string_view uuid) {
    Bytes bytes{};
    std::size_t nibble = 0;
    for (const char character : uuid) {
        if (character == '-') continue;
        auto& byte = bytes.at(nibble++ / 2);
        byte = static_cast<std::uint8_t>((byte << 4U) | g_ascii_xdigit_value(character));
    }
    return bytes;
}

std::string textOfBytes(const Bytes& bytes) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string text;
    for (const auto byte : bytes) {
        if (isHyphenPlace(text.size())) text += '-';
        text += Digits[byte / Digits.size()];
        text += Digits[byte % Digits.size()];
    }
    return text;
}

Bytes sha1(const Bytes& start, std::string_view rest) {
    const std::unique_ptr<GChecksum, decltype(&g_checksum_free)> checksum(
        g_checksum_new(G_CHECKSUM_SHA1), &g_checksum_free);
    g_checksum_update(checksum.get(), start.data(), static_cast<gssize>(start.size()));
    g_checksum_update(checksum.get(), reinterpret_cast<const guchar*>(rest.data()),
                      static_cast<gssize>(rest.size()));
    constexpr std::size_t DigestBytes = 20;
    std::array<std::uint8_t, DigestBytes> digest{};
    gsize length = digest.size();
    g_checksum_get_digest(checksum.get(), digest.data(), &length);
    Bytes first{};
    std::copy_n(digest.begin(), first.size(), first.begin());
    return first;
}

// RFC 4122, section 4.3: version 5, RFC variant.
std::string nameBasedUUID(std::string_view name) {
    constexpr std::size_t VersionByte = 6;
    constexpr std::size_t VariantByte = 8;
    constexpr unsigned VersionMask = 0x0F;
    constexpr unsigned Version = 0x50;
    constexpr unsigned VariantMask = 0x3F;
    constexpr unsigned Variant = 0x80;
    auto bytes = sha1(bytesOf(SerialNamespace), name);
    bytes[VersionByte] = static_cast<std::uint8_t>((bytes[VersionByte] & VersionMask) | Version);
    bytes[VariantByte] = static_cast<std::uint8_t>((bytes[VariantByte] & VariantMask) | Variant);
    return textOfBytes(bytes);
}

}  // namespace

std::optional<std::string> uuidText(std::string_view name) {
    if (name.empty()) return std::nullopt;
    return isUUID(name) ? uppercased(name) : nameBasedUUID(uppercased(name));
}

std::string bsdName(std::string_view device) {
    if (device.starts_with(DevicePrefix)) device.remove_prefix(DevicePrefix.size());
    return std::string(device);
}

DiskDescription describe(const BlockProperties& properties) {
    DiskDescription description;
    // A device being removed loses IdType before its Filesystem interface.
    description.volumeMountable =
        properties.filesystem && !properties.hintIgnore && !properties.idType.empty();
    description.volumeKind = orAbsent(properties.idType);
    description.volumeName = orAbsent(properties.idLabel);
    description.mediaBSDName = bsdName(properties.device);
    if (properties.mountPoint) description.volumePath.emplace(*properties.mountPoint);
    description.mediaUUID = uuidText(properties.partitionUUID);
    description.volumeUUID = uuidText(properties.idUUID);
    return description;
}

}  // namespace brisel::platform::headless
