// Disk events, mounts and unmounts, by Disk Arbitration.
// SPDX-License-Identifier: MIT
#import "platform/macos/DiskArbitration.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "platform/Format.h"
#include "platform/macos/DiskDescriptions.h"
#include "platform/macos/MountFlags.h"
#include "platform/macos/Text.h"

namespace brisel::platform::macos {

namespace {

using DiskCallback = platform::DiskArbitration::DiskCallback;
using Completion = platform::DiskArbitration::Completion;

// A volume without a device has no BSD name.
std::string nameOf(DADiskRef disk) {
    const char* const name = DADiskGetBSDName(disk);
    return name != nullptr ? name : std::string(NullText);
}

// Disk Arbitration's C code calls this, so no exception may escape.
void report(DADiskRef disk, void* context) noexcept {
    // AppKit drains its own pool only after user events.
    @autoreleasepool {
        // A copy: the callback may end the registration.
        const auto callback = *static_cast<const DiskCallback*>(context);
        callback({.bsdName = nameOf(disk)}, descriptionOf(disk));
    }
}

struct Request {
    Completion completion;
    /// Null unless a read-write mount was requested.
    std::shared_ptr<std::set<std::string>> readOnlyDisks;
};

std::optional<Dissenter> dissenterFrom(DADissenterRef dissenter) {
    if (dissenter == nullptr) return std::nullopt;
    return Dissenter{.status = static_cast<std::uint32_t>(DADissenterGetStatus(dissenter))};
}

bool cameOutReadOnly(DADiskRef disk) {
    const auto path = descriptionOf(disk).volumePath;
    return path && isMountedReadOnly(path->path());
}

// Whether this mount and the disk's one before came out read-only. Updates `readOnlyDisks`.
bool cameOutReadOnlyAgain(DADiskRef disk, std::set<std::string>& readOnlyDisks) {
    if (cameOutReadOnly(disk)) return !readOnlyDisks.insert(nameOf(disk)).second;
    readOnlyDisks.erase(nameOf(disk));
    return false;
}

// The framework owns `disk` and `dissenter`; they are valid only during the call.
void complete(DADiskRef disk, DADissenterRef dissenter, void* context) noexcept {
    @autoreleasepool {
        const std::unique_ptr<const Request> request(static_cast<const Request*>(context));
        auto refusal = dissenterFrom(dissenter);
        if (!refusal && request->readOnlyDisks &&
            cameOutReadOnlyAgain(disk, *request->readOnlyDisks)) {
            refusal = Dissenter{.status = DAReturn::NotWritable};
        }
        request->completion({.bsdName = nameOf(disk)}, refusal);
    }
}

void refuse(const Disk& disk, const Completion& completion) {
    completion({.bsdName = disk.bsdName}, Dissenter());
}

/// The null-terminated string array of DADiskMountWithArguments, which reads it during the call.
class ArgumentArray {
  public:
    explicit ArgumentArray(const std::vector<std::string>& arguments) {
        for (const auto& argument : arguments)
            references_.push_back((__bridge CFStringRef)nsString(argument));
        references_.push_back(nullptr);
    }

    [[nodiscard]] CFStringRef* data() { return references_.data(); }

  private:
    std::vector<CFStringRef> references_;
};

}  // namespace

void DiskArbitration::createSession() {
    session_ = Owned<DASessionRef>(DASessionCreate(kCFAllocatorDefault));
}

Subscription DiskArbitration::registerCallback(Register registerAt, DiskCallback callback) {
    if (!session_) return {};
    const auto context = std::make_shared<DiskCallback>(std::move(callback));
    // Reads the match constant only now: it is null, which matches every disk, until a session
    // exists.
    registerAt(session_.get(), kDADiskDescriptionMatchVolumeMountable, &report, context.get());
    return Subscription([session = session_.get(), context] {
        DAUnregisterCallback(session, reinterpret_cast<void*>(&report), context.get());
    });
}

Subscription DiskArbitration::registerDiskAppearedCallback(DiskCallback callback) {
    return registerCallback(&DARegisterDiskAppearedCallback, std::move(callback));
}

Subscription DiskArbitration::registerDiskDisappearedCallback(DiskCallback callback) {
    auto forget = [disks = readOnlyDisks_, callback = std::move(callback)](
                      const Disk& disk, const DiskDescription& description) {
        disks->erase(disk.bsdName);
        callback(disk, description);
    };
    return registerCallback(&DARegisterDiskDisappearedCallback, std::move(forget));
}

void DiskArbitration::scheduleWithRunLoop() {
    // Default mode only: no callbacks while an alert or the menu is open.
    if (!session_) return;
    DASessionScheduleWithRunLoop(session_.get(), CFRunLoopGetCurrent(), kCFRunLoopDefaultMode);
}

Owned<DADiskRef> DiskArbitration::diskNamed(const std::string& name) const {
    if (!session_) return {};
    return Owned<DADiskRef>(
        DADiskCreateFromBSDName(kCFAllocatorDefault, session_.get(), name.c_str()));
}

std::optional<Disk> DiskArbitration::diskFromBSDName(const std::optional<std::string>& name) {
    if (!name || !diskNamed(*name)) return std::nullopt;
    return Disk{.bsdName = *name};
}

std::optional<Disk> DiskArbitration::diskFromVolumePath(const std::optional<FileURL>& path) {
    if (!session_ || !path) return std::nullopt;
    const Owned<DADiskRef> disk(DADiskCreateFromVolumePath(kCFAllocatorDefault, session_.get(),
                                                           (__bridge CFURLRef)nsURL(path)));
    if (!disk) return std::nullopt;
    return Disk{.bsdName = nameOf(disk.get())};
}

DiskDescription DiskArbitration::copyDescription(const Disk& disk) {
    const auto found = diskNamed(disk.bsdName);
    return found ? descriptionOf(found.get()) : DiskDescription();
}

// Both requests may complete before the call returns.

void DiskArbitration::unmount(const Disk& disk, Completion completion) {
    const auto found = diskNamed(disk.bsdName);
    if (!found) {
        refuse(disk, completion);
        return;
    }
    auto request = std::make_unique<Request>();
    request->completion = std::move(completion);
    DADiskUnmount(found.get(), kDADiskUnmountOptionDefault, &complete, request.release());
}

void DiskArbitration::mountWithArguments(const Disk& disk,
                                         const std::vector<std::string>& arguments,
                                         Completion completion) {
    const auto found = diskNamed(disk.bsdName);
    if (!found) {
        refuse(disk, completion);
        return;
    }
    auto request = std::make_unique<Request>();
    request->completion = std::move(completion);
    const bool readWrite = std::find(arguments.begin(), arguments.end(), "rw") != arguments.end();
    if (readWrite) request->readOnlyDisks = readOnlyDisks_;
    ArgumentArray strings(arguments);
    DADiskMountWithArguments(found.get(), nullptr, kDADiskMountOptionDefault, &complete,
                             request.release(), strings.data());
}

}  // namespace brisel::platform::macos
