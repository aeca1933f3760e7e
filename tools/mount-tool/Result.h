// A value, or the refusal that stands in its place.
// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>
#include <variant>

namespace brisel::mounttool {

/// How the tool ends. The numbers from 11 on are ntfs-3g's own; what it reports beyond these passes
/// for Unknown. 126 and 127 are left to pkexec.
enum ExitStatus : int {
    Mounted = 0,       ///< The volume is mounted read-write on the folder.
    Refused = 1,       ///< The request, who made it, the folder or this machine is not fit for it.
    SyntaxError = 11,  ///< The driver did not understand its arguments.
    NotNTFS = 12,
    Inconsistent = 13,
    Hibernated = 14,
    NotCleanlyUnmounted = 15,
    InUse = 16,
    RAID = 17,
    Unknown = 18,  ///< Also: the driver says it mounted the volume, but it is not so.
    NoPrivilege = 19,
    OutOfMemory = 20,
    FUSEError = 21,
};

/// Why the tool ends without a mount: its exit status, and a sentence for the one who asked.
struct Refusal {
    int status = Refused;
    std::string sentence;
};

/// A refusal of the request.
inline Refusal refuse(std::string sentence) {
    return {Refused, std::move(sentence)};
}

/// A refusal because of what the system said in `errno`: "SENTENCE: reason."
inline Refusal refuseByError(const std::string& sentence, int error = errno) {
    return refuse(sentence + ": " + std::generic_category().message(error) + ".");
}

template <typename Value>
class [[nodiscard]] Result {
  public:
    Result(Value value) : content_(std::move(value)) {}
    Result(Refusal refusal) : content_(std::move(refusal)) {}

    explicit operator bool() const { return std::holds_alternative<Value>(content_); }
    /// Only where there is one.
    Value& operator*() { return std::get<Value>(content_); }
    Value* operator->() { return &std::get<Value>(content_); }
    /// Only where there is no value.
    [[nodiscard]] const Refusal& refusal() const { return std::get<Refusal>(content_); }

  private:
    std::variant<Value, Refusal> content_;
};

}  // namespace brisel::mounttool
