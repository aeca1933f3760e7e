// A value or a refusal.
// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>
#include <variant>

namespace brisel::mounttool {

/// Exit statuses. Those from 11 on are ntfs-3g's; any other of ntfs-3g's becomes Unknown. 126 and
/// 127 are pkexec's.
enum ExitStatus : int {
    Mounted = 0,       ///< The volume is mounted read-write on the folder.
    Refused = 1,       ///< Invalid request, user or folder, or unsuitable system.
    SyntaxError = 11,  ///< The driver did not understand its arguments.
    NotNTFS = 12,
    Inconsistent = 13,
    Hibernated = 14,
    NotCleanlyUnmounted = 15,
    InUse = 16,
    RAID = 17,
    Unknown = 18,  ///< Also: the driver reports success, but the mount is wrong.
    NoPrivilege = 19,
    OutOfMemory = 20,
    FUSEError = 21,
};

struct Refusal {
    int status = Refused;
    std::string sentence;
};

inline Refusal refuse(std::string sentence) {
    return {Refused, std::move(sentence)};
}

/// Refusal with the message "SENTENCE: REASON." for an errno.
inline Refusal refuseByError(const std::string& sentence, int error = errno) {
    return refuse(sentence + ": " + std::generic_category().message(error) + ".");
}

template <typename Value>
class [[nodiscard]] Result {
  public:
    Result(Value value) : content_(std::move(value)) {}
    Result(Refusal refusal) : content_(std::move(refusal)) {}

    explicit operator bool() const { return std::holds_alternative<Value>(content_); }
    /// Requires a value.
    Value& operator*() { return std::get<Value>(content_); }
    Value* operator->() { return &std::get<Value>(content_); }
    /// Requires a refusal.
    [[nodiscard]] const Refusal& refusal() const { return std::get<Refusal>(content_); }

  private:
    std::variant<Value, Refusal> content_;
};

}  // namespace brisel::mounttool
